// Edit Geometry: choices of points and faces, and drags on its small pictures.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/facetools/editbyface_face_info.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

// Four points, three of them on the axes, and two faces of the groups 1 and 5; nothing is chosen.
class EditGeometryWindow : public AppTest {
 protected:
  EditGeometryWindow() {
    app.model.Part(0).maxpoints = 4;
    app.model.Part(0).maxfaces = 2;
    const Vec3 places[] = {{0, 0, 0}, {10, 0, 0}, {0, 20, 0}, {0, 0, 30}};
    for (int i = 1; i <= 4; ++i) CopyPosition(Point(i), places[i - 1]);
    SetFace(1, 1, 2, 3, 1);
    SetFace(2, 2, 3, 4, 5);
    FollowCounts(app);
    window.Command4.Press(MouseButton::Right);
    window.Command8.Press();
  }
  ~EditGeometryWindow() override { EXPECT_TRUE(app.faults.TakeAll().empty()); }

  PointRec& Point(int number) { return app.model.Points(0, number); }
  FaceRec& Face(int number) { return app.model.Faces(0, number); }
  Vec3 Place(int number) { return {Point(number).X, Point(number).Y, Point(number).Z}; }
  void SetFace(int number, int a, int b, int c, std::int16_t group) {
    Face(number).corner1pt = a;
    Face(number).corner2pt = b;
    Face(number).corner3pt = c;
    Face(number).group = group;
  }

  std::string Marks() {
    std::string marks;
    for (int i = 1; i <= 4; ++i) {
      EXPECT_EQ(Point(i).onoff, app.model.PointMark(0, i)) << i;
      marks += static_cast<char>('0' + Point(i).onoff);
    }
    return marks;
  }
  std::string FacesOn() { return std::to_string(Face(1).onoff) + std::to_string(Face(2).onoff); }

  void On(const char* picture, UserAction action, float x, float y, MouseButton button = MouseButton::Left) {
    app.Deliver({"specialeffects5", picture, action, 0, "", {button, {}}, x, y});
  }
  // One step of a drag, from (100, 50).
  void Drag(const char* picture, float dx, float dy, MouseButton button = MouseButton::Left) {
    On(picture, UserAction::MouseDown, 100, 50, button);
    On(picture, UserAction::MouseMove, 100 + dx, 50 + dy, button);
    On(picture, UserAction::MouseUp, 100 + dx, 50 + dy, button);
    On(picture, UserAction::MouseMove, 0, 0, button);  // nothing is held any more
  }

  SpecialEffects5& window = app.geometry->specialeffects5;
};

constexpr MouseButton kRight = MouseButton::Right;

TEST_F(EditGeometryWindow, PointsOfFaces) {
  EXPECT_EQ(Marks(), "0000");
  app.view->form51.HScroll7.SetValue(2);
  window.Command5.Press();
  EXPECT_EQ(Marks(), "0111");
  window.Command7.Press(kRight);
  EXPECT_EQ(Marks(), "0000");
  window.Command9.Press();
  window.Command7.Press(kRight);
  EXPECT_EQ(Marks(), "1000");
  window.Command7.Press();
  EXPECT_EQ(Marks(), "1111");
  app.view->form51.HScroll5.SetValue(1);  // from the second face to the first
  window.Command5.Press();
  EXPECT_EQ(Marks(), "0000");
}

TEST_F(EditGeometryWindow, PointsOfAGroup) {
  window.Command4.Press();
  window.HScroll7.Drag(5);
  EXPECT_EQ(Marks(), "1111");
  window.Command6.Press(kRight);
  EXPECT_EQ(Marks(), "1000");
  window.Check5.SetValue(true);
  window.HScroll7.Drag(1);
  EXPECT_EQ(Marks(), "1110");
  app.facetools->editbyface.VScroll1.SetValue(4);
  window.Command11.Press();
  EXPECT_EQ(window.HScroll7.value(), 5);
  EXPECT_EQ(Marks(), "0111");
  app.facetools->editbyface.VScroll1.SetValue(2);  // the lowest face that has it
  window.Command11.Press();
  EXPECT_EQ(window.HScroll7.box.text(), "1");
}

