// The document: fixed-size tables of Parts (triangle meshes), profiles (drawn polylines) and material groups.
//
// A Part is one mesh: points and faces numbered from 1. The user works on Parts 0 and 1, slot 2 is a
// temporary store of points, slot 3 the copy buffer. A profile is one polyline of up to 37 points numbered
// from 0; a point's number is also called a layer. What a Part or profile has once stands in a header of its
// own, so that no face or point can overwrite it; files and numbering are as if it stood in element 1.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "core/kept_table.h"
#include "core/model_patch.h"

namespace pelorium {

class RandomSeries;

inline constexpr int kParts = 4;
inline constexpr int kUserParts = 2;
inline constexpr int kTempPart = 2;
inline constexpr int kBufferPart = 3;
inline constexpr int kMaxPoints = 23000;
inline constexpr int kMaxFaces = 7700;
inline constexpr int kMaxLayer = 36;    // profile points are numbered 0..36
inline constexpr int kMaxProfile = 36;  // profiles are numbered 0..36
inline constexpr int kMaxGroup = 41;    // material groups are numbered 0..41

struct Vec3 {
  double X = 0, Y = 0, Z = 0;
  bool operator==(const Vec3&) const = default;
};

// X, Y, Z of one record for another: mesh points, profile points, places.
template <typename To, typename From>
void CopyPosition(To& to, const From& from) {
  to.X = from.X;
  to.Y = from.Y;
  to.Z = from.Z;
}

// A point of a mesh. Small: the views walk tens of thousands of them at each mouse move.
struct PointRec {
  double X = 1, Y = 1, Z = 1;
  double u = 1, v = 1;     // texture coordinate of the UV point of this number
  std::int16_t onoff = 1;  // 1 = on (taken part in generators and exports)
};

// A point of a profile. One record is three things: the drawn point, the extrude's settings of the layer of
// that number, and those of the section (point of the ring) of that number. Angles in degrees.
struct ProfilePointRec {
  double X = 0, Y = 0, Z = 0;
  double rotateX = 0, turnY = 0, spinZ = 0;           // layer
  double multX = 1, multY = 1, multZ = 1;             // layer, section, layer
  double multZb = 1;                                  // section
  double moveX = 0, moveY = 0, moveZ = 0;             // layer
  double secMoveX = 0, secMoveY = 0, secMoveZ = 0;    // section
  double secRotateX = 0, secTurnY = 0, secSpinZ = 0;  // section
  double secMultX = 1, secMultY = 1;                  // section
  double addXAmt1 = 0, addYAmt1 = 0, addZAmt1 = 0;  // section, layer, section: amounts of effector profile 1
  double addXAmt2 = 0, addYAmt2 = 0, addZAmt2 = 0;  // the same of effector profile 2
  // What a file held in the place of the header's `first` and `count`, in the records other than point 1's.
  // Kept so that a file that is opened and saved stays the same.
  std::int16_t spareFirst = 0, spareCount = 0;
};

// What a profile has once.
struct ProfileHeader {
  std::int16_t first = 0;
  std::int16_t count =
      0;  // the pen's slot: points 0..count-1 are drawn, slot `count` ends the last segment; 0..36
  double genRotateX = 0, genTurnY = 0, genSpinZ = 0;
  double genMoveX = 0, genMoveY = 0, genMoveZ = 0;
  double genMultX = 1, genMultY = 1, genMultZ = 1;
  double layerSpacing = 10;
  std::int16_t layerCount = 12;
  std::int16_t originPathProfile = 30;
  std::int16_t pathProfileX = 30, pathProfileY = 30, pathProfileZ = 30;
  std::int16_t topCap = 0, bottomCap = 0;
  std::int16_t sectionCount = 31;
  std::int16_t addProfile1X = 30, addProfile1Y = 30, addProfile1Z = 30;
  std::int16_t addProfile2X = 30, addProfile2Y = 30, addProfile2Z = 30;
};

// A triangle. The wire views draw from its own copies of the corners, as they were last synchronised.
struct FaceRec {
  double c1X = 0, c1Y = 0, c1Z = 0;
  double c2X = 0, c2Y = 0, c2Z = 0;
  double c3X = 0, c3Y = 0, c3Z = 0;
  std::int32_t corner1pt = 1, corner2pt = 1, corner3pt = 1;  // point numbers; 1, 1, 1 is an empty face
  std::int16_t onoff = 1;
  std::int16_t group = 0;                  // material group 0..41
  std::int16_t vt1 = 0, vt2 = 0, vt3 = 0;  // UV point numbers of the corners
};

// The points of a generated body as they were laid: rows of `width` points, numbered row by row from 1.
struct LaidGrid {
  int width = 0, rows = 0;
  bool operator==(const LaidGrid&) const = default;
};

// What a Part has once.
struct PartHeader {
  std::int16_t maxpoints = 0, minpoints = 1;  // highest and lowest point number in use
  std::int16_t maxfaces = 0, minfaces = 1;    // the same of faces; a file may set a minimum of 0
  std::string PartName;
  std::int16_t vtcount = 1;      // UV points
  std::int16_t vtfacecount = 1;  // last face with UV points
  std::int16_t Sections = 31;  // last point number of a ring, counted from 0: rings have Sections + 1 points
  std::int16_t count = 0;      // `count` of the profile that the Part was made from
  std::optional<LaidGrid>
      grid;  // while the Part is still what Revolve, Extrude or the mesh grid built; in no file
};

struct MaterialRec {
  std::int16_t illum = 2;
  double KaR = 0, KaG = 0, KaB = 0;
  double KsR = 0, KsG = 0, KsB = 0;
  double KdR = 0, KdG = 0, KdB = 0;
  double d = 1;
  double TfR = 1, TfG = 1, TfB = 1;
  double Ns = 0.25;
  double bump_amt = 0.11, spec_amt = 0.12, refl_amt = 0.05, amb_amt = 0.12, dif_amt = 0.75;
  std::int16_t usebump = 0, useamb = 0, usedif = 0, usespec = 0;
  std::string GroupName;
};

// The numbers from..to of a table, checked once and then walked on contiguous memory.
template <typename Rec>
struct Range {
  Rec* first;
  Rec* last;  // one past the end
  Rec* begin() const { return first; }
  Rec* end() const { return last; }
};

// All tables, allocated once. Subscripts are checked: one outside its table raises a Subscript fault.
//
// Reading through a const ModelStore leaves no mark; a record that is reached through another one counts as
// written, and what it was before is kept while changes are kept at all.
class ModelStore {
 public:
  ModelStore();
  ModelStore(const ModelStore&) = delete;
  ModelStore& operator=(const ModelStore&) = delete;

