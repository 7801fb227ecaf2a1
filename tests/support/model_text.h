// Short ways to fill the tables of a model, and to tell what stands in them.
#pragma once

#include <initializer_list>
#include <string>

#include "core/model_store.h"

namespace pelorium {

// Positions from point `first` on: of a Part, and of a profile. Counts stay.
void PutPoints(ModelStore& model, int part, int first, std::initializer_list<Vec3> places);
void PutProfile(ModelStore& model, int profile, int first, std::initializer_list<Vec3> places);

// "1 2.5 -3 | 4 5 6": points first..last, to 4 decimals.
std::string PointsText(const ModelStore& model, int part, int first, int last);
std::string ProfileText(const ModelStore& model, int profile, int first, int last);

// "1 2 4 | 2 5 4": the corners of faces first..last.
std::string FacesText(const ModelStore& model, int part, int first, int last);

}  // namespace pelorium
