// The window that says what the program is.
#pragma once

#include "controls/buttons.h"
#include "controls/text_box.h"
#include "controls/window.h"

namespace pelorium {

class App;

class FrmAbout : public Window {
 public:
  explicit FrmAbout(App& app);

  Label lblTitle{*this, "lblTitle", "Pelorium v2.14"};
  Label lblDescription{*this, "lblDescription",
                       "Draw profiles, turn them into polygon models, shape and export them."};
  PushButton cmdOK{*this, "cmdOK", "OK", "closes this window"};
  PushButton cmdSysInfo{*this, "cmdSysInfo", "System Info...", "starts the system's own information tool"};

 private:
  void cmdOK_Click() { Hide(); }
  void cmdSysInfo_Click();

  App& app_;
};

}  // namespace pelorium
