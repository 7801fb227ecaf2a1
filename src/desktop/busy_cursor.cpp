// The busy cursor.
#include "desktop/busy_cursor.h"

#include <QCursor>
#include <QGuiApplication>
#include <utility>

namespace pelorium {

namespace {

constexpr std::chrono::milliseconds kPatience(200);

}  // namespace

void BusyCursor::Restart() {
  start_ = std::chrono::steady_clock::now();
  if (std::exchange(isShown_, false)) QGuiApplication::restoreOverrideCursor();
}

void BusyCursor::ShowIfLate() {
  if (isShown_ || std::chrono::steady_clock::now() - start_ < kPatience) return;
  isShown_ = true;
  QGuiApplication::setOverrideCursor(Qt::BusyCursor);
}

}  // namespace pelorium