TEST_F(EditGeometryWindow, PointsByDistanceAxisAndLayer) {
  app.view->form5.Text5.SetText("10");
  window.HScroll9.Drag(0);
  EXPECT_EQ(Marks(), "0100");
  window.HScroll9.Drag(10);
  EXPECT_EQ(Marks(), "1100");
  window.Option12.SetValue(true);
  window.HScroll9.Drag(9);
  EXPECT_EQ(Marks(), "1000");
  window.Option6.SetValue(true);
  window.VScroll1.Drag(30);
  EXPECT_EQ(Marks(), "0001");
  app.view->form5.HScroll5.SetValue(2);
  window.HScroll8.Drag(0);
  window.Command3.Press();
  EXPECT_EQ(Marks(), "1101");
}

TEST_F(EditGeometryWindow, FacesFollowTheChoices) {
  app.view->form51.HScroll7.SetValue(2);
  window.Command4.Press(kRight);
  EXPECT_EQ(FacesOn(), "10");
  window.Command5.Press();
  window.Command1.Press();
  EXPECT_EQ(FacesOn(), "11");
  app.view->form5.HScroll20.SetValue(3);  // a point outside the range is not chosen
  window.Command1.Press(kRight);
  EXPECT_EQ(FacesOn(), "11");
  app.view->form5.HScroll20.SetValue(1);
  window.HScroll7.Drag(9);
  window.Command10.Press();
  EXPECT_EQ(Face(1).group, 1);
  EXPECT_EQ(Face(2).group, 9);
  window.HScroll4.Drag(1);
  window.HScroll5.Drag(1);
  window.Command2.Press();
  window.Command8.Press(kRight);
  EXPECT_EQ(Face(1).group, 9);
  EXPECT_EQ(FacesOn(), "01");
}

TEST_F(EditGeometryWindow, MovesKeepStepWithTheView) {
  window.Command4.Press();
  window.Command18.Press();  // 0.75 units a pixel
  window.Text3.SetText("4");
  Drag("Picture1", 10, 20);
  EXPECT_EQ(Place(4), (Vec3{15, -30, 30}));
  Drag("Picture1", 10, 20, kRight);
  EXPECT_EQ(Place(4), (Vec3{15, -30, 0}));
  window.Check3.SetValue(false);
  for (const char* picture : {"Picture1", "Picture2", "Picture3"}) Drag(picture, 10, 20);
  EXPECT_EQ(Place(4), (Vec3{15, -30, 0}));
  EXPECT_EQ(Face(2).c3Y, -30);
}

TEST_F(EditGeometryWindow, ScalesByTheWayOfTheDrag) {
  window.Command4.Press();
  app.view->form5.Text5.SetText("0.1");
  app.view->form5.Text9.SetText("0.1");
  Point(1).X = Point(1).Y = 1e-20;  // would be lost beside 0.1
  Drag("Picture3", 0, 0);
  EXPECT_EQ(Place(1), (Vec3{1e-20, 1e-20, 0}));
  Drag("Picture3", 5, 0);
  EXPECT_EQ(Place(2), (Vec3{10.099, 0, 0}));
  EXPECT_EQ(Point(1).Y, 1e-20);
  window.Option9.SetValue(true);
  Drag("Picture1", 0, -5);
  EXPECT_EQ(Point(2).X, 10.099);
  EXPECT_EQ(Point(3).Y, 0.1 + 19.9 * 0.99);
  EXPECT_EQ(Point(4).Z, 29.7);
}

TEST_F(EditGeometryWindow, TheOriginIsDraggedInUnitsOfTheView) {
  window.Check3.SetValue(false);
  window.Command18.Press();
  Drag("Picture4", 2.5F, 3);
  EXPECT_EQ(window.Picture4.measures().ScaleWidth(), 82.5);  // 110 pixels of 0.75 units
  EXPECT_LT(window.Picture4.measures().ScaleHeight(), 0);
  Drag("Picture4", 50, -7, kRight);
  EXPECT_EQ(Origin(app), (Vec3{2.5, 3, -7}));
  app.Deliver({"specialeffects5", "Picture4", UserAction::DoubleClick});
  EXPECT_EQ(app.view->form5.Text3.text(), "0");
  EXPECT_EQ(Origin(app), (Vec3{0, 0, 0}));
}

