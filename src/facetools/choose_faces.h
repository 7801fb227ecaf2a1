// Switches faces on and off and puts them into material groups: those of a range of numbers, or those of the
// chosen points. A face belongs to the chosen points when all three of its corners do.
#pragma once

#include <optional>

#include "core/chosen_points.h"

namespace pelorium {

// Those of the faces first..last; none when last < first. A range outside the table raises a Subscript fault.
void GroupFaceRange(ModelStore& model, int part, int first, int last, int group);

// Of all faces in use.
void SwitchChosenFaces(ModelStore& model, const ChosenPoints& chosen, bool on);
void GroupChosenFaces(ModelStore& model, const ChosenPoints& chosen, int group);

// The group of the lowest face in use that has the point as a corner.
std::optional<int> GroupOfPoint(const ModelStore& model, int part, int point);

}  // namespace pelorium
