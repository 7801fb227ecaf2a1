// "Import export UV's": texture coordinates from and to files, and the older import and export of OBJ files.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "interchange/obj_import.h"
#include "windows/interchange/legacy_exports.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class UvImportExport : public ToolWindow {
 public:
  explicit UvImportExport(App& app);

  // The lists show the folder of the OBJ files.
  void Load() override;

  TextBox Text13{*this, "Text13", "", "file name and location"};
  DirList Dir1{*this, "Dir1", "the export puts its material file here"};
  FileList File1{*this, "File1", "*.uvs;*.obj"};

  PushButton Command2{*this, "Command2", "Import uvs file ",
                      "imports uvmapper uvs into current model obj for texture mapping into current part#"};
  PushButton Command3{*this, "Command3", "Import uvs as model obj",
                      "imports uvmapper uvs as a  model object into current part#"};
  PushButton Command4{*this, "Command4", "Export UV's as uvs file",
                      "Exports model uv's as a uvmapper uvs file"};
  PushButton Command5{*this, "Command5", "Export model obj as uvs file",
                      "saves current model obj as a uvmapper uvs file (top View based)"};

  BoxedBar HScroll2{*this,
                    {"HScroll2",
                     "Text4",
                     {-8000, 8000, 10},
                     "Scale Amnt",
                     "factor of all coordinates that are imported",
                     kTenths},
                    Typing::IsTheValue};
  CheckBox Check7{*this, "Check7", "Import faces off as on", false,
                  "lines that begin with #f are faces, too: faces that were off when the file was exported"};
  PushButton Command25{*this, "Command25", "Import", "vertex only type obj, no texture uv's or normals info"};
  PushButton Command1{*this, "Command1", "Import Bryce obj ",
                      "Imports an obj that contains texture and or normals info as well as vertex info"};
  CheckBox Check6{*this, "Check6", "Import texture uvs", false,
                  "Import Bryce obj brings the texture coordinates, too"};
  Label Label1{*this, "Label1", "", "what the last import brought"};

  CheckBox Check2{*this, "Check2", "use Groups", true, "sets both kinds of groups"};
  CheckBox Check13{*this, "Check13", "Use Main Groups", false, "each part# exported as a seperate group "};
  CheckBox Check1{*this, "Check1", "Use Subgroups", false, "a group for every face"};
  CheckBox Check3{*this, "Check3", "Export Material file", false,
                  "the obj refers to materialfile.mtl, which is written in any case"};
  CheckBox Check4{*this, "Check4", "Export Normals ", false, "no normals are written"};
  CheckBox Check5{*this, "Check5", "Export texture UV's", false,
                  "vt lines, and corners with the numbers of their UV points"};
  CheckBox Check12{*this, "Check12", "Scale Down Exported obj to 10% of orig size", false,
                   "coordinates are multiplied by 0.001"};
  PushButton Command26{
      *this, "Command26", "Export ",
      "exports as obj with the depth axis mirrored, and materialfile.mtl into the folder above"};

  LegacyExports legacy{*this, app_, Text13, Check2};

 private:
  // Asks for a name and puts it into the box; false when there is none.
  bool AskName(bool save, const char* title, const char* folder, const char* filter);
  bool AskUvsName(bool save);
  void BindUvButtons();
  void Import(ObjKind kind, const char* filter);
  void Command26_Click();
};

}  // namespace pelorium
