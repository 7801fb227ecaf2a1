// The machine, asked with the picture of the model up to date: whatever stops a handler to wait for the
// person shows the model as it is by then.
#pragma once

#include <functional>

#include "platform/platform.h"

namespace pelorium {

class SeenPlatform : public Platform {
 public:
  // `show` runs before each dialog, message and modal window.
  SeenPlatform(Platform& machine, std::function<void()> show) : machine_(machine), show_(std::move(show)) {}

  std::string AskFileName(const FileDialogRequest& request) override {
    show_();
    return machine_.AskFileName(request);
  }
  void ShowMessage(const std::string& text) override {
    show_();
    machine_.ShowMessage(text);
  }
  void RunModal(Window& window) override {
    show_();
    machine_.RunModal(window);
  }
  void ArrangeWindows() override { machine_.ArrangeWindows(); }
  void SetClipboardText(const std::string& text) override { machine_.SetClipboardText(text); }
  std::string ClipboardText() override { return machine_.ClipboardText(); }
  void SetClipboardPicture(const Picture& picture) override { machine_.SetClipboardPicture(picture); }
  std::optional<Picture> ClipboardPicture() override { return machine_.ClipboardPicture(); }
  bool HasClipboardPicture() override { return machine_.HasClipboardPicture(); }
  std::filesystem::path SettingsFolder(const std::filesystem::path& programFolder) override {
    return machine_.SettingsFolder(programFolder);
  }
  void Print(const std::string& text) override {
    show_();
    machine_.Print(text);
  }
  void OpenInBrowser(const std::string& address) override { machine_.OpenInBrowser(address); }
  bool SetWallpaper(const std::filesystem::path& file) override { return machine_.SetWallpaper(file); }
  bool StartSystemInformation() override { return machine_.StartSystemInformation(); }
  double ClockReading() override { return machine_.ClockReading(); }

 private:
  Platform& machine_;
  std::function<void()> show_;
};

}  // namespace pelorium
