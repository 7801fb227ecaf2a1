// "Save/Open profile".
#include "windows/frmsaveprof_profile_files.h"

#include "core/profile_file.h"
#include "windows/app.h"
#include "windows/file_names.h"
#include "windows/form51_view_options.h"
#include "windows/refresh_views.h"
#include "windows/revolveprof_revolve_profile.h"
#include "windows/shared_parameters.h"

namespace pelorium {

FrmSaveProf::FrmSaveProf(App& app) : Window(app.host, "frmsaveprof", "Save/Open profile"), app_(app) {
  Command1.onClick = [this](const Click&) { SaveProfiles(); };
  Command2.onClick = [this](const Click&) { OpenProfiles(); };
  Command4.onClick = [this](const Click&) { ExportInfo(); };
  Command3.onClick = [this](const Click&) { ExportParametric(); };
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
  Trapped(app_.faults, Command1.FullName(), [this] {
    if (!ChooseFile(true, "Save profiles (.txt file)", "profiles")) return;
    SaveFile(app_, Text1.text(), [this](TextWriter& out) { WriteProfiles(app_.model, out); });
  });
}

// A file that goes wrong half-way leaves what was read, and that shows too.
void FrmSaveProf::OpenProfiles() {
  const HoldAutomaticActions hold(app_);
  bool isChosen = false;
  Trapped(app_.faults, Command2.FullName(), [&] {
    isChosen = ChooseFile(false, "Open Profiles (.txt file)", "profiles");
    if (!isChosen) return;
    OpenFile(app_, Text1.text(), [this](std::string_view text) {
      ReadProfileFile(app_.model, text);
      return "profiles of " + std::filesystem::path(Text1.text()).filename().string();
    });
    ScrollBar& sections = app_.revolveprof.HScroll10;
    sections.SetValue(sections.Clamped(app_.model.Profile(CurrentProfile(app_)).sectionCount));
  });
  if (!isChosen) return;
  app_.form51.ShowProfile();
  RefreshViews(app_);
}

void FrmSaveProf::ExportInfo() { Export(Command4, ProfileReport::Points); }
void FrmSaveProf::ExportParametric() { Export(Command3, ProfileReport::Parametric); }

void FrmSaveProf::Export(const PushButton& button, ProfileReport report) {
  Trapped(app_.faults, button.FullName(), [&] {
    if (!ChooseFile(true, "Export profile info (.txt file)", "profinfo")) return;
    ExportFile(app_, Text1.text(), [&](TextWriter& out) { WriteProfileReport(app_.model, report, out); });
  });
}

}  // namespace pelorium
