// A layout on paper: what the printer and the preview ask for, page by page.
#pragma once

#include <wx/bitmap.h>
#include <wx/prntbase.h>

#include <functional>
#include <utility>

#include "doc/layout.h"
#include "print/pages/pagination.h"
#include "print/pages/print_options.h"
#include "print/pages/printed_levels.h"

namespace vantrel {

// Changes which levels of the layout are visible from OnPreparePrinting to the last page. Whatever
// else ends the run puts them back too: OnEndPrinting, which a preview calls after each page, a
// page that can't be printed, and this object's own end. A page printed after that changes them
// anew.
class LayoutPrintout : public wxPrintout {
 public:
  // The layout must outlive this object.
  LayoutPrintout(Layout& layout, const PrintOptions& options);
  ~LayoutPrintout() override;

  void OnPreparePrinting() override;
  bool HasPage(int page) override;
  bool OnPrintPage(int page) override;
  void GetPageInfo(int* minPage, int* maxPage, int* pageFrom, int* pageTo) override;
  void OnEndPrinting() override;

  const Pagination& pages() const { return pages_; }

  // Is asked before each sheet that goes on paper; after a false none does any more. Previews don't
  // ask.
  using SheetWatcher = std::function<bool(int number, int count)>;
  void watchSheets(SheetWatcher watcher) { watcher_ = std::move(watcher); }

 protected:
  // What a page in grey is first drawn on. Not OK when it would take more memory than is sensible,
  // or when there is none.
  virtual wxBitmap makePageBitmap(wxSize size) const;

 private:
  DeviceSize pageSize() const;
  DeviceSize lastPage() const { return {lastPageW_, lastPageH_}; }
  void paginateFor(DeviceSize page);
  void showLevels();
  void putLevelsBack();
  void render(wxDC& dc, int page);
  bool drawGreyBitmap(wxDC& dc, int page);
  void draw(wxDC& dc, int page);
  void coverBeyondSeams(wxDC& dc, int page) const;
  ViewTransform viewOn(wxDC& dc, int page) const;
  int resolution() const;

  SheetWatcher watcher_;
  bool stopped_ = false;
  Layout* layout_;
  const PrintOptions options_;
  PrintBounds bounds_;
  Pagination pages_;
  int lastPageW_ = 0;  // the page that the pagination was made for
  int lastPageH_ = 0;
  bool levelsShown_ = false;
  LevelStates savedLevels_;
};

}  // namespace vantrel
