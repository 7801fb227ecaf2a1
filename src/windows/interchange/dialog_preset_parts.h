// "Preset Parts": a list of parts that come with the program.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "core/model_store.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Dialog : public ToolWindow {
 public:
  explicit Dialog(App& app);

  // The list is read once; without its file it is empty.
  void Load() override;
  void PartChosen() override;

  ListBox List1{*this, "List1", "a click reads the preset into the Part, where the file has it"};
  BoxedBar HScroll1{*this,
                    {"HScroll1", "Text1", {0, kUserParts - 1, 0}, "Part#", "Part number to import into"}};
  PushButton OKButton{*this, "OKButton", "OK", "closes the window"};

 private:
  void List1_Click();
};

}  // namespace pelorium
