// Places in the model's tables ("Faces(0,3).corner1pt", "PointMark(0,1)") and the program's shared values
// ("TessCount").
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "script/places.h"

namespace pelorium {

// "Points(0,1).X" taken apart; `field` is empty when nothing follows the bracket.
struct Subscripted {
  std::string name;
  std::vector<int> subscripts;
  std::string field;
};

// Nothing when the text has no bracket before its first point. ScriptError when what is in brackets is no
// list of whole numbers or the bracket stays open.
std::optional<Subscripted> ParseSubscripts(const std::string& text);

// Nothing when the text is no such place at all; ScriptError for a table or a field that does not exist; a
// Subscript fault outside the table.
std::optional<Place> FindTablePlace(App& app, const std::string& text);
std::optional<Place> FindSharedPlace(App& app, const std::string& text);

}  // namespace pelorium
