// "Image maker": the Foreground is painted on and filtered, effects walk it and stamp the Background. All
// settings are the window's controls, read when something runs.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/shape.h"
#include "controls/text_box.h"
#include "imaging/brushes.h"
#include "imaging/dib_section.h"
#include "imaging/image_effects.h"
#include "imaging/image_process.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;
struct FilterItem;

// What the controls say.
struct MakerSettings {
  EffectSettings effect;
  BrushSettings brush;
  int amount = 100;  // marks of a click on the random buttons, less 1
};

class Texture : public ToolWindow {
 public:
  static constexpr int kWidth = 970, kHeight = 670;  // pixels of both images at the start

  explicit Texture(App& app);

  // Items that open other windows are enabled when those exist.
  void Load() override;
  // The images are other ones, and perhaps the other one shows.
  void RecordsRestored() override;

  enum class Image { Foreground = 1, Background = 2 };
  PictureBox& BoxOf(Image image) { return image == Image::Foreground ? Picture1 : Picture5; }
  // One of the two is visible; the selectors follow without their handlers.
  void ShowImage(Image image);

  // A picture from a file, which then shows. The Foreground's is the filters' source, too; the Background's
  // leaves them the Foreground.
  void Open(Image image, const Picture& picture);

  // A picture for both, which the filters do not learn of.
  void TakeImages(const Picture& picture);

  // The filters' source takes the Foreground as it is now, at its size.
  void LoadSource();
  // The source as it is; until it is first loaded it is as white as the Foreground was at the start.
  cDIBSection& Source();
  // Both surfaces of the filters as they are.
  std::pair<const cDIBSection&, const cDIBSection&> surfaces() const { return {source_, working_}; }
  // Shows an image with the source painted on it.
  void Render(Image image);

  MakerSettings Settings() const;
  Colour ChosenColour() const;
  // A bar of the panels by its name.
  BoxedBar& Bar(std::string_view name) const;

  // Ask the person before a filter; false or nothing when that was cancelled. Their items are enabled when
  // the room has filled them in.
  std::function<bool(cImageProcessDIB& process)> askKernel;
  std::function<std::optional<NoiseSettings>()> askNoise;

  PictureBox Picture1{*this, "Picture1", kWidth, kHeight,
                      "use left click for drawing, right click for color select at loc "};
  PictureBox Picture5{*this, "Picture5", kWidth, kHeight,
                      "use left click for drawing, right click for color select at loc "};
  PictureBox Image1{*this, "Image1", 1, 1, "the Foreground as it was at the last press on it"};
  PictureBox Picture11{*this, "Picture11", 256, 60,
                       "pallete---left click to choose color  right click to set point/circle size"};
  PictureBox Picture2{*this, "Picture2", 48, 24, "the chosen color"};
  PictureBox Picture4{*this, "Picture4", 48, 24, "gray level of the chosen color"};
  PictureBox Picture3{*this, "Picture3", 48, 24, "the color under the pointer"};
  Shape Shape2{*this, "Shape2"};  // the brush about the pointer

  Label Label2{*this, "Label2", "0", "place of the pointer, across"};
  Label Label5{*this, "Label5", "0", "place of the pointer, down"};
  Label Label12{*this, "Label12", "0", "number of the color under the pointer"};
  Label Label13{*this, "Label13", "0", "its blue, with the other two as fraction"};
  Label Label14{*this, "Label14", "0", "its green"};
  Label Label15{*this, "Label15", "0", "its red"};
  Label Label16{*this, "Label16", "0", "its gray level"};

  ScrollBar HScroll35{
      *this, "HScroll35", {1, 2, 1, 1, 1}, "Picture", "1 shows the Foreground, 2 the Background"};
  ScrollBar VScroll2{
      *this, "VScroll2", {1, 2, 1, 1, 1}, "Picture", "1 shows the Foreground, 2 the Background"};
  Label Label32{*this, "Label32", "Foreground", "the picture that shows"};
  ScrollBar HScroll22{*this, "HScroll22", {-4096, 4096, 0, 1, 50}, "pan X", "left edge of both pictures"};
  ScrollBar VScroll1{*this, "VScroll1", {-4096, 4096, 0, 1, 50}, "pan Y", "upper edge of both pictures"};
  ProgressBar ProgressBar1{*this, "ProgressBar1", 100};

  ScrollBar HScroll2{*this, "HScroll2", {0, 255, 150}, "R", "red of the chosen color"};
  ScrollBar HScroll3{*this, "HScroll3", {0, 255, 150}, "G", "green of the chosen color"};
  ScrollBar HScroll4{*this, "HScroll4", {0, 255, 150}, "B", "blue of the chosen color"};
  ScrollBar HScroll6{*this, "HScroll6", {0, 255, 150}, "gray level", "sets red, green and blue to one level"};

