// "Image maker": its two images, the filters' source, and what the controls beside them do.
#include "windows/imaging/texture_image_maker.h"

#include <algorithm>

#include "imaging/canvas.h"
#include "imaging/palette.h"
#include "imaging/picture_marks.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

constexpr int kEdge = 4;  // pixels that a box is larger than its picture

void TakeSize(PictureBox& box) {
  box.width = box.measures().PixelWidth() + kEdge;
  box.height = box.measures().PixelHeight() + kEdge;
}

}  // namespace

Texture::Texture(App& app) : ToolWindow(app, "texture", "Image maker") {
  SetRole(WindowRole::Page);
  MakeControls();
  MakeMenus();
  BindControls();
  BindMouse();
  MakeLayout();
  for (PictureBox* box : {&Picture1, &Picture5}) {
    box->Fill(kWhite);
    TakeSize(*box);
  }
  Image1.SetVisible(false);
  ProgressBar1.SetToolTip("how far an effect or a filter is");
  Picture11.onDraw = PaintPalette;
  Picture11.MarkStale();
  process_.events.InitProgress = [this](int highest) {
    ProgressBar1.SetMax(highest);
    ProgressBar1.SetValue(0);
  };
  process_.events.Progress = [this](int position) { ProgressBar1.SetValue(position); };
  TakeChosenColour();
  SetPointSize();
  ShowPanel();
  ShowImage(Image::Foreground);
  HoldImages();
}

void Texture::Load() {
  for (const auto& [item, window] : needs_) item->SetEnabled(app_.FindWindow(window) != nullptr);
  Find("customit")->SetEnabled(askKernel != nullptr);
  for (const char* item : {"noisie", "colnoise"}) Find(item)->SetEnabled(askNoise != nullptr);
}

void Texture::BindControls() {
  for (ScrollBar* bar : {&HScroll2, &HScroll3, &HScroll4}) bar->onChange = [this] { TakeChosenColour(); };
  HScroll6.onChange = [this] {
    for (ScrollBar* bar : {&HScroll2, &HScroll3, &HScroll4}) bar->SetValue(HScroll6.value());
  };
  HScroll5.onChange = [this] { SetPointSize(); };
  HScroll1.onChange = [this] { Label10.SetCaption(std::to_string(HScroll1.value())); };
  HScroll18.onChange = [this] { DrawTheCanyon(HScroll18.value(), HScroll18.value()); };
  HScroll25.onChange = [this] { DrawTheCanyon(HScroll25.value(), 254 - HScroll25.value()); };
  HScroll34.onChange = [this] { ShowPanel(); };
  for (ScrollBar* bar : {&HScroll35, &VScroll2}) {
    bar->onChange = [this, bar] { ShowImage(static_cast<Image>(bar->value())); };
  }
  for (ScrollBar* bar : {&HScroll22, &VScroll1}) bar->onChange = [this] { PanImages(); };
  for (const char* bar : {"HScroll33", "HScroll30"}) Bar(bar).onChange = [this] { TakeImageSize(); };
}

void Texture::ShowPanel() {
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i]->SetVisible(static_cast<int>(i) + 1 == HScroll34.value());
  }
}

void Texture::PanImages() {
  for (PictureBox* box : {&Picture1, &Picture5}) {
    box->left = HScroll22.value();
    box->top = VScroll1.value();
    box->NotifyChanged();
  }
}

void Texture::ShowImage(Image image) {
  const bool isForeground = image == Image::Foreground;
  Picture1.SetVisible(isForeground);
  Picture5.SetVisible(!isForeground);
  FollowShown();
}

void Texture::FollowShown() {
  const Image image = Picture1.visible() ? Image::Foreground : Image::Background;
  HScroll35.Show(static_cast<int>(image));
  VScroll2.Show(static_cast<int>(image));
  Label32.SetCaption(image == Image::Foreground ? "Foreground" : "Background");
}

// What undo and redo bring back.
void Texture::HoldImages() {
  HeldState& held = app_.history->held;
  for (PictureBox* box : {&Picture1, &Picture5, &Picture11}) held.Hold(*box);
  for (cDIBSection* surface : {&source_, &working_}) held.Hold(*surface);
  for (const char* bar : {"HScroll33", "HScroll30"}) held.Carry(Bar(bar));
}

void Texture::RecordsRestored() {
  FollowShown();
  for (const Image image : {Image::Foreground, Image::Background}) TakeSize(BoxOf(image));
}

Colour Texture::ChosenColour() const { return Rgb(HScroll2.value(), HScroll3.value(), HScroll4.value()); }

void Texture::TakeChosenColour() {
  const Colour chosen = ChosenColour();
  Picture1.picture().foreColour = Picture5.picture().foreColour = chosen;
  Picture2.Fill(chosen);
  const int gray = GrayLevel(static_cast<int>(chosen));
  Picture4.Fill(Rgb(gray, gray, gray));
}

