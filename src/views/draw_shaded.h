// Draws the shaded view: the model as flat coloured triangles with no light, turned as the pose says.
#pragma once

#include "graphics/gl.h"
#include "views/shaded_settings.h"

namespace pelorium {

// Makes the calls of one whole picture. Faces lie where the live points are, not where the faces' own copies
// were last synchronised. A subscript outside its table (a face's group, its corner, a range of points)
// raises a Fault; the shape being drawn is ended and what was drawn by then stands.
void DrawShaded(const ModelStore& model, const ShadedSettings& settings, Gl& gl);

}  // namespace pelorium
