// A pattern to cut out, fold and glue: the lines and texts of faces that lie flat in the model.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/model_store.h"

namespace pelorium {

// Taken are the faces of the range that are in use, on, have an area, and whose corners' Z is the elevation
// within 0.01.
struct PatternSettings {
  int part = 0, firstFace = 1, lastFace = 0;
  double elevation = 10;
  double mmPerUnit = 1;            // above 0, else an InvalidValue fault
  std::optional<double> tabWidth;  // millimetres; glue tabs are left out without it
  bool faceNumbers = false;
};

// Millimetres; y goes up.
struct PatternPlace {
  double x = 0, y = 0;
};

enum class PatternLineKind {
  Cut,
  Fold,      // either way, or not at all
  Mountain,  // folded away from the printed side
  Valley,
};

struct PatternLine {
  PatternPlace from, to;
  PatternLineKind kind = PatternLineKind::Cut;
};

struct PatternText {
  PatternPlace centre;
  double height = 3;
  std::string text;
  bool isFace = false;  // the number of a face, else that of an edge
};

struct FlatPattern {
  std::vector<PatternLine> lines;
  std::vector<PatternText> texts;
  int faces = 0;
};

// Edges of two faces that lie on the same two places within 0.01 units are one fold, all others are cut.
// Those that unfolding lays on each other, by their numbers, may miss each other by its grain (steps of 0.1
// degree).
//
// While the temporary Part holds as many points as the Part, it tells where the faces lay before they were
// unfolded. Then folds are mountains or valleys; any edges within the grain of each other are one fold; and
// two cut edges that were one get the same number. A flat triangle is its face seen from behind: its corner 1
// is the face's corner 2 and the reverse.
//
// Tabs stand on cut edges, of two that get glued on one only, and never over a face or another tab.
FlatPattern MakeFlatPattern(const ModelStore& model, const PatternSettings& settings);

}  // namespace pelorium
