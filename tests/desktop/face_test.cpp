// What a person does with mouse and keyboard reaches the program, and what the program draws reaches the
// screen.
#include <QAction>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QWheelEvent>
#include <algorithm>
#include <functional>

#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/rich_text_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "desktop/face_fixture.h"
#include "desktop/mnemonics.h"

namespace pelorium {
namespace {

// How many pixels of the screen differ from the program's picture.
int DifferingPixels(const QImage& screen, const Picture& picture) {
  int differing = 0;
  for (int y = 0; y < screen.height(); ++y) {
    for (int x = 0; x < screen.width(); ++x) {
      const QRgb seen = screen.pixel(x, y);
      const auto wanted = static_cast<Colour>(picture.PixelAt(x, y));
      if (Rgb(qRed(seen), qGreen(seen), qBlue(seen)) != wanted) ++differing;
    }
  }
  return differing;
}

QRect ThumbOf(const QScrollBar& bar) {
  QStyleOptionSlider option;
  option.initFrom(&bar);
  option.subControls = QStyle::SC_All;
  option.orientation = bar.orientation();
  option.minimum = bar.minimum();
  option.maximum = bar.maximum();
  option.sliderPosition = bar.sliderPosition();
  option.sliderValue = bar.value();
  option.singleStep = bar.singleStep();
  option.pageStep = bar.pageStep();
  option.state |= QStyle::State_Horizontal;
  return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
}

TEST_F(SplashTest, AClickBringsTheFrame) {
  EXPECT_FALSE(frame().isVisible());
  QTest::mouseClick(&Shown<QWidget>("frmSplash.Picture1"), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame()));
  Settle();
  EXPECT_FALSE(IsShown("frmSplash"));
  EXPECT_TRUE(IsShown("Form51"));
  EXPECT_EQ(frame().windowTitle().toStdString(), "Pelorium v2.14");
  const QWidget& picture = Shown<QWidget>("Form36.Picture1");
  EXPECT_EQ(NewJournalLines(),
            (Lines{"press frmSplash.Picture1", "resize Form36.Picture1 " + std::to_string(picture.width()) +
                                                   " " + std::to_string(picture.height()) + " screen"}));
}

TEST_F(SplashTest, AKeyGoesOnToo) {
  QTest::keyClick(&Shown<QWidget>("frmSplash"), Qt::Key_Space);
  Settle();
  EXPECT_TRUE(frame().isVisible());
  EXPECT_TRUE(app().started);
}

TEST_F(FaceTest, TheViewFillsTheFrameAndFollowsIt) {
  auto& view = Shown<QWidget>("Form36");
  auto& box = Controlled<PictureBox>("Form36", "Picture1");
  const int widthBefore = box.measures().PixelWidth();
  const auto right = [this](QWidget& widget) { return widget.mapTo(&frame(), widget.rect().topRight()).x(); };
  EXPECT_EQ(right(view), frame().width() - 1);
  EXPECT_LT(right(Shown<QWidget>("Form51")), view.mapTo(&frame(), QPoint(0, 0)).x());
  frame().resize(frame().width() - 100, frame().height());
  Settle();
  EXPECT_EQ(box.measures().PixelWidth(), widthBefore - 100);
  EXPECT_EQ(Shown<QWidget>("Form36.Picture1").width(), widthBefore - 100);
  Shown<QToolButton>("options/close").click();
  Settle();
  EXPECT_GT(box.measures().PixelWidth(), widthBefore + 300) << "the view takes the room of the column";
}

TEST_F(FaceTest, PanelsShareAColumnFloatAndComeBack) {
  app().FindWindow("Form5")->Show();
  app().FindWindow("Form55")->Show();
  Settle();
  EXPECT_TRUE(IsShown("Form51"));
  EXPECT_TRUE(IsShown("Form55"));
  EXPECT_FALSE(IsShown("Form5")) << "one tool is in sight";
  auto& list = *frame().findChild<QWidget*>("tools")->findChild<QComboBox*>();
  EXPECT_EQ(list.count(), 2);
  list.setCurrentIndex(0);
  emit list.activated(0);
  EXPECT_TRUE(IsShown("Form5"));

  Shown<QToolButton>("tools/float").click();
  Settle();
  EXPECT_NE(Shown<QWidget>("Form5").window(), &frame());
  EXPECT_TRUE(IsShown("Form55"));
  frame().findChild<QAction*>("MDIForm1.arrangeit")->trigger();
  Settle();
  EXPECT_EQ(Shown<QWidget>("Form5").window(), &frame());
  NewJournalLines();
  frame().findChild<QAction*>("MDIForm1.closepanels")->trigger();
  Settle();
  EXPECT_FALSE(IsShown("Form5") || IsShown("Form55"));
  EXPECT_TRUE(IsShown("Form51"));
  EXPECT_EQ(NewJournalLines(), (Lines{"press MDIForm1.closepanels"}));
}

TEST_F(FaceTest, ProfilePointsAreDrawnWithTheMouse) {
  auto& widget = Shown<QWidget>("Form36.Picture1");
  for (const QPoint place : {QPoint(400, 100), QPoint(500, 200), QPoint(450, 400)}) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
  }
  EXPECT_EQ(app().model.Profile(0).count, 3);
  EXPECT_EQ(NewJournalLines(),
            (Lines{"mouse Form36.Picture1 down 400 -100 left", "mouse Form36.Picture1 up 400 -100 left",
                   "mouse Form36.Picture1 down 500 -200 left", "mouse Form36.Picture1 up 500 -200 left",
                   "mouse Form36.Picture1 down 450 -400 left", "mouse Form36.Picture1 up 450 -400 left"}));
  const QImage screen = OnScreen(widget);
  EXPECT_EQ(DifferingPixels(screen, Controlled<PictureBox>("Form36", "Picture1").picture()), 0);
  EXPECT_EQ(screen.pixel(3, 3), qRgb(64, 64, 64));
  EXPECT_GT(qGray(screen.pixel(450, 150)), 150) << "the line between the first two points";
}

