// Writing of text files. Every run states its whole look, so that no look outlives its run.
#include "controls/rich_text_format.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "controls/utf8.h"

namespace pelorium {

namespace {

using Colours = std::vector<Colour>;

// The colours in the order of their first use; black is number 0 and needs no entry.
Colours ColoursOf(const std::vector<TextParagraph>& paragraphs) {
  Colours colours = {0};
  for (const TextParagraph& paragraph : paragraphs) {
    for (const TextRun& run : paragraph.runs) {
      if (std::find(colours.begin(), colours.end(), run.format.colour) == colours.end()) {
        colours.push_back(run.format.colour);
      }
    }
  }
  return colours;
}

std::string Word(const char* name, long value) {
  std::string word = "\\";
  word += name;
  return word += std::to_string(value);
}

std::string ColourTable(const Colours& colours) {
  std::string table = "{\\colortbl ;";
  for (std::size_t i = 1; i < colours.size(); ++i) {
    table += Word("red", Red(colours[i])) + Word("green", Green(colours[i])) +
             Word("blue", Blue(colours[i])) + ";";
  }
  return table + "}\r\n";
}

std::string Look(const TextFormat& format, const Colours& colours) {
  const auto number = std::find(colours.begin(), colours.end(), format.colour) - colours.begin();
  std::string look = "\\plain\\f0" + Word("fs", std::lround(format.points * 2)) + Word("cf", number);
  if (format.bold) look += "\\b";
  if (format.italic) look += "\\i";
  if (format.underline) look += "\\ul";
  return look + " ";
}

// 16 bits at a time as a number from -32768 to 32767, "?" for readers that do not know it.
std::string Unit(char32_t unit) { return Word("u", static_cast<std::int16_t>(unit)) + "?"; }

std::string Escaped(char32_t character) {
  if (character == U'\t') return "\\tab ";
  if (character == U'\\' || character == U'{' || character == U'}')
    return {'\\', static_cast<char>(character)};
  if (character >= 0x20 && character < 0x7F) return {static_cast<char>(character)};
  if (character <= 0xFFFF) return Unit(character);
  return Unit(0xD800 + ((character - 0x10000) >> 10)) + Unit(0xDC00 + (character & 0x3FF));
}

std::string ParagraphStart(bool bullet) {
  if (!bullet) return "\\pard";
  return "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\fi-360\\li360";
}

}  // namespace

std::string RichTextFile(const RichText& text) {
  const std::vector<TextParagraph> paragraphs = text.Paragraphs();
  const Colours colours = ColoursOf(paragraphs);
  std::string bytes = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Helvetica;}{\\f1\\ftech Symbol;}}\r\n";
  bytes += ColourTable(colours);
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    if (i > 0) bytes += "\\par\r\n";
    bytes += ParagraphStart(paragraphs[i].bullet);
    for (const TextRun& run : paragraphs[i].runs) {
      bytes += Look(run.format, colours);
      for (const char32_t character : FromUtf8(run.text)) bytes += Escaped(character);
    }
  }
  return bytes + "}\r\n";
}

std::string PlainTextFile(const RichText& text) {
  std::string bytes;
  for (const char c : text.Plain()) bytes += c == '\n' ? "\r\n" : std::string(1, c);
  return bytes;
}

}  // namespace pelorium