  ScrollBar HScroll5{*this, "HScroll5", {1, 800, 1}, "Point size", "draw width of both pictures"};
  Label Label11{*this, "Label11", "1", "draw width of both pictures"};
  ScrollBar HScroll1{*this, "HScroll1", {1, 600, 1}, "Circle dia", "radius of circles"};
  Label Label10{*this, "Label10", "1", "radius of circles"};

  ScrollBar HScroll34{*this, "HScroll34", {1, 12, 1, 1, 1}, "Settings", "leafs through the settings below"};

  ScrollBar HScroll18{*this,
                      "HScroll18",
                      {1, 254, 254},
                      "White to Black",
                      "draws the profile this wide and in this gray: drag it down to cut a valley"};
  ScrollBar HScroll25{*this,
                      "HScroll25",
                      {1, 254, 254},
                      "Black to White",
                      "draws the profile this wide, the wider the darker: drag it down to raise a ridge"};

  ScrollBar hscScale{*this, "hscScale", {1, 128, 1}, "Scale: ", "cells of the noise across half the picture"};
  ScrollBar hscOctaves{*this, "hscOctaves", {1, 6, 1, 1, 1}, "Octaves: ", "finer noise on top of the coarse"};
  CheckBox chkAbsolute{*this, "chkAbsolute", "&Use Absolute Value", false, "checked creates a darker effect"};
  PushButton Command2{*this, "Command2", "Regular", "fills the Foreground with noise"};
  PushButton cmdAnimate{*this, "cmdAnimate", "Streaks",
                        "creates streaks---visable when octaves greater than 1"};

 private:
  struct BarEntry;
  struct OptionEntry;
  struct CheckEntry;
  struct ButtonEntry;
  static std::span<const BarEntry> BarEntries();
  static std::span<const OptionEntry> OptionEntries();
  static std::span<const CheckEntry> CheckEntries();
  static std::span<const ButtonEntry> ButtonEntries();

  // controls
  void MakeControls();
  void MakeLayout();
  LayoutItem SettingsColumn();
  LayoutItem PanelOf(std::size_t number);
  std::vector<LayoutItem> BarsOf(std::size_t panel);
  double ChosenOf(std::string_view group) const;
  std::vector<Control*> ChoicesOf(std::string_view group) const;

  // menus
  void MakeMenus();
  void MakeEffectMenu();
  void MakeFilterMenu();
  MenuItem* AddHead(const char* name, const char* caption);
  // `needs` names a window without which the item is disabled.
  MenuItem& AddItem(MenuItem* head, const char* name, const char* caption, const char* toolTip,
                    std::function<void()> run, const char* needs = "");
  void ShowWindow(const char* name);
  void PressInFileWindow(const char* command);
  void RunEffect(const ImageEffect& effect);
  void RunFilter(const FilterItem& item);
  void CopyImage(Image from, Image to);
  void PutOnClipboard(Image image);
  void GetFromClipboard(Image image);
  void SetBaseColour(Image image);
  void SetAsWallpaper();

  // what the controls do
  void BindControls();
  void BindMouse();
  void HoldImages();
  void FollowShown();
  void ShowPanel();
  void PanImages();
  void TakeChosenColour();
  void ChooseColour(Colour colour);
  void SetPointSize();
  void DrawTheCanyon(int width, int gray);
  void TakeImageSize();
  void SetImageSize(int width, int height);
  void Replace(Image image, const Picture& picture);
  void Told(Image image);  // its pixels changed
  void FillWithPlasma();
  void FillWithNoise(bool streaks);

  // buttons
  void GridImage();
  void FrameImage();
  void ScrapeAtRandom();
  void PointsAtRandom();
  void CirclesAtRandom();
  void ShadesAtRandom();
  void BlurForeground();

  // mouse
  void PressImage(Image image, const MouseEvent& event);
  void MoveOver(Image image, const MouseEvent& event, bool isDrawing);
  void ReleaseImage(Image image);
  // Away from the person to smaller pans: up and down, with Shift across.
  void PanByWheel(const WheelEvent& wheel);
  void PickFromPalette(const MouseEvent& event);
  Colour ShowColourAt(const PictureBox& box, const MouseEvent& event);
  void ShowColour(Colour colour);
  void PlaceRing(Image image, const MouseEvent& event, Colour under);

  BoxedBars bars_;
  std::vector<std::unique_ptr<FrameBox>> panels_;
  std::vector<std::unique_ptr<OptionButton>> options_;
  std::vector<std::unique_ptr<CheckBox>> checks_;
  std::vector<std::unique_ptr<PushButton>> buttons_;
  std::vector<std::unique_ptr<MenuItem>> menu_;
  std::vector<std::pair<MenuItem*, std::string>> needs_;  // windows that items open

  cDIBSection source_, working_;
  cImageProcessDIB process_;
  double levelDivisor_ = 0;  // what the last effect that sets it left
  bool isDrawing_ = false;   // between a press on an image and its release
};

}  // namespace pelorium
