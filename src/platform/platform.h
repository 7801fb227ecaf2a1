// What the program asks of the machine and of the person at it. A face with a screen and one without
// implement it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "graphics/picture.h"

namespace pelorium {

class Window;

struct FileDialogRequest {
  bool save = false;
  std::string title;
  std::filesystem::path folder;   // where the dialog starts; it may not exist
  std::string filter;             // "All Files (*.prj)|*.prj": pairs of text and patterns
  std::string defaultExtension;   // "*.prj": given to a name that has none
  std::string proposedName = {};  // stands in the dialog when it opens
};

class Platform {
 public:
  virtual ~Platform() = default;

  // The chosen name as the person gave it; empty when the dialog was cancelled.
  virtual std::string AskFileName(const FileDialogRequest& request) = 0;
  virtual void ShowMessage(const std::string& text) = 0;
  // Shows a window and returns when it is closed.
  virtual void RunModal(Window& window) = 0;
  // Puts the windows where they stand at the start.
  virtual void ArrangeWindows() = 0;

  virtual void SetClipboardText(const std::string& text) = 0;
  virtual std::string ClipboardText() = 0;
  virtual void SetClipboardPicture(const Picture& picture) = 0;
  // Empty when the clipboard holds no picture.
  virtual std::optional<Picture> ClipboardPicture() = 0;
  virtual bool HasClipboardPicture() { return ClipboardPicture().has_value(); }
  // Where what a person keeps from one session to the next lies; a machine without such a place takes the
  // program's folder.
  virtual std::filesystem::path SettingsFolder(const std::filesystem::path& programFolder) = 0;
  virtual void Print(const std::string& text) = 0;
  virtual void OpenInBrowser(const std::string& address) = 0;
  // Puts a picture file behind everything on the machine's screen; false when nothing took it.
  virtual bool SetWallpaper(const std::filesystem::path& file) = 0;
  // Starts the machine's own system information tool; false when there is none.
  virtual bool StartSystemInformation() = 0;
  // Seconds of a clock, with fractions; for seeding the random series.
  virtual double ClockReading() = 0;
};

}  // namespace pelorium
