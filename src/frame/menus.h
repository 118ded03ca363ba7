// Menu bar and toolbar, built from the command table and the table of the Tools menu.
#pragma once

class wxFrame;
class wxToolBar;

namespace vantrel {

// Gives the frame its menu bar.
void BuildMenuBar(wxFrame& frame);

// Adds the tools and their separators, and realizes the toolbar.
void FillToolBar(wxToolBar& bar);

}  // namespace vantrel
