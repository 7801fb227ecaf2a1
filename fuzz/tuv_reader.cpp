// Fuzz target of the reader of flat patterns of an unwrapping program. Any bytes become a DXF file that the
// import of triangles reads, or end in a Fault.
#include <cstdint>

#include "interchange/dxf_import.h"
#include "interchange/tuv_file.h"
#include "uv_lines.h"

using namespace pelorium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  StringSink sink;
  TextWriter out(sink);
  try {
    WriteTuvAsDxf(AsText(data, size), 10, out);
  } catch (const Fault&) {
    return 0;
  }
  out.Flush();
  StringSource dxf(sink.text());
  try {
    ReadDxfTriangles(model, 1, dxf, 1);
  } catch (const Fault&) {
    // only more triangles than fit, or a number whose 15 digits are too large
  }
  if (!CountsAreHeld(model, 1)) std::abort();
  return 0;
}
