// Texts with looks, the box that edits them and the files that hold them.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "controls/rich_text_box.h"
#include "controls/rich_text_format.h"
#include "controls/utf8.h"
#include "controls/window.h"

namespace pelorium {
namespace {

constexpr TextFormat kPlain{};
constexpr TextFormat kBold{.bold = true};

struct RichTextBoxes : testing::Test {
  ControlHost host;
  Window window{host, "w", "a window"};
  RichTextBox box{window, "box"};
  int changes = 0;

  RichTextBoxes() {
    box.onChange = [this] { ++changes; };
  }
  std::vector<TextRun> Runs(std::size_t paragraph = 0) const {
    return box.text().Paragraphs().at(paragraph).runs;
  }
};

using Utf8 = testing::Test;

TEST_F(Utf8, CharactersComeBack) {
  for (const char32_t character :
       {U'\0', U'a', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x10FFFF'}) {
    std::string bytes;
    AppendUtf8(bytes, character);
    EXPECT_EQ(FromUtf8(bytes), std::u32string(1, character));
  }
}

TEST_F(Utf8, WhatIsNoCharacterIsTakenByteByByte) {
  EXPECT_EQ(FromUtf8("\xE4x"), U"\xE4x");                        // Latin-1
  EXPECT_EQ(FromUtf8("\xE2\x82"), U"\xE2\x82");                  // cut
  EXPECT_EQ(FromUtf8("\xC0\x80"), U"\xC0\x80");                  // longer than needed
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), U"\xED\xA0\x80");          // a surrogate
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), U"\xF4\x90\x80\x80");  // past the last character
  std::string bytes;
  AppendUtf8(bytes, 0xD800);
  AppendUtf8(bytes, 0x110000);
  EXPECT_EQ(bytes, "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST_F(RichTextBoxes, ValueIsThePlainText) {
  box.SetOwnValue(std::string("one\r\ntwo\rthree\n"));
  EXPECT_EQ(AsText(box.Value()), "one\ntwo\nthree\n");
  EXPECT_EQ(box.text().paragraphs(), 4);
  EXPECT_EQ(changes, 1);
}

TEST_F(RichTextBoxes, TheSelectionCountsCharactersAndStaysInTheText) {
  box.SetOwnValue(
      std::string("\xC3\xA4\xE2\x82\xAC"
                  "bc"));
  box.SetSelection(1, 2);
  EXPECT_EQ(box.SelectedText(),
            "\xE2\x82\xAC"
            "b");
  box.SetSelection(3, 100);
  EXPECT_EQ(box.SelectedText(), "c");
  box.SetSelection(-5, -5);
  EXPECT_EQ(box.selectionStart(), 0);
  EXPECT_EQ(box.selectionLength(), 0);
  box.SetSelection(2147483647, 2147483647);
  EXPECT_EQ(box.selectionStart(), 4);
}

TEST_F(RichTextBoxes, BoldGoesOnAllUnlessAllIsBold) {
  box.SetOwnValue(std::string("abcd"));
  box.SetSelection(1, 2);
  box.ToggleBold();
  EXPECT_EQ(Runs(), (std::vector<TextRun>{{"a", kPlain}, {"bc", kBold}, {"d", kPlain}}));
  box.SetSelection(0, 2);
  box.ToggleBold();
  EXPECT_EQ(Runs(), (std::vector<TextRun>{{"abc", kBold}, {"d", kPlain}}));
  box.SetSelection(0, 3);
  box.ToggleBold();
  EXPECT_EQ(Runs(), (std::vector<TextRun>{{"abcd", kPlain}}));
}

TEST_F(RichTextBoxes, LooksOfEverySort) {
  box.SetOwnValue(std::string("ab"));
  box.SetSelection(0, 1);
  box.ToggleItalic();
  box.ToggleUnderline();
  box.SetSize(13.3);
  box.SetColour(Rgb(1, 2, 3));
  const TextFormat expected{.italic = true, .underline = true, .points = 13.5, .colour = Rgb(1, 2, 3)};
  EXPECT_EQ(box.SelectionFormat(), expected);
  EXPECT_EQ(Runs(), (std::vector<TextRun>{{"a", expected}, {"b", kPlain}}));
  box.SetSize(0);
  EXPECT_EQ(box.SelectionFormat().points, kSmallestText);
  box.SetSize(1e9);
  EXPECT_EQ(box.SelectionFormat().points, kLargestText);
}

TEST_F(RichTextBoxes, LineEndsDoNotCountForAToggle) {
  box.SetOwnValue(std::string("a\nb"));
  box.SetSelection(0, 1);
  box.ToggleBold();
  box.SetSelection(2, 1);
  box.ToggleBold();
  box.SetSelection(0, 3);
  box.ToggleBold();
  EXPECT_EQ(Runs(0), (std::vector<TextRun>{{"a", kPlain}}));
  EXPECT_EQ(Runs(1), (std::vector<TextRun>{{"b", kPlain}}));
}

