// The program with its face on the virtual display, past the splash window, with a journal to look at.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QPoint>
#include <QWidget>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "desktop/session.h"

namespace pelorium {

class FaceTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Clicks through the splash window and waits until the frame stands and its picture has its size.
  void PassSplash();

  // The visible widget that shows a control ("Form36.Picture1"), by the control's name.
  template <typename WidgetType>
  WidgetType& Shown(const char* name) {
    auto* widget = dynamic_cast<WidgetType*>(FindShown(name));
    if (widget == nullptr) throw std::runtime_error(std::string("not on the screen: ") + name);
    return *widget;
  }
  bool IsShown(const char* name) { return FindShown(name) != nullptr; }

  template <typename ControlType>
  ControlType& Controlled(const char* window, const char* control) {
    return dynamic_cast<ControlType&>(*session_->app().FindWindow(window)->Find(control));
  }

  App& app() { return session_->app(); }
  std::vector<std::string> JournalLines() const;
  // The lines since the last call.
  std::vector<std::string> NewJournalLines();

  // What the screen shows where the widget stands.
  static QImage OnScreen(const QWidget& widget);
  static void Settle();

  std::filesystem::path home_;
  std::unique_ptr<Session> session_;

 private:
  static QWidget* FindShown(const char* name);
  std::size_t linesSeen_ = 0;
};

}  // namespace pelorium
