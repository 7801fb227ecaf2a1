// The shaded picture through the controls, on a surface that keeps what it was told to draw.
#include "windows/view/shaded_view.h"

#include <algorithm>

#include "app_fixture.h"
#include "graphics/gl_recorder.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

constexpr int kDrawn = 0x0000AA, kCorner = 0x00BB00, kGround = 0x404040;

// Paints all pixels in one colour, the lowest left one in another, and counts.
class FakeSurface : public GlSurface {
 public:
  struct Log {
    int opened = 0, rendered = 0, width = 0, height = 0;
    bool fits = true;
    GlRecorder calls;
  };
  explicit FakeSurface(Log& log) : log_(log) {}

  Gl* Begin(int width, int height) override {
    log_.width = width, log_.height = height;
    log_.calls.Restart();
    ++log_.rendered;
    return log_.fits ? &log_.calls : nullptr;
  }
  void ReadBack(std::uint32_t* pixels, int width, int height) override {
    std::fill_n(pixels, width * height, kDrawn);
    pixels[width * (height - 1)] = kCorner;
  }

 private:
  Log& log_;
};

class ShadedWindow : public AppTest {
 protected:
  ShadedWindow() {
    app.openGl = [this] {
      ++log.opened;
      return std::make_unique<FakeSurface>(log);
    };
  }

  // A drag over the preview from (10, -20) to (10 + dx, -20 + dy).
  void DragPreview(float dx, float dy, Click click) {
    UserEvent event{"Form51", "Picture3", UserAction::MouseDown};
    event.click = click;
    event.x = 10, event.y = -20;
    app.Deliver(event);
    event.action = UserAction::MouseMove;
    event.x += dx, event.y += dy;
    app.Deliver(event);
    event.action = UserAction::MouseUp;
    app.Deliver(event);
    event.action = UserAction::MouseMove;  // no button is down any more
    event.x = event.y = 77;
    app.Deliver(event);
  }
  bool HasCall(const std::string& text) const {
    const auto& calls = log.calls.calls();
    return std::any_of(calls.begin(), calls.end(),
                       [&](const GlCall& call) { return CallText(call) == text; });
  }
  // Away from the grid of the wire views.
  int ViewPixel() { return app.view->form36.Picture1.picture().PixelAt(25, 25); }
  int PreviewPixel() { return app.view->form51.Picture3.picture().PixelAt(25, 25); }

  FakeSurface::Log log;
};

TEST_F(ShadedWindow, OnAScreenTheSquareFillsTheSmallerSideInTheMiddle) {
  const Picture& shown = app.view->form36.Picture1.measures();
  UserEvent resize{"Form36", "Picture1", UserAction::Resize};
  const auto resizeTo = [&](int width, int height) {
    resize.width = width, resize.height = height;
    app.Deliver(resize);
    return shown.PixelAt(0, 0);  // someone looks
  };
  app.view->form51.Command2.Press();
  resizeTo(300, 200);
  EXPECT_TRUE(HasCall("Viewport 0 0 637 637"));
  resize.onScreen = true;
  resizeTo(300, 200);
  EXPECT_TRUE(HasCall("Viewport 0 0 200 200"));
  EXPECT_EQ(shown.PixelAt(50, 199), kCorner);
  resizeTo(200, 301);
  EXPECT_TRUE(HasCall("Viewport 0 0 200 200"));
  EXPECT_EQ(shown.PixelAt(0, 249), kCorner);
  UserEvent drag{"Form51", "HScroll1", UserAction::Drag, 150};
  app.Deliver(drag);
  EXPECT_EQ(shown.PixelAt(0, 300), kCorner);
  EXPECT_TRUE(HasCall("Viewport 0 0 150 150"));
}

