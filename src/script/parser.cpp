// Splitting and quoting.
#include "script/parser.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr std::string_view kBlanks = " \t\r";

// Takes the quoted word that `rest` begins with, quotes included.
std::string TakeQuoted(std::string_view& rest) {
  std::string word;
  std::size_t at = 1;
  for (; at < rest.size() && rest[at] != '"'; ++at) {
    const bool escape =
        rest[at] == '\\' && at + 1 < rest.size() && (rest[at + 1] == '"' || rest[at + 1] == '\\');
    if (escape) ++at;
    word += rest[at];
  }
  if (at == rest.size()) throw ScriptError("a double quote is not closed");
  rest.remove_prefix(at + 1);
  if (!rest.empty() && kBlanks.find(rest[0]) == std::string_view::npos) {
    throw ScriptError("a blank must follow a closing double quote");
  }
  return word;
}

std::string TakeBare(std::string_view& rest) {
  const std::size_t end = std::min(rest.find_first_of(kBlanks), rest.size());
  std::string word(rest.substr(0, end));
  rest.remove_prefix(end);
  return word;
}

}  // namespace

Words SplitWords(std::string_view line) {
  Words words;
  while (true) {
    const std::size_t start = line.find_first_not_of(kBlanks);
    if (start == std::string_view::npos || line[start] == '#') return words;
    line.remove_prefix(start);
    words.push_back(line[0] == '"' ? TakeQuoted(line) : TakeBare(line));
  }
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c == '\n' || c == '\r' ? ' ' : c;
  }
  return quoted += '"';
}

double NumberWord(const std::string& word, std::string_view what) {
  try {
    return WholeNumber(word);
  } catch (const Fault& fault) {
    if (fault.kind() == FaultKind::Overflow) throw;
    throw ScriptError(std::string(what) + " " + Quoted(word) + " is not a number");
  }
}

int IntegerWord(const std::string& word, std::string_view what) {
  const double number = NumberWord(word, what);
  if (number != RoundHalfEven(number))
    throw ScriptError(std::string(what) + " " + word + " is not a whole number");
  return ToInteger<int>(number);
}

float SingleWord(const std::string& word, std::string_view what) {
  const float number = static_cast<float>(NumberWord(word, what));
  if (!std::isfinite(number)) throw Fault(FaultKind::Overflow, word);
  return number;
}

}  // namespace pelorium
