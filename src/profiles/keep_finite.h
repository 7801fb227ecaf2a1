// Edits of profiles that keep every coordinate a finite number.
#pragma once

#include <functional>

#include "core/model_store.h"

namespace pelorium {

// Runs `edit` on the profiles. When it makes a coordinate that is no finite number, all positions and counts
// go back to what they were, and an Overflow fault is raised. Any other fault leaves what the edit wrote.
void EditKeepingFinite(ModelStore& model, const std::function<void()>& edit);

}  // namespace pelorium
