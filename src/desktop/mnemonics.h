// The underlined letters of menus.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelorium {

// For each caption the place of the letter that a key chooses it by, each letter once and none of `taken`; -1
// where no letter is left. As many captions as can be have one. Beginnings of words are tried first.
std::vector<int> ChooseMnemonics(const std::vector<std::string>& captions, std::string_view taken = {});

// The caption as the toolkit takes it: "&" before the letter, none before others.
std::string WithMnemonic(std::string_view caption, int place);

// The letter at a place, in lower case: of "Exit" and 1 that is x.
char MnemonicAt(std::string_view caption, int place);

}  // namespace pelorium
