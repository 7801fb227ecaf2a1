// Fuzz target of the reader of .jpg files.
#include "picture_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return pelorium::RunPictureTarget(".jpg", data, size);
}
