// Making one Part of both, by way of a scratch file: positions come out rounded to 3 decimals, faces that are
// off are gone. Nothing of the model changes before the file is written, read back and found to fit.
#pragma once

#include "base/text_writer.h"
#include "core/model_store.h"
#include "interchange/scratch_file.h"

namespace pelorium {

// The points of Parts 0 and 1 as "v X Z Y" lines with 3 decimals, then the faces that are on as "f" lines,
// those of Part 1 raised by the points of Part 0.
void WriteMergedParts(const ModelStore& model, TextWriter& out);

enum class OtherParts { Stay, AreErased };

// Parts 0 and 1 together become Part `part`, on and marked, with the name and the mapping that it had. Erased
// means both of them first, as ErasePart does: the other one is left empty and the groups become 1. Otherwise
// the other one stays, and so do the groups of the face slots that the result takes.
//
// Raises a fault, and changes nothing, when no place takes the file, when Parts 0 and 1 have more than 23000
// points or 7700 faces that are on together, and when a face leads to a point below 0.
void CombineParts(ModelStore& model, int part, OtherParts others, const ScratchPlaces& places);

}  // namespace pelorium
