// A text whose characters have a look and whose paragraphs may have a bullet before them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"

namespace pelorium {

struct TextFormat {
  bool bold = false, italic = false, underline = false;
  double points = 12;  // size, in steps of a half
  Colour colour = 0;
  bool operator==(const TextFormat&) const = default;
};

constexpr double kSmallestText = 1, kLargestText = 1600;  // points

// Neighbouring characters of one look.
struct TextRun {
  std::string text;  // UTF-8
  TextFormat format;
  bool operator==(const TextRun&) const = default;
};

struct TextParagraph {
  std::vector<TextRun> runs;
  bool bullet = false;
  bool operator==(const TextParagraph&) const = default;
};

// Positions and lengths count characters (code points) from 0; the end of a paragraph is one character, '\n'.
// A range is held inside the text. There is always a paragraph, if an empty one. Two texts are equal when
// they look the same.
class RichText {
 public:
  RichText() : bullets_(1) {}
  // CR LF and CR count as '\n'.
  explicit RichText(std::string_view plain, const TextFormat& format = {});

  int size() const { return static_cast<int>(letters_.size()); }
  std::string Plain() const { return Plain(0, size()); }
  std::string Plain(int start, int length) const;
  std::vector<TextParagraph> Paragraphs() const;

  // The look of the character before a position (behind it at the start of a paragraph): how text typed there
  // looks.
  TextFormat FormatAt(int position) const;

  void Append(char32_t character, const TextFormat& format);
  // New paragraphs take the bullet of the one they stand in. Returns how many characters were put in.
  int Replace(int start, int length, std::string_view plain, const TextFormat& format);

  void ForRange(int start, int length, const std::function<void(TextFormat&)>& change);
  // Whether every visible character of the range (every one, if none is visible) meets the test; false for no
  // range.
  bool AllOf(int start, int length, const std::function<bool(const TextFormat&)>& test) const;

  int paragraphs() const { return static_cast<int>(bullets_.size()); }
  // Paragraphs from 0; the number of the paragraph that a position lies in.
  int ParagraphAt(int position) const;
  bool bullet(int paragraph) const { return bullets_[static_cast<std::size_t>(paragraph)]; }
  void SetBullet(int paragraph, bool bullet) { bullets_[static_cast<std::size_t>(paragraph)] = bullet; }

  bool operator==(const RichText& other) const { return Paragraphs() == other.Paragraphs(); }

 private:
  struct Letter {
    char32_t character;
    TextFormat format;
  };
  struct Range {
    std::size_t first, last;  // last is one past the end
  };
  Range Held(int start, int length) const;

  std::vector<Letter> letters_;
  std::vector<bool> bullets_;  // one a paragraph: one more than there are '\n'
};

}  // namespace pelorium
