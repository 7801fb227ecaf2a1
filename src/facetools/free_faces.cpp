// Free faces.
#include "facetools/free_faces.h"

#include <algorithm>

#include "base/fault.h"

namespace pelorium {

namespace {

int HeldPoint(int number) { return std::clamp(number, 1, kMaxPoints); }

void Append(ModelStore& model, int part, int a, int b, int c) {
  PartHeader& header = model.Part(part);
  if (header.maxfaces >= kMaxFaces) return;
  FaceRec& face = model.Faces(part, ++header.maxfaces);
  face.corner1pt = HeldPoint(a);
  face.corner2pt = HeldPoint(b);
  face.corner3pt = HeldPoint(c);
  face.onoff = 1;
}

// The quad from `near` to `far` and on to the row behind them.
void AppendQuad(ModelStore& model, int part, int near, int far, int rowWidth) {
  Append(model, part, near, far, near + rowWidth);
  Append(model, part, far, far + rowWidth, near + rowWidth);
}

// A fan over the point `first` of row 0 and its like in all rows of the body.
void AppendBodySide(ModelStore& model, const FreeFaceSettings& s, int first) {
  const auto point = [&](int row) { return std::min(row, s.body.rows - 1) * s.body.width + first; };
  for (int k = 1; k <= s.body.rows; ++k) Append(model, s.part, first, point(k), point(k + 1));
}

}  // namespace

void AppendFan(ModelStore& model, int part, int start, int faces) {
  for (int k = 1; k <= faces; ++k) Append(model, part, start, start + k, start + k + 1);
}

void AppendEndCap(ModelStore& model, const FreeFaceSettings& s) {
  AppendFan(model, s.part, s.fanStart, s.fanFaces);
}

void AppendBottomCap(ModelStore& model, const FreeFaceSettings& s) {
  AppendFan(model, s.part, 1, s.capFaces);
}

void AppendTopCap(ModelStore& model, const FreeFaceSettings& s) {
  AppendFan(model, s.part, std::max(0, s.body.rows - 1) * s.body.width + 1, s.capFaces);
}

void AppendStartSideCap(ModelStore& model, const FreeFaceSettings& s) { AppendBodySide(model, s, 1); }

void AppendEndSideCap(ModelStore& model, const FreeFaceSettings& s) {
  AppendBodySide(model, s, s.body.width);
}

void AppendSideCap(ModelStore& model, const FreeFaceSettings& s) {
  const auto point = [&](int layer) { return layer * s.pointsPerLayer + s.capSide; };
  for (int layer = s.capFirstLayer + 1; layer < s.capLastLayer; ++layer) {
    Append(model, s.part, point(s.capFirstLayer), point(layer), point(layer + 1));
  }
}

void AppendSidePiece(ModelStore& model, const FreeFaceSettings& s) {
  for (int layer = s.pieceFirstLayer; layer < s.pieceLastLayer; ++layer) {
    const int near = layer * s.pointsPerLayer + s.pieceSide;
    AppendQuad(model, s.part, near, near + s.pieceOffset, s.pointsPerLayer);
  }
}

void AppendRadiating(ModelStore& model, const FreeFaceSettings& s) {
  AppendFan(model, s.part, s.radiatingStart, s.runFaces);
}

void AppendDisjoined(ModelStore& model, const FreeFaceSettings& s) {
  for (int k = 0; k < s.runFaces; ++k) {
    const int first = s.runStart + 3 * k;
    Append(model, s.part, first, first + 1, first + 2);
  }
}

void AppendStrip(ModelStore& model, const FreeFaceSettings& s) {
  const int width = s.stripWidth;
  if (width == 0) throw Fault(FaultKind::DivisionByZero, "points per row");
  const int rows = model.Part(s.part).maxpoints / width;
  for (int row = 0; row < rows - 1; ++row) {
    const int first = row * width + 1, last = first + width - 1;
    for (int point = first; point < last; ++point) AppendQuad(model, s.part, point, point + 1, width);
    if (s.stripIsClosed) AppendQuad(model, s.part, last, first, width);
  }
}

}  // namespace pelorium
