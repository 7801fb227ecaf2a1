// The first window: a picture that waits for a click.
#pragma once

#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "controls/window.h"

namespace pelorium {

class App;

class FrmSplash : public Window {
 public:
  explicit FrmSplash(App& app);

  // Closing it begins too: there is no other way on.
  void Close() override { Form_Click(); }

  PictureBox Picture1{*this, "Picture1", 480, 260, "click to begin"};
  Label Label1{*this, "Label1", "Create 3d models (ver 2.14)"};
  Label Label2{*this, "Label2", "Click to begin"};

 private:
  // A click on any part or a key press: the program starts. Later ones do nothing.
  void Form_Click();

  App& app_;
  bool begun_ = false;
};

}  // namespace pelorium
