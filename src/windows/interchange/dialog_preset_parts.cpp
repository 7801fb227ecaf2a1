// "Preset Parts".
#include "windows/interchange/dialog_preset_parts.h"

#include "base/files.h"
#include "interchange/preset_list.h"
#include "windows/interchange/import_obj.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr const char* kFolder = "parts0";
constexpr const char* kListFile = "presetlist.txt";

}  // namespace

Dialog::Dialog(App& app) : ToolWindow(app, "Dialog", "Preset Parts") {
  HScroll1.onChange = [this] { app_.view->form51.HScroll4.SetValue(HScroll1.value()); };
  OnFile(List1, [this] { List1_Click(); });
  OKButton.onClick = [this](const Click&) { Hide(); };
  SetLayout(Column({Stretching(Single(List1)), BarRow(HScroll1), Flow({&OKButton})}));
}

void Dialog::Load() {
  const std::filesystem::path list = app_.applicationPath / kFolder / kListFile;
  std::error_code ignored;
  if (!std::filesystem::exists(list, ignored)) return;
  Trapped(app_.faults, "Dialog.Load", [&] {
    FileSource file(list);
    List1.SetItems(ReadPresetList(file));
  });
}

void Dialog::PartChosen() { HScroll1.SetValue(CurrentPart(app_)); }

void Dialog::List1_Click() {
  if (List1.index() < 0) return;
  app_.view->form51.HScroll4.SetValue(HScroll1.value());
  std::filesystem::path file = app_.applicationPath / kFolder / "";
  file += List1.chosen() + ".obj";
  ImportObjPart(app_, file, 1);
  const int part = CurrentPart(app_);
  for (FaceRec& face : FaceRange(app_.model, part, 1, app_.model.Part(part).maxfaces)) face.group = 0;
  RefreshViews(app_);
}

}  // namespace pelorium
