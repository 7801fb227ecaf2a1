// Texts between the program and the toolkit.
#include "desktop/qt_text.h"

namespace pelorium {

QString ToQt(const std::string& text) { return QString::fromStdString(text); }

std::string FromQt(const QString& text) { return text.toStdString(); }

}  // namespace pelorium
