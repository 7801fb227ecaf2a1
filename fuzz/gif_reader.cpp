// Fuzz target of the reader of .gif files.
#include "picture_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return pelorium::RunPictureTarget(".gif", data, size);
}
