// Models at the tables' limits, for the measurements.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Two Parts of 7700 faces and 23000 marked points each, over all 42 groups; spread over the view.
void FillModel(ModelStore& model);

}  // namespace pelorium
