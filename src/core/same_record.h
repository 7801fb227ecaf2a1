// Whether records are the same to the bit: -0 is not 0 here, a NaN is itself, and what lies between fields
// does not count.
#pragma once

#include "core/model_store.h"

namespace pelorium {

inline bool SameRecord(std::int16_t a, std::int16_t b) { return a == b; }
bool SameRecord(const PointRec& a, const PointRec& b);
bool SameRecord(const FaceRec& a, const FaceRec& b);
bool SameRecord(const ProfilePointRec& a, const ProfilePointRec& b);
bool SameRecord(const MaterialRec& a, const MaterialRec& b);
bool SameRecord(const PartHeader& a, const PartHeader& b);
bool SameRecord(const ProfileHeader& a, const ProfileHeader& b);

// All but the face's own copies of its corners.
bool SameButCorners(const FaceRec& a, const FaceRec& b);

}  // namespace pelorium
