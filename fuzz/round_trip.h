// What the targets of the readers share: reading under the trap and writing into a text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/fault.h"
#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// False when the text ended or went wrong on the way; what was read up to there stays in the model.
inline bool Reads(void (*read)(ModelStore&, std::string_view), ModelStore& model, std::string_view text) {
  try {
    read(model, text);
    return true;
  } catch (const Fault&) {
    return false;
  }
}

inline std::string Written(void (*write)(const ModelStore&, TextWriter&), const ModelStore& model) {
  StringSink sink;
  TextWriter writer(sink);
  write(model, writer);
  writer.Flush();
  return sink.text();
}

// The bytes of an input as text.
inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace pelorium
