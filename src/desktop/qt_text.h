// Texts between the program (bytes, UTF-8) and the toolkit.
#pragma once

#include <QString>
#include <string>

namespace pelorium {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

}  // namespace pelorium
