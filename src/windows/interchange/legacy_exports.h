// The first exports, of the profiles as a grid: hidden buttons that scripts press, the same in two windows.
#pragma once

#include "base/files.h"
#include "controls/buttons.h"
#include "controls/text_box.h"
#include "interchange/legacy_obj_export.h"

namespace pelorium {

class App;

class LegacyExports {
 public:
  // The buttons are those of `owner`; they write the file named in `file`, with groups when `groups` is
  // ticked.
  LegacyExports(Window& owner, App& app, const TextBox& file, const CheckBox& groups);

 private:
  static constexpr const char* kNothingTip = "does nothing";

  Window& owner_;
  App& app_;
  const TextBox& file_;
  const CheckBox& groups_;

 public:
  PushButton Command10{owner_, "Command10", "Export obj  (.obj)",
                       "exports as obj file format ( faces not joined)"};
  PushButton Command11{owner_, "Command11", "save ",
                       "the cells of the profiles, which are rounded to 2 decimals"};
  PushButton Command12{owner_, "Command12", "save obj only",
                       "saves as obj as vertices first, then face succession "};
  PushButton Command13{owner_, "Command13", "save stored", "an empty file"};
  PushButton Command14{owner_, "Command14", "Export stored+obj",
                       "saves as obj stored and obj into one file for export"};
  PushButton Command9{owner_, "Command9", "save -seamless quads", "saves as seemless obj (faces are welded)"};
  PushButton Command15{owner_, "Command15", "save deconstruct", kNothingTip};
  PushButton Command18{owner_, "Command18", "        save          ( sep faces) ", kNothingTip};
  PushButton Command8{owner_, "Command8", "cac normals", kNothingTip};

 private:
  void On(PushButton& button, void (LegacyExports::*run)());
  GridExportSettings ReadSettings(bool withGroups, bool withCaps) const;
  void ExportCells(CellFaces faces, bool withGroups, bool withCaps);
  void ExportCapped() { ExportCells(CellFaces::Forward, true, true); }
  void ExportBackward();
  void ExportPoints() { ExportCells(CellFaces::None, false, false); }
  void ExportNothing();
  void Write(const FileWriter& write);
  void ExportJoined();
};

}  // namespace pelorium
