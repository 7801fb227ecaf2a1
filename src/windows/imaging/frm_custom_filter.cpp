// "Custom Filter".
#include "windows/imaging/frm_custom_filter.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "base/numbers.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

// Entries of "Base On:" before the stored filters.
constexpr int kNone = 0, kReset = 1, kFirstStored = 8;
const std::vector<std::string> kBases = {"<none>", "<reset>",     "Blur",    "Blur More",
                                         "Soften", "Soften More", "Sharpen", "Sharpen More"};

int WholeOf(const TextBox& box) { return ToInteger<std::int32_t>(box.Number()); }

bool HoldsNumber(const TextBox& box) { return box.text().find_first_of("0123456789") != std::string::npos; }

}  // namespace

FrmCustomFilter::FrmCustomFilter(App& app) : ToolWindow(app, "frmCustomFilter", "Custom Filter") {
  MakeCells();
  txtWeight.onKeyUp = [this] { KeepToDigits(txtWeight); };
  chkAuto.onClick = [this](const Click&) { SumUp(); };
  cboName.onClick = [this](const Click&) { LoadNamed(); };
  cboBaseOn.onClick = [this](const Click&) { BaseOn(); };
  OnFile(cmdOK, [this] { Accept(); });
  cmdCancel.onClick = [this](const Click&) { Hide(); };
  cboBaseOn.SetItems(kBases);
  SetLayout(DeclareLayout());
}

void FrmCustomFilter::MakeCells() {
  for (int cell = 0; cell < kFilterGridCells; ++cell) {
    const bool isMiddle = cell == GridIndex(0, 0);
    txtValue.push_back(std::make_unique<TextBox>(*this, "txtValue(" + std::to_string(cell) + ")",
                                                 isMiddle ? "1" : "0", "factor of the pixel at this place"));
    TextBox& box = *txtValue.back();
    box.onKeyUp = [this, &box] { KeepToDigits(box); };
    box.onChange = [this, &box] { CellChanged(box); };
    CellChanged(box);
  }
}

LayoutItem FrmCustomFilter::DeclareLayout() {
  std::vector<LayoutItem> rows;
  for (int row = 0; row < kFilterGridSide; ++row) {
    std::vector<LayoutItem> cells;
    for (int column = 0; column < kFilterGridSide; ++column) {
      cells.push_back(Single(*txtValue[static_cast<std::size_t>(row * kFilterGridSide + column)]));
    }
    rows.push_back(Compact(Row(std::move(cells))));
  }
  rows.push_back(Row({Labelled("Weight:", txtWeight), Single(chkAuto)}));
  rows.push_back(Labelled("Name:", cboName));
  rows.push_back(Labelled("Base On:", cboBaseOn));
  rows.push_back(Flow({&cmdOK, &cmdCancel}));
  return Column(std::move(rows));
}

cRegistry FrmCustomFilter::Registry() const {
  return cRegistry(app_.platform.SettingsFolder(app_.applicationPath) / "filters.txt");
}

bool FrmCustomFilter::Ask(cImageProcessDIB& process) {
  Cancelled = true;
  ListFilters();
  app_.platform.RunModal(*this);
  if (Cancelled) return false;
  process.FilterType(kCustom);
  process.FilterArraySize(ImageProcess.FilterArraySize());
  process.FilterWeight(ImageProcess.FilterWeight());
  const int half = process.FilterArraySize() / 2;
  for (int x = -half; x <= half; ++x) {
    for (int y = -half; y <= half; ++y) process.FilterValue(x, y, ImageProcess.FilterValue(x, y));
  }
  return true;
}

// A filter without a name keeps its number, and its line in the list.
void FrmCustomFilter::ListFilters() {
  cRegistry registry = Registry();
  stored_ = ReadStoredFilters(registry);
  std::vector<std::string> names, bases = kBases;
  for (const StoredFilter& filter : stored_) {
    names.push_back(filter.name);
    bases.push_back(filter.name);
  }
  cboName.ReplaceItems(std::move(names));
  cboBaseOn.ReplaceItems(std::move(bases));
}

StoredFilter FrmCustomFilter::Grid() const {
  StoredFilter grid;
  grid.name = cboName.text();
  grid.weight = WholeOf(txtWeight);
  for (std::size_t cell = 0; cell < txtValue.size(); ++cell) grid.values[cell] = WholeOf(*txtValue[cell]);
  return grid;
}

void FrmCustomFilter::ShowGrid(const StoredFilter& grid) {
  for (std::size_t cell = 0; cell < txtValue.size(); ++cell) {
    txtValue[cell]->SetText(std::to_string(grid.values[cell]));
  }
  txtWeight.SetText(std::to_string(grid.weight));
}

// Only digits and "-" can be typed.
void FrmCustomFilter::KeepToDigits(TextBox& box) {
  std::string kept = box.text();
  std::erase_if(kept, [](char c) { return c != '-' && (c < '0' || c > '9'); });
  box.SetText(kept);
}

// Cells that take part stand out from the others.
void FrmCustomFilter::CellChanged(TextBox& box) {
  box.SetGround(box.Number() != 0 ? TextBox::Ground::Field : TextBox::Ground::Button);
  SumUp();
}

void FrmCustomFilter::SumUp() {
  if (!chkAuto.value()) return;
  double sum = 0;
  for (const auto& box : txtValue) sum += HoldsNumber(*box) ? box->Number() : 0;
  txtWeight.SetText(GeneralForm(sum));
}

void FrmCustomFilter::BaseOn() {
  const int entry = cboBaseOn.index();
  if (entry <= kNone) return;
  ShowGrid(EmptyGrid());
  if (entry == kReset) return;
  ShowGrid(entry < kFirstStored ? GridOfType(entry - kReset)
                                : stored_[static_cast<std::size_t>(entry - kFirstStored)]);
}

void FrmCustomFilter::LoadNamed() {
  if (cboName.index() >= 0) ShowGrid(stored_[static_cast<std::size_t>(cboName.index())]);
}

// The chosen filter's number, that of the first one of this name, or the next new one.
int FrmCustomFilter::NumberOf(const std::string& name) const {
  if (cboName.index() >= 0) return cboName.index() + 1;
  const auto same = std::find_if(stored_.begin(), stored_.end(),
                                 [&name](const StoredFilter& filter) { return filter.name == name; });
  return static_cast<int>(same - stored_.begin()) + 1;
}

void FrmCustomFilter::Accept() {
  const StoredFilter grid = Grid();
  switch (TakeGrid(ImageProcess, grid)) {
    case GridProblem::Black:
      return app_.platform.ShowMessage(
          "This filter would always cause the output image to be black.  Please enter a value.");
    case GridProblem::TooSmall:
      return app_.platform.ShowMessage("Filters must be at least 3x3 in size.");
    case GridProblem::None:
      break;
  }
  cRegistry registry = Registry();
  SaveStoredFilter(registry, NumberOf(grid.name), grid);
  Cancelled = false;
  Hide();
}

}  // namespace pelorium
