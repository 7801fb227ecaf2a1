// Fuzz target of the reader of files of a UV mapper. Any bytes load or end in a Fault with all counts inside
// their tables; the mapping can be written.
#include <cstdint>

#include "interchange/uvs_file.h"
#include "uv_lines.h"

using namespace pelorium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  StringSource source(AsText(data, size));
  ReadBothWays(
      model, 1, SplitUvs(source), [](ModelStore& m, const UvLines& lines) { ReadUvs(m, 1, lines); },
      [](ModelStore& m, const UvLines& lines) { ReadUvsAsModel(m, 1, lines, 2); });
  Written([](const ModelStore& m, TextWriter& out) { WriteUvs(m, 1, out); }, model);
  return 0;
}
