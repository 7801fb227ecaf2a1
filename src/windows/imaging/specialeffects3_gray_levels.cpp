// "Gray Levels Edit".
#include "windows/imaging/specialeffects3_gray_levels.h"

#include <algorithm>
#include <string>

#include "imaging/canvas.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/image_files.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

struct SliderEntry {
  BarSpec spec;
};

// Slider1 to Slider13.
const std::vector<SliderEntry> kSliders = {
    {{"Slider1", "randomX", {0, 100, 0, 1, 5}, "Random x-dir amnt", "each mark moves across by up to this"}},
    {{"Slider2", "brushSize", {1, 200, 20, 1, 10}, "Brush Size", "pixels across the brush"}},
    {{"Slider3", "grayLevel", {0, 255, 128, 1, 10}, "Gray Level", "the gray of the brush and of random"}},
    {{"Slider4",
      "step",
      {1, 50, 1, 1, 5},
      "Step amount",
      "from a sample to its neighbours, for blurs and blends"}},
    {{"Slider5",
      "spacing",
      {1, 50, 4, 1, 5},
      "Sample Spacing",
      "from sample to sample, for Invert and the blur"}},
    {{"Slider6", "dotSize", {1, 100, 4, 1, 5}, "Dot Size", "of the blur, of random and of the spray"}},
    {{"Slider7",
      "randomY",
      {0, 100, 0, 1, 5},
      "Random y-dir amnt",
      "each mark moves down or up by up to this"}},
    {{"Slider8", "brightness", {0, 200, 100, 1, 10}, "Brightness", "of the brush, in percent"}},
    {{"Slider9",
      "filterMax",
      {0, 255, 255, 1, 10},
      "gray level filter (max)",
      "lighter places are not painted"}},
    {{"Slider10",
      "points",
      {1, 2000, 100, 1, 50},
      "Random pts amnt",
      "dots of random; the spray sets a tenth"}},
    {{"Slider11",
      "filterMin",
      {0, 255, 0, 1, 10},
      "gray level filter (min)",
      "darker places are not painted"}},
    {{"Slider12", "addGray", {-255, 255, 0, 1, 10}, "Add to Gray Lev", "added to the gray of the brush"}},
    {{"Slider13", "addWidth", {0, 100, 0, 1, 5}, "Add to Linewidth", "added to the width of the marks"}},
};

constexpr int kFirstSwatch = 4, kFirstNumberedButton = 34, kNumberedPictures = 10;
constexpr int kSwatchGrays[] = {250, 225, 200, 175, 150, 125, 100, 75, 50, 25, 0};
constexpr int kSwatchSide = 22;
constexpr int kGraySlider = 3;

}  // namespace

SpecialEffects3::SpecialEffects3(App& app)
    : ToolWindow(app, "Specialeffects3", "Gray Levels Edit"),
      sliders(MakeBars(*this, kSliders, Typing::MovesBar)) {
  SetRole(WindowRole::Page);
  PaintGrayRamp(Picture2.picture());
  MakeSwatches();
  MakeNumberedPictures();
  BindMouse();
  BindEffects();
  ProgressBar2.SetToolTip("rows that a blur has done");
  Picture1.onDraw = [this](Picture& shown) { FollowImage(shown); };
  Picture1.MarkStale();
  app_.view->form36.onImageChanged = [this] { Picture1.MarkStale(); };
  SetLayout(DeclareLayout());
}

void SpecialEffects3::Show() {
  Picture1.MarkStale();
  ToolWindow::Show();
}

int SpecialEffects3::Slider(int number) const {
  return sliders[static_cast<std::size_t>(number - 1)]->value();
}

GrayBrush SpecialEffects3::Brush() const {
  GrayBrush brush;
  brush.randomX = Slider(1);
  brush.size = Slider(2);
  brush.gray = Slider(kGraySlider);
  brush.step = Slider(4);
  brush.dotSize = Slider(6);
  brush.randomY = Slider(7);
  brush.brightness = Slider(8);
  brush.filterMax = Slider(9);
  brush.randomPoints = Slider(10);
  brush.filterMin = Slider(11);
  brush.addGray = Slider(12);
  brush.addWidth = Slider(13);
  return brush;
}

void SpecialEffects3::MakeSwatches() {
  int number = kFirstSwatch;
  for (const int gray : kSwatchGrays) {
    auto swatch = std::make_unique<PictureBox>(*this, "Picture" + std::to_string(number++), kSwatchSide,
                                               kSwatchSide, "gray level " + std::to_string(gray));
    swatch->Fill(Rgb(gray, gray, gray));
    swatch->onMouseDown = [this, gray](const MouseEvent&) { sliders[kGraySlider - 1]->SetValue(gray); };
    swatches.push_back(std::move(swatch));
  }
}

