// The shaded picture: its settings from the controls, its calls recorded, its pixels when they are looked at.
#include "windows/view/shaded_view.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "graphics/gl_recorder.h"
#include "views/draw_shaded.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/refresh_views.h"
#include "windows/view/view_windows.h"

namespace pelorium {

// One picture as it was recorded. Many refreshes within one event record many times and render once. Pictures
// end before the surface: windows go before the shaded view does.
class ShadedFrame : public PixelSource {
 public:
  explicit ShadedFrame(GlSurface& surface) : surface_(surface) {}

  void Fill(std::uint32_t* pixels, int width, int height) override {
    Gl* gl = surface_.Begin(width, height);
    if (gl == nullptr) {
      std::fill_n(pixels, std::ptrdiff_t{width} * height, blank);
      return;
    }
    recorder.Replay(*gl);
    surface_.ReadBack(pixels, width, height);
    if (isInMiddle) MoveToMiddle(pixels, width, height);
  }

  GlRecorder recorder;
  Colour blank = 0;         // when the surface cannot be had in that size
  bool isInMiddle = false;  // the square is as large as the smaller side, and stands in the middle

 private:
  static void MoveToMiddle(std::uint32_t* pixels, int width, int height);

  GlSurface& surface_;
};

// The square was drawn at the lower left; around it lies the ground.
void ShadedFrame::MoveToMiddle(std::uint32_t* pixels, int width, int height) {
  if (width > height) {
    const int left = (width - height) / 2;
    for (std::uint32_t* row = pixels; row != pixels + std::ptrdiff_t{width} * height; row += width)
      std::rotate(row, row + width - left, row + width);
  } else {
    const std::ptrdiff_t up = std::ptrdiff_t{width} * (height - width - (height - width) / 2);
    std::rotate(pixels, pixels + up, pixels + std::ptrdiff_t{width} * height);
  }
}

namespace {

ShadedSettings Gather(const App& app, int viewportSide) {
  const Form51& options = app.view->form51;
  ShadedSettings s;
  s.shown = GatherViewSettings(app);
  s.pose = app.shadedPose;
  s.scale = Val(options.Label33.caption());
  s.viewportSide = viewportSide;
  s.showEdges = options.Check21.value();
  s.showOtherEdges = options.Check13.value();
  return s;
}

}  // namespace

ShadedView::ShadedView(App& app) : app_(app) {}

ShadedView::~ShadedView() = default;

// Opening takes half a second and a hundred megabytes, which most runs of the program never need.
GlSurface* ShadedView::Surface() {
  if (!isOpened_) {
    isOpened_ = true;
    surface_ = app_.openGl();
    if (!surface_) app_.platform.ShowMessage("Could not retrieve pixel format!");
  }
  return surface_.get();
}

void ShadedView::DrawShaded() {
  Form36& view = app_.view->form36;
  view.Label54.SetCaption(" SHADED VIEW ");
  view.Picture1.overlay().clear();
  view.Redraw(Form36::Content::Shaded);
}

// On a screen the square fills the view's smaller side, until a person chooses its size.
void ShadedView::Paint() {
  PictureBox& view = app_.view->form36.Picture1;
  const ScrollBar& size = app_.view->form51.HScroll1;
  const bool fills = view.isOnScreen && !size.movedByPerson;
  const int side =
      fills ? std::min(view.measures().PixelWidth(), view.measures().PixelHeight()) : size.value();
  const bool isWhole = Draw(viewFrame_, view, side, fills);
  if (isWhole && app_.view->form51.visible()) DrawPreview();
}

void ShadedView::DrawPreview() {
  PictureBox& preview = app_.view->form51.Picture3;
  Draw(previewFrame_, preview, preview.measures().PixelWidth());
}

bool ShadedView::Draw(std::shared_ptr<ShadedFrame>& frame, PictureBox& box, int viewportSide,
                      bool isInMiddle) {
  return Trapped(app_.drawingFaults, "DrawShaded", [&] {
    box.picture().Clear();
    box.NotifyChanged();
    GlSurface* surface = Surface();
    if (surface == nullptr) return;
    const ShadedSettings settings = Gather(app_, viewportSide);
    // A picture that was not looked at yet is replaced anyway, so that its memory serves again.
    if (!frame) frame = std::make_shared<ShadedFrame>(*surface);
    frame->blank = box.picture().backColour;
    frame->isInMiddle = isInMiddle;
    frame->recorder.Restart();
    box.picture().TakeFrom(frame);
    pelorium::DrawShaded(app_.model, settings, frame->recorder);
  });
}

void ShadedView::DragPose(const MouseEvent& event, const PictureDrag::Step& step) {
  const auto [dx, dy] = step;
  ShadedPose& pose = app_.shadedPose;
  const bool isRight = event.button == MouseButton::Right;
  if (event.keys.shift) {
    if (isRight) {
      pose.ShadeMoveZ -= std::floor(dy);
    } else {
      pose.ShadeMoveX += std::floor(dx);
      pose.ShadeMoveY += std::floor(dy);
    }
  } else if (isRight) {
    pose.RotY = static_cast<float>(pose.RotY + dx);
  } else {
    pose.RotX = static_cast<float>(pose.RotX + dy);
    pose.RotZ = static_cast<float>(pose.RotZ + dx);
  }
}

}  // namespace pelorium
