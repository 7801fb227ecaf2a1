// Writing DXF files of nothing but an ENTITIES section: what the oldest readers take.
#pragma once

#include <optional>

#include "base/text_writer.h"
#include "core/model_store.h"
#include "interchange/profile_grid.h"

namespace pelorium {

// X, Y and Z are the model's. Colours are numbers 1..255. The first four take the faces of the Part that are
// on, with the positions that the faces themselves hold.

// 3DFACE, the third corner repeated as the fourth; of one material group, or of all.
void WriteDxfTriangles(const ModelStore& model, int part, int colour, std::optional<int> group,
                       TextWriter& out);

// Three 3DFACE a face, around its centroid. They look the other way than the face does: with corners a, b, c
// and centroid m they are (a, m, b), (b, m, c), (c, m, a), inside out against the subdividing of the model
// itself.
void WriteDxfSubdivided(const ModelStore& model, int part, int colour, TextWriter& out);

// SOLID, a flat one that is drawn as high as `thickness`.
void WriteDxfSolids(const ModelStore& model, int part, int colour, int thickness, TextWriter& out);

// POINT for every point of the Part.
void WriteDxfPoints(const ModelStore& model, int part, int colour, TextWriter& out);

// One polyface mesh: all points and faces of the Part, off or on.
void WriteDxfMesh(const ModelStore& model, int part, TextWriter& out);

// LINE for every segment of the profiles that are drawn, the last one ending in the pen's slot.
void WriteDxfProfiles(const ModelStore& model, int colour, TextWriter& out);

// Two 3DFACE for every cell between neighbouring profiles and points.
void WriteDxfProfileGrid(const ModelStore& model, const ProfileGrid& grid, int colour, TextWriter& out);

}  // namespace pelorium
