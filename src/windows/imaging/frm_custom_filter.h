// "Custom Filter": a kernel of up to 7 by 7 cells, written by the person and kept under a name.
#pragma once

#include <memory>
#include <vector>

#include "controls/buttons.h"
#include "controls/combo_box.h"
#include "controls/text_box.h"
#include "imaging/filter_grid.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class FrmCustomFilter : public ToolWindow {
 public:
  explicit FrmCustomFilter(App& app);

  // Runs the window; the processor gets the kernel. False, and the processor as it was, when it was
  // cancelled.
  bool Ask(cImageProcessDIB& process);

  std::vector<std::unique_ptr<TextBox>> txtValue;  // row by row; the middle is number 24
  TextBox txtWeight{*this, "txtWeight", "1", "the sums are divided by it"};
  CheckBox chkAuto{*this, "chkAuto", "Auto-&calc", false, "the weight is the sum of the cells"};
  ComboBox cboName{*this, "cboName", "New Filter", ComboBox::Typing::Allowed,
                   "the name that the filter is kept under; a name that is there loads its filter"};
  ComboBox cboBaseOn{*this, "cboBaseOn", "", ComboBox::Typing::OnlyEntries, "fills the cells"};
  PushButton cmdOK{*this, "cmdOK", "OK", "keeps the filter and runs it"};
  PushButton cmdCancel{*this, "cmdCancel", "Cancel", "leaves the picture as it is"};

 private:
  cRegistry Registry() const;
  void MakeCells();
  LayoutItem DeclareLayout();
  void ListFilters();
  StoredFilter Grid() const;
  void ShowGrid(const StoredFilter& grid);
  void KeepToDigits(TextBox& box);
  void CellChanged(TextBox& box);
  void SumUp();
  void BaseOn();
  void LoadNamed();
  int NumberOf(const std::string& name) const;
  void Accept();

  std::vector<StoredFilter> stored_;
  cImageProcessDIB ImageProcess;
  bool Cancelled = true;
};

}  // namespace pelorium
