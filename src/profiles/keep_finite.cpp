// Edits that keep profiles finite.
#include "profiles/keep_finite.h"

#include <array>
#include <cmath>
#include <utility>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kProfilePoints = (kMaxProfile + 1) * (kMaxLayer + 1);

// act(index, point, profile) for every point of all profiles.
template <typename Act>
void ForEachPoint(Act act) {
  std::size_t index = 0;
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    for (int point = 0; point <= kMaxLayer; ++point) act(index++, point, profile);
  }
}

// Positions and counts as they were.
class Snapshot {
 public:
  explicit Snapshot(ModelStore& model) : model_(model) {
    ForEachPoint([this](std::size_t i, int point, int profile) {
      CopyPosition(positions_[i], model_.ProfilePts(point, profile));
    });
    for (int profile = 0; profile <= kMaxProfile; ++profile) {
      counts_[static_cast<std::size_t>(profile)] = model_.Profile(profile).count;
    }
  }

  // A coordinate that is none now and was one before raises Overflow.
  void CheckFinite() const {
    ForEachPoint([this](std::size_t i, int point, int profile) {
      const ProfilePointRec& p = model_.ProfilePts(point, profile);
      const Vec3& was = positions_[i];
      for (const auto& [now, before] : {std::pair{p.X, was.X}, {p.Y, was.Y}, {p.Z, was.Z}}) {
        if (!std::isfinite(now) && std::isfinite(before)) RaiseOverflow(now);
      }
    });
  }

  void PutBack() {
    ForEachPoint([this](std::size_t i, int point, int profile) {
      CopyPosition(model_.ProfilePts(point, profile), positions_[i]);
    });
    for (int profile = 0; profile <= kMaxProfile; ++profile) {
      model_.Profile(profile).count = counts_[static_cast<std::size_t>(profile)];
    }
  }

 private:
  ModelStore& model_;
  std::array<Vec3, kProfilePoints> positions_;
  std::array<std::int16_t, kMaxProfile + 1> counts_{};
};

}  // namespace

void EditKeepingFinite(ModelStore& model, const std::function<void()>& edit) {
  Snapshot before(model);
  edit();
  try {
    before.CheckFinite();
  } catch (...) {
    before.PutBack();
    throw;
  }
}

}  // namespace pelorium
