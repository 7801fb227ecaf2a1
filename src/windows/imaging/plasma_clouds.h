// "Graylevel Plasma Creator" and "Plasma Creator": clouds between four corner colours on the view's image.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/text_box.h"
#include "imaging/corner_plasma.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

// What both windows have.
class PlasmaWindow : public ToolWindow {
 public:
  PlasmaWindow(App& app, const char* name, const char* caption);

  BoxedBar HScroll23{*this, {"HScroll23", "width", {32, 964, 964}, "Width", "columns that are painted"}};
  BoxedBar HScroll16{*this, {"HScroll16", "height", {32, 637, 635}, "Height", "rows that are painted"}};
  BoxedBar HScroll1{
      *this,
      {"HScroll1", "Text3", {1, 100, 50}, "size", "Sets size of plasma effect", kHundredths, ".5"},
      Typing::IsTheValue};
  BoxedBar HScroll2{
      *this,
      {"HScroll2", "Text2", {1, 200, 50}, "roughness", "factor on all moves", kHundredths, ".5"},
      Typing::IsTheValue};
  BoxedBar HScroll9{
      *this,
      {"HScroll9", "Text1", {1, 2000, 250}, "scale", "sets overall size of effect", kThousandths, ".25"},
      Typing::IsTheValue};
  TextBox Text5{*this, "Text5", "12345326", "the same seed gives the same picture"};
  PushButton Command1{*this, "Command1", "Randomize seed", "another seed"};
  BoxedBars cornerBars, rangeBars;  // three to a corner; two to a channel
  PushButton randomizecolors{*this, "randomizecolors", "&Randomclrs", "any colours for the corners"};
  PushButton Command2{*this, "Command2", "Randomize", "any grays for the corners"};
  CheckBox Check3{*this, "Check3", "red", true, "red is moved; off, it runs evenly between the corners"};
  CheckBox ave1{*this, "ave1", "ave1", true, "green is moved; off, it runs evenly between the corners"};
  CheckBox ave2{*this, "ave2", "ave2", true, "blue is moved; off, it runs evenly between the corners"};
  CheckBox Check9{*this, "Check9", "Tile", false, "mirrors a quarter both ways, so that the picture tiles"};
  PushButton cmdCreateTile{*this, "cmdCreateTile", "&Create Plasma", "paints the image behind the model"};
  PushButton cmdSetWallpaper{*this, "cmdSetWallpaper", "&Set as Wallpaper",
                             "saves the image as Plasma.bmp and puts it behind the screen"};
  Label lblTime{*this, "lblTime", "", "how long the last run took"};

 protected:
  // What the controls say.
  virtual CornerPlasma Settings() const;
  // The rows that the windows share, with `options` below the buttons.
  LayoutItem Layout(std::vector<LayoutItem> options);

 private:
  void CreatePlasma();
  void RandomiseColours();
  void RandomiseGrays();
};

class Plasma : public PlasmaWindow {
 public:
  explicit Plasma(App& app);
};

class PlasmaThree : public PlasmaWindow {
 public:
  explicit PlasmaThree(App& app);

  // The bars take the size of the view's image.
  void Load() override;

  ScrollBar VScroll1{
      *this, "VScroll1", {-1000, 1000, 0, 1, 50}, "Y", "moves the image behind the model down"};
  std::vector<std::unique_ptr<OptionButton>> options;  // Option1 to Option6

 protected:
  CornerPlasma Settings() const override;
};

}  // namespace pelorium
