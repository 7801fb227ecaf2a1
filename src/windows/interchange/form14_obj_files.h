// "Import/Export Obj  (.obj)".
#pragma once

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
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
  CheckBox Check2{*this, "Check2", "use Groups", true};
  CheckBox Check13{*this, "Check13", "Use Main Groups", false, "each part# exported as a seperate group "};
  CheckBox Check1{*this, "Check1", "Use Subgroups", false, "a group for every face"};
  CheckBox Check3{*this, "Check3", "Export Material file"};
  CheckBox Check4{*this, "Check4", "Export Normals ", false, "no normals are written"};
  CheckBox Check5{*this, "Check5", "Export texture UV's"};
  CheckBox Check12{*this, "Check12", "Scale Down Exported obj to 10% of orig size", false,
                   "coordinates are multiplied by 0.001"};
  OptionButton Option1{*this,   "Option1", "Use Bmp",
                       "image", true,      "kind of image that the material file names"};
  OptionButton Option2{*this,   "Option2", "Use Psd",
                       "image", false,     "kind of image that the material file names"};
  PushButton Command26{*this, "Command26", "Export ", "exports obj as wavefront Obj file format"};

 private:
  void Check2_Click();
  void Command26_Click();
};

}  // namespace pelorium
