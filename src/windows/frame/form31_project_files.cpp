// "Save /Open Project ".
#include "windows/frame/form31_project_files.h"

#include "base/numbers.h"
#include "core/model_store.h"
#include "core/project_file.h"
#include "interchange/object_info.h"
#include "interchange/text_part.h"
#include "interchange/texture_file.h"
#include "interchange/xyz_files.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

FileDialogRequest ProjectDialog(bool save, const char* title) {
  return {save, title, "projects", "All Files (*.prj)|*.prj", "*.prj"};
}

FileDialogRequest TextureDialog(bool save, const char* title) {
  return {save, title, "textures", "All Files (*.tex)|*.tex", "*.tex"};
}

}  // namespace

Form31::Form31(App& app) : ToolWindow(app, "Form31", "Save /Open Project ") {
  OnFile(Command14, [this] { Command14_Click(); });
  OnFile(Command15, [this] { Command15_Click(); });
  OnFile(Command12, [this] { Command12_Click(); });
  OnFile(Command13, [this] { Command13_Click(); });
  OnFile(Command5, [this] { Command5_Click(); });
  OnFile(Command6, [this] { OpenPositions(Text1); });
  OnFile(Command7, [this] { OpenPositions(Text2); });
  OnFile(Command8, [this] { Command8_Click(); });
  OnFile(Command1, [this] { Command1_Click(); });
  OnFile(Command3, [this] { ImportPart(ReadSeparateFaces); });
  OnFile(Command4, [this] { ImportPart(ReadTextPart); });
  OnEdit(
      Command11, [this] { Command11_Click(); }, kRefreshOnly);
  OnFile(Command9, [this] { Command9_Click(); });
  BrowseInto(Dir1, File1, Text1);
  BrowseInto(Dir2, File2, Text2);
  SetLayout(DeclareLayout());
}

LayoutItem Form31::DeclareLayout() {
  return Column({
      Frame("Project", {Flow({&Command15, &Command14, &Command13, &Command12, &Command11, &Command9})}),
      Frame("File to write", {Labelled("Name", Text1), Row({Single(Dir1), Single(File1)}),
                              Flow({&Command5, &Command6, &Command8}), Flow({&Check1, &Check2, &Command1})}),
      Frame("File to read", {Labelled("Name", Text2), Row({Single(Dir2), Single(File2)}),
                             Flow({&Command7, &Command3, &Command4})}),
  });
}

void Form31::Load() {
  const std::filesystem::path folder = app_.applicationPath / "projects";
  for (DirList* list : {&Dir1, &Dir2}) list->SetFolder(folder);
  for (FileList* list : {&File1, &File2}) list->SetFolder(folder);
}

void Form31::Command14_Click() {
  const auto name = AskFileName(app_, ProjectDialog(true, "Save project (.prj file)"));
  if (name.empty()) return;
  Text1.SetText(name.string());
  SaveFile(app_, name, [this](TextWriter& out) { WriteProject(app_.model, out); });
  app_.history->ModelIsOnFile(name.filename().string());
  RefreshViews(app_);
}

void Form31::Command15_Click() {
  const auto name = AskFileName(app_, ProjectDialog(false, "Open Project (.prj file)"));
  if (name.empty()) return;
  OpenFile(app_, name, [this](std::string_view text) {
    ReadProject(app_.model, text);
    return CountsOfParts(app_);
  });
  app_.history->ModelIsOnFile(name.filename().string());
  FollowCounts(app_);
  FollowSections(app_);
  app_.view->form51.ShowProfile();
  RefreshViews(app_);
}

void Form31::Command9_Click() {
  const auto name = AskFileName(app_, TextureDialog(true, "Save texture file (.tex file)"));
  if (name.empty()) return;
  SaveFile(app_, name, [this](TextWriter& out) { WriteTextureFile(app_.model, out); });
}

void Form31::Command11_Click() {
  const auto name = AskFileName(app_, TextureDialog(false, "Open texture file (.tex file)"));
  if (name.empty()) return;
  OpenFile(app_, name, [this](std::string_view text) {
    ReadTextureFile(app_.model, text);
    return std::to_string(ReadModel(app_).Part(0).vtcount) + " and " +
           std::to_string(ReadModel(app_).Part(1).vtcount) + " UV points";
  });
}

void Form31::ExportInfo(const char* title, const FileWriter& write) {
  const auto name = AskFileName(app_, {true, title, "objinfo", "All Files (*.txt)|*.txt", "*.txt"});
  if (!name.empty()) ExportFile(app_, name, write);
}

void Form31::Command12_Click() {
  ExportInfo("Export Obj info --All Part#'s(.txt file)",
             [this](TextWriter& out) { WriteObjectInfoOfAllParts(app_.model, out); });
}

void Form31::Command13_Click() {
  ExportInfo("Export Obj info --Single Part#-- (.txt file)",
             [this](TextWriter& out) { WriteObjectInfoOfPart(app_.model, CurrentPart(app_), out); });
}

void Form31::ShowEstimatedArea() {
  Trapped(app_.faults, "MDIForm1.estarea", [this] {
    const double area = EstimatedArea(app_.model, CurrentPart(app_));
    app_.view->form51.Label19.SetCaption("Sq Units " + GeneralForm(area));
  });
}

void Form31::Command5_Click() {
  ExportFile(
      app_, Text1.text(), [this](TextWriter& out) { WriteProfilePositions(app_.model, out); },
      OldFile::IsKept);
}

void Form31::OpenPositions(const TextBox& name) {
  OpenFile(app_, name.text(), [this](std::string_view text) {
    ReadProfilePositions(app_.model, text);
    return std::string("profile points");
  });
  app_.profiles->formulas.ProfileChosen();
  RefreshViews(app_);
}

void Form31::Command8_Click() {
  ExportFile(
      app_, Text1.text(), [this](TextWriter& out) { WriteSeparateFaces(app_.model, CurrentPart(app_), out); },
      OldFile::IsKept);
}

void Form31::Command1_Click() {
  if (!Check1.value() && !Check2.value()) return;
  const auto write = [this](TextWriter& out) {
    if (Check1.value()) WriteTextPart(app_.model, CurrentPart(app_), out);
    if (Check2.value()) WriteSeparateFaces(app_.model, CurrentPart(app_), out);
  };
  ExportFile(app_, Text1.text(), write, OldFile::IsKept);
}

void Form31::ImportPart(void (*read)(ModelStore&, int, std::string_view)) {
  OpenFile(app_, Text2.text(), [this, read](std::string_view text) {
    read(app_.model, CurrentPart(app_), text);
    return CountsOfParts(app_);
  });
  FollowCounts(app_);
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

}  // namespace pelorium
