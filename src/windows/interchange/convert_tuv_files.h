// "convert ultimate unwrap3d tuv files (Import)": flat patterns of an unwrapping program.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Convert : public ToolWindow {
 public:
  explicit Convert(App& app);

  // The lists show the folder of the .tuv files.
  void Load() override;

  TextBox Text2{*this, "Text2", "", "file name and location"};
  DirList Dir1{*this, "Dir1"};
  FileList File1{*this, "File1", "*.tuv"};
  BoxedBar HScroll1{*this,
                    {"HScroll1", "Text1", {1, 8000, 1}, "Scale", "scale up the incoming object"},
                    Typing::IsTheValue};
  PushButton Command1{*this, "Command1", "Import (Convert)", "import tuv file into a model obj part#"};
  PushButton Command3{*this, "Command3", "Import", "imports the file named above, without asking"};
  PushButton Command2{*this, "Command2", "Export TUV ", "the corners of the first face of the Part"};

 private:
  bool AskName(bool save);
  void Import();
};

}  // namespace pelorium
