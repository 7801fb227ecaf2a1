// "Save/Open profile".
#include "windows/frmsaveprof_profile_files.h"

#include "base/files.h"
#include "core/profile_file.h"
#include "windows/app.h"
#include "windows/file_names.h"
#include "windows/form51_view_options.h"
#include "windows/refresh_views.h"
#include "windows/revolveprof_revolve_profile.h"
#include "windows/shared_parameters.h"

namespace pelorium {

FrmSaveProf::FrmSaveProf(App& app) : Window(app.host, "frmsaveprof", "Save/Open profile"), app_(app) {
  Command1.onClick = [this](const Click&) { Command1_Click(); };
  Command2.onClick = [this](const Click&) { Command2_Click(); };
  Command4.onClick = [this](const Click&) { Export(Command4, ProfileReport::Points); };
  Command3.onClick = [this](const Click&) { Export(Command3, ProfileReport::Parametric); };
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

void FrmSaveProf::Command1_Click() {
  Trapped(app_.faults, Command1.FullName(), [this] {
    if (!ChooseFile(true, "Save profiles (.txt file)", "profiles")) return;
    ReplaceFile(Text1.text(), [this](TextWriter& out) { WriteProfiles(app_.model, out); });
  });
}

// A file that goes wrong half-way leaves what was read, and that shows too.
void FrmSaveProf::Command2_Click() {
  const HoldAutomaticActions hold(app_);
  Trapped(app_.faults, Command2.FullName(), [this] {
    if (!ChooseFile(false, "Open Profiles (.txt file)", "profiles")) return;
    const std::string text = ReadFile(Text1.text());
    Trapped(app_.faults, Command2.FullName(), [&] {
      ReadProfileFile(app_.model, text);
      ScrollBar& sections = app_.revolveprof.HScroll10;
      sections.SetValue(sections.Clamped(app_.model.Profile(CurrentProfile(app_)).sectionCount));
    });
    app_.form51.ShowProfile();
    RefreshViews(app_);
  });
}

void FrmSaveProf::Export(const PushButton& button, ProfileReport report) {
  Trapped(app_.faults, button.FullName(), [&] {
    if (!ChooseFile(true, "Export profile info (.txt file)", "profinfo")) return;
    WriteFile(Text1.text(), [&](TextWriter& out) { WriteProfileReport(app_.model, report, out); });
  });
}

}  // namespace pelorium
