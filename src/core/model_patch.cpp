// Patches of all tables.
#include "core/model_patch.h"

#include "core/model_store.h"

namespace pelorium {

std::size_t BytesOf(const ModelPatch& patch) {
  return std::apply([](const auto&... side) { return (side.Bytes() + ...); }, patch);
}

void Join(ModelPatch& patch, const ModelPatch& more) {
  std::apply(
      [&more](auto&... side) {
        std::apply([&side...](const auto&... other) { (side.Join(other), ...); }, more);
      },
      patch);
}

}  // namespace pelorium
