// ".obj parts" and "TXT Parts".
#include "windows/interchange/shapes_parts_library.h"

#include <string>

#include "base/files.h"
#include "core/part_operations.h"
#include "geometry/choose_points.h"
#include "geometry/cube.h"
#include "interchange/obj_part.h"
#include "interchange/text_part.h"
#include "windows/interchange/combine_parts.h"
#include "windows/interchange/import_file.h"
#include "windows/interchange/import_obj.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kFolders = 10, kFirstFolderButton = 11;
constexpr std::size_t kMostTextBytes = 1 << 24;  // no text of a Part that the tables can take is longer

std::string FolderName(int number) { return "parts" + std::to_string(number); }

std::vector<std::unique_ptr<PushButton>> MakeFolderButtons(Window& owner) {
  std::vector<std::unique_ptr<PushButton>> buttons;
  for (int i = 0; i < kFolders; ++i) {
    buttons.push_back(std::make_unique<PushButton>(owner, "Command" + std::to_string(kFirstFolderButton + i),
                                                   std::to_string(i + 1),
                                                   "shows the folder " + FolderName(i + 1)));
  }
  return buttons;
}

}  // namespace

PartsLibrary::PartsLibrary(App& app, const char* name, const char* caption, Kind kind)
    : ToolWindow(app, name, caption),
      folderButtons(MakeFolderButtons(*this)),
      File1(*this, "File1", kind == Kind::Obj ? "*.obj" : "*.txt", "a click reads the part into the Part"),
      Text14(*this, "Text14", kind == Kind::Obj ? "Temp.obj" : "Temp.txt", "Name for saving"),
      panel(*this, app) {
  BindFolders(kind == Kind::Obj ? Command2 : Command22);
  BindParts();
  const auto ofOtherKind = kind == Kind::Obj ? std::vector<Control*>{&Command21, &Command22}
                                             : std::vector<Control*>{&Command2, &Command7, &Command8,
                                                                     &Check1,   &HScroll1, &HScroll1.box};
  for (Control* control : ofOtherKind) control->SetVisible(false);
  SetLayout(DeclareLayout(kind));
}

LayoutItem PartsLibrary::DeclareLayout(Kind kind) {
  std::vector<Control*> folders;
  for (const auto& button : folderButtons) folders.push_back(button.get());
  std::vector<LayoutItem> part = {BarRow(HScroll2)};
  if (kind == Kind::Obj) part.push_back(BarRow(HScroll1));
  part.push_back(Flow({&Command1, &Command6}));
  const LayoutItem files =
      kind == Kind::Obj ? Flow({&Command2, &Command8, &Command7, &Check1}) : Flow({&Command22, &Command21});
  return Column({Frame("Folder", {Flow(folders), Row({Single(Dir1), Single(File1)})}),
                 Frame("File", {Labelled("File", Text11), Labelled("Name for saving", Text14), files}),
                 Frame("Part", part), Frame("Combine", {Flow({&Command9, &Check2})}), panel.Layout()});
}

void PartsLibrary::BindFolders(PushButton& importer) {
  for (int i = 0; i < kFolders; ++i) {
    folderButtons[static_cast<std::size_t>(i)]->onClick = [this, i](const Click&) {
      ChooseFolder(app_.applicationPath / FolderName(i + 1));
    };
  }
  Dir1.onDoubleClick = [this] { ChooseFolder(Dir1.ChosenFolder()); };
  Text14.onChange = [this] { NameFile(); };
  File1.onClick = [this, &importer](const Click&) {
    if (File1.index() < 0) return;
    Text11.SetText(File1.ChosenPath().string());
    importer.Press();
  };
}

void PartsLibrary::BindParts() {
  HScroll2.onChange = [this] { ChoosePart(); };
  OnFile(Command2, [this] {
    ChoosePart();
    ImportObjPart(app_, File(), HScroll1.Shown());
    Command6.Press();
  });
  OnFile(Command8, [this] {
    Save([this](TextWriter& out) {
      WriteObjPart(app_.model, CurrentPart(app_), CurrentPart(app_), Check1.value(), out);
    });
  });
  OnFile(Command7, [this] {
    Save([this](TextWriter& out) { WriteObjPart(app_.model, 0, kUserParts - 1, Check1.value(), out); });
  });
  OnFile(Command21,
         [this] { Save([this](TextWriter& out) { WriteTextPart(app_.model, HScroll2.value(), out); }); });
  OnFile(Command22, [this] { ImportText(); });
  OnEdit(Command9, [this] {
    ChoosePart();
    CombineIntoCurrent(app_, Check2.value() ? OtherParts::AreErased : OtherParts::Stay);
  });
  OnEdit(Command6, [this] { Center(); });
  OnEdit(Command1, [this] {
    ChoosePart();
    MakeCube(app_.model, HScroll2.value());
    FollowCounts(app_);
    ShowImportedCounts(app_);
  });
}

void PartsLibrary::Load() { ChooseFolder(app_.applicationPath / FolderName(1)); }

void PartsLibrary::PartChosen() {
  HScroll2.SetValue(CurrentPart(app_));
  panel.ShowRecords();
}

void PartsLibrary::ChooseFolder(const std::filesystem::path& folder) {
  Dir1.SetFolder(folder);
  File1.SetFolder(folder);
  NameFile();
}

void PartsLibrary::NameFile() { Text11.SetText((File1.folder() / Text14.text()).string()); }

std::filesystem::path PartsLibrary::File() const { return FileNamed(app_, Text11.text()); }

void PartsLibrary::Save(const FileWriter& write) { ExportFile(app_, Text11.text(), write, OldFile::IsKept); }

void PartsLibrary::ChoosePart() { app_.view->form51.HScroll4.SetValue(HScroll2.value()); }

// All points of the table move and are chosen, those behind the last one in use as well.
void PartsLibrary::Center() {
  ChoosePart();
  MovePartTo(app_.model, HScroll2.value(), Origin(app_));
  MarkPoints(app_.model, HScroll2.value(), 1, kMaxPoints, true);
}

void PartsLibrary::ImportText() {
  ChoosePart();
  ReadTextPart(app_.model, HScroll2.value(), ReadFile(File(), kMostTextBytes));
  FinishImport(app_, File());
  ShowImportedCounts(app_);
}

}  // namespace pelorium
