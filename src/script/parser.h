// Lines of the script language as words, and words as numbers.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace pelorium {

// What is wrong with a line. The runner adds the file and the line's number.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

// The words of a line, which has no line end: separated by blanks and tabs. A word that begins with a double
// quote ends with the next one and may be empty or hold blanks; in it \" and \\ stand for themselves. "#" at
// the start of a word begins a comment. Raises ScriptError for a quote that is not closed or not followed by
// a blank.
Words SplitWords(std::string_view line);

// A text as answers show it: always in double quotes, escaped as the input is. Line ends become blanks, so
// that an answer stays one line.
std::string Quoted(std::string_view text);

// A word that is a number as a whole. `what` names it in the ScriptError raised otherwise.
double NumberWord(const std::string& word, std::string_view what);

// A word that is a whole number within int.
int IntegerWord(const std::string& word, std::string_view what);

// A word that is a number within single precision, rounded to it.
float SingleWord(const std::string& word, std::string_view what);

}  // namespace pelorium
