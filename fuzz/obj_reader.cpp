// Fuzz target of the reader of plain OBJ files.
#include "obj_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return pelorium::RunObjTarget<pelorium::ObjKind::Plain>(data, size);
}
