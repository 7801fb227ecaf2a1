// "Save /Open Project ".
#include "windows/form31_project_files.h"

#include "base/numbers.h"
#include "core/model_store.h"
#include "core/project_file.h"
#include "interchange/object_info.h"
#include "interchange/text_part.h"
#include "interchange/xyz_files.h"
#include "windows/app.h"
#include "windows/file_names.h"
#include "windows/follow_counts.h"
#include "windows/form51_view_options.h"
#include "windows/formulas_edit_profile.h"
#include "windows/refresh_views.h"
#include "windows/shared_parameters.h"

namespace pelorium {

namespace {

FileDialogRequest ProjectDialog(bool save, const char* title) {
  return {save, title, "projects", "All Files (*.prj)|*.prj", "*.prj"};
}

}  // namespace

Form31::Form31(App& app) : Window(app.host, "Form31", "Save /Open Project "), app_(app) {
  Command14.onClick = [this](const Click&) { Command14_Click(); };
  Command15.onClick = [this](const Click&) { Command15_Click(); };
  Command12.onClick = [this](const Click&) { Command12_Click(); };
  Command13.onClick = [this](const Click&) { Command13_Click(); };
  Command5.onClick = [this](const Click&) { Command5_Click(); };
  Command6.onClick = [this](const Click&) { OpenPositions(Command6, Text1); };
  Command7.onClick = [this](const Click&) { OpenPositions(Command7, Text2); };
  Command8.onClick = [this](const Click&) { Command8_Click(); };
  Command1.onClick = [this](const Click&) { Command1_Click(); };
  Command3.onClick = [this](const Click&) { Command3_Click(); };
  Command4.onClick = [this](const Click&) { Command4_Click(); };
  // Texture coordinates have their files in a window that is still to come.
  Command11.SetEnabled(false);
  Command9.SetEnabled(false);
  BrowseInto(Dir1, File1, Text1);
  BrowseInto(Dir2, File2, Text2);
  SetLayout(DeclareLayout());
}

LayoutItem Form31::DeclareLayout() {
  return Column({
      Frame("Project", {Flow({&Command15, &Command14, &Command13, &Command12, &Command11, &Command9})}),
      Row({Frame("File to write",
                 {Labelled("Name", Text1), Row({Single(Dir1), Single(File1)}),
                  Flow({&Command5, &Command6, &Command8}), Flow({&Check1, &Check2, &Command1})}),
           Frame("File to read", {Labelled("Name", Text2), Row({Single(Dir2), Single(File2)}),
                                  Flow({&Command7, &Command3, &Command4})})}),
  });
}

void Form31::Load() {
  const std::filesystem::path folder = app_.applicationPath / "projects";
  for (DirList* list : {&Dir1, &Dir2}) list->SetFolder(folder);
  for (FileList* list : {&File1, &File2}) list->SetFolder(folder);
}

void Form31::Command14_Click() {
  Trapped(app_.faults, "Form31.Command14", [this] {
    const auto name = AskFileName(app_, ProjectDialog(true, "Save project (.prj file)"));
    if (name.empty()) return;
    Text1.SetText(name.string());
    SaveFile(app_, name, [this](TextWriter& out) { WriteProject(app_.model, out); });
    RefreshViews(app_);
  });
}

void Form31::Command15_Click() {
  Trapped(app_.faults, "Form31.Command15", [this] {
    const auto name = AskFileName(app_, ProjectDialog(false, "Open Project (.prj file)"));
    if (name.empty()) return;
    OpenFile(app_, name, [this](std::string_view text) {
      ReadProject(app_.model, text);
      return CountsOfParts(app_);
    });
    FollowCounts(app_);
    FollowSections(app_);
    app_.form51.ShowProfile();
    RefreshViews(app_);
  });
}

void Form31::ExportInfo(const char* title, const FileWriter& write) {
  const auto name = AskFileName(app_, {true, title, "objinfo", "All Files (*.txt)|*.txt", "*.txt"});
  if (!name.empty()) ExportFile(app_, name, write);
}

void Form31::Command12_Click() {
  Trapped(app_.faults, "Form31.Command12", [this] {
    ExportInfo("Export Obj info --All Part#'s(.txt file)",
               [this](TextWriter& out) { WriteObjectInfoOfAllParts(app_.model, out); });
  });
}

void Form31::Command13_Click() {
  Trapped(app_.faults, "Form31.Command13", [this] {
    ExportInfo("Export Obj info --Single Part#-- (.txt file)",
               [this](TextWriter& out) { WriteObjectInfoOfPart(app_.model, CurrentPart(app_), out); });
  });
}

void Form31::ShowEstimatedArea() {
  Trapped(app_.faults, "MDIForm1.estarea", [this] {
    const double area = EstimatedArea(app_.model, CurrentPart(app_));
    app_.form51.Label19.SetCaption("Sq Units " + GeneralForm(area));
  });
}

void Form31::Command5_Click() {
  Trapped(app_.faults, "Form31.Command5", [this] {
    ExportFile(app_, Text1.text(), [this](TextWriter& out) { WriteProfilePositions(app_.model, out); });
  });
}

void Form31::OpenPositions(const PushButton& button, const TextBox& name) {
  Trapped(app_.faults, button.FullName(), [&] {
    OpenFile(app_, name.text(), [this](std::string_view text) {
      ReadProfilePositions(app_.model, text);
      return std::string("profile points");
    });
    app_.formulas.ShowProfile();
    RefreshViews(app_);
  });
}

void Form31::Command8_Click() {
  Trapped(app_.faults, "Form31.Command8", [this] {
    ExportFile(app_, Text1.text(),
               [this](TextWriter& out) { WriteSeparateFaces(app_.model, CurrentPart(app_), out); });
  });
}

void Form31::Command1_Click() {
  if (!Check1.value() && !Check2.value()) return;
  Trapped(app_.faults, "Form31.Command1", [this] {
    ExportFile(app_, Text1.text(), [this](TextWriter& out) {
      if (Check1.value()) WriteTextPart(app_.model, CurrentPart(app_), out);
      if (Check2.value()) WriteSeparateFaces(app_.model, CurrentPart(app_), out);
    });
  });
}

void Form31::ImportPart(const char* where, void (*read)(ModelStore&, int, std::string_view)) {
  Trapped(app_.faults, where, [this, read] {
    OpenFile(app_, Text2.text(), [this, read](std::string_view text) {
      read(app_.model, CurrentPart(app_), text);
      return CountsOfParts(app_);
    });
    FollowCounts(app_);
    SyncFaceCorners(app_);
    RefreshViews(app_);
  });
}

void Form31::Command3_Click() { ImportPart("Form31.Command3", ReadSeparateFaces); }
void Form31::Command4_Click() { ImportPart("Form31.Command4", ReadTextPart); }

}  // namespace pelorium
