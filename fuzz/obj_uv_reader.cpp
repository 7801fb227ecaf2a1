// Fuzz target of the reader of texture coordinates from OBJ files, with two and with three numbers a "vt"
// line. Any bytes load or end in a Fault with all counts inside their tables.
#include <cstdint>

#include "interchange/obj_uvs.h"
#include "uv_lines.h"

using namespace pelorium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  StringSource source(AsText(data, size));
  const UvLines lines = SplitObjUvs(source);
  for (const VtNumbers perLine : {VtNumbers::Two, VtNumbers::Three}) {
    ReadBothWays(
        model, 1, lines, [perLine](ModelStore& m, const UvLines& l) { ReadObjUvs(m, 1, l, perLine); },
        [perLine](ModelStore& m, const UvLines& l) { ReadObjUvsAsModel(m, 1, l, perLine, 2); });
  }
  return 0;
}
