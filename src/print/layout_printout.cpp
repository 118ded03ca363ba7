#include "print/layout_printout.h"

#include <wx/brush.h>
#include <wx/dcmemory.h>
#include <wx/font.h>
#include <wx/image.h>

#include <algorithm>
#include <new>

#include "print/paper_corner.h"
#include "print/paper_dc.h"
#include "render2d/contents_drawing.h"

namespace vantrel {
namespace {

constexpr const char* kTitle = "Vantrel Layout";
constexpr double kScreenDpi = 96.0;
constexpr int kUsualDpi = 300;

// A bitmap of 40 million dots, an A4 page at 600 dots an inch, takes half a gigabyte until it is
// grey and on its way to the printer. A longer side than this is none that the toolkit can draw on.
constexpr double kMostBitmapDots = 40e6;
constexpr int kLongestBitmapSide = 32'767;

// The height of a text of so many points, in the units of a device: large enough for whole units,
// also on a preview that shows a page at a twentieth of its size.
constexpr int kMeasuredPoints = 2000;
int MeasuredHeight(wxDC& dc) {
  const wxFont font(wxFontInfo(kMeasuredPoints).Family(wxFONTFAMILY_DEFAULT));
  wxCoord width = 0;
  wxCoord height = 0;
  dc.GetTextExtent("M", &width, &height, nullptr, nullptr, &font);
  return std::max(height, 1);
}

int MeasuredHeightOnScreen() {
  wxBitmap bitmap(1, 1);
  wxMemoryDC screen(bitmap);
  return MeasuredHeight(screen);
}

}  // namespace

LayoutPrintout::LayoutPrintout(Layout& layout, const PrintOptions& options)
    : wxPrintout(kTitle), layout_(&layout), options_(options) {}

LayoutPrintout::~LayoutPrintout() {
  putLevelsBack();
}

// The print dialog's own preview prepares the same printout once more.
void LayoutPrintout::OnPreparePrinting() {
  putLevelsBack();
  stopped_ = false;
  showLevels();
  bounds_ = boundsOfPrint(*layout_, options_);
  paginateFor(pageSize());
}

bool LayoutPrintout::HasPage(int page) {
  return !stopped_ && page >= 1 && page <= pages_.pageCount();
}

bool LayoutPrintout::OnPrintPage(int page) {
  wxDC* const dc = GetDC();
  const DeviceSize size = pageSize();
  if (dc == nullptr || size.width < 1 || size.height < 1) {
    putLevelsBack();
    return false;
  }
  if (size != lastPage()) paginateFor(size);
  if (!HasPage(page)) {
    putLevelsBack();
    return false;
  }
  if (!IsPreview() && watcher_ && !watcher_(page, pages_.pageCount())) {
    stopped_ = true;
    putLevelsBack();
    return false;
  }
  showLevels();
  FitThisSizeToPage(wxSize(size.width, size.height));
  const DevicePoint corner = paperCorner(*dc, size);
  if (corner != DevicePoint{}) dc->SetDeviceOrigin(corner.x, corner.y);
  render(*dc, page);
  if (page == pages_.pageCount()) putLevelsBack();
  return true;
}

void LayoutPrintout::GetPageInfo(int* minPage, int* maxPage, int* pageFrom, int* pageTo) {
  *minPage = 1;
  *maxPage = std::max(1, pages_.pageCount());
  *pageFrom = 1;
  *pageTo = *maxPage;
}

void LayoutPrintout::OnEndPrinting() {
  putLevelsBack();
  wxPrintout::OnEndPrinting();
}

DeviceSize LayoutPrintout::pageSize() const {
  DeviceSize size;
  GetPageSizePixels(&size.width, &size.height);
  return size;
}

int LayoutPrintout::resolution() const {
  int across = 0;
  int down = 0;
  GetPPIPrinter(&across, &down);
  return across;
}

void LayoutPrintout::paginateFor(DeviceSize page) {
  lastPageW_ = page.width;
  lastPageH_ = page.height;
  pages_ = paginate(bounds_, options_, page, resolution());
}

void LayoutPrintout::showLevels() {
  if (levelsShown_) return;
  savedLevels_ = levelStates(*layout_);
  levelsShown_ = true;
  showPrintedLevels(*layout_, options_);
}

void LayoutPrintout::putLevelsBack() {
  if (!levelsShown_) return;
  putLevelStatesBack(*layout_, savedLevels_);
  savedLevels_.clear();
  levelsShown_ = false;
}

void LayoutPrintout::render(wxDC& dc, int page) {
  const PrintedGround ground(*layout_, options_);
  if (options_.grayscale != 0 && drawGreyBitmap(dc, page)) return;
  PaperDC paper(dc, options_.grayscale != 0 ? PaperColours::grey : PaperColours::asTheyAre);
  draw(paper, page);
}

// A pixel is a ninety-sixth of an inch on every paper, and a text as large beside it as on this
// user's screen.
ViewTransform LayoutPrintout::viewOn(wxDC& dc, int page) const {
  ViewTransform view = pageView(pages_, bounds_, lastPage(), page);
  const int dpi = resolution() < 1 ? kUsualDpi : resolution();
  view.pixel = dpi / kScreenDpi;
  view.fontScale = view.pixel * MeasuredHeightOnScreen() / MeasuredHeight(dc);
  return view;
}

void LayoutPrintout::draw(wxDC& dc, int page) {
  const PageArea whole = wholeArea(pages_, lastPage(), page);
  RenderContext context;
  context.platesWithin = {whole.left, whole.top, whole.left + whole.width,
                          whole.top + whole.height};
  DrawLayoutContents(context, dc, *layout_, viewOn(dc, page), lastPage());
  coverBeyondSeams(dc, page);
}

// The page is drawn beyond its seams, and what is too much goes under white. A clip at the seam
// would end each layer by itself; where it cuts through the dots of a viewer, what is below would
// then shine through as a hairline.
void LayoutPrintout::coverBeyondSeams(wxDC& dc, int page) const {
  const PageArea area = drawnArea(pages_, lastPage(), page);
  const int right = area.left + area.width;
  const int bottom = area.top + area.height;
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(*wxWHITE_BRUSH);
  if (area.left > 0) dc.DrawRectangle(0, 0, area.left, lastPageH_);
  if (area.top > 0) dc.DrawRectangle(0, 0, lastPageW_, area.top);
  if (right < lastPageW_) dc.DrawRectangle(right, 0, lastPageW_ - right, lastPageH_);
  if (bottom < lastPageH_) dc.DrawRectangle(0, bottom, lastPageW_, lastPageH_ - bottom);
}

wxBitmap LayoutPrintout::makePageBitmap(wxSize size) const {
  if (std::max(size.x, size.y) > kLongestBitmapSide) return wxNullBitmap;
  if (static_cast<double>(size.x) * size.y > kMostBitmapDots) return wxNullBitmap;
  return wxBitmap(size, 24);
}

// False when there isn't the memory for it, and then nothing is on the paper yet.
bool LayoutPrintout::drawGreyBitmap(wxDC& dc, int page) try {
  wxBitmap bitmap = makePageBitmap(wxSize(lastPageW_, lastPageH_));
  if (!bitmap.IsOk()) return false;
  {
    wxMemoryDC memory(bitmap);
    if (!memory.IsOk()) return false;
    memory.SetBackground(*wxWHITE_BRUSH);
    memory.Clear();
    draw(memory, page);
  }
  wxImage image = bitmap.ConvertToImage();
  bitmap = wxNullBitmap;
  if (!image.IsOk()) return false;
  image = image.ConvertToGreyscale();
  if (!image.IsOk()) return false;
  const wxBitmap grey(image);
  if (!grey.IsOk()) return false;
  dc.DrawBitmap(grey, 0, 0);
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

}  // namespace vantrel
