// What an event changed in the tables, so that it can be undone and done again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>

#include "core/kept_table.h"

namespace pelorium {

struct FaceRec;
struct MaterialRec;
struct PartHeader;
struct PointRec;
struct ProfileHeader;
struct ProfilePointRec;

// How far a change goes; a greater one covers the smaller ones.
enum class ModelChange {
  None,
  Corners,    // only the faces' own copies of their corners
  Elsewhere,  // scratch, the copy buffer: nothing that a project keeps
  Model,
};

// Points, PointMark, Faces, FaceMark, ProfilePts, MaterialGroups, Part and Profile, in the order of the
// tables.
using ModelPatch = std::tuple<TablePatch<PointRec>, TablePatch<std::int16_t>, TablePatch<FaceRec>,
                              TablePatch<std::int16_t>, TablePatch<ProfilePointRec>, TablePatch<MaterialRec>,
                              TablePatch<PartHeader>, TablePatch<ProfileHeader>>;

std::size_t BytesOf(const ModelPatch& patch);

// Adds what `more` has of records that `patch` has not.
void Join(ModelPatch& patch, const ModelPatch& more);

}  // namespace pelorium
