// Letters for captions are a matching: who finds all its letters taken asks their holders to move on.
#include "desktop/mnemonics.h"

#include <array>

namespace pelorium {

namespace {

bool IsLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

char Lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Beginnings of words, then the rest.
std::vector<int> PlacesByPreference(std::string_view caption) {
  std::vector<int> starts, others;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (!IsLetterOrDigit(caption[i])) continue;
    (i == 0 || !IsLetterOrDigit(caption[i - 1]) ? starts : others).push_back(static_cast<int>(i));
  }
  starts.insert(starts.end(), others.begin(), others.end());
  return starts;
}

class Matching {
 public:
  Matching(const std::vector<std::string>& captions, std::string_view taken)
      : captions_(captions), places_(captions.size(), -1) {
    holders_.fill(kNobody);
    for (const char c : taken) holders_[Index(c)] = kForbidden;
    for (std::size_t i = captions.size();
         i-- > 0;) {  // the last to ask has the best of it: the first captions
      asked_.fill(false);
      Place(static_cast<int>(i));
    }
  }

  const std::vector<int>& places() const { return places_; }

 private:
  static constexpr int kNobody = -1, kForbidden = -2;
  static std::size_t Index(char c) { return static_cast<unsigned char>(Lowered(c)) % 128; }

  bool Place(int caption) {
    const std::string& text = captions_[static_cast<std::size_t>(caption)];
    for (const int place : PlacesByPreference(text)) {
      const std::size_t letter = Index(text[static_cast<std::size_t>(place)]);
      if (holders_[letter] == kForbidden || asked_[letter]) continue;
      asked_[letter] = true;
      if (holders_[letter] != kNobody && !Place(holders_[letter])) continue;
      holders_[letter] = caption;
      places_[static_cast<std::size_t>(caption)] = place;
      return true;
    }
    return false;
  }

  const std::vector<std::string>& captions_;
  std::vector<int> places_;
  std::array<int, 128> holders_{};
  std::array<bool, 128> asked_{};
};

}  // namespace

std::vector<int> ChooseMnemonics(const std::vector<std::string>& captions, std::string_view taken) {
  return Matching(captions, taken).places();
}

std::string WithMnemonic(std::string_view caption, int place) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (static_cast<int>(i) == place) text += '&';
    text += caption[i];
    if (caption[i] == '&') text += '&';
  }
  return text;
}

char MnemonicAt(std::string_view caption, int place) {
  return place < 0 ? '\0' : Lowered(caption.at(static_cast<std::size_t>(place)));
}

}  // namespace pelorium