// With real events on the widget: drawn, revolved, moved, seen shaded.
TEST_F(FaceTest, ADragMovesThePartAndTheScreenShowsTheSamePixels) {
  auto& widget = Shown<QWidget>("Form36.Picture1");
  auto& box = Controlled<PictureBox>("Form36", "Picture1");
  for (const QPoint place : {QPoint(360, 100), QPoint(400, 200), QPoint(360, 300)}) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
  }
  Controlled<PushButton>("revolveprof", "Command15").Press({});
  Controlled<OptionButton>("Form51", "Option5").SetValue(true);
  const double before = app().model.Points(0, 1).X;
  QTest::keyClick(&widget, Qt::Key_M);
  QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(300, 300));
  for (const int x : {310, 330, 350}) {
    QTest::mouseMove(&widget, QPoint(x, 300));
    Settle();
  }
  QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(350, 300));
  EXPECT_EQ(app().model.Points(0, 1).X, before + 1 + 2 + 2);
  EXPECT_EQ(DifferingPixels(OnScreen(widget), box.picture()), 0);

  QTest::mouseClick(&Shown<QWidget>("Form36.Command33"), Qt::LeftButton);
  Settle();
  EXPECT_EQ(DifferingPixels(OnScreen(widget), box.picture()), 0);
  EXPECT_EQ(box.picture().PixelAt(box.measures().PixelWidth() - 1, 0), 0)
      << "black outside the shaded square";
}

TEST_F(FaceTest, ButtonsKeysAndTheNewestMoveAreTold) {
  auto& widget = Shown<QWidget>("Form36.Picture1");
  QTest::mousePress(&widget, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier, QPoint(10, 20));
  QTest::mouseRelease(&widget, Qt::RightButton, Qt::NoModifier, QPoint(10, 20));
  for (int x = 100; x <= 140; x += 10) {
    const QPointF place(x, 60);
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
  }
  Settle();
  EXPECT_EQ(NewJournalLines(),
            (Lines{"mouse Form36.Picture1 down 10 -20 right shift ctrl",
                   "mouse Form36.Picture1 up 10 -20 right", "mouse Form36.Picture1 move 140 -60"}));
}

