// "Open/Save Image".
#include "windows/imaging/form47_view_image_files.h"

#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/image_files.h"

namespace pelorium {

Form47::Form47(App& app) : ToolWindow(app, "Form47", "Open/Save Image") {
  OnFile(Command3, [this] { Open(); });
  OnFile(Command4, [this] { Save(); });
  BrowseInto(Dir1, File1, Text10);
  SetLayout(Column({Single(purpose), Labelled("File", Text10), Row({Single(Dir1), Single(File1)}),
                    Flow({&Command3, &Command4})}));
}

void Form47::Load() {
  Dir1.SetFolder(app_.applicationPath);
  File1.SetFolder(app_.applicationPath);
}

void Form47::Open() {
  const auto name = AskPictureToOpen(app_);
  if (name.empty()) return;
  Text10.SetText(name.string());
  OpenViewImage(app_, name);
}

void Form47::Save() {
  const auto name = AskBmpToSave(app_);
  if (name.empty()) return;
  Text10.SetText(name.string());
  SaveViewImage(app_, name);
}

}  // namespace pelorium
