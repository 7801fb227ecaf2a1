// The desktop program.
#include <QApplication>
#include <QFile>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "desktop/appearance.h"
#include "desktop/session.h"

namespace {

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

// $PELORIUM_HOME, else the folder of the executable.
std::filesystem::path ApplicationPath() {
  if (IsSet("PELORIUM_HOME")) return std::getenv("PELORIUM_HOME");
  return QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  if (!IsSet("DISPLAY") && !IsSet("WAYLAND_DISPLAY") && !IsSet("QT_QPA_PLATFORM")) {
    std::fputs(
        "pelorium: no display to show windows on (DISPLAY and WAYLAND_DISPLAY are empty); "
        "pelorium-script runs without one\n",
        stderr);
    return 1;
  }
  // Whole factors only: every pixel of a picture is then a square of screen pixels.
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Round);
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("pelorium");
  QApplication::setApplicationDisplayName("Pelorium");
  QApplication::setQuitOnLastWindowClosed(false);
  pelorium::SetAppearance(application);
  try {
    pelorium::Session session(pelorium::Journal::FromEnvironment(), ApplicationPath());
    session.face().Begin();
    if (session.app().exitRequested) return 0;
    return QApplication::exec();
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "pelorium: %s\n", fault.what());
    return 1;
  }
}
