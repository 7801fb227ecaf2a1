// Texts with looks from and to the bytes of files.
#pragma once

#include <string>
#include <string_view>

#include "controls/rich_text.h"

namespace pelorium {

// Bytes that begin with "{\rtf" are read as rich text, all others as plain text. Of rich text it takes bold,
// italic, underline, size, colour, paragraphs, tabs, bullets and characters; what it does not know it passes
// over. Any bytes are taken: what is broken or cut gives what could be read. Groups deeper than 200 are
// passed over.
RichText ReadTextFile(std::string_view bytes);

// What ReadTextFile reads back as the same text.
std::string RichTextFile(const RichText& text);
// Without looks and bullets, in UTF-8, lines ended by CR LF.
std::string PlainTextFile(const RichText& text);

}  // namespace pelorium
