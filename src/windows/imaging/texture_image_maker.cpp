// "Image maker".
#include "windows/imaging/texture_image_maker.h"

#include "windows/shell/app_shell.h"

namespace pelorium {

Texture::Texture(App& app) : ToolWindow(app, "texture", "Image maker") {
  HScroll35.onChange = [this] { HScroll35_Change(); };
  Picture5.SetVisible(false);
  SetLayout(Column({BarRow(HScroll35, {&Label32}), Single(Picture1), Single(Picture5)}));
}

void Texture::HScroll35_Change() {
  const bool isForeground = HScroll35.value() == 1;
  Label32.SetCaption(isForeground ? "Foreground" : "Background");
  Picture1.SetVisible(isForeground);
  Picture5.SetVisible(!isForeground);
}

}  // namespace pelorium
