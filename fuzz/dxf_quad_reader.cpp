// Fuzz target of the reader of 3DFACE as quads.
#include "dxf_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return pelorium::RunDxfTarget<pelorium::ReadDxfQuads>(data, size);
}
