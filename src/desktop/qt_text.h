// Texts between the program (bytes, UTF-8) and the toolkit.
#pragma once

#include <QString>
#include <string>

namespace pelorium {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

// A caption as a person reads it: without the blanks around it and the bar that sets menu heads apart.
QString CaptionToShow(const std::string& caption);

}  // namespace pelorium
