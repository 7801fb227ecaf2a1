// "Save/Open profile".
#include "windows/profiles/frmsaveprof_profile_files.h"

#include "core/profile_file.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

FrmSaveProf::FrmSaveProf(App& app) : ToolWindow(app, "frmsaveprof", "Save/Open profile") {
  OnFile(Command1, [this] { SaveProfiles(); });
  Command2.onClick = [this](const Click&) { OpenProfiles(); };
  OnFile(Command4, [this] { ExportInfo(); });
  OnFile(Command3, [this] { ExportParametric(); });
  SetLayout(DeclareLayout());
}

LayoutItem FrmSaveProf::DeclareLayout() {
  return Column({
      Frame("Profiles", {Labelled("Name", Text1), Flow({&Command1, &Command2})}),
      Frame("Reports", {Flow({&Command4, &Command3})}),
  });
}

// The name goes into the box; false when the dialog was cancelled.
bool FrmSaveProf::ChooseFile(bool save, const char* title, const char* folder) {
  const auto name = AskFileName(app_, {save, title, folder, "All Files (*.txt)|*.txt", "*.txt"});
  if (!name.empty()) Text1.SetText(name.string());
  return !name.empty();
}

void FrmSaveProf::SaveProfiles() {
  if (!ChooseFile(true, "Save profiles (.txt file)", "profiles")) return;
  SaveFile(app_, Text1.text(), [this](TextWriter& out) { WriteProfiles(app_.model, out); });
}

// A file that goes wrong half-way leaves what was read, and that shows too.
void FrmSaveProf::OpenProfiles() {
  const HoldAutomaticActions hold(app_);
  bool isChosen = false;
  const auto open = [&] {
    isChosen = ChooseFile(false, "Open Profiles (.txt file)", "profiles");
    if (!isChosen) return;
    OpenFile(app_, Text1.text(), [this](std::string_view text) {
      ReadProfileFile(app_.model, text);
      return "profiles of " + std::filesystem::path(Text1.text()).filename().string();
    });
    app_.links.showSections(ReadModel(app_).Profile(CurrentProfile(app_)).sectionCount);
  };
  Edit(Command2, open, kChangeOnly);
  if (!isChosen) return;
  app_.view->form51.ShowProfile();
  RefreshViews(app_);
}

void FrmSaveProf::ExportInfo() { Export(ProfileReport::Points); }
void FrmSaveProf::ExportParametric() { Export(ProfileReport::Parametric); }

void FrmSaveProf::Export(ProfileReport report) {
  if (!ChooseFile(true, "Export profile info (.txt file)", "profinfo")) return;
  ExportFile(app_, Text1.text(), [&](TextWriter& out) { WriteProfileReport(app_.model, report, out); });
}

}  // namespace pelorium
