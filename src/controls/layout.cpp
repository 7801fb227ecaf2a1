// The words of the layout declarations.
#include "controls/layout.h"

#include <utility>

#include "controls/buttons.h"

namespace pelorium {

LayoutItem Column(std::vector<LayoutItem> items) { return {LayoutKind::Column, {}, {}, std::move(items)}; }

LayoutItem Row(std::vector<LayoutItem> items) { return {LayoutKind::Row, {}, {}, std::move(items)}; }

LayoutItem Frame(std::string title, std::vector<LayoutItem> items, std::string toolTip) {
  return {LayoutKind::Frame, std::move(title), {}, std::move(items), false, std::move(toolTip)};
}

LayoutItem Frame(FrameBox& box, std::vector<LayoutItem> items) {
  return {LayoutKind::Frame, box.caption(), {&box}, std::move(items)};
}

LayoutItem BarRow(Control& bar, std::initializer_list<Control*> boxes) {
  LayoutItem row{LayoutKind::BarRow, bar.caption(), {&bar}, {}};
  row.controls.insert(row.controls.end(), boxes);
  return row;
}

LayoutItem Flow(std::initializer_list<Control*> controls) { return {LayoutKind::Flow, {}, controls, {}}; }

LayoutItem Flow(std::vector<Control*> controls) { return {LayoutKind::Flow, {}, std::move(controls), {}}; }

LayoutItem Single(Control& control) { return {LayoutKind::Single, {}, {&control}, {}}; }

LayoutItem Pane(std::initializer_list<Control*> pictures) {
  return {LayoutKind::Pane, {}, pictures, {}, true};
}

LayoutItem Upright(Control& bar) {
  LayoutItem item = Single(bar);
  item.isUpright = true;
  return item;
}

LayoutItem Headed(Control& heading, LayoutItem row) {
  return {LayoutKind::Column, {}, {&heading}, {std::move(row)}};
}

LayoutItem Labelled(std::string label, Control& control) {
  return {LayoutKind::Single, std::move(label), {&control}, {}};
}

LayoutItem Stretching(LayoutItem item) {
  item.stretches = true;
  return item;
}

LayoutItem Scrolling(LayoutItem item) {
  item.scrolls = true;
  return item;
}

LayoutItem Compact(LayoutItem item) {
  item.isCompact = true;
  return item;
}

LayoutItem Fold(LayoutItem shown, LayoutItem folded, std::string toolTip) {
  return {LayoutKind::Fold, {}, {}, {std::move(shown), std::move(folded)}, false, std::move(toolTip)};
}

}  // namespace pelorium
