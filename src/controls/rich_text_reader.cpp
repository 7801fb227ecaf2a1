// Reading of text files. A word of the format is looked up in one table, and a stack holds what comes back at
// the end of a group.
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "controls/rich_text_format.h"

namespace pelorium {

namespace {

constexpr std::string_view kRichStart = "{\\rtf", kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kDeepestGroup = 200;
constexpr int kLargestParameter = 1000000;  // of a word; more digits mean no more

// The characters of the bytes 0x80..0x9F; the others stand for the character of their own number.
constexpr std::array<char16_t, 32> kUpperBytes = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t CharacterOfByte(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kUpperBytes[byte - 0x80u] : byte;
}

enum class Word {
  Bold,
  Italic,
  Underline,
  NoUnderline,
  Size,
  ColourNumber,
  Plain,
  EndParagraph,
  Tab,
  Bullet,
  BulletText,
  Unicode,
  UnicodeSkip,
  ColourTable,
  RedPart,
  GreenPart,
  BluePart,
  Binary,
  Symbol,
  Skipped
};

struct WordMeaning {
  Word word;
  char32_t symbol = 0;
};

// Groups that hold no text of the document.
constexpr std::array<std::string_view, 16> kSkippedGroups = {
    "fonttbl", "stylesheet", "info",    "pict",    "object",  "header",   "headerl", "headerr",
    "headerf", "footer",     "footerl", "footerr", "footerf", "footnote", "xe",      "tc"};

std::optional<WordMeaning> FindWord(std::string_view name) {
  static const std::unordered_map<std::string_view, WordMeaning> kWords = {
      {"b", {Word::Bold}},
      {"i", {Word::Italic}},
      {"ul", {Word::Underline}},
      {"ulnone", {Word::NoUnderline}},
      {"fs", {Word::Size}},
      {"cf", {Word::ColourNumber}},
      {"plain", {Word::Plain}},
      {"par", {Word::EndParagraph}},
      {"line", {Word::EndParagraph}},
      {"tab", {Word::Tab}},
      {"bullet", {Word::Bullet}},
      {"pntext", {Word::BulletText}},
      {"listtext", {Word::BulletText}},
      {"u", {Word::Unicode}},
      {"uc", {Word::UnicodeSkip}},
      {"colortbl", {Word::ColourTable}},
      {"red", {Word::RedPart}},
      {"green", {Word::GreenPart}},
      {"blue", {Word::BluePart}},
      {"bin", {Word::Binary}},
      {"lquote", {Word::Symbol, 0x2018}},
      {"rquote", {Word::Symbol, 0x2019}},
      {"ldblquote", {Word::Symbol, 0x201C}},
      {"rdblquote", {Word::Symbol, 0x201D}},
      {"endash", {Word::Symbol, 0x2013}},
      {"emdash", {Word::Symbol, 0x2014}},
  };
  const auto found = kWords.find(name);
  if (found != kWords.end()) return found->second;
  const bool isSkipped =
      std::find(kSkippedGroups.begin(), kSkippedGroups.end(), name) != kSkippedGroups.end();
  if (isSkipped) return WordMeaning{Word::Skipped};
  return std::nullopt;
}

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  RichText Read() {
    while (at_ < bytes_.size() && !over_) Step();
    return std::move(text_);
  }

 private:
  enum class Goal { Text, Colours, Nowhere };

  // What the end of a group brings back.
  struct Group {
    TextFormat format;
    Goal goal = Goal::Text;
    int unicodeSkip = 1;  // how many characters after a \u stand for it where it is not known
  };

  struct Parameter {
    int value = 0;
    bool given = false;
  };

  void Step() {
    const char c = bytes_[at_++];
    switch (c) {
      case '{':
        Open();
        break;
      case '}':
        Close();
        break;
      case '\\':
        Control();
        break;
      case '\r':
      case '\n':
        break;
      default:
        Character(CharacterOfByte(static_cast<unsigned char>(c)));
    }
  }

  void Open() {
    toSkip_ = 0;
    if (groups_.size() < kDeepestGroup) {
      groups_.push_back(group_);
    } else {
      ++tooDeep_;
    }
  }

  void Close() {
    toSkip_ = 0;
    if (tooDeep_ > 0) {
      --tooDeep_;
      return;
    }
    if (groups_.empty()) return;
    group_ = groups_.back();
    groups_.pop_back();
    over_ = groups_.empty();
  }

  void Control() {
    if (at_ >= bytes_.size()) return;
    const char c = bytes_[at_];
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) {
      ControlWord();
      return;
    }
    ++at_;
    switch (c) {
      case '\'':
        Character(CharacterOfByte(HexByte()));
        break;
      case '\r':
      case '\n':
        EndParagraph();
        break;
      case '~':
        Character(0xA0);
        break;
      case '_':
        Character(0x2011);
        break;
      case '-':
        break;  // a place where a word may be parted
      case '*':
        group_.goal = Goal::Nowhere;
        break;
      default:
        Character(CharacterOfByte(static_cast<unsigned char>(c)));
    }
  }

  unsigned char HexByte() {
    int value = 0;
    for (int digits = 0; digits < 2 && at_ < bytes_.size(); ++digits) {
      const int digit = HexDigit(bytes_[at_]);
      if (digit < 0) break;
      value = value * 16 + digit;
      ++at_;
    }
    return static_cast<unsigned char>(value);
  }

