// How a window's controls stand: declared once beside the controls, laid out by one routine of the face.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace pelorium {

class Control;
class FrameBox;
class Window;

enum class LayoutKind {
  Column,  // items one below the other
  Row,     // items side by side
  Frame,   // a titled box around a column
  BarRow,  // a label, a scroll bar and the text box that shows its value; aligned with the bar rows around it
  Flow,    // small controls (buttons, ticks) in rows that wrap where the window ends
  Single,  // one control
  Pane,    // pictures that lie over each other in the room that is left, each at its own left and top
  Fold,    // an item with a small triangle at its end, which unfolds the second item below it
};

struct LayoutItem {
  LayoutKind kind = LayoutKind::Column;
  std::string title;               // of a Frame; the label of a BarRow or of a labelled Single
  std::vector<Control*> controls;  // of a BarRow, a Flow, a Single or a Pane; the heading of a Column
  std::vector<LayoutItem> items;   // of a Column, a Row, a Frame or a Fold
  bool stretches = false;          // takes the room that is left over
  std::string toolTip = {};        // of a Frame, or of a Fold's triangle
  bool scrolls = false;            // shows what of its height there is room for
  bool isUpright = false;          // of a bar that stands beside its picture
  bool isCompact = false;          // small buttons and boxes, close together
};

LayoutItem Column(std::vector<LayoutItem> items);
LayoutItem Row(std::vector<LayoutItem> items);
LayoutItem Frame(std::string title, std::vector<LayoutItem> items, std::string toolTip = {});
// The same around a box that can be clicked on.
LayoutItem Frame(FrameBox& box, std::vector<LayoutItem> items);
// A bar, what it is for (its caption), and none, one or several boxes or labels that show its value.
LayoutItem BarRow(Control& bar, std::initializer_list<Control*> boxes = {});
LayoutItem Flow(std::initializer_list<Control*> controls);
LayoutItem Flow(std::vector<Control*> controls);
LayoutItem Single(Control& control);
LayoutItem Pane(std::initializer_list<Control*> pictures);
// A bar from top to bottom, beside the picture that it moves.
LayoutItem Upright(Control& bar);
// A label whose words stand above the controls of a row.
LayoutItem Headed(Control& heading, LayoutItem row);
// A control with a text before it, aligned like a bar row.
LayoutItem Labelled(std::string label, Control& control);
LayoutItem Stretching(LayoutItem item);
// As wide as it likes to be; beside something that takes the height there is.
LayoutItem Scrolling(LayoutItem item);
LayoutItem Compact(LayoutItem item);
LayoutItem Fold(LayoutItem shown, LayoutItem folded, std::string toolTip);

}  // namespace pelorium