  PointRec& Points(int part, int point) { return points_.Edit(PointIndex(part, point)); }
  const PointRec& Points(int part, int point) const { return points_[PointIndex(part, point)]; }
  // Second on/off mark of a point: what the views show and the picks choose.
  std::int16_t& PointMark(int part, int point) { return pointMarks_.Edit(PointIndex(part, point)); }
  std::int16_t PointMark(int part, int point) const { return pointMarks_[PointIndex(part, point)]; }
  FaceRec& Faces(int part, int face) { return faces_.Edit(FaceIndex(part, face)); }
  const FaceRec& Faces(int part, int face) const { return faces_[FaceIndex(part, face)]; }
  // Written 1 at the start and by imports; nothing reads it.
  std::int16_t& FaceMark(int part, int face) { return faceMarks_.Edit(FaceIndex(part, face)); }
  std::int16_t FaceMark(int part, int face) const { return faceMarks_[FaceIndex(part, face)]; }
  ProfilePointRec& ProfilePts(int point, int profile) {
    return profilePoints_.Edit(ProfileIndex(point, profile));
  }
  const ProfilePointRec& ProfilePts(int point, int profile) const {
    return profilePoints_[ProfileIndex(point, profile)];
  }
  MaterialRec& MaterialGroups(int group);
  const MaterialRec& MaterialGroups(int group) const;

  PartHeader& Part(int part);
  const PartHeader& Part(int part) const;
  ProfileHeader& Profile(int profile);
  const ProfileHeader& Profile(int profile) const;

  // Faces from..to, to be written.
  Range<FaceRec> EditFaces(int part, int from, int to);

  // From now on what records were before they changed is kept, starting with the present state.
  void BeginChanges();
  // How far the changes since then go; stops looking at the first one that goes to the model.
  ModelChange Changes() const;
  // True when a record was reached to be written since then.
  bool hasMarks() const;
  // What the records that changed were before.
  ModelPatch TakeChanges() const;
  // The tables and the patch change sides; nothing of it counts as a change.
  void Swap(ModelPatch& patch);

 private:
  static std::size_t PointIndex(int part, int point);
  static std::size_t FaceIndex(int part, int face);
  static std::size_t ProfileIndex(int point, int profile);

  auto Tables() {
    return std::tie(points_, pointMarks_, faces_, faceMarks_, profilePoints_, materials_, parts_, profiles_);
  }
  auto Tables() const {
    return std::tie(points_, pointMarks_, faces_, faceMarks_, profilePoints_, materials_, parts_, profiles_);
  }

  KeptTable<PointRec> points_;
  KeptTable<std::int16_t> pointMarks_;
  KeptTable<FaceRec> faces_;
  KeptTable<std::int16_t> faceMarks_;
  KeptTable<ProfilePointRec> profilePoints_;
  KeptTable<MaterialRec> materials_;
  KeptTable<PartHeader> parts_;
  KeptTable<ProfileHeader> profiles_;
};

// Faces and points `from`..`to` of a Part; an empty range when from > to.
Range<const FaceRec> FaceRange(const ModelStore& model, int part, int from, int to);
Range<FaceRec> FaceRange(ModelStore& model, int part, int from, int to);
Range<const PointRec> PointRange(const ModelStore& model, int part, int from, int to);

// The first face to visit: a file may hold a minfaces of 0, and face 0 is no real face.
int FirstFace(const ModelStore& model, int part);

// Fills all tables with the defaults of the start. `random` gives each group colours of its own: nine numbers
// a group, floor(r * 255) / 256, in the order Ka, Ks, Kd with R, G, B each.
void ResetModel(ModelStore& model, RandomSeries& random);

}  // namespace pelorium
