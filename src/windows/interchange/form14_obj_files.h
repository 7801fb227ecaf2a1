// "Import/Export Obj  (.obj)".
#pragma once

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "windows/interchange/legacy_exports.h"
#include "windows/interchange/obj_controls.h"
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

  ObjImportControls imports{
      *this,
      "import obj (7700 faces and 23000 points max)--vertex only type obj, no texture uv's or normals info"};
  Label withSlashesNote{*this, "withSlashesNote", "Bryce 5/6 objs-- import objs without materials only"};
  Label Label1{*this, "Label1", "", "what the last import brought"};
  Label sizesNote{
      *this, "sizesNote",
      "Bryce preset objects are usually 20 units in Size when first created           Bryce Grid Size "
      "is 20 units"};
  Label treesNote{*this, "treesNote",
                  "Bryce Trees are 40 units  Bryce Landscapes are 80 units when first created"};

  ObjExportOptions options{*this, "the obj refers to its material file, which is written in any case"};
  OptionButton Option1{*this,   "Option1", "Use Bmp",
                       "image", true,      "kind of image that the material file names"};
  OptionButton Option2{*this,   "Option2", "Use Psd",
                       "image", false,     "kind of image that the material file names"};
  PushButton Command26{*this, "Command26", "Export ", "exports obj as wavefront Obj file format"};

  // The UV files. They act on the file named in Text13.
  UvsButtons uvs{*this};
  PushButton Command6{*this, "Command6", "imports texture uv's", "import .obj part texture mapping uvs"};
  PushButton Command17{*this, "Command17", "imports texture uv's (Max 5 obj)",
                       "imports texture uvs from max obj file format"};
  PushButton Command7{*this, "Command7", "import texture uvs as part#",
                      "imports uvs texture co-ords as model obj"};
  PushButton Command16{*this, "Command16", "import texture uvs as part# (max 5 obj)",
                       "imports texture uvs from max obj file format into a model object part"};

  LegacyExports legacy{*this, app_, Text13, options.Check2};

 private:
  void Command26_Click();
  void Import(ObjKind kind, const char* filter);
  void BindUvButtons();
  void ImportMap(const struct UvFormat& format);
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
