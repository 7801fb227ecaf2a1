// Fuzz target of the project reader. Any bytes either load or end in a Fault. What was loaded can be written,
// and what is written comes back to the same text when it is read and written again.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/fault.h"
#include "core/project_file.h"

namespace {

using namespace pelorium;

// False when the text ended or went wrong on the way; what was read up to there stays in the model.
bool Reads(ModelStore& model, std::string_view text) {
  try {
    ReadProject(model, text);
    return true;
  } catch (const Fault&) {
    return false;
  }
}

std::string Written(const ModelStore& model) {
  StringSink sink;
  TextWriter writer(sink);
  WriteProject(model, writer);
  writer.Flush();
  return sink.text();
}

}  // namespace

// The models are filled once and never again: what a whole file leaves must not depend on what stood there
// before.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  if (!Reads(model, {reinterpret_cast<const char*>(data), size})) return 0;
  const std::string first = Written(model);
  if (!Reads(again, first) || Written(again) != first) std::abort();
  return 0;
}