TEST_F(FaceTest, TheWheelZoomsAndTheMiddleButtonPans) {
  auto& widget = Shown<QWidget>("Form36.Picture1");
  const auto turn = [&](int eighths) {
    QWheelEvent wheel(QPointF(100, 50), widget.mapToGlobal(QPointF(100, 50)), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
  };
  turn(60);  // half a step waits for the other half
  EXPECT_EQ(NewJournalLines(), Lines{});
  turn(180);
  EXPECT_EQ(NewJournalLines(), (Lines{"wheel Form36.Picture1 2 100 -50"}));

  turn(-240);
  NewJournalLines();
  const int before = Controlled<ScrollBar>("Form36", "HScroll1").value();
  QTest::mousePress(&widget, Qt::MiddleButton, Qt::NoModifier, QPoint(100, 100));
  QMouseEvent move(QEvent::MouseMove, QPointF(130, 100), widget.mapToGlobal(QPointF(130, 100)), Qt::NoButton,
                   Qt::MiddleButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &move);
  QTest::mouseRelease(&widget, Qt::MiddleButton, Qt::NoModifier, QPoint(130, 100));
  EXPECT_EQ(NewJournalLines(), (Lines{"drag Form36.HScroll1 " + std::to_string(before + 30)}));
  EXPECT_EQ(app().model.Profile(0).count, 0) << "a pan draws nothing";
}

TEST_F(FaceTest, ABarIsDraggedByItsThumb) {
  auto& widget = Shown<QScrollBar>("Form51.HScroll8");
  auto& bar = Controlled<ScrollBar>("Form51", "HScroll8");
  const int before = bar.value();
  const QPoint thumb = ThumbOf(widget).center();
  QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, thumb);
  QTest::mouseMove(&widget, thumb + QPoint(20, 0));
  QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, thumb + QPoint(20, 0));
  Settle();
  EXPECT_GT(bar.value(), before);
  EXPECT_EQ(widget.value(), bar.value());
  EXPECT_EQ(NewJournalLines().back(), "drag Form51.HScroll8 " + std::to_string(bar.value()));
  EXPECT_EQ(Shown<QLineEdit>("Form51.Text6").text().toInt(), bar.value());
}

void TurnWheel(QWidget& widget, int notches) {
  const QPointF place(widget.rect().center());
  QWheelEvent wheel(place, widget.mapToGlobal(place), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &wheel);
  QTest::qWait(60);
}

// The window of the bar is too tall for the frame: the wheel scrolls it unless the bar was chosen first.
TEST_F(FaceTest, ABarTakesKeysAndTheWheelOnceItIsChosen) {
  auto& widget = Shown<QScrollBar>("Form51.HScroll8");
  auto& bar = Controlled<ScrollBar>("Form51", "HScroll8");
  const int before = bar.value();
  Shown<QLineEdit>("Form51.Text6").setFocus();
  TurnWheel(widget, -1);
  EXPECT_EQ(bar.value(), before);
  widget.setFocus();
  QTest::keyClick(&widget, Qt::Key_Right);
  Settle();
  EXPECT_EQ(bar.value(), before + bar.smallChange);
  QTest::keyClick(&widget, Qt::Key_PageUp);
  Settle();
  const int paged = bar.value();
  EXPECT_EQ(paged, before + bar.smallChange + bar.largeChange);
  TurnWheel(widget, 1);
  EXPECT_GT(bar.value(), paged) << "away from the person is more";
}

TEST_F(FaceTest, TypedTextIsDeliveredAtEnterAfterAPauseAndBeforeOtherEvents) {
  auto& widget = Shown<QLineEdit>("Form51.Text6");
  widget.setFocus();
  widget.selectAll();
  QTest::keyClicks(&widget, "75");
  EXPECT_EQ(Controlled<TextBox>("Form51", "Text6").text(), "50") << "typing has not paused yet";
  QTest::keyClick(&widget, Qt::Key_Return);
  EXPECT_EQ(Controlled<TextBox>("Form51", "Text6").text(), "75");
  EXPECT_EQ(Controlled<ScrollBar>("Form51", "HScroll8").value(), 75);
  EXPECT_EQ(Shown<QScrollBar>("Form51.HScroll8").value(), 75);
  QTest::keyClick(&widget, Qt::Key_Backspace);
  QTest::qWait(500);
  EXPECT_EQ(NewJournalLines(), (Lines{"type Form51.Text6 75", "type Form51.Text6 7"}));
  QTest::keyClicks(&widget, "0");
  QTest::mouseClick(&Shown<QPushButton>("Form51.Command1"), Qt::LeftButton);
  EXPECT_EQ(NewJournalLines(), (Lines{"type Form51.Text6 70", "press Form51.Command1"}));
}

