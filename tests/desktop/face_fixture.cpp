// The program on the virtual display.
#include "desktop/face_fixture.h"

#include <unistd.h>

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <fstream>

namespace pelorium {

void FaceTest::SetUp() {
  const auto* info = testing::UnitTest::GetInstance()->current_test_info();
  home_ = std::filesystem::temp_directory_path() /
          ("pelorium face " + std::to_string(getpid()) + " " + info->name());
  std::filesystem::create_directories(home_);
  session_ = std::make_unique<Session>(Journal(home_ / "journal.txt"), home_);
  session_->face().Begin();
  Settle();
}

void FaceTest::TearDown() {
  session_.reset();
  Settle();
  std::filesystem::remove_all(home_);
}

void FaceTest::PassSplash() {
  QTest::mouseClick(&Shown<QWidget>("frmSplash.Picture1"), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&session_->face().frame()));
  Settle();
  // Out of the way of what hovers.
  QTest::mouseMove(&session_->face().frame(), QPoint(5, session_->face().frame().height() - 5));
  Settle();
  NewJournalLines();
}

QWidget* FaceTest::FindShown(const char* name) {
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == name && widget->isVisible()) return widget;
  }
  return nullptr;
}

std::vector<std::string> FaceTest::JournalLines() const {
  std::ifstream file(home_ / "journal.txt");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> FaceTest::NewJournalLines() {
  const std::vector<std::string> all = JournalLines();
  std::vector<std::string> fresh(all.begin() + static_cast<std::ptrdiff_t>(linesSeen_), all.end());
  linesSeen_ = all.size();
  return fresh;
}

QImage FaceTest::OnScreen(const QWidget& widget) {
  Settle();
  const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
  return QGuiApplication::primaryScreen()
      ->grabWindow(0, corner.x(), corner.y(), widget.width(), widget.height())
      .toImage()
      .convertToFormat(QImage::Format_RGB32);
}

void FaceTest::Settle() { QTest::qWait(60); }

}  // namespace pelorium
