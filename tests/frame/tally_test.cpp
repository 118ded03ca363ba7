// The tally is counted anew after every change of the pieces, whichever way it comes about.
#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/textctrl.h>

#include <string>
#include <vector>

#include "canvas/canvas_panel.h"
#include "catalog/track_catalog.h"
#include "doc/undo.h"
#include "frame/startup.h"
#include "properties/properties_panel.h"
#include "properties/tally_list.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

using Texts = std::vector<std::string>;

class FrameTally : public FrameTest {
 protected:
  // What stands in the list, as "text x count".
  Texts tally() {
    auto* list = FindControl<TallyList>(frame().properties());
    if (!list) return {"no list"};
    Texts rows;
    for (long i = 0; i < list->GetItemCount(); ++i)
      rows.push_back(list->GetItemText(i, 0).utf8_string() + " x " +
                     list->GetItemText(i, 1).utf8_string());
    return rows;
  }

  // A selected piece that has been counted.
  void begin(const std::string& part) {
    addPiece(part).sel = true;
    frame().markDirty();
  }

  // The canvas takes the mouse, which only a window on the screen can.
  void show() {
    frame().Show();
    WaitUntilSettled(frame().canvas());
  }

  void pointer(const wxEventTypeTag<wxMouseEvent>& type, wxPoint at) {
    wxMouseEvent event(type);
    event.SetEventObject(&frame().canvas());
    event.SetPosition(at);
    frame().canvas().ProcessWindowEvent(event);
  }
};

TEST_F(FrameTally, ShowsTheDescriptionsOfTheCatalogWholeButForTheLongest) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i)
    addPiece(catalog().pieceAt(i)->partNumber);
  frame().markDirty();
  show();
  auto* list = FindControl<TallyList>(frame().properties());
  ASSERT_NE(list, nullptr);
  Texts cut;
  for (long row = 0; row < list->GetItemCount(); ++row) {
    list->EnsureVisible(row);
    wxRect rect;
    ASSERT_TRUE(list->GetItemRect(row, rect));
    const wxString tip = list->tipAt(rect.GetPosition() + wxPoint(20, 5));
    if (!tip.empty()) cut.push_back(tip.BeforeFirst(' ').utf8_string());
  }
  // Those that tell a length or a radius in two units, or another property behind it. All are of
  // the K-Track but for two turnouts of the Z-Track.
  EXPECT_EQ(cut, (Texts{"2223", "2224", "2239",  "2260",  "2265", "2266", "2268",
                        "2269", "2270", "22715", "22716", "2275", "2290", "2291",
                        "2292", "2295", "2297",  "2299",  "8568", "8569"}));
}

TEST_F(FrameTally, IsEmptyAtTheStart) {
  EXPECT_EQ(tally(), Texts());
}

TEST_F(FrameTally, CountsAPieceThatADoubleClickAdds) {
  begin("24188");
  frame().canvas().placeByDoubleClick("24360");
  EXPECT_EQ(tally(), (Texts{"24188 - 188.3mm x 1", "24360 - 360mm x 1"}));
}

TEST_F(FrameTally, CountsAPieceThatIsDropped) {
  show();
  frame().canvas().beginPieceDrag("24360");
  pointer(wxEVT_MOTION, wxPoint(200, 200));
  pointer(wxEVT_LEFT_DOWN, wxPoint(200, 200));
  EXPECT_EQ(tally(), (Texts{"24360 - 360mm x 1"}));
}

TEST_F(FrameTally, CountsBothPiecesOfAPair) {
  show();
  frame().canvas().beginPieceDrag("74618");
  pointer(wxEVT_MOTION, wxPoint(200, 200));
  pointer(wxEVT_LEFT_DOWN, wxPoint(200, 200));
  EXPECT_EQ(tally(), (Texts{"24172 - 171.7mm x 2", "24188 - 188.3mm x 2",
                            "74618 Straight Ramp 180mm (pair) x 2"}));
}