TEST_F(EditGeometryWindow, JoinedEndsStayTogether) {
  app.view->form5.HScroll5.SetValue(2);
  app.view->form5.HScroll20.SetValue(2);
  window.Command4.Press();
  window.Check4.SetValue(true);
  Drag("Picture1", 0, 0);
  EXPECT_EQ(Place(2), Place(1));
}

TEST_F(EditGeometryWindow, AreasPickInTheProjectionOfTheView) {
  app.view->form51.Option5.SetValue(true);  // the origin stands at (318, -318)
  window.HScroll2.SetValue(12);
  window.HScroll6.SetValue(5);
  On("Picture5", UserAction::MouseDown, 328, -318);
  EXPECT_EQ(Marks(), "0100");
  On("Picture5", UserAction::MouseDown, 318, -318);
  EXPECT_EQ(Marks(), "1101");
  app.view->form51.Option2.SetValue(true);
  window.Option3.SetValue(true);
  window.Option10.SetValue(true);
  EXPECT_EQ(window.Picture1.measures().ScaleHeight(), -637);
  On("Picture1", UserAction::MouseDown, 318, -318);
  EXPECT_EQ(Marks(), "1111");
  On("Picture1", UserAction::MouseDown, 318, -318, kRight);
  EXPECT_EQ(Marks(), "0001");
  app.view->form51.Option4.SetValue(true);  // not here
  On("Picture5", UserAction::MouseDown, 318, -318);
  EXPECT_EQ(Marks(), "0001");
  window.Option7.SetValue(true);
  EXPECT_EQ(window.Picture1.measures().ScaleHeight(), window.Picture1.measures().PixelHeight());
}

TEST_F(EditGeometryWindow, WithoutEditObjADragOnlyShowsItsWay) {
  window.Command4.Press();
  window.Check3.SetValue(false);
  On("Picture1", UserAction::MouseDown, 100, 50, MouseButton::Left);
  On("Picture1", UserAction::MouseMove, 130, 90, MouseButton::Left);
  On("Picture1", UserAction::MouseMove, 120, 80, MouseButton::Left);
  const auto& overlay = window.Picture1.overlay();
  ASSERT_EQ(overlay.size(), 1u);
  EXPECT_EQ(overlay[0].x0, 100);
  EXPECT_EQ(overlay[0].y1, 80);
  EXPECT_EQ(Place(2), (Vec3{10, 0, 0}));
  On("Picture1", UserAction::MouseUp, 120, 80, MouseButton::Left);
  EXPECT_TRUE(overlay.empty());
}

TEST_F(EditGeometryWindow, ThePickAreaHasTheViewsShape) {
  app.Deliver({"Form36", "Picture1", UserAction::Resize, 0, {}, {}, 0, 0, 1000, 500});
  PressItem("special5");
  EXPECT_EQ(window.Picture5.measures().PixelWidth(), 241);
  EXPECT_EQ(window.Picture5.measures().PixelHeight(), 120);
  EXPECT_EQ(window.Picture1.measures().PixelHeight(), 159);
  window.Option10.SetValue(true);
  EXPECT_EQ(window.Picture1.measures().PixelHeight(), 120);
}

TEST_F(EditGeometryWindow, TheOpenWindowShowsTheViewInItsPickArea) {
  const auto middleOfTheEdge = [&] { return window.Picture5.picture().PixelAt(129, 54); };
  CopyPosition(Point(2), Vec3{400, 200, 0});
  app.view->form51.Option5.SetValue(true);
  SyncFaceCorners(app);
  RefreshViews(app);
  const int ground = middleOfTheEdge();
  PressItem("special5");
  EXPECT_NE(middleOfTheEdge(), ground);
  app.view->form51.Check7.SetValue(false);
  app.EndEvent();
  EXPECT_EQ(middleOfTheEdge(), ground);
}

}  // namespace
}  // namespace pelorium
