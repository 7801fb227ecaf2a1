// The project file: both user Parts, all profiles and the material groups 0..40 as a fixed sequence of
// numbers. No header, no version; a reader takes the items in exactly this order and does not care for line
// ends but before group names.
//
// Not kept: Part names, `onoff` of points, UV counts and the UV numbers of faces, u and v of UV points above
// `maxpoints`, group 41, the green and blue of the transmissive filter, Parts 2 and 3.
#pragma once

#include <string_view>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// Positions are rounded to 2 decimals, all other fractions keep 15 digits.
void WriteProject(const ModelStore& model, TextWriter& out);

// Fills the tables from the text. Nothing is cleared first. Counters, corners, groups and profile counts are
// held in their tables' limits as they are read, while the loops run to the numbers in the file: a file with
// more faces or points than the tables hold ends at the first record too many. Any fault (a bad item, the end
// of the text, a number too large for its field) leaves what was read up to it.
void ReadProject(ModelStore& model, std::string_view text);

}  // namespace pelorium
