// The filters of file dialogs in the toolkit's form.
#pragma once

#include <QStringList>
#include <string>

namespace pelorium {

// "Text|*.a;*.b|More|*.c": pairs of a text and its patterns. Letters of the patterns stand for either case. A
// filter without pairs lets all files through. "All files" comes last, so that no file is out of reach.
QStringList NameFilters(const std::string& filter);

// "*.prj" and ".prj" and "prj" alike give "prj"; a pattern that names no ending gives nothing.
QString DefaultSuffix(const std::string& extension);

}  // namespace pelorium
