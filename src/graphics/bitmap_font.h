// A small font of pixels: printable ASCII in two sizes, the same on every machine.
#pragma once

#include <string_view>
#include <vector>

namespace pelorium {

enum class TextSize { Small, Large };

// What every letter takes, the gap behind it and below it included; in pixels. Letters stand on the seventh
// row of a small line, the fourteenth of a large one.
struct LetterCell {
  int width, height;
};
constexpr LetterCell CellOf(TextSize size) {
  return size == TextSize::Small ? LetterCell{6, 10} : LetterCell{12, 20};
}

// Letters of a text in UTF-8. What is not printable ASCII counts as one letter, shown as a box.
int LetterCount(std::string_view text);
// Pixels that the text takes on its line.
inline int TextWidth(std::string_view text, TextSize size) { return LetterCount(text) * CellOf(size).width; }

// Neighbouring inked pixels of one row, from the letter's top left corner.
struct InkRun {
  int row, left, count;
};
const std::vector<InkRun>& InkOf(char letter, TextSize size);

// True for the bytes of a character behind its first one.
constexpr bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

}  // namespace pelorium
