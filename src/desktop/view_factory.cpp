// Makes the widget that shows a control.
#include "desktop/view_factory.h"

#include "desktop/bar_widget.h"
#include "desktop/button_widgets.h"
#include "desktop/combo_widget.h"
#include "desktop/label_widgets.h"
#include "desktop/list_widget.h"
#include "desktop/picture_widget.h"
#include "desktop/rich_text_widget.h"
#include "desktop/text_widget.h"

namespace pelorium {

ControlView* MakeView(Control& control, Qt::Orientation orientation, Dispatcher& dispatcher,
                      QWidget* parent) {
  switch (control.kind()) {
    case ControlKind::ScrollBar:
      return new BarWidget(static_cast<ScrollBar&>(control), orientation, dispatcher, parent);
    case ControlKind::TextBox:
      return new TextWidget(static_cast<TextBox&>(control), dispatcher, parent);
    case ControlKind::PushButton:
      return new PushButtonWidget(static_cast<PushButton&>(control), dispatcher, parent);
    case ControlKind::CheckBox:
      return new CheckBoxWidget(static_cast<CheckBox&>(control), dispatcher, parent);
    case ControlKind::OptionButton:
      return new OptionWidget(static_cast<OptionButton&>(control), dispatcher, parent);
    case ControlKind::PictureBox:
      return new PictureWidget(static_cast<PictureBox&>(control), dispatcher, parent);
    case ControlKind::ListBox:
    case ControlKind::FileList:
    case ControlKind::DirList:
      return new ListWidget(static_cast<ListBox&>(control), dispatcher, parent);
    case ControlKind::ComboBox:
      return new ComboWidget(static_cast<ComboBox&>(control), dispatcher, parent);
    case ControlKind::ProgressBar:
      return new ProgressWidget(static_cast<ProgressBar&>(control), dispatcher, parent);
    case ControlKind::Label:
    case ControlKind::Frame:
      return new LabelWidget(control, dispatcher, parent);
    case ControlKind::RichTextBox:
      return new RichTextWidget(static_cast<RichTextBox&>(control), dispatcher, parent);
    case ControlKind::MenuItem:
    case ControlKind::Shape:
      break;
  }
  return nullptr;
}

}  // namespace pelorium
