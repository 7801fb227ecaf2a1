// A text with looks on the screen.
#include "desktop/rich_text_widget.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <utility>

#include "controls/utf8.h"
#include "desktop/qt_text.h"

namespace pelorium {

namespace {

QTextCharFormat ToQt(const TextFormat& format) {
  QTextCharFormat shown;
  shown.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
  shown.setFontItalic(format.italic);
  shown.setFontUnderline(format.underline);
  shown.setFontPointSize(format.points);
  shown.setForeground(QColor(Red(format.colour), Green(format.colour), Blue(format.colour)));
  return shown;
}

TextFormat FromQt(const QTextCharFormat& shown) {
  const QColor colour = shown.foreground().color();
  TextFormat format;
  format.bold = shown.fontWeight() >= QFont::Bold;
  format.italic = shown.fontItalic();
  format.underline = shown.fontUnderline();
  format.points = shown.fontPointSize();
  format.colour = Rgb(colour.red(), colour.green(), colour.blue());
  return format;
}

// The toolkit counts UTF-16 units, the control counts characters.
int ToCharacters(const QString& text, int units) {
  return static_cast<int>(text.left(units).toUcs4().size());
}

int ToUnits(const std::u32string& text, int characters) {
  const auto count = std::min(static_cast<std::size_t>(characters), text.size());
  return static_cast<int>(std::count_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(count),
                                        [](char32_t c) { return c > 0xFFFF; })) +
         static_cast<int>(count);
}

std::string ToUtf8(const std::u32string& text) {
  std::string bytes;
  for (const char32_t c : text) AppendUtf8(bytes, c);
  return bytes;
}

// The stretch in which two texts differ.
struct Difference {
  std::size_t start, removed, added;
};

Difference Between(const std::u32string& before, const std::u32string& after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t start = 0, tail = 0;
  while (start < shorter && before[start] == after[start]) ++start;
  while (tail < shorter - start && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  return {start, before.size() - start - tail, after.size() - start - tail};
}

}  // namespace

RichTextWidget::RichTextWidget(RichTextBox& box, Dispatcher& dispatcher, QWidget* parent)
    : QTextEdit(parent), box_(box) {
  setAcceptRichText(false);
  setUndoRedoEnabled(false);
  setTabChangesFocus(false);
  // Texts carry their own colours, which are meant for white paper.
  QPalette paper = palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  setPalette(paper);
  Adopt(*this, box, dispatcher);
  RichTextWidget::Sync();
  connect(this, &QTextEdit::textChanged, this, [this] { OnTextChanged(); });
  connect(this, &QTextEdit::selectionChanged, this, [this] { OnSelectionChanged(); });
  connect(this, &QTextEdit::cursorPositionChanged, this, [this] { OnSelectionChanged(); });
}

void RichTextWidget::Sync() {
  isSyncing_ = true;
  if (ShownParagraphs() != box_.text().Paragraphs()) ShowText();
  ShowSelection();
  setCurrentCharFormat(ToQt(box_.SelectionFormat()));
  SyncCommon(*this, box_);
  isSyncing_ = false;
}

void RichTextWidget::ShowText() {
  clear();
  QTextCursor cursor(document());
  bool isFirst = true;
  for (const TextParagraph& paragraph : box_.text().Paragraphs()) {
    if (!std::exchange(isFirst, false)) cursor.insertBlock(QTextBlockFormat());
    for (const TextRun& run : paragraph.runs) cursor.insertText(pelorium::ToQt(run.text), ToQt(run.format));
    if (paragraph.bullet) cursor.createList(QTextListFormat::ListDisc);
  }
}

// Selecting by the program would unset the look chosen for what is typed next only if the place differs.
void RichTextWidget::ShowSelection() {
  const std::u32string text = FromUtf8(box_.text().Plain());
  const int start = ToUnits(text, box_.selectionStart());
  const int end = ToUnits(text, box_.selectionStart() + box_.selectionLength());
  QTextCursor cursor = textCursor();
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  const bool wasInSight = viewport()->rect().contains(cursorRect(cursor));
  setTextCursor(cursor);
  if (!wasInSight) verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
}

void RichTextWidget::OnTextChanged() {
  if (isSyncing_) return;
  const std::u32string textBefore = FromUtf8(box_.text().Plain());
  const std::u32string after = toPlainText().toStdU32String();
  const Difference changed = Between(textBefore, after);
  if (changed.removed == 0 && changed.added == 0) return;
  box_.ReplaceRange(static_cast<int>(changed.start), static_cast<int>(changed.removed),
                    ToUtf8(after.substr(changed.start, changed.added)));
}

void RichTextWidget::OnSelectionChanged() {
  if (isSyncing_) return;
  const QTextCursor cursor = textCursor();
  const QString text = toPlainText();
  const int start = ToCharacters(text, cursor.selectionStart());
  box_.SetSelection(start, ToCharacters(text, cursor.selectionEnd()) - start);
}

std::vector<TextParagraph> RichTextWidget::ShownParagraphs() const {
  std::vector<TextParagraph> paragraphs;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    TextParagraph& paragraph = paragraphs.emplace_back();
    paragraph.bullet = block.textList() != nullptr;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const TextFormat format = FromQt(it.fragment().charFormat());
      const std::string text = pelorium::FromQt(it.fragment().text());
      if (!paragraph.runs.empty() && paragraph.runs.back().format == format) {
        paragraph.runs.back().text += text;
      } else {
        paragraph.runs.push_back({text, format});
      }
    }
  }
  return paragraphs;
}

}  // namespace pelorium
