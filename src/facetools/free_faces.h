// Faces made by counting rules over a run of point numbers. New faces stand behind those in use, switched on;
// faces past number 7700 are left out, and corners outside 1..23000 become the nearest of them.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Point n of layer l has the number l * (points per layer) + n, n from 1 and l from 0.
struct FreeFaceSettings {
  int part = 0;

  int fanStart = 1, fanFaces = 34;  // end cap
  int pointsPerLayer = 32;          // of side cap and side piece

  int capSide = 1;  // point of the layers, from 1
  int capFirstLayer = 0, capLastLayer = 1;

  int pieceSide = 1;
  int pieceFirstLayer = 0, pieceLastLayer = 2;
  int pieceOffset = 0;  // from the near edge's point to the far edge's

  int runStart = 1;        // first point of the disjoined faces
  int radiatingStart = 1;  // the centre of the radiating ones
  int runFaces = 34;

  int stripWidth = 32;  // points of a row
  bool stripIsClosed = false;

  LaidGrid body = {37, 0};
  int capFaces = 35;  // of a fan over a row of the body
};

// A fan of `faces` triangles: start, start + k, start + k + 1 for k from 1.
void AppendFan(ModelStore& model, int part, int start, int faces);

void AppendEndCap(ModelStore& model, const FreeFaceSettings& settings);
// Fans over the first and the last row of the body: `capFaces` faces.
void AppendBottomCap(ModelStore& model, const FreeFaceSettings& settings);
void AppendTopCap(ModelStore& model, const FreeFaceSettings& settings);
// Fans over the first and the last points of all rows of the body. One face a row; the last two stay behind
// the last row and are flat.
void AppendStartSideCap(ModelStore& model, const FreeFaceSettings& settings);
void AppendEndSideCap(ModelStore& model, const FreeFaceSettings& settings);
// A fan from the side point of the first layer over those of the layers up to the last one.
void AppendSideCap(ModelStore& model, const FreeFaceSettings& settings);
// Two faces a layer between two sides. An offset of 0 makes flat ones.
void AppendSidePiece(ModelStore& model, const FreeFaceSettings& settings);
void AppendRadiating(ModelStore& model, const FreeFaceSettings& settings);
// Each face on three points of its own.
void AppendDisjoined(ModelStore& model, const FreeFaceSettings& settings);
// Quads over all rows that the Part's points fill. A closed row leads from its last point back to its own
// first. A width of 0 raises a DivisionByZero fault.
void AppendStrip(ModelStore& model, const FreeFaceSettings& settings);

}  // namespace pelorium
