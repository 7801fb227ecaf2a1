// "Import/Export Obj  (.obj)".
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

class Form14 : public ToolWindow {
 public:
  explicit Form14(App& app);

  // The lists show the folder of the OBJ files.
  void Load() override;

  TextBox Text13{*this, "Text13", "", "file name and location"};
  DirList Dir1{*this, "Dir1"};
  FileList File1{*this, "File1", "*.obj"};

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
  PushButton Command25{
      *this, "Command25", "Import",
      "import obj (7700 faces and 23000 points max)--vertex only type obj, no texture uv's or "
      "normals info"};
  PushButton Command1{*this, "Command1", "Import Bryce obj ",
                      "Imports an obj that contains texture and or normals info as well as vertex info"};
  Label withSlashesNote{*this, "withSlashesNote", "Bryce 5/6 objs-- import objs without materials only"};
  Label Label1{*this, "Label1", "", "what the last import brought"};
  Label sizesNote{
      *this, "sizesNote",
      "Bryce preset objects are usually 20 units in Size when first created           Bryce Grid Size "
      "is 20 units"};
  Label treesNote{*this, "treesNote",
                  "Bryce Trees are 40 units  Bryce Landscapes are 80 units when first created"};

  CheckBox Check2{*this, "Check2", "use Groups", true, "sets both kinds of groups"};
  CheckBox Check13{*this, "Check13", "Use Main Groups", false, "each part# exported as a seperate group "};
  CheckBox Check1{*this, "Check1", "Use Subgroups", false, "a group for every face"};
  CheckBox Check3{*this, "Check3", "Export Material file", false,
                  "the obj refers to its material file, which is written in any case"};
  CheckBox Check4{*this, "Check4", "Export Normals ", false, "no normals are written"};
  CheckBox Check5{*this, "Check5", "Export texture UV's", false,
                  "vt lines, and corners with the numbers of their UV points"};
  CheckBox Check12{*this, "Check12", "Scale Down Exported obj to 10% of orig size", false,
                   "coordinates are multiplied by 0.001"};
  OptionButton Option1{*this,   "Option1", "Use Bmp",
                       "image", true,      "kind of image that the material file names"};
  OptionButton Option2{*this,   "Option2", "Use Psd",
                       "image", false,     "kind of image that the material file names"};
  PushButton Command26{*this, "Command26", "Export ", "exports obj as wavefront Obj file format"};

  // The UV files. They act on the file named in Text13.
  PushButton Command2{*this, "Command2", "Import uvs file ",
                      "imports uvmapper uvs into current model obj for texture mapping into current part#"};
  PushButton Command3{*this, "Command3", "Import uvs as model obj",
                      "imports uvmapper uvs as a  model object into current part#"};
  PushButton Command4{*this, "Command4", "Export UV's as uvs file",
                      "Exports model uv's as a uvmapper uvs file"};
  PushButton Command5{*this, "Command5", "Export model obj as uvs file",
                      "saves current model obj as a uvmapper uvs file (top View based)"};
  PushButton Command6{*this, "Command6", "imports texture uv's", "import .obj part texture mapping uvs"};
  PushButton Command17{*this, "Command17", "imports texture uv's (Max 5 obj)",
                       "imports texture uvs from max obj file format"};
  PushButton Command7{*this, "Command7", "import texture uvs as part#",
                      "imports uvs texture co-ords as model obj"};
  PushButton Command16{*this, "Command16", "import texture uvs as part# (max 5 obj)",
                       "imports texture uvs from max obj file format into a model object part"};

  LegacyExports legacy{*this, app_, Text13, Check2};

 private:
  void Check2_Click();
  void Command26_Click();
  void Import(ObjKind kind, const char* filter);
  void BindUvButtons();
  void ImportMap(const struct UvFormat& format);
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
