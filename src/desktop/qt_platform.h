// The machine as a desktop offers it: dialogs, clipboard, printer, browser.
#pragma once

#include <functional>

#include "platform/platform.h"

namespace pelorium {

class Journal;

class QtPlatform : public Platform {
 public:
  explicit QtPlatform(Journal& journal) : journal_(journal) {}

  // Set by the face. `runDialog` runs a dialog of the toolkit: the screen is brought up to date before it
  // opens.
  std::function<void(const std::function<void()>& dialog)> runDialog;
  std::function<void(Window&)> runModal;
  std::function<void()> arrangeWindows;

  // The next file dialog does not open: this is its answer.
  void AnswerNextDialog(std::string fileName) { waitingAnswer_ = std::move(fileName); }
  void ForgetAnswer() { waitingAnswer_.reset(); }

  std::string AskFileName(const FileDialogRequest& request) override;
  void ShowMessage(const std::string& text) override;
  void RunModal(Window& window) override;
  void ArrangeWindows() override { arrangeWindows(); }
  void SetClipboardText(const std::string& text) override;
  std::string ClipboardText() override;
  void SetClipboardPicture(const Picture& picture) override;
  std::optional<Picture> ClipboardPicture() override;
  bool HasClipboardPicture() override;
  std::filesystem::path SettingsFolder(const std::filesystem::path& programFolder) override;
  void Print(const std::string& text) override;
  void OpenInBrowser(const std::string& address) override;
  bool SetWallpaper(const std::filesystem::path& file) override;
  bool StartSystemInformation() override;
  double ClockReading() override;

 private:
  Journal& journal_;
  std::optional<std::string> waitingAnswer_;
};

}  // namespace pelorium