TEST_F(FaceTest, TheRightButtonPressesAButtonToo) {
  const auto& picture = Controlled<PictureBox>("Form36", "Picture1").measures();
  const double before = picture.ScaleWidth();
  auto& zoom = Shown<QPushButton>("Form36.Command12");
  QTest::mouseClick(&zoom, Qt::RightButton);
  EXPECT_DOUBLE_EQ(picture.ScaleWidth(), before * 1.25);
  QTest::mouseClick(&zoom, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(NewJournalLines(), (Lines{"press Form36.Command12 right", "press Form36.Command12 shift"}));
}

TEST_F(FaceTest, AButtonMayActWhenTheMouseGoesDown) {
  app().FindWindow("Formulas3frm")->Show();
  Settle();
  auto& move = Shown<QPushButton>("Formulas3frm.Command1");
  QTest::mousePress(&move, Qt::RightButton);
  EXPECT_EQ(NewJournalLines(), (Lines{"press Formulas3frm.Command1 right"}));
  QTest::mouseRelease(&move, Qt::RightButton);
  QTest::mousePress(&move, Qt::LeftButton);
  QTest::mouseRelease(&move, Qt::LeftButton, {}, QPoint(-50, -50));
  QTest::keyClick(&move, Qt::Key_Space);
  QTest::keyClick(&move, Qt::Key_Return);
  EXPECT_EQ(NewJournalLines(), (Lines(3, "press Formulas3frm.Command1")));
}

TEST_F(FaceTest, NoticesStandInTheStatusLine) {
  auto& line = *frame().findChild<QLabel*>("notice");
  app().faults.Note("Form31.Command4", Fault(FaultKind::FileError, "gone"));
  EXPECT_EQ(line.text().toStdString(), "Form31.Command4: file error: gone");
  QTest::mouseClick(&Shown<QPushButton>("Form51.Command1"), Qt::LeftButton);
  EXPECT_TRUE(line.text().isEmpty());
  app().notices.Give("saved a.prj, 3 KB", NoticeKind::Result);
  QTest::mouseClick(&Shown<QPushButton>("Form51.Command1"), Qt::LeftButton);
  EXPECT_EQ(line.text().toStdString(), "saved a.prj, 3 KB");
}

// The dot: the model is not what was opened or saved last.
TEST_F(FaceTest, TheStatusLineTellsWhatIsWorkedOn) {
  EXPECT_EQ(Shown<QLabel>("status").text().toStdString(),
            "Part 0   Profile 0   0 points, 0 chosen   0 faces");
  for (int i = 1; i <= 3; ++i) app().model.PointMark(0, i) = i == 2 ? 0 : 1;
  app().model.Part(0).maxpoints = 3;
  Controlled<ScrollBar>("Form5", "HScroll25").SetValue(3);
  QTest::mouseClick(&Shown<QRadioButton>("Form36.Option10"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
  EXPECT_EQ(Shown<QLabel>("status").text().toStdString(),
            "Part 0   Profile 0   3 points, 2 chosen   0 faces ●");
  EXPECT_EQ(Shown<QLabel>("hint").text().toStdString(),
            "Pick Points: drag to choose, right button takes off, Shift takes all");
}

// A number that its bar cannot take gives way when the box loses the focus.
TEST_F(FaceTest, ATypedNumberOutOfRangeShowsItsLimitLater) {
  auto& widget = Shown<QLineEdit>("Form51.Text6");
  widget.setFocus();
  widget.selectAll();
  QTest::keyClicks(&widget, "5000");
  QTest::keyClick(&widget, Qt::Key_Return);
  EXPECT_EQ(widget.text().toStdString(), "5000");
  Shown<QPushButton>("Form51.Command1").setFocus();
  Settle();
  EXPECT_EQ(widget.text().toStdString(), "1000");
}

TEST_F(FaceTest, CaptionsStandToTheLetter) {
  // But for the mark of the letter.
  EXPECT_EQ(frame().menuBar()->actions().at(0)->text().remove('&').toStdString(), "Files |");
  EXPECT_EQ(frame().menuBar()->actions().at(7)->text().remove('&').toStdString(), "Image  |");
}

TEST_F(FaceTest, MenusTellWhatTheyLackAndF1OpensTheSectionOfThePanel) {
  const auto& paste = *frame().findChild<QAction*>("MDIForm1.pastepart");
  EXPECT_FALSE(paste.isEnabled());
  EXPECT_EQ(paste.toolTip().toStdString(), "what was copied replaces the current Part (nothing copied yet)");
  auto& help = Controlled<RichTextBox>("helpme", "RichTextBox1");
  help.SetOwnValue(std::string("First\nMaterials\ntext"));
  for (const char* item : {"Command1", "copypart", "mterials"}) {
    app().Deliver({item == std::string("Command1") ? "shapes" : "MDIForm1", item});
  }
  Settle();
  EXPECT_TRUE(paste.isEnabled());
  QTest::keyClick(&frame(), Qt::Key_F1);
  Settle();
  const Lines lines = NewJournalLines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "press MDIForm1.helpnow"), 1);
  EXPECT_EQ(help.selectionStart(), 6);
}

TEST(Mnemonics, AreLettersOfTheirOwnAsManyAsCanBe) {
  EXPECT_EQ(ChooseMnemonics({"Copy", "Cut it", "C", "Exit"}), (std::vector<int>{1, 4, 0, 0}));
  EXPECT_EQ(ChooseMnemonics({"ab", "b", "--"}, "A"), (std::vector<int>{-1, 0, -1}));
  EXPECT_EQ(WithMnemonic("A & b", 4), "A && &b");
}

TEST_F(FaceTest, MarksFollowTheProgram) {
  auto& profile = Shown<QRadioButton>("Form51.Option1");
  auto& front = Shown<QRadioButton>("Form51.Option2");
  ASSERT_TRUE(profile.isChecked());
  QTest::mouseClick(&front, Qt::LeftButton, Qt::NoModifier, QPoint(8, front.height() / 2));
  EXPECT_TRUE(front.isChecked());
  EXPECT_FALSE(profile.isChecked());
  // A second click changes nothing in the program, so it changes nothing on the screen.
  QTest::mouseClick(&front, Qt::LeftButton, Qt::NoModifier, QPoint(8, front.height() / 2));
  EXPECT_TRUE(front.isChecked());
}

TEST_F(FaceTest, AClosedWindowIsHiddenAndComesBackByTheMenu) {
  Shown<QToolButton>("options/close").click();
  EXPECT_FALSE(IsShown("Form51"));
  EXPECT_FALSE(app().FindWindow("Form51")->visible());
  frame().findChild<QAction*>("MDIForm1.viewit")->trigger();
  EXPECT_TRUE(IsShown("Form51"));
  EXPECT_EQ(NewJournalLines(), (Lines{"set Form51.visible 0", "press MDIForm1.viewit"}));
}

TEST_F(FaceTest, EveryWindowOfTheProgramCanBeShown) {
  for (Window* window : app().windows()) {
    if (window->name() == "frmSplash" || window->name() == "MDIForm1") continue;
    window->Show();
    Settle();
    EXPECT_TRUE(IsShown(window->name())) << window->name();
  }
}

TEST_F(FaceTest, AnswersOfFileDialogsComeBeforeTheirEvent) {
  const auto saveProject = [this](std::function<void(QFileDialog&)> answer) {
    QTimer::singleShot(300, [answer] {
      if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) answer(*dialog);
    });
    frame().findChild<QAction*>("MDIForm1.saveproj")->trigger();
  };
  saveProject([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(NewJournalLines(), (Lines{"cancel", "press MDIForm1.saveproj"}));

  const std::string target = home_ / "my vase";
  saveProject([&](QFileDialog& dialog) {
    dialog.findChild<QLineEdit*>()->setText(QString::fromStdString(target));
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  });
  EXPECT_TRUE(std::filesystem::exists(target + ".prj"));
  EXPECT_EQ(NewJournalLines(), (Lines{"answer \"" + target + ".prj\"", "press MDIForm1.saveproj"}));
}

TEST_F(FaceTest, ADroppedFileIsOpenedByItsButton) {
  const auto drop = [this](const std::string& name, const std::string& text) {
    std::ofstream(home_ / name) << text;
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QString::fromStdString((home_ / name).string()))});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&frame(), &enter);
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&frame(), &event);
    Settle();
  };
  drop("two.obj", "v 1 2 3\nv 4 5 6\nf 1 2 2\n");
  EXPECT_EQ(app().model.Part(0).maxpoints, 2);
  drop("map.uvs", "vt 1 2\n");
  EXPECT_EQ(app().model.Points(0, 1).v, 2);
  EXPECT_EQ(NewJournalLines(),
            (Lines{"answer \"" + (home_ / "two.obj").string() + "\"", "press Form14.Command25",
                   "type Form14.Text13 \"" + (home_ / "map.uvs").string() + "\"", "press Form14.Command2"}));
  drop("letter.txt", "Dear reader");
  EXPECT_EQ(NewJournalLines(), Lines{});
  EXPECT_EQ(Shown<QLabel>("notice").text().toStdString(), "letter.txt is no file that can be opened here");
}

