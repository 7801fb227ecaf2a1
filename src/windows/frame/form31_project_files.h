// "Save /Open Project ": project files, reports on the model, and plain files of positions.
#pragma once

#include "base/files.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;
class ModelStore;

class Form31 : public ToolWindow {
 public:
  explicit Form31(App& app);

  // The lists show the folder of the projects.
  void Load() override;

  // The area of the current Part's faces, in the View Options.
  void ShowEstimatedArea();

  PushButton Command14{*this, "Command14", "Save Project"};
  PushButton Command15{*this, "Command15", "Open Project"};
  PushButton Command12{*this, "Command12", "export obj info (all Part#s)"};
  PushButton Command13{*this, "Command13", "export part info (chosen part#)"};
  PushButton Command11{*this, "Command11", "Open Texture UV maps", "the mapping of both Parts"};
  PushButton Command9{*this, "Command9", "Save Texture UV maps", "the mapping of both Parts"};

  TextBox Text1{*this, "Text1", "", "file that is written, and read by the profile buttons"};
  DirList Dir1{*this, "Dir1"};
  FileList File1{*this, "File1", "*"};
  PushButton Command5{*this, "Command5", "save xyz info only", "positions of all profile points"};
  PushButton Command6{*this, "Command6", "open xyz info only", "positions of all profile points"};
  PushButton Command8{*this, "Command8", "save xyz only per face routing",
                      "corners of the faces that are on"};
  CheckBox Check1{*this, "Check1", "Export obj info", true, "the Part as a text that describes itself"};
  CheckBox Check2{*this, "Check2", "Export deconstr info", false, "corners of the faces that are on"};
  PushButton Command1{*this, "Command1", "Export"};

  TextBox Text2{*this, "Text2", "", "file that is read"};
  DirList Dir2{*this, "Dir2"};
  FileList File2{*this, "File2", "*"};
  PushButton Command7{*this, "Command7", "open xyz into all stored profiles"};
  PushButton Command3{*this, "Command3", "Import info (sep faces)",
                      "each nine numbers become a face of its own"};
  PushButton Command4{*this, "Command4", "open obj  info", "a Part from its text"};

 private:
  void Command14_Click();
  void Command15_Click();
  void Command9_Click();
  void Command11_Click();
  void Command12_Click();
  void Command13_Click();
  void Command5_Click();
  void OpenPositions(const TextBox& name);
  void Command8_Click();
  void Command1_Click();
  void ExportInfo(const char* title, const FileWriter& write);
  void ImportPart(void (*read)(ModelStore&, int, std::string_view));
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