void SpecialEffects3::MakeNumberedPictures() {
  for (int number = 1; number <= kNumberedPictures; ++number) {
    const std::string name = "Command" + std::to_string(kFirstNumberedButton + number - 1);
    const std::string file = "picture" + std::to_string(number) + ".bmp";
    numberedPictures.push_back(std::make_unique<PushButton>(
        *this, name, std::to_string(number), "left button loads " + file + ", right button stores it"));
    OnEdit(
        *numberedPictures.back(),
        [this, number](const Click& click) {
          click.IsRight() ? StoreNumberedPicture(app_, number) : LoadNumberedPicture(app_, number);
        },
        kChangeOnly);
  }
}

void SpecialEffects3::BindMouse() {
  Picture1.onMouseDown = [this](const MouseEvent& event) { Press(event); };
  Picture1.onMouseMove = [this](const MouseEvent& event) {
    if (pressed_ && !Check1.value()) Stroke(event);
  };
  Picture1.onMouseUp = [this](const MouseEvent&) { Release(); };
  Picture2.onMouseDown = [this](const MouseEvent& event) {
    ScrollBar& gray = *sliders[kGraySlider - 1];
    gray.SetValue(gray.Clamped(ToPixelPlace(event.x)));
  };
}

void SpecialEffects3::BindEffects() {
  const auto bind = [this](PushButton& button, std::function<void(Picture&)> change) {
    button.onClick = [this, &button, change = std::move(change)](const Click&) { Change(button, change); };
  };
  bind(Command1, [this](Picture& image) { Blur({Slider(4), Slider(5), Slider(6), false}, image); });
  bind(Command5, [this](Picture& image) { Blur({1, 1, 1, true}, image); });
  bind(Command4, [this](Picture& image) { InvertGrays(image, Slider(5)); });
  bind(Command6, [this](Picture& image) {
    SprayGrays(image, Slider(kGraySlider), Slider(6), Slider(10), app_.random);
  });
}

LayoutItem SpecialEffects3::DeclareLayout() {
  std::vector<Control*> grays, numbers;
  for (const auto& swatch : swatches) grays.push_back(swatch.get());
  for (const auto& button : numberedPictures) numbers.push_back(button.get());
  std::vector<LayoutItem> column = {
      Frame("Draw graylevels into main window", {Single(rightHint), Single(ctrlHint), Single(shiftHint)}),
      Frame("Dark to Light", {Single(Picture2)}),
      Frame("Light to Dark", {Flow(std::move(grays))}),
  };
  for (const int number : {2, kGraySlider, 8, 12, 13, 1, 7, 9, 11, 4, 5, 6, 10}) {
    column.push_back(BarRow(*sliders[static_cast<std::size_t>(number - 1)]));
  }
  column.push_back(Flow({&Check1}));
  column.push_back(BarRow(HScroll1));
  column.push_back(Flow({&Command1, &Command5, &Command4, &Command6}));
  column.push_back(Single(ProgressBar2));
  column.push_back(Frame("Load/Save pictue", {Compact(Flow(std::move(numbers)))}));
  return Row({Scrolling(Column(std::move(column))), Stretching(Scrolling(Single(Picture1)))});
}

void SpecialEffects3::Change(const Control& control, const std::function<void(Picture&)>& change) {
  Edit(
      control,
      [&] {
        Form36& view = app_.view->form36;
        change(view.Picture2.picture());
        view.ImageChanged();
        view.ShowBackground();
      },
      kChangeOnly);
}

void SpecialEffects3::Blur(const GrayBlur& blur, Picture& image) {
  ProgressBar2.SetMax(image.PixelHeight());
  BlurGrays(image, blur, [this](int row) { ProgressBar2.SetValue(row); });
}

void SpecialEffects3::Press(const MouseEvent& event) {
  pressed_ = event.button;
  Stroke(event);
}

// Only the image and its showing here; the view follows when the button is let go.
void SpecialEffects3::Stroke(const MouseEvent& event) {
  Form36& view = app_.view->form36;
  const GrayStroke stroke{event.x, event.y, pressed_ == MouseButton::Right || event.keys.ctrl,
                          event.keys.shift};
  if (Check1.value()) {
    PaintProfileInGray(view.Picture2.picture(), Brush(), stroke, app_.model, HScroll1.value());
  } else {
    PaintGrays(view.Picture2.picture(), Brush(), stroke, app_.random);
  }
  view.ImageChanged();
}

void SpecialEffects3::Release() {
  if (!pressed_) return;
  pressed_.reset();
  app_.view->form36.ShowBackground();
}

void SpecialEffects3::FollowImage(Picture& shown) const {
  const Picture& image = app_.view->form36.Picture2.picture();
  if (shown.PixelWidth() != image.PixelWidth() || shown.PixelHeight() != image.PixelHeight()) {
    shown.Resize(image.PixelWidth(), image.PixelHeight());
    shown.SetScale(image.PixelWidth(), image.PixelHeight());
  }
  shown.SetPixels(image.Pixels());
}

}  // namespace pelorium