TEST_F(FaceTest, AModalWindowRunsUntilItIsClosed) {
  Window& about = *app().FindWindow("frmAbout");
  bool modal = false;
  QTimer::singleShot(300, [&] {
    modal = QApplication::activeModalWidget() != nullptr;
    QTest::mouseClick(&Shown<QPushButton>("frmAbout.cmdOK"), Qt::LeftButton);
  });
  app().platform.RunModal(about);
  EXPECT_TRUE(modal);
  EXPECT_FALSE(IsShown("frmAbout"));
  EXPECT_EQ(NewJournalLines(), (Lines{"modal frmAbout", "press frmAbout.cmdOK", "end"}));

  QTimer::singleShot(300, [&] { QApplication::activeModalWidget()->close(); });
  app().platform.RunModal(about);
  EXPECT_EQ(NewJournalLines(), (Lines{"modal frmAbout", "set frmAbout.visible 0", "end"}));

  // The same window can stand in the frame as well.
  about.Show();
  Settle();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(IsShown("frmAbout.cmdOK"));
}

TEST_F(FaceTest, AClickOnAListChoosesAndADoubleClickActsOnce) {
  std::filesystem::create_directories(home_ / "one");
  std::filesystem::create_directories(home_ / "two");
  auto& folders = Controlled<DirList>("Form31", "Dir1");
  app().FindWindow("Form31")->Show();
  folders.SetFolder(home_);
  Settle();
  auto& list = Shown<QListWidget>("Form31.Dir1");
  ASSERT_EQ(list.count(), 3);
  const QPoint place = list.visualItemRect(list.item(1)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  EXPECT_EQ(NewJournalLines(), (Lines{"drag Form31.Dir1 1"}));
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  Settle();
  const Lines lines = NewJournalLines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "doubleclick Form31.Dir1"), 1);
}