TEST_F(ShadedWindow, EachEventRendersOnceAndOnlyWhenLookedAt) {
  EXPECT_EQ(app.shadedPose.RotX, 245);
  EXPECT_EQ(log.opened, 0);
  const int context = app.view->shadedView->RenderContext();
  app.view->form51.Command2.Press();
  EXPECT_TRUE(app.view->form51.Option11.value());
  EXPECT_EQ(app.view->form36.Label54.caption(), " SHADED VIEW ");
  EXPECT_EQ(app.view->shadedView->RenderContext(), context + 1);
  app.view->form51.HScroll13.SetValue(20);
  app.view->form51.HScroll1.SetValue(300);
  EXPECT_EQ(log.rendered, 0);
  app.EndEvent();
  app.shadedPose.RotY = 33;  // after the picture was drawn: not in it
  EXPECT_EQ(ViewPixel(), kDrawn);
  EXPECT_EQ(log.rendered, 1);
  EXPECT_EQ(log.opened, 1);
  EXPECT_EQ(log.width, 964);
  EXPECT_EQ(log.height, 637);
  EXPECT_TRUE(HasCall("Scalef 0.002 0.002 0.002"));
  EXPECT_TRUE(HasCall("Viewport 0 0 300 300"));
  EXPECT_TRUE(HasCall("Rotatef 0 0 1 0"));

  app.view->form51.Option4.SetValue(true);
  EXPECT_EQ(ViewPixel(), kGround);
  EXPECT_EQ(log.rendered, 1);
  app.view->form51.Option7.SetValue(true);
  EXPECT_TRUE(app.view->form51.Option11.value());
  EXPECT_EQ(app.view->shadedView->RenderContext(), context + 2);
  EXPECT_EQ(ViewPixel(), kDrawn);
  app.view->form51.Option1.SetValue(true);
  app.profiles->formulas.view.Option8.Press({});
  EXPECT_EQ(ViewPixel(), kDrawn);
}

TEST_F(ShadedWindow, NoContextIsToldOnceAndLeavesABlankPicture) {
  app.openGl = [] { return nullptr; };
  app.view->form51.Command2.Press();
  app.view->form51.Check1.SetValue(false);
  app.view->form51.Option4.SetValue(true);
  app.view->form51.Command2.Press();
  DragPreview(1, 1, {});
  EXPECT_EQ(platform.TakeMessages(), std::vector<std::string>{"Could not retrieve pixel format!"});
  EXPECT_EQ(ViewPixel(), kGround);
  EXPECT_EQ(PreviewPixel(), kGround);
  EXPECT_EQ(app.view->form36.Label54.caption(), " SHADED VIEW ");
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(ShadedWindow, PictureThatIsTooLargeStaysBlank) {
  log.fits = false;
  app.view->form51.Command2.Press();
  EXPECT_EQ(ViewPixel(), kGround);
}

TEST_F(ShadedWindow, FaultIsNotedAndTheRestStands) {
  app.model.Part(0).maxfaces = 1;
  app.model.Faces(0, 1).group = 42;
  app.view->form51.Option11.SetValue(true);
  app.EndEvent();
  const auto faults = app.faults.TakeAll();
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_TRUE(faults[0].starts_with("DrawShaded: ")) << faults[0];
  EXPECT_EQ(ViewPixel(), kDrawn);
  EXPECT_TRUE(HasCall("Color3f 0.3 0.3 0.3"));  // the grid
}

TEST_F(ShadedWindow, DragsOverThePreviewTurnAndMove) {
  const int context = app.view->shadedView->RenderContext();
  DragPreview(5.5F, 3, {MouseButton::Left, {}});
  EXPECT_EQ(app.shadedPose.RotX, 248);
  EXPECT_EQ(app.shadedPose.RotY, 0);
  EXPECT_EQ(app.shadedPose.RotZ, 50.5F);
  DragPreview(7, 2, {MouseButton::Right, {}});
  EXPECT_EQ(app.shadedPose.RotX, 248);
  EXPECT_EQ(app.shadedPose.RotY, 7);
  DragPreview(-1.5F, 2.5F, {MouseButton::Left, {.shift = true}});
  EXPECT_EQ(app.shadedPose.ShadeMoveX, -2);
  EXPECT_EQ(app.shadedPose.ShadeMoveY, 2);
  DragPreview(9, -0.5F, {MouseButton::Right, {.shift = true}});
  EXPECT_EQ(app.shadedPose.ShadeMoveX, -2);
  EXPECT_EQ(app.shadedPose.ShadeMoveZ, 1);
  EXPECT_EQ(app.view->shadedView->RenderContext(), context + 4);

  EXPECT_EQ(PreviewPixel(), kDrawn);
  EXPECT_TRUE(HasCall("Viewport 0 0 120 120"));
  EXPECT_TRUE(HasCall("Translatef -2 2 1"));
  EXPECT_EQ(ViewPixel(), kGround);  // another view is on
  app.view->form51.Option11.SetValue(true);
  EXPECT_EQ(ViewPixel(), kDrawn);
  DragPreview(0, 100, {});
  ViewPixel();
  EXPECT_TRUE(HasCall("Rotatef 348 1 0 0"));  // the view follows
}

}  // namespace
}  // namespace pelorium
