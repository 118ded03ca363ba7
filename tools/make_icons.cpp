// make_icons HICOLOR: draws every icon of HICOLOR/scalable anew in the sizes that a desktop asks
// for, as HICOLOR/SIZExSIZE/CONTEXT/NAME.png.
#include <wx/app.h>
#include <wx/bmpbndl.h>
#include <wx/image.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdio>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

bool Draw(const fs::path& svg, const fs::path& hicolor) {
  const std::string context = svg.parent_path().filename().string();
  for (const int size : kSizes) {
    const wxBitmapBundle bundle =
        wxBitmapBundle::FromSVGFile(wxString::FromUTF8(svg.string()), wxSize(size, size));
    if (!bundle.IsOk()) return false;
    const std::string folder = std::to_string(size) + "x" + std::to_string(size);
    const fs::path png = hicolor / folder / context / (svg.stem().string() + ".png");
    fs::create_directories(png.parent_path());
    const wxImage image = bundle.GetBitmap(wxSize(size, size)).ConvertToImage();
    if (!image.SaveFile(wxString::FromUTF8(png.string()), wxBITMAP_TYPE_PNG)) return false;
    std::printf("%s\n", png.c_str());
  }
  return true;
}

bool DrawAll(const fs::path& hicolor) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(hicolor / "scalable"))
    if (entry.path().extension() == ".svg" && !Draw(entry.path(), hicolor)) {
      std::fprintf(stderr, "cannot draw %s\n", entry.path().c_str());
      return false;
    }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_icons HICOLOR\n", stderr);
    return 2;
  }
  const fs::path hicolor = argv[1];
  wxApp::SetInstance(new wxApp);
  int toolkitArguments = 1;
  if (!wxEntryStart(toolkitArguments, argv)) return 2;
  delete wxLog::SetActiveTarget(new wxLogStderr);
  wxImage::AddHandler(new wxPNGHandler);
  int result = 1;
  try {
    result = DrawAll(hicolor) ? 0 : 1;
  } catch (const fs::filesystem_error& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
  }
  wxEntryCleanup();
  return result;
}
