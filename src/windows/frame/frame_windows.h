// The windows of the frame around all: menus, start and end, help, project files.
#pragma once

namespace pelorium {

class App;

struct FrameWindows {
  explicit FrameWindows(App& app);

  class FrmSplash& frmSplash;
  class MDIForm1& mdiForm1;
  class Form31& form31;
  class HelpMe& helpme;
  class FrmAbout& frmAbout;
};

}  // namespace pelorium
