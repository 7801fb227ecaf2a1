// Welding by equal coordinates. All pairs of corners of a full Part would be 270 million comparisons: the
// points stand in a hash table of their coordinates instead, the lowest number first.
#include "geometry/conjoin.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "base/fault.h"

namespace pelorium {

namespace {

template <typename Act>
void ForEachCorner(Range<FaceRec> faces, Act act) {
  for (FaceRec& face : faces) {
    for (std::int32_t* corner : {&face.corner1pt, &face.corner2pt, &face.corner3pt}) act(*corner);
  }
}

Range<FaceRec> FacesInUse(ModelStore& model, int part) {
  return FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces);
}

// By number, for the points that the faces in use name.
std::vector<bool> UsedPoints(ModelStore& model, int part) {
  std::vector<bool> isUsed(kMaxPoints + 1);
  ForEachCorner(FacesInUse(model, part), [&](std::int32_t corner) {
    if (corner < 0 || corner > kMaxPoints) throw Fault(FaultKind::Subscript, "corner of a face");
    isUsed[static_cast<std::size_t>(corner)] = true;
  });
  return isUsed;
}

bool IsSamePlace(const PointRec& a, const PointRec& b) { return a.X == b.X && a.Y == b.Y && a.Z == b.Z; }

// Points by place, each place once.
class PlaceTable {
 public:
  // The number that was first told for the place of this point.
  int FirstOn(const ModelStore& model, int part, int number) {
    const PointRec& point = model.Points(part, number);
    if (!IsSamePlace(point, point)) return number;  // no number is equal to itself there
    for (std::size_t slot = Hash(point) % kSlots;; slot = (slot + 1) % kSlots) {
      if (numbers_[slot] == 0) numbers_[slot] = number;
      if (IsSamePlace(model.Points(part, numbers_[slot]), point)) return numbers_[slot];
    }
  }

 private:
  static constexpr std::size_t kSlots = 1 << 16;  // more than twice as many as there are points

  static std::uint64_t Hash(const PointRec& point) {
    std::uint64_t hash = 0;
    for (const double coordinate : {point.X, point.Y, point.Z}) {
      hash = (hash ^ std::bit_cast<std::uint64_t>(coordinate + 0.0)) * 0x9E3779B97F4A7C15U;  // -0 is 0
      hash ^= hash >> 29;
    }
    return hash ^ hash >> 32;
  }

  std::vector<int> numbers_ = std::vector<int>(kSlots, 0);  // 0: free
};

}  // namespace

void ConjoinCorners(ModelStore& model, int part) {
  const std::vector<bool> isUsed = UsedPoints(model, part);
  std::vector<int> first(kMaxPoints + 1, 0);
  PlaceTable places;
  for (int number = 1; number <= kMaxPoints; ++number) {
    const auto at = static_cast<std::size_t>(number);
    if (isUsed[at]) first[at] = places.FirstOn(model, part, number);
  }
  ForEachCorner(FacesInUse(model, part),
                [&](std::int32_t& corner) { corner = first[static_cast<std::size_t>(corner)]; });
}

void SwitchOffUnused(ModelStore& model, int part) {
  const std::vector<bool> isUsed = UsedPoints(model, part);
  for (int number = 1; number <= model.Part(part).maxpoints; ++number) {
    if (isUsed[static_cast<std::size_t>(number)]) continue;
    model.Points(part, number).onoff = model.PointMark(part, number) = 0;
  }
}

}  // namespace pelorium
