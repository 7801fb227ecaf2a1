// How the desk is arranged: where the view opens, what folds, what lines up, files given at the start, and
// screens that change under a person's hands.
#include <QGuiApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "desktop/face_fixture.h"

namespace pelorium {
namespace {

// "318 -238"
std::string Pans(const Window& view) {
  const auto value = [&view](const char* bar) {
    return std::to_string(dynamic_cast<ScrollBar&>(*view.Find(bar)).value());
  };
  return value("HScroll1") + " " + value("VScroll1");
}

TEST_F(FaceTest, TheOriginOpensInTheMiddleUntilTheViewIsUsed) {
  const Window& view = *app().FindWindow("Form36");
  const auto& box = Controlled<PictureBox>("Form36", "Picture1").measures();
  const auto middle = [&] {
    return std::to_string(box.PixelWidth() / 2) + " " + std::to_string(-(box.PixelHeight() / 2));
  };
  EXPECT_EQ(Pans(view), middle());
  frame().resize(frame().width() - 100, frame().height() - 60);
  Settle();
  EXPECT_EQ(Pans(view), middle());
  EXPECT_EQ(NewJournalLines(), Lines{"resize Form36.Picture1 " + std::to_string(box.PixelWidth()) + " " +
                                     std::to_string(box.PixelHeight()) + " screen"});
  QTest::mouseClick(&Shown<QWidget>("Form36.Picture1"), Qt::LeftButton);
  const std::string used = Pans(view);
  frame().resize(frame().width() + 50, frame().height());
  Settle();
  EXPECT_EQ(Pans(view), used);
  QTest::mouseClick(&Shown<QPushButton>("Form36.Home"), Qt::LeftButton);
  EXPECT_EQ(Pans(view), middle());
}

TEST_F(FaceTest, TheBarsOfTheBackgroundUnfold) {
  EXPECT_FALSE(IsShown("Form36.HScroll2"));
  const int before = Shown<QWidget>("Form36.Picture1").height();
  Shown<QToolButton>("fold").click();
  Settle();
  EXPECT_TRUE(IsShown("Form36.HScroll2") && IsShown("Form36.Text1"));
  EXPECT_LT(Shown<QWidget>("Form36.Picture1").height(), before);
  Shown<QToolButton>("fold").click();
  EXPECT_FALSE(IsShown("Form36.HScroll2"));
}

// Of all frames of a window, and no panel is wider than its column.
TEST_F(FaceTest, BarsStandBelowOneAnotherAndPanelsFit) {
  const auto placeOf = [this](const char* name) {
    const auto& bar = Shown<QScrollBar>(name);
    return std::pair(bar.mapTo(&frame(), QPoint(0, 0)).x(), bar.width());
  };
  EXPECT_EQ(placeOf("Form51.HScroll4"), placeOf("Form51.HScroll7"));
  EXPECT_EQ(placeOf("Form51.HScroll4"), placeOf("Form51.HScroll8"));
  for (Window* window : app().windows()) {
    if (window->role() != WindowRole::Tool) continue;
    window->Show();
    Settle();
    EXPECT_EQ(Shown<QScrollArea>(window->name()).horizontalScrollBar()->maximum(), 0) << window->name();
    window->Hide();
  }
}

TEST_F(FaceTest, APanelOnAScreenThatGoesAwayComesBackIntoSight) {
  app().FindWindow("Form5")->Show();
  Settle();
  Shown<QToolButton>("tools/float").click();
  Settle();
  QWidget& panel = *Shown<QWidget>("Form5").window();
  panel.move(9000, 9000);
  Settle();
  emit qGuiApp->screenRemoved(nullptr);
  Settle();
  EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(panel.geometry()));
  EXPECT_TRUE(IsShown("Form5.HScroll20"));
}

TEST_F(FaceTest, TheFrameShrinksInTheMiddleOfADrag) {
  auto& view = Shown<QWidget>("Form36.Picture1");
  QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(300, 200));
  QTest::mouseMove(&view, QPoint(320, 210));
  frame().resize(1, 1);
  Settle();
  QTest::mouseMove(&view, QPoint(20, 10));
  QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(900, 700));
  Settle();
  EXPECT_EQ(frame().size(), frame().minimumSizeHint().expandedTo(frame().size()));
  EXPECT_TRUE(Controlled<PictureBox>("Form36", "Picture1").heldButton == MouseButton::None);
  EXPECT_EQ(NewJournalLines().back().substr(0, 24), "mouse Form36.Picture1 up");
}

TEST_F(SplashTest, FilesOfTheCommandLineAreOpened) {
  std::ofstream(home_ / "two.obj") << "v 1 2 3\nv 4 5 6\nf 1 2 2\n";
  session_->OpenGiven({home_ / "two.obj"});
  Settle();
  EXPECT_TRUE(frame().isVisible());
  EXPECT_EQ(app().model.Part(0).maxpoints, 2);
  Lines lines = NewJournalLines();
  std::erase_if(lines, [](const std::string& line) { return line.starts_with("resize"); });
  EXPECT_EQ(lines, (Lines{"press frmSplash.Picture1", "answer \"" + (home_ / "two.obj").string() + "\"",
                          "press Form14.Command25"}));
}

}  // namespace
}  // namespace pelorium
