// Texts with looks. A letter carries its own look: notes are short, and no edit has to split or join runs.
#include "controls/rich_text.h"

#include <algorithm>
#include <cstdint>

#include "controls/utf8.h"

namespace pelorium {

namespace {

std::u32string WithPlainLineEnds(std::u32string text) {
  std::u32string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n') continue;
    plain += text[i] == U'\r' ? U'\n' : text[i];
  }
  return plain;
}

}  // namespace

RichText::RichText(std::string_view plain, const TextFormat& format) : RichText() {
  Replace(0, 0, plain, format);
}

RichText::Range RichText::Held(int start, int length) const {
  const std::int64_t first = std::clamp(start, 0, size());
  const std::int64_t last = std::clamp<std::int64_t>(std::int64_t{start} + length, first, size());
  return {static_cast<std::size_t>(first), static_cast<std::size_t>(last)};
}

std::string RichText::Plain(int start, int length) const {
  const Range range = Held(start, length);
  std::string plain;
  for (std::size_t i = range.first; i < range.last; ++i) AppendUtf8(plain, letters_[i].character);
  return plain;
}

std::vector<TextParagraph> RichText::Paragraphs() const {
  std::vector<TextParagraph> paragraphs(1);
  paragraphs[0].bullet = bullets_[0];
  for (const Letter& letter : letters_) {
    if (letter.character == U'\n') {
      const std::size_t number = paragraphs.size();
      paragraphs.push_back({{}, bullets_[number]});
      continue;
    }
    std::vector<TextRun>& runs = paragraphs.back().runs;
    if (runs.empty() || runs.back().format != letter.format) runs.push_back({{}, letter.format});
    AppendUtf8(runs.back().text, letter.character);
  }
  return paragraphs;
}

TextFormat RichText::FormatAt(int position) const {
  const std::size_t at = Held(position, 0).first;
  const bool startsParagraph = at == 0 || letters_[at - 1].character == U'\n';
  if (startsParagraph && at < letters_.size()) return letters_[at].format;
  return at > 0 ? letters_[at - 1].format : TextFormat();
}

void RichText::Append(char32_t character, const TextFormat& format) {
  letters_.push_back({character, format});
  if (character == U'\n') bullets_.push_back(false);
}

int RichText::Replace(int start, int length, std::string_view plain, const TextFormat& format) {
  const Range range = Held(start, length);
  const int paragraph = ParagraphAt(static_cast<int>(range.first));
  const int lastParagraph = ParagraphAt(static_cast<int>(range.last));
  const auto bullet = bullets_.begin() + paragraph;
  bullets_.erase(bullet + 1, bullets_.begin() + lastParagraph + 1);

  const std::u32string text = WithPlainLineEnds(FromUtf8(plain));
  const auto added = static_cast<std::size_t>(std::count(text.begin(), text.end(), U'\n'));
  bullets_.insert(bullets_.begin() + paragraph + 1, added, this->bullet(paragraph));

  std::vector<Letter> letters;
  letters.reserve(text.size());
  for (const char32_t character : text) letters.push_back({character, format});
  const auto at = letters_.begin() + static_cast<std::ptrdiff_t>(range.first);
  const auto behind = letters_.erase(at, letters_.begin() + static_cast<std::ptrdiff_t>(range.last));
  letters_.insert(behind, letters.begin(), letters.end());
  return static_cast<int>(text.size());
}

void RichText::ForRange(int start, int length, const std::function<void(TextFormat&)>& change) {
  const Range range = Held(start, length);
  for (std::size_t i = range.first; i < range.last; ++i) change(letters_[i].format);
}

bool RichText::AllOf(int start, int length, const std::function<bool(const TextFormat&)>& test) const {
  const Range range = Held(start, length);
  const auto first = letters_.begin() + static_cast<std::ptrdiff_t>(range.first);
  const auto last = letters_.begin() + static_cast<std::ptrdiff_t>(range.last);
  const auto isVisible = [](const Letter& letter) { return letter.character != U'\n'; };
  const bool anyVisible = std::any_of(first, last, isVisible);
  return first != last && std::all_of(first, last, [&](const Letter& letter) {
           return (anyVisible && !isVisible(letter)) || test(letter.format);
         });
}

int RichText::ParagraphAt(int position) const {
  const auto end = letters_.begin() + static_cast<std::ptrdiff_t>(Held(position, 0).first);
  return static_cast<int>(
      std::count_if(letters_.begin(), end, [](const Letter& letter) { return letter.character == U'\n'; }));
}

}  // namespace pelorium
