// What must leave no mark for undo, and what comes with a step beside the tables.
#include "windows/app_fixture.h"
#include "windows/frame/status_line.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class Undo : public AppTest {};

// With every window open, in every view.
TEST_F(Undo, HoverPanAndRefreshMarkNothing) {
  MakeCup();
  for (Window* window : app.windows()) window->Show();
  Form36& view = app.view->form36;
  Form51& options = app.view->form51;
  app.model.BeginChanges();
  const std::uint64_t image = app.imaging->texture.Picture1.measures().Revision();
  for (OptionButton* mode : {&options.Option1, &options.Option4, &options.Option5, &options.Option16}) {
    mode->SetValue(true);
    for (OptionButton* tool : {&view.Option7, &view.Option10, &view.Option1}) {
      tool->SetValue(true);
      view.Picture1.onMouseMove({300, -200, MouseButton::None, {}});
      EXPECT_FALSE(app.model.hasMarks()) << mode->caption() << tool->caption();
    }
    view.HScroll1.SetValue(view.HScroll1.value() + 5);
    app.imaging->texture.Picture1.onMouseMove({30, 20, MouseButton::None, {}});
    RefreshViews(app);
    view.Picture1.picture().Pixels();
    EXPECT_FALSE(app.model.hasMarks()) << mode->caption();
  }
  EXPECT_EQ(app.imaging->texture.Picture1.measures().Revision(), image);
}

// Gone when the changes are undone, back when they are done again; choosing a file clears it.
TEST_F(Undo, ADotTellsThatTheModelHasChanged) {
  const auto hasDot = [this] { return StatusLine(app).ends_with("\u25CF"); };
  EXPECT_FALSE(hasDot());
  MakeCup();
  EXPECT_TRUE(hasDot());
  platform.QueueAnswer("projects/cup.prj");
  PressItem("saveproj");
  EXPECT_TRUE(StatusLine(app).ends_with("   cup.prj"));
  PressItem("copypart");  // nothing that the project keeps
  EXPECT_FALSE(hasDot());
  app.view->form5.HScroll25.Show(1);
  PressItem("centerme");
  EXPECT_TRUE(hasDot());
  PressItem("undoit");
  EXPECT_FALSE(hasDot());
  PressItem("redoit");
  EXPECT_TRUE(hasDot());
  platform.QueueAnswer("projects/cup.prj");
  PressItem("openproj");
  EXPECT_FALSE(hasDot());
}

// Fifty moves of 2000 points, each with the corners of all faces, stay within the usual memory.
TEST_F(Undo, KeepsFiftyMovesOfTwoThousandPoints) {
  app.model.Part(0).maxpoints = 23000;
  app.model.Part(0).maxfaces = kMaxFaces;
  for (int i = 1; i <= kMaxFaces; ++i) app.model.Faces(0, i).corner2pt = 1 + i % 2000;
  app.view->form5.HScroll25.SetValueWidening(2000);
  app.view->form36.Option7.SetValue(true);
  app.history->held.Begin();
  for (int i = 0; i < 50; ++i) {
    Mouse(UserAction::MouseDown, 100, -100);
    Mouse(UserAction::MouseMove, 120, -120);
    Mouse(UserAction::MouseUp, 120, -120);
  }
  EXPECT_EQ(app.history->undoSteps(), 50U);
  EXPECT_LT(app.history->Bytes(), std::size_t{64} << 20);
}

}  // namespace
}  // namespace pelorium
