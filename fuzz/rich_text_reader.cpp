// Fuzz target of the reader of rich and plain texts. Any bytes are read, none can make more characters than
// there are bytes, and what was read comes back equal when it is written as rich text and read again.
#include <cstdint>
#include <cstdlib>

#include "controls/rich_text_format.h"
#include "round_trip.h"

using namespace pelorium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const RichText text = ReadTextFile(AsText(data, size));
  if (static_cast<std::size_t>(text.size()) > size) std::abort();
  if (ReadTextFile(RichTextFile(text)) != text) std::abort();
  return 0;
}