void Texture::ChooseColour(Colour colour) {
  HScroll2.SetValue(Red(colour));
  HScroll3.SetValue(Green(colour));
  HScroll4.SetValue(Blue(colour));
}

void Texture::SetPointSize() {
  const int size = HScroll5.value();
  Picture1.picture().drawWidth = Picture5.picture().drawWidth = size;
  Label11.SetCaption(std::to_string(size));
  Shape2.width = Shape2.height = size;
  Shape2.NotifyChanged();
}

// Wide bands of changing gray over each other read as a slope.
void Texture::DrawTheCanyon(int width, int gray) {
  HScroll5.SetValue(width);
  HScroll6.SetValue(gray);
  const ViewPans pan = ViewPan(app_);
  DrawCanyon(Picture1.picture(), app_.model, CurrentProfile(app_), static_cast<int>(pan.x),
             static_cast<int>(pan.y));
  Told(Image::Foreground);
}

void Texture::TakeImageSize() {
  for (const Image image : {Image::Foreground, Image::Background}) {
    Picture& picture = BoxOf(image).picture();
    picture.Resize(Bar("HScroll33").value(), Bar("HScroll30").value());
    picture.SetScale(picture.PixelWidth(), picture.PixelHeight());
    Told(image);
  }
  LoadSource();
}

void Texture::SetImageSize(int width, int height) {
  Bar("HScroll33").SetValue(width);
  Bar("HScroll30").SetValue(height);
}

// Pen, draw width and background stay.
void Texture::Replace(Image image, const Picture& picture) {
  Picture& to = BoxOf(image).picture();
  to.Resize(picture.PixelWidth(), picture.PixelHeight());
  to.SetScale(picture.PixelWidth(), picture.PixelHeight());
  to.SetPixels(picture.Pixels());
  Told(image);
}

void Texture::Told(Image image) {
  TakeSize(BoxOf(image));
  BoxOf(image).NotifyChanged();
}

void Texture::Open(Image image, const Picture& picture) {
  Replace(image, picture);
  LoadSource();
  ShowImage(image);
}

void Texture::TakeImages(const Picture& picture) {
  for (const Image image : {Image::Foreground, Image::Background}) Replace(image, picture);
}

cDIBSection& Texture::Source() {
  if (source_.Width() > 0) return source_;
  source_.Create(kWidth, kHeight);
  working_.Create(kWidth, kHeight);
  std::fill_n(source_.DIBSectionBitsPtr(), source_.BytesPerScanLine() * source_.Height(), std::uint8_t{255});
  return source_;
}

void Texture::LoadSource() {
  const Picture& from = Picture1.picture();
  if (source_.Width() != from.PixelWidth() || source_.Height() != from.PixelHeight()) {
    source_.Create(from.PixelWidth(), from.PixelHeight());
    working_.Create(from.PixelWidth(), from.PixelHeight());
  }
  source_.LoadPictureBlt(from);
}

void Texture::Render(Image image) {
  ShowImage(image);
  Source().PaintPicture(BoxOf(image).picture());
  Told(image);
}

void Texture::GridImage() {
  const EffectSettings settings = Settings().effect;
  ShowImage(Image::Foreground);
  DrawGrid(Picture1.picture(), settings.stepX, settings.stepY);
  Told(Image::Foreground);
}

void Texture::FrameImage() {
  ShowImage(Image::Foreground);
  DrawFrame(Picture1.picture(), HScroll5.value(), Picture2.picture().backColour);
  Told(Image::Foreground);
}

void Texture::ScrapeAtRandom() {
  const MakerSettings settings = Settings();
  ShowImage(Image::Background);
  RandomScrape(Picture1.picture(), Picture5.picture(), settings.brush, settings.amount, app_.random);
  Told(Image::Background);
}

void Texture::PointsAtRandom() {
  const MakerSettings settings = Settings();
  ShowImage(Image::Foreground);
  RandomPoints(Picture1.picture(), settings.brush, settings.amount, app_.random);
  Picture5.picture().drawWidth = HScroll5.value();  // strokes of random width may have left another one
  Told(Image::Foreground);
}

void Texture::CirclesAtRandom() {
  const MakerSettings settings = Settings();
  ShowImage(Image::Foreground);
  RandomCircles(Picture1.picture(), settings.brush, settings.amount, app_.random);
  Picture5.picture().drawWidth = HScroll5.value();
  Told(Image::Foreground);
}

void Texture::ShadesAtRandom() {
  ShowImage(Image::Foreground);
  RandomShades(Picture1.picture(), Settings().brush, ChosenColour(), app_.random);
  Told(Image::Foreground);
}

void Texture::BlurForeground() {
  ShowImage(Image::Foreground);
  ProgressBar1.SetMax(Picture1.measures().PixelWidth());
  BlurWholePicture(Picture1.picture(), [this](int column) { ProgressBar1.SetValue(column); });
  Told(Image::Foreground);
}

}  // namespace pelorium
