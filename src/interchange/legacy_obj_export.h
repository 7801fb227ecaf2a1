// The first OBJ exports of the system: the grid of the profiles instead of the mesh, "v X -Z Y", faces that
// name their points by negative numbers.
#pragma once

#include <optional>

#include "base/text_writer.h"
#include "core/model_store.h"
#include "interchange/profile_grid.h"

namespace pelorium {

enum class CellFaces { None, Forward, Backward };  // "f -3 -2 -1", "f -1 -2 -3"

struct GridExportSettings {
  ProfileGrid grid;
  bool groupPerLayer = false;  // "g layer" and the profile's number before each row
  // End caps by the ticks of this profile: one polygon each on the first and the last row.
  std::optional<int> cappedProfile;
};

// Two triangles a cell, each with three points of its own.
void WriteSeparateCells(const ModelStore& model, const GridExportSettings& settings, CellFaces faces,
                        TextWriter& out);

// Each point once, then one quad a cell that names its points by their absolute numbers.
void WriteJoinedCells(const ModelStore& model, const GridExportSettings& settings, TextWriter& out);

// Some of these exports round the profiles themselves first. All of them, X, Y and Z.
void RoundProfilePoints(ModelStore& model, int decimals);

}  // namespace pelorium
