// Fuzz target of the reader of OBJ files whose corners hold more than a point.
#include "obj_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return pelorium::RunObjTarget<pelorium::ObjKind::WithSlashes>(data, size);
}
