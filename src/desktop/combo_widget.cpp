// Drop-down lists on the screen: a choice is told as of every list, a typed text when it is complete.
#include "desktop/combo_widget.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include "desktop/dispatcher.h"
#include "desktop/qt_text.h"

namespace pelorium {

ComboWidget::ComboWidget(ComboBox& combo, Dispatcher& dispatcher, QWidget* parent)
    : QComboBox(parent), combo_(combo), dispatcher_(dispatcher) {
  setEditable(combo.canBeTyped());
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  connect(this, &QComboBox::activated, this, [this](int index) {
    UserEvent event = EventFor(combo_, UserAction::Drag);
    event.value = index;
    dispatcher_.Deliver(event);
  });
  if (lineEdit() != nullptr) {
    connect(lineEdit(), &QLineEdit::editingFinished, this, [this] {
      if (FromQt(currentText()) == combo_.text()) return;
      UserEvent event = EventFor(combo_, UserAction::Type);
      event.text = FromQt(currentText());
      dispatcher_.Deliver(event);
    });
  }
  Adopt(*this, combo, dispatcher);
  ComboWidget::Sync();
}

void ComboWidget::Sync() {
  const QSignalBlocker quiet(this);
  if (shown_ != combo_.items()) {
    shown_ = combo_.items();
    clear();
    for (const std::string& item : shown_) addItem(ToQt(item));
  }
  setCurrentIndex(combo_.index());
  if (isEditable()) setEditText(ToQt(combo_.text()));
  SyncCommon(*this, combo_);
}

}  // namespace pelorium