TEST_F(RichTextBoxes, WithNothingSelectedALookHoldsForWhatIsTyped) {
  box.SetOwnValue(std::string("ad"));
  box.SetSelection(1, 0);
  box.ToggleBold();
  box.ReplaceRange(1, 0, "b");
  box.ReplaceRange(2, 0, "c");
  EXPECT_EQ(Runs(), (std::vector<TextRun>{{"a", kPlain}, {"bc", kBold}, {"d", kPlain}}));
  box.ToggleItalic();
  box.SetSelection(0, 0);  // the cursor went elsewhere
  box.ReplaceRange(0, 0, "x");
  EXPECT_EQ(Runs()[0], (TextRun{"xa", kPlain}));
}

TEST_F(RichTextBoxes, BulletsStandOnAllTouchedParagraphs) {
  box.SetOwnValue(std::string("a\nb\nc"));
  const auto bullets = [this] {
    return std::vector<bool>{box.text().bullet(0), box.text().bullet(1), box.text().bullet(2)};
  };
  box.SetSelection(2, 0);
  box.ToggleBullet();
  EXPECT_EQ(bullets(), (std::vector<bool>{false, true, false}));
  box.SetSelection(0, 3);
  box.ToggleBullet();
  EXPECT_EQ(bullets(), (std::vector<bool>{true, true, false}));
  box.SetSelection(0, 4);  // ends with the end of the second line
  box.ToggleBullet();
  EXPECT_EQ(bullets(), (std::vector<bool>{false, false, false}));
}

TEST_F(RichTextBoxes, ReplacedParagraphsKeepTheirBullets) {
  box.SetOwnValue(std::string("a\nb\nc"));
  box.SetSelection(2, 0);
  box.ToggleBullet();
  box.ReplaceRange(3, 0, "\nbb");  // a new line in the bulleted paragraph
  EXPECT_EQ(box.text().Plain(), "a\nb\nbb\nc");
  EXPECT_TRUE(box.text().bullet(2));
  EXPECT_FALSE(box.text().bullet(3));
  box.ReplaceRange(1, 4, "");  // the lines join the first, which has none
  EXPECT_EQ(box.text().Plain(), "ab\nc");
  EXPECT_EQ(box.text().paragraphs(), 2);
  EXPECT_FALSE(box.text().bullet(0));
  EXPECT_EQ(box.selectionStart(), 1);
}

TEST_F(RichTextBoxes, AReplacementLooksLikeWhatItReplaces) {
  box.SetOwnValue(std::string("abc"));
  box.SetSelection(1, 1);
  box.ToggleBold();
  box.ReplaceSelection("xyz");
  EXPECT_EQ(Runs(), (std::vector<TextRun>{{"a", kPlain}, {"xyz", kBold}, {"c", kPlain}}));
  EXPECT_EQ(box.selectionStart(), 4);
  EXPECT_EQ(box.selectionLength(), 0);
}

using RichTextFiles = testing::Test;

std::vector<TextRun> FirstRuns(std::string_view bytes) { return ReadTextFile(bytes).Paragraphs()[0].runs; }

TEST_F(RichTextFiles, OtherBytesArePlainText) {
  EXPECT_EQ(ReadTextFile("v 1 2 3\r\nf {1}\r\n").Plain(), "v 1 2 3\nf {1}\n");
  EXPECT_EQ(ReadTextFile("\xEF\xBB\xBF{rtf}").Plain(), "{rtf}");
  EXPECT_EQ(ReadTextFile("").Plain(), "");
}

TEST_F(RichTextFiles, LooksAndGroups) {
  EXPECT_EQ(FirstRuns("{\\rtf1 a{\\b b\\b0 c}{\\i\\ul d\\ulnone e}\\fs25 f\\plain g}"),
            (std::vector<TextRun>{{"a", kPlain},
                                  {"b", kBold},
                                  {"c", kPlain},
                                  {"d", {.italic = true, .underline = true}},
                                  {"e", {.italic = true}},
                                  {"f", {.points = 12.5}},
                                  {"g", kPlain}}));
}

TEST_F(RichTextFiles, Colours) {
  EXPECT_EQ(
      FirstRuns(
          "{\\rtf1{\\colortbl ;\\red255\\green1\\blue2;\\red999\\blue-4;}\\cf1 a\\cf2 b\\cf0 c\\cf9 d}"),
      (std::vector<TextRun>{
          {"a", {.colour = Rgb(255, 1, 2)}}, {"b", {.colour = Rgb(255, 0, 0)}}, {"cd", kPlain}}));
}