  static int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
  }

  void ControlWord() {
    const std::size_t start = at_;
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    while (at_ < bytes_.size() && isLetter(bytes_[at_])) ++at_;
    const std::string_view name = bytes_.substr(start, at_ - start);
    const Parameter parameter = ReadParameter();
    if (at_ < bytes_.size() && bytes_[at_] == ' ') ++at_;
    if (const auto meaning = FindWord(name)) Do(*meaning, parameter);
  }

  Parameter ReadParameter() {
    const auto isDigitAt = [this](std::size_t at) {
      return at < bytes_.size() && bytes_[at] >= '0' && bytes_[at] <= '9';
    };
    const bool negative = at_ < bytes_.size() && bytes_[at_] == '-' && isDigitAt(at_ + 1);
    if (negative) ++at_;
    Parameter parameter;
    for (; isDigitAt(at_); ++at_) {
      parameter.given = true;
      parameter.value = std::min(parameter.value * 10 + (bytes_[at_] - '0'), kLargestParameter);
    }
    if (negative) parameter.value = -parameter.value;
    return parameter;
  }

  void Do(WordMeaning meaning, Parameter parameter) {
    const bool on = !parameter.given || parameter.value != 0;
    TextFormat& format = group_.format;
    switch (meaning.word) {
      case Word::Bold:
        format.bold = on;
        break;
      case Word::Italic:
        format.italic = on;
        break;
      case Word::Underline:
        format.underline = on;
        break;
      case Word::NoUnderline:
        format.underline = false;
        break;
      case Word::Size:
        SetSize(parameter);
        break;
      case Word::ColourNumber:
        format.colour = ColourOfNumber(parameter.value);
        break;
      case Word::Plain:
        format = {};
        break;
      case Word::EndParagraph:
        EndParagraph();
        break;
      case Word::Tab:
        Character(U'\t');
        break;
      case Word::Bullet:
        Bullet();
        break;
      case Word::BulletText:
        MarkBullet();
        break;
      case Word::Unicode:
        Unicode(parameter.value);
        break;
      case Word::UnicodeSkip:
        group_.unicodeSkip = std::max(0, parameter.value);
        break;
      case Word::ColourTable:
        group_.goal = Goal::Colours;
        break;
      case Word::RedPart:
        parts_[0] = parameter.value;
        break;
      case Word::GreenPart:
        parts_[1] = parameter.value;
        break;
      case Word::BluePart:
        parts_[2] = parameter.value;
        break;
      case Word::Binary:
        PassOver(parameter.value);
        break;
      case Word::Symbol:
        Character(meaning.symbol);
        break;
      case Word::Skipped:
        group_.goal = Goal::Nowhere;
        break;
    }
  }

  bool IsText() const { return group_.goal == Goal::Text && tooDeep_ == 0; }

  void Character(char32_t character) {
    if (toSkip_ > 0) {
      --toSkip_;
      return;
    }
    if (group_.goal == Goal::Colours && character == U';') AddColour();
    if (IsText()) Put(character);
  }

  void Put(char32_t character) {
    const bool followsBullet = std::exchange(afterBullet_, false);
    if (followsBullet && (character == U'\t' || character == U' ')) return;
    text_.Append(character, group_.format);
    atStart_ = character == U'\n';
  }

  void EndParagraph() {
    if (IsText()) Put(U'\n');
  }

  // A bullet sign that heads a paragraph is the paragraph's bullet; elsewhere it is a character.
  void Bullet() {
    if (!IsText()) return;
    if (!atStart_) {
      Put(0x2022);
      return;
    }
    text_.SetBullet(text_.paragraphs() - 1, true);
    atStart_ = false;
    afterBullet_ = true;
  }

  // A group that holds the sign for readers that know no bullets.
  void MarkBullet() {
    if (IsText()) text_.SetBullet(text_.paragraphs() - 1, true);
    group_.goal = Goal::Nowhere;
  }

  // 16 bits at a time, often written as a negative number; two halves make a character past 0xFFFF.
  void Unicode(int value) {
    const auto unit = static_cast<char32_t>(static_cast<char16_t>(value));
    toSkip_ = 0;
    if (unit >= 0xD800 && unit < 0xDC00) {
      firstHalf_ = unit;
    } else if (unit >= 0xDC00 && unit < 0xE000) {
      Character(firstHalf_ == 0 ? 0xFFFD : 0x10000 + ((firstHalf_ - 0xD800) << 10) + (unit - 0xDC00));
      firstHalf_ = 0;
    } else {
      Character(unit);
      firstHalf_ = 0;
    }
    toSkip_ = group_.unicodeSkip;
  }

  void PassOver(int count) {
    at_ += std::min(static_cast<std::size_t>(std::max(0, count)), bytes_.size() - at_);
  }

  void SetSize(Parameter halfPoints) {
    if (!halfPoints.given) return;
    group_.format.points = std::clamp(halfPoints.value / 2.0, kSmallestText, kLargestText);
  }

  void AddColour() {
    const auto part = [this](std::size_t i) { return std::clamp(parts_[i], 0, 255); };
    colours_.push_back(Rgb(part(0), part(1), part(2)));
    parts_ = {};
  }

  Colour ColourOfNumber(int number) const {
    return number >= 0 && number < static_cast<int>(colours_.size())
               ? colours_[static_cast<std::size_t>(number)]
               : Colour{0};
  }

  std::string_view bytes_;
  std::size_t at_ = 0;
  RichText text_;
  Group group_;
  std::vector<Group> groups_;  // around the present one
  std::size_t tooDeep_ = 0;    // groups open past the deepest
  bool over_ = false;          // the outermost group was closed
  int toSkip_ = 0;             // characters that stand for the \u before them
  char32_t firstHalf_ = 0;
  bool atStart_ = true, afterBullet_ = false;  // of the paragraph; behind its bullet sign
  std::vector<Colour> colours_;
  std::array<int, 3> parts_{};  // red, green, blue of the next colour
};

}  // namespace

RichText ReadTextFile(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return bytes.starts_with(kRichStart) ? Reader(bytes).Read() : RichText(bytes);
}

}  // namespace pelorium
