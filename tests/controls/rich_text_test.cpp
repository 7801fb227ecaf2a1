// Texts with looks, the box that edits them and the files that hold them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/rich_text_box.h"
#include "controls/rich_text_format.h"
#include "controls/utf8.h"
#include "controls/window.h"

namespace pelorium {
namespace {

using Runs = std::vector<TextRun>;

constexpr TextFormat kPlain{};
constexpr TextFormat kBold{.bold = true};

class RichTextBoxes : public testing::Test {
 protected:
  // Another text, and what is selected in it.
  void Write(const std::string& text, int start, int length) {
    box.SetOwnValue(text);
    box.SetSelection(start, length);
  }
  Runs RunsOf(std::size_t paragraph) const { return box.text().Paragraphs().at(paragraph).runs; }
  // One sign for each paragraph: '*' with a bullet, '-' without.
  std::string Bullets() const {
    std::string signs;
    for (int i = 0; i < box.text().paragraphs(); ++i) signs += box.text().bullet(i) ? '*' : '-';
    return signs;
  }

  ControlHost host;
  Window window{host, "w", "a window"};
  RichTextBox box{window, "box"};
};

TEST(Utf8, CharactersComeBack) {
  for (const char32_t character :
       {U'\0', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x10FFFF'}) {
    std::string bytes;
    AppendUtf8(bytes, character);
    EXPECT_EQ(FromUtf8(bytes), std::u32string(1, character));
  }
}

TEST(Utf8, WhatIsNoCharacterIsTakenByteByByte) {
  EXPECT_EQ(FromUtf8("\xE4x"), U"\xE4x");                        // Latin-1
  EXPECT_EQ(FromUtf8("\xE2\x82"), U"\xE2\x82");                  // cut
  EXPECT_EQ(FromUtf8("\xC0\x80"), U"\xC0\x80");                  // longer than needed
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), U"\xED\xA0\x80");          // a surrogate
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), U"\xF4\x90\x80\x80");  // past the last character
}

TEST_F(RichTextBoxes, TheSelectionCountsCharactersAndStaysInTheText) {
  Write("\xC3\xA4\xE2\x82\xAC+c", 1, 2);
  EXPECT_EQ(box.SelectedText(), "\xE2\x82\xAC+");
  box.SetSelection(3, 100);
  EXPECT_EQ(box.SelectedText(), "c");
  box.SetSelection(-5, -5);
  EXPECT_EQ(box.selectionStart(), 0);
  EXPECT_EQ(box.selectionLength(), 0);
  box.SetSelection(2147483647, 2147483647);
  EXPECT_EQ(box.selectionStart(), 4);
}

TEST_F(RichTextBoxes, BoldGoesOnAllUnlessAllIsBold) {
  Write("abcd\ne", 1, 2);
  box.ToggleBold();
  EXPECT_EQ(RunsOf(0), (Runs{{"a", kPlain}, {"bc", kBold}, {"d", kPlain}}));
  box.SetSelection(0, 6);
  box.ToggleBold();
  EXPECT_EQ(RunsOf(0), (Runs{{"abcd", kBold}}));
  EXPECT_EQ(RunsOf(1), (Runs{{"e", kBold}}));
  box.ToggleBold();  // the end of the line between them does not count
  EXPECT_EQ(RunsOf(0), (Runs{{"abcd", kPlain}}));
}

TEST_F(RichTextBoxes, SizesAreHalfPointsWithinLimits) {
  Write("ab", 0, 1);
  box.SetSize(13.3);
  EXPECT_EQ(RunsOf(0), (Runs{{"a", {.points = 13.5}}, {"b", kPlain}}));
  box.SetSize(0);
  EXPECT_EQ(box.SelectionFormat().points, kSmallestText);
  box.SetSize(1e9);
  EXPECT_EQ(box.SelectionFormat().points, kLargestText);
}

TEST_F(RichTextBoxes, WithNothingSelectedALookHoldsForWhatIsTyped) {
  Write("ad", 1, 0);
  box.ToggleBold();
  box.ReplaceRange(1, 0, "b");
  box.ReplaceRange(2, 0, "c");
  EXPECT_EQ(RunsOf(0), (Runs{{"a", kPlain}, {"bc", kBold}, {"d", kPlain}}));
  box.ToggleItalic();
  box.SetSelection(0, 0);  // the cursor went elsewhere
  box.ReplaceRange(0, 0, "x");
  EXPECT_EQ(RunsOf(0)[0], (TextRun{"xa", kPlain}));
}

TEST_F(RichTextBoxes, BulletsStandOnAllTouchedParagraphs) {
  Write("a\r\nb\rc", 3, 0);  // at the end of a line
  box.ToggleBullet();
  EXPECT_EQ(Bullets(), "-*-");
  box.SetSelection(0, 3);
  box.ToggleBullet();
  EXPECT_EQ(Bullets(), "**-");
  box.SetSelection(0, 4);  // ends with the end of the second line
  box.ToggleBullet();
  EXPECT_EQ(Bullets(), "---");
}

