// Tells what an event changed, all over the program: controls, windows, tables, files, and what the person
// was asked or told.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "controls/window.h"
#include "core/model_store.h"
#include "platform/headless_platform.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

// Notes what the machine and the person are asked for. A dialog that saves is answered with a new name in its
// folder, one that opens with the file sample.* there.
class WatchedPlatform : public HeadlessPlatform {
 public:
  std::string AskFileName(const FileDialogRequest& request) override;
  void ShowMessage(const std::string& text) override;
  void RunModal(Window& window) override;
  void SetClipboardText(const std::string& text) override;
  void SetClipboardPicture(const Picture& picture) override;
  void Print(const std::string& text) override;
  void OpenInBrowser(const std::string& address) override;
  bool StartSystemInformation() override;

  std::vector<std::string> TakeNotes() { return std::exchange(notes_, {}); }

 private:
  std::vector<std::string> notes_;
};

// Looks at one program after the other: what the tables held is kept and brought along, for they are large.
class ProgramWatch : ControlListener {
 public:
  // Everything is as it is now.
  void Follow(App& app, WatchedPlatform& platform);

  // A line for each thing that changed since the last asking; names of `home`'s controls stand alone. Numbers
  // are rounded to 4 decimals, a picture is a number that any change of its pixels or of the shapes over it
  // changes.
  std::vector<std::string> TakeChanges(const std::string& home = {});

 private:
  // What is seen of a control or a window, by name.
  struct Look;
  using Lines = std::vector<std::string>;

  void ControlChanged(Control& control) override { told_.insert(&control); }
  void WindowChanged(Window&) override {}

  void CompareControls(Lines& lines, const std::string& home);
  void CompareWindows(Lines& lines);
  void CompareTables(Lines& lines);
  void CompareRest(Lines& lines);
  void CompareFiles(Lines& lines);
  std::uint64_t PixelsOf(Control& control);

  App* app_ = nullptr;
  WatchedPlatform* platform_ = nullptr;
  std::map<const Control*, std::vector<PropertyValue>> controls_;
  std::map<const Control*, std::pair<std::uint64_t, std::uint64_t>> pixels_;  // revision and number
  std::map<std::string, PropertyValue> rest_, windows_;
  std::map<std::string, std::string> files_;
  std::set<const Control*> told_;
  ModelStore tables_;
};

// "columns and rows" of a window as lines, two blanks deeper for each level.
std::string LayoutLines(const LayoutItem& item, int depth = 0);

}  // namespace pelorium
