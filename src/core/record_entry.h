// Points, faces and counts as they are typed into boxes: numbers of any size, held in what the tables take.
#pragma once

#include <array>

#include "core/model_store.h"

namespace pelorium {

// `onoff` goes to both marks of the point: 1 for 1 and more, 0 for 0 and less.
void StorePointEntry(ModelStore& model, int part, int point, const Vec3& place, double onoff);

// Corners go to 1..23000; a 0 stands, but a first corner of 0 becomes 1, and a second or third one of 0 makes
// the first 1.
void StoreFaceEntry(ModelStore& model, int part, int face, const std::array<double, 3>& corners,
                    double onoff);

// At most 23000 points and 7700 faces. The Part is no laid body any more.
void StoreCountEntry(ModelStore& model, int part, double points, double faces);

}  // namespace pelorium
