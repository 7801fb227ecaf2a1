// ".obj parts" and "TXT Parts": meshes kept as files in ten folders. The two windows are the same but for the
// kind of file.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "base/files.h"
#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "windows/interchange/record_panel.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class PartsLibrary : public ToolWindow {
 public:
  // The first folder shows.
  void Load() override;
  void PartChosen() override;
  void CountsChanged(Counts which) override { panel.FollowCounts(which); }
  void RecordsRestored() override { panel.Restore(); }

  // Command11 to Command20 choose a folder.
  std::vector<std::unique_ptr<PushButton>> folderButtons;
  DirList Dir1{*this, "Dir1"};
  FileList File1;
  TextBox Text11{*this, "Text11", "", "file that is read and written"};
  TextBox Text14;

  BoxedBar HScroll1{*this,
                    {"HScroll1",
                     "Text12",
                     {-4000, 4000, 1000},
                     "Scale Amnt",
                     "Scales object when imported ",
                     kTenths,
                     nullptr,
                     "amount of overall xyz scaling when import a shape"}};
  BoxedBar HScroll2{*this,
                    {"HScroll2",
                     "Text13",
                     {0, kUserParts - 1, 0},
                     "Part #",
                     "part # of model to import shape into",
                     1,
                     nullptr,
                     "Part number to import into"}};
  CheckBox Check1{*this, "Check1", "Use Groups", false, "the faces of each Part are saved as a group"};
  CheckBox Check2{*this, "Check2", "Erase all", false, "Erase all other part# when using combine all effect"};

  PushButton Command2{*this, "Command2", "Import", "reads the .obj part into the Part"};
  PushButton Command8{*this, "Command8", "Save Single Part #",
                      "save currently selected part number as a shape obj"};
  PushButton Command7{*this, "Command7", "Save All Parts #",
                      "saves all part number in model objects as a single shape obj"};
  PushButton Command22{*this, "Command22", "Import", "reads the .txt part into the Part"};
  PushButton Command21{*this, "Command21", "Save Part #", "saves the Part as a .txt part, unscaled"};
  PushButton Command9{*this, "Command9", "Combine All  into Part #",
                      "this effectively collapses all part# into a single obj and erases all other parts in "
                      "memory"};
  PushButton Command6{*this, "Command6", "Center", "moves the Part so that its point 1 lies on the origin"};
  PushButton Command1{*this, "Command1", "Cube", "makes a cube of 200 units in the Part"};

  RecordPanel panel;

 protected:
  enum class Kind { Obj, Txt };
  PartsLibrary(App& app, const char* name, const char* caption, Kind kind);

 private:
  void BindFolders(PushButton& importer);
  void BindParts();
  LayoutItem DeclareLayout(Kind kind);
  void ChooseFolder(const std::filesystem::path& folder);
  void NameFile();
  std::filesystem::path File() const;
  void Save(const FileWriter& write);
  // The Part that the window works on becomes the current one.
  void ChoosePart();
  void Center();
  void ImportText();
};

class Shapes : public PartsLibrary {
 public:
  explicit Shapes(App& app) : PartsLibrary(app, "shapes", ".obj parts", Kind::Obj) {}
};

class Shapes2 : public PartsLibrary {
 public:
  explicit Shapes2(App& app) : PartsLibrary(app, "shapes2", "TXT Parts", Kind::Txt) {}
};

}  // namespace pelorium