TEST_F(FrameTally, CountsATurntableWithoutTheSpokesThatComeWithIt) {
  show();
  frame().canvas().beginPieceDrag("74861");
  pointer(wxEVT_MOTION, wxPoint(200, 200));
  pointer(wxEVT_LEFT_DOWN, wxPoint(200, 200));
  ASSERT_EQ(plan().pieces.size(), 7u);
  EXPECT_EQ(tally(), (Texts{"74861 Turntable (pit 278mm) x 1"}));
}

TEST_F(FrameTally, CountsSceneryThatIsDropped) {
  show();
  frame().canvas().beginSceneryDrag("72886");
  pointer(wxEVT_MOTION, wxPoint(200, 200));
  pointer(wxEVT_LEFT_DOWN, wxPoint(200, 200));
  EXPECT_EQ(tally(), (Texts{"Roundhouse 72886 (3-stall) x 1"}));
}

TEST_F(FrameTally, LeavesOutWhatIsDeleted) {
  addPiece("24360");
  begin("24188");
  command(kCmdDelete);
  EXPECT_EQ(tally(), (Texts{"24360 - 360mm x 1"}));
  command(kCmdUndo);
  EXPECT_EQ(tally(), (Texts{"24188 - 188.3mm x 1", "24360 - 360mm x 1"}));
}

TEST_F(FrameTally, LeavesOutWhatTheCanvasDeletes) {
  addPiece("24360");
  begin("24188");
  wxKeyEvent event(wxEVT_KEY_DOWN);
  event.SetEventObject(&frame().canvas());
  event.m_keyCode = WXK_DELETE;
  frame().canvas().ProcessWindowEvent(event);
  EXPECT_EQ(tally(), (Texts{"24360 - 360mm x 1"}));
}

TEST_F(FrameTally, FollowsUndoAndRedo) {
  begin("24188");
  PushUndo(plan());
  addPiece("24360");
  frame().markDirty();
  command(kCmdUndo);
  EXPECT_EQ(tally(), (Texts{"24188 - 188.3mm x 1"}));
  command(kCmdRedo);
  EXPECT_EQ(tally(), (Texts{"24188 - 188.3mm x 1", "24360 - 360mm x 1"}));
}

TEST_F(FrameTally, CountsTheLayoutThatIsOpened) {
  WriteFileText(inStore("a.vtl"), LayoutText("a", "24360"));
  ModalScript script;
  script.dialog("Open Layout", wxID_OK, [](wxDialog& dialog) { ClickRow(dialog, 0); });
  command(kCmdOpen);
  EXPECT_EQ(tally(), (Texts{"24360 - 360mm x 1"}));
}

TEST_F(FrameTally, CountsTheLayoutThatIsImportedAndOpened) {
  WriteFileText(folders_.downloads + "/a.vtl", LayoutText("a", "24360"));
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, [](wxDialog& dialog) { ClickRow(dialog, 0); });
  script.box("Import", "Imported successfully.\n\nOpen \"a\" now?", kQuestionBox, wxID_YES);
  command(kCmdImport);
  EXPECT_EQ(tally(), (Texts{"24360 - 360mm x 1"}));
}

TEST_F(FrameTally, IsEmptyAgainForANewLayout) {
  begin("24188");
  ModalScript script;
  script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
             wxID_NO);
  command(kCmdNew);
  EXPECT_EQ(tally(), Texts());
}

TEST_F(FrameTally, IsCountedAtTheEndOfTheStart) {
  frame_ = StartUp(folders_, [](const ProgramFolders& folders) {
    auto* frame = new MainFrame(folders);
    Piece piece;
    piece.cat = "24360";
    frame->layout().pieces.push_back(piece);
    return frame;
  });
  ASSERT_NE(frame_, nullptr);
  EXPECT_EQ(tally(), (Texts{"24360 - 360mm x 1"}));
}

}  // namespace
}  // namespace vantrel
