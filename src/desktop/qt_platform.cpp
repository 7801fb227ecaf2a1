// The machine as a desktop offers it.
#include "desktop/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTextDocument>
#include <QUrl>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <iterator>
#include <vector>

#include "desktop/file_filters.h"
#include "desktop/journal.h"
#include "desktop/qt_text.h"

namespace pelorium {

namespace {

constexpr std::uint32_t kColourMask = 0x00FFFFFF;

// The nearest folder above that exists: a dialog that starts nowhere shows the toolkit's own guess.
QString StartFolder(const std::filesystem::path& wanted) {
  std::error_code error;
  std::filesystem::path folder = wanted;
  while (!folder.empty() && folder != folder.root_path() && !std::filesystem::is_directory(folder, error)) {
    folder = folder.parent_path();
  }
  return QFile::decodeName(folder.c_str());
}

}  // namespace

std::string QtPlatform::AskFileName(const FileDialogRequest& request) {
  if (const auto answer = std::exchange(waitingAnswer_, std::nullopt)) {
    journal_.NoteAnswer(*answer);
    return *answer;
  }
  QFileDialog dialog(QApplication::activeWindow(), ToQt(request.title), StartFolder(request.folder));
  dialog.setNameFilters(NameFilters(request.filter));
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setDefaultSuffix(DefaultSuffix(request.defaultExtension));
  if (!request.proposedName.empty()) dialog.selectFile(ToQt(request.proposedName));
  std::string chosen;
  runDialog([&] {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
    chosen = QFile::encodeName(dialog.selectedFiles().first()).toStdString();
  });
  journal_.NoteAnswer(chosen);
  return chosen;
}

void QtPlatform::ShowMessage(const std::string& text) {
  runDialog([&] {
    QMessageBox box(QMessageBox::Information, QStringLiteral("Pelorium"), ToQt(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
  });
}

void QtPlatform::RunModal(Window& window) {
  journal_.BeginModal(window);
  runModal(window);
  journal_.EndModal();
}

void QtPlatform::SetClipboardText(const std::string& text) { QApplication::clipboard()->setText(ToQt(text)); }

std::string QtPlatform::ClipboardText() { return FromQt(QApplication::clipboard()->text()); }

void QtPlatform::SetClipboardPicture(const Picture& picture) {
  const int width = picture.PixelWidth(), height = picture.PixelHeight();
  const auto* pixels = reinterpret_cast<const uchar*>(picture.Pixels().data());
  const QImage image(pixels, width, height, width * 4, QImage::Format_RGBX8888);
  QApplication::clipboard()->setImage(image.convertToFormat(QImage::Format_RGB32));  // a copy
}

bool QtPlatform::HasClipboardPicture() { return QApplication::clipboard()->mimeData()->hasImage(); }

std::optional<Picture> QtPlatform::ClipboardPicture() {
  const QImage image = QApplication::clipboard()->image().convertToFormat(QImage::Format_RGBX8888);
  if (image.isNull()) return std::nullopt;
  Picture picture(image.width(), image.height());
  std::vector<std::uint32_t> pixels;
  for (int y = 0; y < picture.PixelHeight(); ++y) {
    const auto* row = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
    std::transform(row, row + picture.PixelWidth(), std::back_inserter(pixels),
                   [](std::uint32_t pixel) { return pixel & kColourMask; });
  }
  picture.SetPixels(pixels);
  return picture;
}

void QtPlatform::Print(const std::string& text) {
  QPrinter printer;
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  bool isWanted = false;
  runDialog([&] { isWanted = dialog.exec() == QDialog::Accepted; });
  if (!isWanted) return;
  QTextDocument document(ToQt(text));
  document.print(&printer);
}

std::filesystem::path QtPlatform::SettingsFolder(const std::filesystem::path& programFolder) {
  const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  const QString folder = base + QStringLiteral("/pelorium");
  const bool isThere = !base.isEmpty() && QDir().mkpath(folder);
  return isThere ? std::filesystem::path(QFile::encodeName(folder).toStdString()) : programFolder;
}

void QtPlatform::OpenInBrowser(const std::string& address) {
  QDesktopServices::openUrl(QUrl(ToQt(address), QUrl::TolerantMode));
}

// The desktops' own commands, in turn, until one says by its exit status that it did it.
bool QtPlatform::SetWallpaper(const std::filesystem::path& file) {
  const QString path = QFile::decodeName(file.c_str());
  const QString url = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
  const auto runs = [](const QString& program, const QStringList& arguments) {
    return QProcess::execute(program, arguments) == 0;
  };
  const auto setsGnome = [&](const char* key) {
    return runs("gsettings", {"set", "org.gnome.desktop.background", key, url});
  };
  if (setsGnome("picture-uri")) {
    setsGnome("picture-uri-dark");  // unknown to older ones
    return true;
  }
  return runs("plasma-apply-wallpaperimage", {path}) ||
         runs("xfconf-query", {"-c", "xfce4-desktop", "-p",
                               "/backdrop/screen0/monitor0/workspace0/last-image", "-s", path}) ||
         runs("feh", {"--bg-fill", path});
}

bool QtPlatform::StartSystemInformation() {
  static constexpr std::array kTools = {"hardinfo", "kinfocenter", "gnome-control-center"};
  for (const char* tool : kTools) {
    if (QProcess::startDetached(tool, {})) return true;
  }
  return false;
}

double QtPlatform::ClockReading() {
  return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

}  // namespace pelorium
