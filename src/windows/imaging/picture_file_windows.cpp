// The two windows of picture files.
#include "windows/imaging/picture_file_windows.h"

#include "platform/picture_files.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/image_files.h"

namespace pelorium {

Form15::Form15(App& app) : ToolWindow(app, "Form15", "Open/Save Bmp  (.bmp)") {
  using enum Texture::Image;
  OnFile(Command33, [this] { Open(Foreground); });
  OnFile(Command2, [this] { Open(Background); });
  OnFile(Command19, [this] { Save(Foreground); });
  OnFile(Command1, [this] { Save(Background); });
  BrowseInto(Dir1, File1, Text10);
  SetLayout(Column({Labelled("File", Text10), Row({Single(Dir1), Single(File1)}),
                    Flow({&Command33, &Command2, &Command19, &Command1})}));
}

void Form15::Load() {
  Dir1.SetFolder(app_.applicationPath);
  File1.SetFolder(app_.applicationPath);
}

// A file that cannot be read leaves the image as it was; the name stands there all the same.
void Form15::Open(Texture::Image image) {
  const auto name = AskPictureToOpen(app_);
  if (name.empty()) return;
  Text10.SetText(name.string());
  Texture& maker = app_.imaging->texture;
  Picture picture(1, 1);
  picture.backColour = maker.BoxOf(image).measures().backColour;  // under what is transparent
  LoadPicture(picture, FileNamed(app_, name));
  maker.Open(image, picture);
  app_.notices.Give("opened " + name.filename().string(), NoticeKind::Result);
}

void Form15::Save(Texture::Image image) {
  const auto name = AskBmpToSave(app_);
  if (name.empty()) return;
  Text10.SetText(name.string());
  SavePictureFile(app_, name, app_.imaging->texture.BoxOf(image).picture());
}

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
