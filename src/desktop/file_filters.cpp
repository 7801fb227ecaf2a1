// The filters of file dialogs in the toolkit's form.
#include "desktop/file_filters.h"

#include "desktop/qt_text.h"

namespace pelorium {

namespace {

const QString kAllFiles = QStringLiteral("All files (*)");

// What stands in brackets in the text is left out: the toolkit takes patterns from there.
QString TextOf(const QString& text) { return text.section('(', 0, 0).trimmed(); }

}  // namespace

QStringList NameFilters(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(';', Qt::SkipEmptyParts)) patterns << pattern.trimmed();
    if (!patterns.isEmpty()) filters << TextOf(parts[i]) + " (" + patterns.join(' ') + ")";
  }
  filters << kAllFiles;
  filters.removeDuplicates();
  return filters;
}

QString DefaultSuffix(const std::string& extension) {
  const QString suffix = ToQt(extension).section(';', 0, 0).section('.', -1);
  return suffix.contains('*') ? QString() : suffix.trimmed();
}

}  // namespace pelorium
