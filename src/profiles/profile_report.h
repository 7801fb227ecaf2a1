// The readable reports on all profiles: their points with the lengths between them, and the settings of the
// extrude.
#pragma once

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

enum class ProfileReport {
  Points,     // positions and lengths
  Parametric  // these and what the extrude does with each profile and layer
};

// Points 0..count of each profile. Positions and lengths are rounded to 2 decimals, settings stand in full.
// The last point tells the length back to point 0.
void WriteProfileReport(const ModelStore& model, ProfileReport kind, TextWriter& out);

}  // namespace pelorium
