// "Save/Open profile": all profiles with their extrude settings as one text file, and reports on them.
#pragma once

#include "controls/buttons.h"
#include "controls/text_box.h"
#include "profiles/profile_report.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class FrmSaveProf : public ToolWindow {
 public:
  explicit FrmSaveProf(App& app);

  TextBox Text1{*this, "Text1", "", "the file that was chosen last"};
  PushButton Command1{*this, "Command1", "Save", "all profiles into one text file"};
  PushButton Command2{*this, "Command2", "Open", "all profiles from a text file"};
  PushButton Command4{*this, "Command4", "export prof info ", "a report on the points of all profiles"};
  PushButton Command3{*this, "Command3", "export prof info--- parametric",
                      "the report with the extrude settings"};

 private:
  bool ChooseFile(bool save, const char* title, const char* folder);
  void SaveProfiles();
  void OpenProfiles();
  void ExportInfo();
  void ExportParametric();
  void Export(ProfileReport report);
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