TEST_F(FaceTest, WritingInARichTextReachesTheProgram) {
  auto& box = Controlled<RichTextBox>("helpme", "RichTextBox1");
  box.SetText(RichText("first\nsecond"));
  app().FindWindow("helpme")->Show();
  Settle();
  auto& edit = Shown<QTextEdit>("helpme.RichTextBox1");
  EXPECT_EQ(edit.toPlainText(), "first\nsecond");
  edit.moveCursor(QTextCursor::End);
  QTest::keyClicks(&edit, " one");
  EXPECT_EQ(box.text().Plain(), "first\nsecond one");
  edit.moveCursor(QTextCursor::Start);
  edit.moveCursor(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
  EXPECT_EQ(box.SelectedText(), "first");
  box.ToggleBold();
  Settle();
  EXPECT_EQ(edit.textCursor().selectedText(), "first");
  EXPECT_GE(edit.textCursor().charFormat().fontWeight(), QFont::Bold);
}

TEST_F(FaceTest, ClosingTheFrameEndsTheProgram) {
  QTimer::singleShot(50, [this] { frame().close(); });
  QTimer::singleShot(5000, [] { QApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0) << "the loop of events did not end";
  EXPECT_TRUE(app().exitRequested);
  EXPECT_EQ(NewJournalLines(), (Lines{"press MDIForm1.exiter"}));
}

}  // namespace
}  // namespace pelorium
