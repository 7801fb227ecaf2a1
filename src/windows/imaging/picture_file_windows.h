// "Open/Save Bmp  (.bmp)" and "Open/Save Image": picture files of the Foreground and the Background, and of
// the image behind the model.
#pragma once

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "windows/imaging/picture_file_dialogs.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Form15 : public ToolWindow {
 public:
  explicit Form15(App& app);

  // The lists show the program's folder.
  void Load() override;

  TextBox Text10{*this, "Text10", kSampleName, "File name and location"};
  DirList Dir1{*this, "Dir1", "folders; a double click opens one"};
  FileList File1{*this, "File1", kPicturePattern, "a click takes the name"};
  PushButton Command33{*this, "Command33", "Open to foreground", "asks for a picture file"};
  PushButton Command2{*this, "Command2", "Open to background", "asks for a picture file"};
  PushButton Command19{*this, "Command19", "Save foreground", "asks for a name; as it is now"};
  PushButton Command1{*this, "Command1", "Save background", "asks for a name; as it is now"};

 private:
  void Open(Texture::Image image);
  void Save(Texture::Image image);
};

class Form47 : public ToolWindow {
 public:
  explicit Form47(App& app);

  // The lists show the program's folder.
  void Load() override;

  Label purpose{*this, "purpose",
                "for opening/saving into obj view/edit for use as height effects (gray alt levels)"};
  TextBox Text10{*this, "Text10", kSampleName, "File name and location"};
  DirList Dir1{*this, "Dir1", "folders; a double click opens one"};
  FileList File1{*this, "File1", kPicturePattern, "a click takes the name"};
  PushButton Command3{*this, "Command3", "Open", "asks for a picture file, which then lies behind the model"};
  PushButton Command4{*this, "Command4", "Save",
                      "asks for a name; the image as it is now, without the model"};

 private:
  void Open();
  void Save();
};

}  // namespace pelorium
