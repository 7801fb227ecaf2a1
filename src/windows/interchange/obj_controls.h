// Controls that both windows of OBJ files have, with what they stand for.
#pragma once

#include <string>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "interchange/obj_export.h"
#include "interchange/obj_import.h"

namespace pelorium {

class App;

class ObjImportControls {
 public:
  ObjImportControls(Window& owner, const char* plainImportTip) : owner_(owner), plainTip_(plainImportTip) {}

  // The Part comes to the origin of Precise Edit.
  ObjImportSettings Settings(const App& app, ObjKind kind) const;

 private:
  Window& owner_;
  const char* plainTip_;

 public:
  BoxedBar HScroll2{owner_,
                    {"HScroll2",
                     "Text4",
                     {-8000, 8000, 10},
                     "Scale Amnt",
                     "factor of all coordinates that are imported",
                     kTenths}};
  CheckBox Check7{owner_, "Check7", "Import faces off as on", false,
                  "lines that begin with #f are faces, too: faces that were off when the file was exported"};
  PushButton Command25{owner_, "Command25", "Import", plainTip_};
  PushButton Command1{owner_, "Command1", "Import Bryce obj ",
                      "Imports an obj that contains texture and or normals info as well as vertex info"};
};

class ObjExportOptions {
 public:
  // A click on "use Groups" sets both kinds of groups.
  ObjExportOptions(Window& owner, const char* materialFileTip);

  // The material file's name is taken with "Export Material file" only.
  ObjExportSettings Settings(const std::string& materialFile) const;

 private:
  Window& owner_;
  const char* materialTip_;

 public:
  CheckBox Check2{owner_, "Check2", "use Groups", true, "sets both kinds of groups"};
  CheckBox Check13{owner_, "Check13", "Use Main Groups", false, "each part# exported as a seperate group "};
  CheckBox Check1{owner_, "Check1", "Use Subgroups", false, "a group for every face"};
  CheckBox Check3{owner_, "Check3", "Export Material file", false, materialTip_};
  CheckBox Check4{owner_, "Check4", "Export Normals ", false, "no normals are written"};
  CheckBox Check5{owner_, "Check5", "Export texture UV's", false,
                  "vt lines, and corners with the numbers of their UV points"};
  CheckBox Check12{owner_, "Check12", "Scale Down Exported obj to 10% of orig size", false,
                   "coordinates are multiplied by 0.001"};
};

struct UvsButtons {
  Window& owner;

  PushButton Command2{owner, "Command2", "Import uvs file ",
                      "imports uvmapper uvs into current model obj for texture mapping into current part#"};
  PushButton Command3{owner, "Command3", "Import uvs as model obj",
                      "imports uvmapper uvs as a  model object into current part#"};
  PushButton Command4{owner, "Command4", "Export UV's as uvs file",
                      "Exports model uv's as a uvmapper uvs file"};
  PushButton Command5{owner, "Command5", "Export model obj as uvs file",
                      "saves current model obj as a uvmapper uvs file (top View based)"};
};

}  // namespace pelorium
