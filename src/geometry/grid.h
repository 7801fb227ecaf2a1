// The faces of generated grids: Revolve, Extrude and the mesh grid share them.
#pragma once

#include "core/model_store.h"

namespace pelorium {

enum class Seam {
  Open,    // the quad behind the last column is two empty faces
  Wrapped  // it leads to the first point one row up, which closes the body
};

// Where a grid stands in a Part that holds other faces and points before it.
struct GridPlace {
  int facesBefore = 0;
  int pointsBefore = 0;
};

// Faces over points numbered row by row without a gap: point `row * width + column + 1`, from 1 or behind the
// points before. Two faces a quad at neighbouring numbers, rows 0 .. rows - 2; one walk along the whole
// strip. Sets minfaces to 1 and maxfaces to width * (rows - 1) * 2 - 1 more than the faces before, held in
// 0..7700: the last face of the walk is left out of the count, since with a wrapped seam it would name a
// point past the grid. Corners past point 23000 become 23000, and no face past number 7699 is written.
void BuildGridFaces(ModelStore& model, int part, int width, int rows, Seam seam, GridPlace place = {});

}  // namespace pelorium
