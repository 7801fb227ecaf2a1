// Characters from and to the bytes of texts.
#pragma once

#include <string>
#include <string_view>

namespace pelorium {

// The characters of a text in UTF-8. A byte that is no part of a character counts as the Latin-1 character of
// its value, so that texts of other machines stay readable.
std::u32string FromUtf8(std::string_view bytes);

// A character as UTF-8; what is no character (a lone surrogate, a number past 0x10FFFF) becomes U+FFFD.
void AppendUtf8(std::string& bytes, char32_t character);

}  // namespace pelorium