TEST_F(RichTextBoxes, ReplacedTextKeepsBulletsAndLooks) {
  Write("a\nb\nc", 2, 1);
  box.ToggleBullet();
  box.ToggleBold();
  box.ReplaceSelection("xyz");
  EXPECT_EQ(RunsOf(1), (Runs{{"xyz", kBold}}));
  EXPECT_EQ(box.selectionStart(), 5);
  box.ReplaceRange(5, 0, "\nbb");  // a new line in the bulleted paragraph
  EXPECT_EQ(box.text().Plain(), "a\nxyz\nbb\nc");
  EXPECT_EQ(Bullets(), "-**-");
  box.ReplaceRange(1, 6, "");  // the lines join the first, which has none
  EXPECT_EQ(box.text().Plain(), "ab\nc");
  EXPECT_EQ(Bullets(), "--");
}

TEST(RichTextFiles, LooksAndGroups) {
  const auto runs = [](std::string_view bytes) { return ReadTextFile(bytes).Paragraphs()[0].runs; };
  EXPECT_EQ(runs("{\\rtf1 a{\\b b\\b0 c}{\\i\\ul d\\ulnone e}\\fs25 f\\plain g}"),
            (Runs{{"a", kPlain},
                  {"b", kBold},
                  {"c", kPlain},
                  {"d", {.italic = true, .underline = true}},
                  {"e", {.italic = true}},
                  {"f", {.points = 12.5}},
                  {"g", kPlain}}));
  EXPECT_EQ(
      runs("{\\rtf1{\\colortbl ;\\red255\\green1\\blue2;\\red999\\blue-4;}\\cf1 a\\cf2 b\\cf0 c\\cf9 d}"),
      (Runs{{"a", {.colour = Rgb(255, 1, 2)}}, {"b", {.colour = Rgb(255, 0, 0)}}, {"cd", kPlain}}));
}

TEST(RichTextFiles, TextsAreRead) {
  const std::string deep(100000, '{'), closed(100000, '}');
  const std::pair<std::string, const char*> cases[] = {
      {"v 1 2 3\r\nf {1}\r\n", "v 1 2 3\nf {1}\n"},
      {"\xEF\xBB\xBF{rtf}", "{rtf}"},
      {"", ""},
      {"{\\rtf1 \\{\\}\\\\\\'e4\\'80\\tab x\\~y\\endash\\\nz\r\nw}",
       "{}\\\xC3\xA4\xE2\x82\xAC\tx\xC2\xA0y\xE2\x80\x93\nzw"},
      {"{\\rtf1 \\u8364?+\\uc2\\u228\\'e4?-\\uc0\\u-4064 c}", "\xE2\x82\xAC+\xC3\xA4-\xEF\x80\xA0\x63"},
      {"{\\rtf1 \\u-10179?\\u-8704?x\\u-8704?}", "\xF0\x9F\x98\x80x\xEF\xBF\xBD"},
      {"{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\*\\generator x{y};}{\\info{\\title t}}"
       "\\viewkind4\\lang1033 a{\\pict\\bin4 }}}}b}c}tail",
       "ac"},
      {"{\\rtf1 a" + deep + "hidden" + closed + "b}", "ab"},
      {"{\\rtf1 a" + std::string(150, '{') + "b" + std::string(150, '}') + "c}", "abc"},
      {"{\\rtf1 a" + closed + "b", "a"},
  };
  for (const auto& [bytes, text] : cases) EXPECT_EQ(ReadTextFile(bytes).Plain(), text);
}

TEST(RichTextFiles, Bullets) {
  const RichText text = ReadTextFile(
      "{\\rtf1 head\\par{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'B7}}one\\par\\bullet\\tab "
      "two\\par (\\bullet)}");
  EXPECT_EQ(text.Plain(), "head\none\ntwo\n(\xE2\x80\xA2)");
  EXPECT_FALSE(text.bullet(0));
  EXPECT_TRUE(text.bullet(1));
  EXPECT_TRUE(text.bullet(2));
  EXPECT_FALSE(text.bullet(3));
}

TEST(RichTextFiles, WhatIsWrittenReadsBackAndAnyCutIsRead) {
  RichText text("plain \\ {x}\ttab\nsecond\n\nlast \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 \x7F\x01-end");
  text.SetBullet(1, true);
  text.SetBullet(2, true);
  text.ForRange(2, 9, [](TextFormat& format) { format.bold = format.underline = true; });
  text.ForRange(8, 9, [](TextFormat& format) { format.colour = Rgb(9, 200, 77); });
  text.ForRange(15, 12, [](TextFormat& format) {
    format.italic = true;
    format.points = 7.5;
  });
  const std::string whole = RichTextFile(text);
  EXPECT_EQ(ReadTextFile(whole), text);
  EXPECT_EQ(ReadTextFile(RichTextFile(RichText())), RichText());
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_LE(ReadTextFile(std::string_view(whole).substr(0, length)).size(), static_cast<int>(length));
  }
}

}  // namespace
}  // namespace pelorium
