// The desktop's queue: in which order inputs that wait and events within events reach the program, and what
// the screen shows meanwhile.
#include <QLineEdit>
#include <QThread>

#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "desktop/dispatcher.h"
#include "desktop/face_fixture.h"
#include "desktop/journal.h"
#include "platform/headless_platform.h"

namespace pelorium {
namespace {

// A text that waits to be delivered.
struct Waiting : PendingInput {
  explicit Waiting(const TextBox& textBox) : box(textBox) {}
  UserEvent TakeEvent() override {
    UserEvent event = EventFor(box, UserAction::Type);
    event.text = text;
    return event;
  }
  const TextBox& box;
  std::string text;
};

// Two boxes and two buttons in a window, which tell what reaches them.
class QueueTest : public testing::Test {
 protected:
  QueueTest() {
    for (TextBox* box : {&first, &second}) {
      box->onKeyUp = [this, box] { seen.push_back(box->name() + " " + box->text()); };
    }
    outer.onClick = [this](const Click&) { seen.push_back("outer"); };
    inner.onClick = [this](const Click&) { seen.push_back("inner"); };
  }
  Lines Seen() { return std::exchange(seen, {}); }

  HeadlessPlatform platform;
  App app{platform, testing::TempDir()};
  Journal journal;
  Dispatcher queue{app, journal};
  Window& window = *app.FindWindow("frmAbout");
  TextBox first{window, "first", ""}, second{window, "second", ""};
  PushButton outer{window, "outer", ""}, inner{window, "inner", ""};
  Waiting a{first}, b{second};
  Lines seen;
};

TEST_F(QueueTest, WhatWaitsGoesFirstOldestFirstInItsNewestState) {
  a.text = "old", b.text = "b";
  queue.AddPending(a);
  queue.AddPending(b);
  a.text = "new";
  queue.AddPending(a);  // keeps its place
  queue.Press(outer, {});
  EXPECT_EQ(Seen(), (Lines{"first new", "second b", "outer"}));
  queue.Press(outer, {});
  EXPECT_EQ(Seen(), (Lines{"outer"}));
}

TEST_F(QueueTest, OneThatWaitsCanGoAloneOrBeForgotten) {
  queue.AddPending(a);
  queue.AddPending(b);
  queue.DeliverPending(b);
  EXPECT_EQ(Seen(), (Lines{"second "}));
  queue.DeliverPending(b);  // no longer waits
  queue.DropPending(a);
  queue.Press(outer, {});
  EXPECT_EQ(Seen(), (Lines{"outer"}));
}

TEST_F(QueueTest, AnEventWithinAHandlerIsPutOffUntilItIsOver) {
  int delivering = 0, delivered = 0;
  queue.onDelivering = [&] { EXPECT_EQ(delivering++, delivered); };
  queue.onDelivered = [&] { ++delivered; };
  outer.onClick = [this](const Click&) {
    seen.push_back("begins");
    queue.AddPending(a);
    queue.Press(inner, {});
    seen.push_back("ends");
  };
  queue.Press(outer, {});
  EXPECT_EQ(Seen(), (Lines{"begins", "ends", "first ", "inner"}));
  EXPECT_EQ(delivered, 3);
}

TEST_F(QueueTest, EventsGoThroughWhileALoopRunsInAHandler) {
  outer.onClick = [this](const Click&) {
    seen.push_back("begins");
    queue.RunNested([this] { queue.Press(inner, {}); });
    queue.Press(inner, {});  // the loop is over: put off again
    seen.push_back("ends");
  };
  queue.Press(outer, {});
  EXPECT_EQ(Seen(), (Lines{"begins", "inner", "ends", "inner"}));
}

TEST_F(QueueTest, AFaultLeavesTheQueueOpen) {
  outer.onClick = [](const Click&) { throw Fault(FaultKind::DivisionByZero, "here"); };
  queue.Press(outer, {});
  queue.Press(inner, {});
  EXPECT_EQ(Seen(), (Lines{"inner"}));
}

// What a person is typing stays on the screen and counts in the end, whatever the program writes there
// meanwhile.
TEST_F(FaceTest, ABoxThatIsOverwrittenWhileItsTypingWaits) {
  auto& widget = Shown<QLineEdit>("Form51.Text6");
  auto& box = Controlled<TextBox>("Form51", "Text6");
  widget.setFocus();
  widget.selectAll();
  QTest::keyClicks(&widget, "75");
  Controlled<ScrollBar>("Form51", "HScroll8").SetValue(60);
  EXPECT_EQ(box.text(), "60");
  QTest::qWait(60);
  EXPECT_EQ(widget.text().toStdString(), "75");
  QTest::qWait(500);
  EXPECT_EQ(box.text(), "75");
  EXPECT_EQ(Controlled<ScrollBar>("Form51", "HScroll8").value(), 75);
  EXPECT_EQ(NewJournalLines(), (Lines{"type Form51.Text6 75"}));
  box.SetText("90");  // nothing waits now
  Settle();
  EXPECT_EQ(widget.text().toStdString(), "90");
}

TEST_F(FaceTest, ALineOverThePictureMovesWithoutItsPixels) {
  auto& widget = Shown<QWidget>("Form36.Picture1");
  auto& box = Controlled<PictureBox>("Form36", "Picture1");
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(400, 100));
  QTest::mouseMove(&widget, QPoint(400, 300));
  const QImage down = OnScreen(widget);
  const auto revision = box.picture().Revision();
  QTest::mouseMove(&widget, QPoint(600, 100));
  const QImage across = OnScreen(widget);
  EXPECT_EQ(box.picture().Revision(), revision);
  EXPECT_NE(down.pixel(400, 225), across.pixel(400, 225));
  EXPECT_NE(down.pixel(525, 100), across.pixel(525, 100));
}

// The image behind the model is seen where the view stood while a run hides the view: at once, at the same
// size, untold to the program. After a fifth of a second the cursor tells that it takes long.
TEST_F(FaceTest, AHiddenViewShowsItsImage) {
  auto& widget = Shown<QWidget>("Form36.Picture1");
  auto& view = Controlled<PictureBox>("Form36", "Picture1");
  auto& image = Controlled<PictureBox>("Form36", "Picture2");
  const QRect place = widget.geometry();
  const QPoint spot = widget.mapToGlobal(QPoint(300, 200));
  const auto onScreen = [&spot] {
    return QGuiApplication::primaryScreen()->grabWindow(0, spot.x(), spot.y(), 1, 1).toImage().pixel(0, 0);
  };
  QRgb during = 0;
  Qt::CursorShape early = Qt::BlankCursor, late = Qt::BlankCursor;
  view.onMouseDown = [&](const MouseEvent&) {
    view.SetVisible(false);
    image.Fill(Rgb(200, 10, 20));
    during = onScreen();
    early = QGuiApplication::overrideCursor() == nullptr ? Qt::ArrowCursor : Qt::BusyCursor;
    QThread::msleep(250);
    image.NotifyChanged();
    late = QGuiApplication::overrideCursor() == nullptr ? Qt::ArrowCursor : Qt::BusyCursor;
    view.SetVisible(true);
  };
  const QRgb before = onScreen();
  NewJournalLines();
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(40, 40));
  Settle();
  EXPECT_EQ(during, qRgb(200, 10, 20));
  EXPECT_EQ(onScreen(), before);
  EXPECT_EQ(widget.geometry(), place);
  EXPECT_EQ(NewJournalLines().size(), 2U) << "the press and the letting go";
  EXPECT_EQ(early, Qt::ArrowCursor);
  EXPECT_EQ(late, Qt::BusyCursor);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace pelorium
