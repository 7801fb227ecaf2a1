// Builds the windows of this room.
#include "windows/frame/frame_windows.h"

#include "windows/frame/form31_project_files.h"
#include "windows/frame/frm_about.h"
#include "windows/frame/frm_splash.h"
#include "windows/frame/help_me.h"
#include "windows/frame/mdi_form1.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

FrameWindows::FrameWindows(App& app)
    : frmSplash(app.Add<FrmSplash>()),
      mdiForm1(app.Add<MDIForm1>()),
      form31(app.Add<Form31>()),
      helpme(app.Add<HelpMe>()),
      frmAbout(app.Add<FrmAbout>()) {}

}  // namespace pelorium
