// The program with its face on the virtual display, with a journal to look at.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "desktop/session.h"

namespace pelorium {

using Lines = std::vector<std::string>;

// With the splash window in front.
class SplashTest : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::create_directories(home_);
    session_ = std::make_unique<Session>(Journal(home_ / "journal.txt"), home_);
    session_->face().Begin();
    Settle();
  }
  void TearDown() override {
    session_.reset();
    Settle();
    std::filesystem::remove_all(home_);
  }

  App& app() { return session_->app(); }
  QMainWindow& frame() { return session_->face().frame(); }

  // The visible widget that shows a window or a control ("Form36.Picture1").
  template <typename WidgetType>
  WidgetType& Shown(const std::string& name) {
    auto* widget = dynamic_cast<WidgetType*>(FindShown(name));
    if (widget == nullptr) throw std::runtime_error("not on the screen: " + name);
    return *widget;
  }
  bool IsShown(const std::string& name) { return FindShown(name) != nullptr; }

  template <typename ControlType>
  ControlType& Controlled(const char* window, const char* control) {
    return dynamic_cast<ControlType&>(*app().FindWindow(window)->Find(control));
  }

  // The lines since the last call.
  Lines NewJournalLines() {
    std::ifstream file(home_ / "journal.txt");
    file.seekg(journalSeen_);
    Lines lines;
    for (std::string line; std::getline(file, line);) {
      journalSeen_ += static_cast<std::streamoff>(line.size() + 1);
      lines.push_back(line);
    }
    return lines;
  }

  // What the screen shows where the widget stands.
  static QImage OnScreen(const QWidget& widget) {
    Settle();
    const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
    const QPixmap seen = QGuiApplication::primaryScreen()->grabWindow(0, corner.x(), corner.y(),
                                                                      widget.width(), widget.height());
    return seen.toImage().convertToFormat(QImage::Format_RGB32);
  }
  static void Settle() { QTest::qWait(60); }

  const std::filesystem::path home_ =
      testing::TempDir() + "pelorium face " + std::to_string(QCoreApplication::applicationPid());
  std::unique_ptr<Session> session_;

 private:
  static QWidget* FindShown(const std::string& name) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() == QString::fromStdString(name) && widget->isVisible()) return widget;
    }
    return nullptr;
  }

  std::streamoff journalSeen_ = 0;
};

// Past the splash window: the frame stands and its picture has its size.
class FaceTest : public SplashTest {
 protected:
  void SetUp() override {
    SplashTest::SetUp();
    QTest::mouseClick(&Shown<QWidget>("frmSplash.Picture1"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
    Settle();
    QTest::mouseMove(&frame(), QPoint(5, frame().height() - 5));  // out of the way of what hovers
    Settle();
    NewJournalLines();
  }
};

}  // namespace pelorium
