// The state after the start, the command set, and the end.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/frame/command_table.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/mdi_form1.h"
#include "windows/view/command_row.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

using Start = AppTest;

TEST_F(Start, OpensOnTheProfileViewAtOneUnitAPixel) {
  EXPECT_TRUE(app.started);
  EXPECT_EQ(app.frame->mdiForm1.caption(), "Pelorium v2.14");
  EXPECT_TRUE(app.view->form36.visible() && app.view->form51.visible());
  EXPECT_FALSE(app.view->form5.visible());
  EXPECT_EQ(app.view->form36.left(), 4300);
  EXPECT_EQ(app.view->form51.top(), 10);
  EXPECT_EQ(app.view->form36.Label54.caption(), " PROFILE VIEW--Front ");
  EXPECT_EQ(app.view->form36.Picture1.measures().ScaleWidth(), 964);
  EXPECT_EQ(app.view->form36.Picture1.measures().ScaleHeight(), -637);
  EXPECT_EQ(app.view->form36.HScroll1.value(), 318);
  EXPECT_EQ(app.view->form36.VScroll1.value(), -318);
  EXPECT_EQ(app.view->form51.Label3.caption(), "0faces  points 0");
  EXPECT_EQ(app.shadedPose.RotX, 245);
}

TEST_F(Start, EachRunBeginsWithTheSameColours) {
  App other(platform, folder());
  other.Start();
  for (int group = 0; group <= kMaxGroup; ++group) {
    EXPECT_EQ(other.model.MaterialGroups(group).KdG, app.model.MaterialGroups(group).KdG);
  }
}

TEST_F(Start, EveryMenuItemHasItsHeadAndEveryButtonItsItem) {
  EXPECT_EQ(app.frame->mdiForm1.controls().size(), MenuCommands().size());
  for (const MenuCommand& command : MenuCommands()) {
    const auto* item = dynamic_cast<const MenuItem*>(app.frame->mdiForm1.Find(command.name));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->isTopLevel(), command.menu.empty()) << command.name;
  }
  for (const CommandButton& button : CommandButtons()) {
    EXPECT_TRUE(button.menuItem.empty() || app.frame->mdiForm1.Find(button.menuItem) != nullptr)
        << button.caption;
  }
}

TEST_F(Start, AToolWindowDisarmsTheMouse) {
  app.view->form36.Option7.SetValue(true);
  PressItem("formulait");
  EXPECT_FALSE(app.view->form36.Option7.value());
  EXPECT_TRUE(app.FindWindow("Formulas")->visible());
}

}  // namespace
}  // namespace pelorium
