// The platform with no screen: answers wait in a queue, and what would have been shown is kept for the
// asking.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/platform.h"

namespace pelorium {

class HeadlessPlatform : public Platform {
 public:
  HeadlessPlatform();

  // The answers to the next file dialogs, first come first served; an empty one is a cancel. A dialog with no
  // answer waiting is cancelled.
  void QueueAnswer(std::string fileName) { answers_.push_back(std::move(fileName)); }

  // What was shown since the last asking.
  std::vector<std::string> TakeMessages() { return std::exchange(messages_, {}); }
  std::vector<FileDialogRequest> TakeDialogs() { return std::exchange(dialogs_, {}); }

  // Plays the part of the person while a window is shown modally.
  std::function<void(Window&)> onModal;

  std::string AskFileName(const FileDialogRequest& request) override;
  void ShowMessage(const std::string& text) override { messages_.push_back(text); }
  void RunModal(Window& window) override;
  void ArrangeWindows() override {}
  void SetClipboardText(const std::string& text) override { clipboard_ = text; }
  std::string ClipboardText() override { return clipboard_; }
  void SetClipboardPicture(const Picture& picture) override;
  std::optional<Picture> ClipboardPicture() override { return clipboardPicture_; }
  std::filesystem::path SettingsFolder(const std::filesystem::path& programFolder) override {
    return programFolder;
  }
  void Print(const std::string& text) override { printed_ = text; }
  void OpenInBrowser(const std::string& address) override { visited_ = address; }
  bool SetWallpaper(const std::filesystem::path&) override { return false; }
  bool StartSystemInformation() override { return false; }
  double ClockReading() override { return clockReading_; }

  const std::string& printed() const { return printed_; }
  const std::string& visited() const { return visited_; }

 private:
  const double clockReading_;
  std::deque<std::string> answers_;
  std::vector<std::string> messages_;
  std::vector<FileDialogRequest> dialogs_;
  std::string clipboard_, printed_, visited_;
  std::optional<Picture> clipboardPicture_;
};

}  // namespace pelorium
