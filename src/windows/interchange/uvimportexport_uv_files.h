// "Import export UV's": texture coordinates from and to files, and the older import and export of OBJ files.
#pragma once

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "windows/interchange/legacy_exports.h"
#include "windows/interchange/obj_controls.h"
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

  UvsButtons uvs{*this};
  ObjImportControls imports{*this, "vertex only type obj, no texture uv's or normals info"};
  CheckBox Check6{*this, "Check6", "Import texture uvs", false,
                  "Import Bryce obj brings the texture coordinates, too"};
  Label Label1{*this, "Label1", "", "what the last import brought"};

  ObjExportOptions options{*this, "the obj refers to materialfile.mtl, which is written in any case"};
  PushButton Command26{
      *this, "Command26", "Export ",
      "exports as obj with the depth axis mirrored, and materialfile.mtl into the folder above"};

  LegacyExports legacy{*this, app_, Text13, options.Check2};

 private:
  // Asks for a name and puts it into the box; false when there is none.
  bool AskName(bool save, const char* title, const char* folder, const char* filter);
  bool AskUvsName(bool save);
  void BindUvButtons();
  void Import(ObjKind kind, const char* filter);
  void Command26_Click();
};

}  // namespace pelorium
