// The tables, their bounds and their defaults.
#include "core/model_store.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/fault.h"
#include "base/random_series.h"
#include "core/same_record.h"

namespace pelorium {

namespace {

constexpr std::size_t kPointSlots = kMaxPoints + 1;
constexpr std::size_t kFaceSlots = kMaxFaces + 1;
constexpr std::size_t kLayerSlots = kMaxLayer + 1;
constexpr std::size_t kProfileSlots = kMaxProfile + 1;
constexpr std::size_t kGroupSlots = kMaxGroup + 1;

std::size_t Checked(int index, std::size_t slots, const char* what) {
  if (index < 0 || static_cast<std::size_t>(index) >= slots) {
    throw Fault(FaultKind::Subscript, std::string(what) + " " + std::to_string(index));
  }
  return static_cast<std::size_t>(index);
}

void ResetMaterial(MaterialRec& material, int group, RandomSeries& random) {
  material = MaterialRec{};
  for (double MaterialRec::*channel :
       {&MaterialRec::KaR, &MaterialRec::KaG, &MaterialRec::KaB, &MaterialRec::KsR, &MaterialRec::KsG,
        &MaterialRec::KsB, &MaterialRec::KdR, &MaterialRec::KdG, &MaterialRec::KdB}) {
    material.*channel = std::floor(random.Next() * 255) / 256;
  }
  material.GroupName = "bone_" + std::to_string(group);
}

void ResetPart(ModelStore& model, int part) {
  model.Part(part) = PartHeader{};
  model.Part(part).PartName = "part_" + std::to_string(part);
  for (int point = 0; point <= kMaxPoints; ++point) {
    model.Points(part, point) = PointRec{};
    model.PointMark(part, point) = 1;
  }
  for (int face = 0; face <= kMaxFaces; ++face) {
    model.Faces(part, face) = FaceRec{};
    model.Faces(part, face).group = static_cast<std::int16_t>(part);
    model.FaceMark(part, face) = 1;
  }
}

template <typename Rec>
Range<const Rec> Checked(const Rec& from, const Rec& to) {
  return {&from, &to + 1};
}

struct Differ {
  template <typename Rec>
  bool operator()(const Rec& a, const Rec& b) const {
    return !SameRecord(a, b);
  }
};

// How far a change of a record goes, by its place in its table.
ModelChange ReachOf(std::size_t at, const PointRec&, const PointRec&) {
  return at < kUserParts * kPointSlots ? ModelChange::Model : ModelChange::Elsewhere;
}
ModelChange ReachOf(std::size_t at, const FaceRec& before, const FaceRec& now) {
  if (SameButCorners(before, now)) return ModelChange::Corners;
  return at < kUserParts * kFaceSlots ? ModelChange::Model : ModelChange::Elsewhere;
}
ModelChange ReachOf(std::size_t at, const PartHeader&, const PartHeader&) {
  return at < kUserParts ? ModelChange::Model : ModelChange::Elsewhere;
}
// A mark of a point; one of a face comes with the face.
ModelChange ReachOf(std::size_t at, std::int16_t, std::int16_t) {
  return at < kUserParts * kPointSlots ? ModelChange::Model : ModelChange::Elsewhere;
}
template <typename Rec>
ModelChange ReachOf(std::size_t, const Rec&, const Rec&) {
  return ModelChange::Model;
}

template <typename Rec>
void WidenBy(const KeptTable<Rec>& table, ModelChange& reach) {
  table.ForEachChange(Differ{}, [&reach](std::size_t at, const Rec& before, const Rec& now) {
    reach = std::max(reach, ReachOf(at, before, now));
    return reach < ModelChange::Model;
  });
}

}  // namespace

ModelStore::ModelStore()
    : points_(kParts * kPointSlots),
      pointMarks_(kParts * kPointSlots),
      faces_(kParts * kFaceSlots),
      faceMarks_(kParts * kFaceSlots),
      profilePoints_(kLayerSlots * kProfileSlots),
      materials_(kGroupSlots),
      parts_(kParts),
      profiles_(kProfileSlots) {}

MaterialRec& ModelStore::MaterialGroups(int group) {
  return materials_.Edit(Checked(group, kGroupSlots, "group"));
}
const MaterialRec& ModelStore::MaterialGroups(int group) const {
  return materials_[Checked(group, kGroupSlots, "group")];
}
PartHeader& ModelStore::Part(int part) { return parts_.Edit(Checked(part, kParts, "Part")); }
const PartHeader& ModelStore::Part(int part) const { return parts_[Checked(part, kParts, "Part")]; }
ProfileHeader& ModelStore::Profile(int profile) {
  return profiles_.Edit(Checked(profile, kProfileSlots, "profile"));
}
const ProfileHeader& ModelStore::Profile(int profile) const {
  return profiles_[Checked(profile, kProfileSlots, "profile")];
}

Range<FaceRec> ModelStore::EditFaces(int part, int from, int to) {
  const std::size_t first = FaceIndex(part, from), last = FaceIndex(part, to);
  return {faces_.Edit(first, last), &faces_.Edit(last) + 1};
}

void ModelStore::BeginChanges() {
  std::apply([](auto&... table) { (table.Begin(), ...); }, Tables());
}

ModelChange ModelStore::Changes() const {
  ModelChange reach = ModelChange::None;
  const auto widen = [&reach](const auto& table) {
    if (reach < ModelChange::Model) WidenBy(table, reach);
  };
  std::apply([&widen](const auto&... table) { (widen(table), ...); }, Tables());
  return reach;
}

bool ModelStore::hasMarks() const {
  return std::apply([](const auto&... table) { return (table.hasMarks() || ...); }, Tables());
}

ModelPatch ModelStore::TakeChanges() const {
  return std::apply([](const auto&... table) { return ModelPatch(table.Changes(Differ{})...); }, Tables());
}

void ModelStore::Swap(ModelPatch& patch) {
  std::apply(
      [this](auto&... side) {
        std::apply([&side...](auto&... table) { (table.Swap(side), ...); }, Tables());
      },
      patch);
}

std::size_t ModelStore::PointIndex(int part, int point) {
  return Checked(part, kParts, "Part") * kPointSlots + Checked(point, kPointSlots, "point");
}

std::size_t ModelStore::FaceIndex(int part, int face) {
  return Checked(part, kParts, "Part") * kFaceSlots + Checked(face, kFaceSlots, "face");
}

std::size_t ModelStore::ProfileIndex(int point, int profile) {
  return Checked(profile, kProfileSlots, "profile") * kLayerSlots + Checked(point, kLayerSlots, "layer");
}

Range<const FaceRec> FaceRange(const ModelStore& model, int part, int from, int to) {
  if (from > to) return {nullptr, nullptr};
  return Checked(model.Faces(part, from), model.Faces(part, to));
}

Range<FaceRec> FaceRange(ModelStore& model, int part, int from, int to) {
  if (from > to) return {nullptr, nullptr};
  return model.EditFaces(part, from, to);
}

Range<const PointRec> PointRange(const ModelStore& model, int part, int from, int to) {
  if (from > to) return {nullptr, nullptr};
  return Checked(model.Points(part, from), model.Points(part, to));
}

int FirstFace(const ModelStore& model, int part) { return std::max<int>(1, model.Part(part).minfaces); }

void ResetModel(ModelStore& model, RandomSeries& random) {
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    model.Profile(profile) = ProfileHeader{};
    for (int point = 0; point <= kMaxLayer; ++point) model.ProfilePts(point, profile) = ProfilePointRec{};
  }
  for (int group = 0; group <= kMaxGroup; ++group) ResetMaterial(model.MaterialGroups(group), group, random);
  for (int part = 0; part < kParts; ++part) ResetPart(model, part);
}

}  // namespace pelorium
