// The desktop program.
#include <QApplication>
#include <QFile>
#include <QTimer>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string_view>
#include <vector>

#include "desktop/appearance.h"
#include "desktop/session.h"
#include "platform/working_folder.h"

namespace {

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

// The files that a file manager or a person named.
std::vector<std::filesystem::path> GivenFiles() {
  std::vector<std::filesystem::path> files;
  for (const QString& name : QApplication::arguments().mid(1))
    files.push_back(std::filesystem::absolute(QFile::encodeName(name).toStdString()));
  return files;
}

}  // namespace

// `pelorium --make-folders DIR` makes a working folder complete and ends: it needs no display.
int main(int argc, char** argv) {
  if (argc == 3 && std::string_view(argv[1]) == "--make-folders") {
    pelorium::CompleteWorkingFolder(argv[2]);
    return 0;
  }
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
  QApplication::setQuitOnLastWindowClosed(false);
  pelorium::SetAppearance(application);
  try {
    const std::filesystem::path folder = pelorium::WorkingFolder();
    pelorium::CompleteWorkingFolder(folder);
    pelorium::Session session(pelorium::Journal::FromEnvironment(), folder);
    session.face().Begin();
    if (session.app().exitRequested) return 0;
    QTimer::singleShot(0, &application, [&session] { session.OpenGiven(GivenFiles()); });
    return QApplication::exec();
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "pelorium: %s\n", fault.what());
    return 1;
  }
}
