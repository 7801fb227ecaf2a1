// The about window.
#include "windows/frame/frm_about.h"

#include "windows/shell/app_shell.h"

namespace pelorium {

FrmAbout::FrmAbout(App& app) : Window(app.host, "frmAbout", "About Pelorium"), app_(app) {
  cmdOK.onClick = [this](const Click&) { cmdOK_Click(); };
  cmdSysInfo.onClick = [this](const Click&) { cmdSysInfo_Click(); };
  SetLayout(Column({Single(lblTitle), Single(lblDescription), Flow({&cmdOK, &cmdSysInfo})}));
}

void FrmAbout::cmdSysInfo_Click() {
  if (app_.platform.StartSystemInformation()) return;
  app_.platform.ShowMessage("System Information Is Unavailable At This Time");
}

}  // namespace pelorium
