// The first exports.
#include "windows/interchange/legacy_exports.h"

#include <initializer_list>

#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

// Command8, 15 and 18 do nothing.
LegacyExports::LegacyExports(Window& owner, App& app, const TextBox& file, const CheckBox& groups)
    : owner_(owner), app_(app), file_(file), groups_(groups) {
  for (Control* hidden :
       std::initializer_list<Control*>{&Command10, &Command11, &Command12, &Command13, &Command14, &Command9,
                                       &Command15, &Command18, &Command8}) {
    hidden->SetVisible(false);
  }
  for (PushButton* button : {&Command10, &Command14}) On(*button, &LegacyExports::ExportCapped);
  On(Command11, &LegacyExports::ExportBackward);
  On(Command12, &LegacyExports::ExportPoints);
  On(Command13, &LegacyExports::ExportNothing);
  On(Command9, &LegacyExports::ExportJoined);
}

void LegacyExports::On(PushButton& button, void (LegacyExports::*run)()) {
  button.onClick = [this, &button, run](const Click&) {
    Trapped(app_.faults, button.FullName(), [&] { (this->*run)(); });
  };
}

GridExportSettings LegacyExports::ReadSettings(bool withGroups, bool withCaps) const {
  const Form5& ranges = app_.view->form5;
  GridExportSettings settings;
  settings.grid = HeldInTable(
      {ranges.HScroll1.value(), ranges.HScroll2.value(), PointRangeStart(app_), PointRangeEnd(app_)});
  settings.groupPerLayer = withGroups && groups_.value();
  if (withCaps) settings.cappedProfile = CurrentProfile(app_);
  return settings;
}

void LegacyExports::ExportCells(CellFaces faces, bool withGroups, bool withCaps) {
  const GridExportSettings settings = ReadSettings(withGroups, withCaps);
  Write([&](TextWriter& out) { WriteSeparateCells(app_.model, settings, faces, out); });
}

void LegacyExports::ExportBackward() {
  RoundProfilePoints(app_.model, 2);
  ExportCells(CellFaces::Backward, true, false);
}

void LegacyExports::ExportNothing() {
  Write([](TextWriter&) {});
}

void LegacyExports::ExportJoined() {
  RoundProfilePoints(app_.model, 3);
  const GridExportSettings settings = ReadSettings(true, false);
  Write([&](TextWriter& out) { WriteJoinedCells(app_.model, settings, out); });
}

void LegacyExports::Write(const FileWriter& write) { ExportFile(app_, file_.text(), write, OldFile::IsKept); }

}  // namespace pelorium