TEST_F(RichTextFiles, Characters) {
  EXPECT_EQ(ReadTextFile("{\\rtf1 \\{\\}\\\\\\'e4\\'80\\tab x\\~y\\endash\\\nz\r\nw}").Plain(),
            "{}\\\xC3\xA4\xE2\x82\xAC\tx\xC2\xA0y\xE2\x80\x93\nzw");
  EXPECT_EQ(ReadTextFile("{\\rtf1 \\u8364?a\\uc2\\u228\\'e4?b\\uc0\\u-4064 c}").Plain(),
            "\xE2\x82\xAC"
            "a\xC3\xA4"
            "b\xEF\x80\xA0"
            "c");
  EXPECT_EQ(ReadTextFile("{\\rtf1 \\u-10179?\\u-8704?x\\u-8704?}").Plain(), "\xF0\x9F\x98\x80x\xEF\xBF\xBD");
}

TEST_F(RichTextFiles, UnknownGroupsArePassedOver) {
  EXPECT_EQ(ReadTextFile("{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\*\\generator x{y};}{\\info{\\title t}}"
                         "\\viewkind4\\lang1033 a{\\pict\\bin4 }}}}b}c}tail")
                .Plain(),
            "ac");
}

TEST_F(RichTextFiles, Bullets) {
  const RichText text = ReadTextFile(
      "{\\rtf1 head\\par{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'B7}}one\\par\\bullet\\tab "
      "two\\par a\\bullet b}");
  EXPECT_EQ(text.Plain(),
            "head\none\ntwo\na\xE2\x80\xA2"
            "b");
  EXPECT_FALSE(text.bullet(0));
  EXPECT_TRUE(text.bullet(1));
  EXPECT_TRUE(text.bullet(2));
  EXPECT_FALSE(text.bullet(3));
}

TEST_F(RichTextFiles, WhatIsWrittenReadsBack) {
  RichText text("plain \\ {x}\ttab\nsecond\n\nlast \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 \x7F\x01-end");
  text.SetBullet(1, true);
  text.SetBullet(2, true);
  text.ForRange(2, 9, [](TextFormat& format) { format.bold = format.underline = true; });
  text.ForRange(8, 9, [](TextFormat& format) { format.colour = Rgb(9, 200, 77); });
  text.ForRange(15, 12, [](TextFormat& format) {
    format.italic = true;
    format.points = 7.5;
  });
  const RichText read = ReadTextFile(RichTextFile(text));
  EXPECT_EQ(read.Plain(), text.Plain());
  EXPECT_EQ(read, text);
  EXPECT_EQ(RichTextFile(read), RichTextFile(text));
  EXPECT_EQ(ReadTextFile(RichTextFile(RichText())), RichText());
}

TEST_F(RichTextFiles, PlainTextEndsItsLinesWithBothSigns) {
  EXPECT_EQ(PlainTextFile(RichText("a\n\xC3\xA4\n")), "a\r\n\xC3\xA4\r\n");
}

TEST_F(RichTextFiles, DeepGroupsAreBounded) {
  const std::string deep(100000, '{'), closed(100000, '}');
  EXPECT_EQ(ReadTextFile("{\\rtf1 a" + deep + "hidden" + closed + "b}").Plain(), "ab");
  EXPECT_EQ(ReadTextFile("{\\rtf1 a" + std::string(150, '{') + "b" + std::string(150, '}') + "c}").Plain(),
            "abc");
  EXPECT_EQ(ReadTextFile("{\\rtf1 a" + closed + "b").Plain(), "a");
}

TEST_F(RichTextFiles, AnyCutIsRead) {
  RichText text("head\nbody \xC3\xA4 end");
  text.SetBullet(1, true);
  text.ForRange(5, 4, [](TextFormat& format) { format.colour = Rgb(1, 2, 3); });
  const std::string whole = RichTextFile(text);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_LE(ReadTextFile(std::string_view(whole).substr(0, length)).size(), static_cast<int>(length));
  }
}

TEST_F(RichTextFiles, AnyBytesAreRead) {
  const std::vector<std::string> pieces = {
      "{",       "}",     "\\",       "\\u-10179", "\\'",    "\\bin-1", "\\bin99999999999",
      "\\cf99",  "\\fs",  "\\pntext", "\\bullet",  "\\par",  "\\*",     "\\colortbl",
      "\\red-5", ";",     "\\uc-9",   "\\uc99",    "\xFF",   "-",       " text ",
      "\\fs-7",  "\\b-0", "\r\n",     "9",         "\\info "};
  std::mt19937 random(7);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes = "{\\rtf1";
    for (int i = 0; i < 60; ++i) bytes += pieces[random() % pieces.size()];
    const RichText text = ReadTextFile(bytes);
    EXPECT_EQ(ReadTextFile(RichTextFile(text)), text) << bytes;
  }
}

}  // namespace
}  // namespace pelorium
