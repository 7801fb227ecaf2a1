// The default cube.
#include "geometry/cube.h"

#include <array>

#include "core/part_operations.h"

namespace pelorium {

namespace {

constexpr std::array<Vec3, 8> kPoints = {{{100, 100, 100},
                                          {100, 100, -100},
                                          {-100, 100, -100},
                                          {-100, 100, 100},
                                          {100, -100, 100},
                                          {100, -100, -100},
                                          {-100, -100, -100},
                                          {-100, -100, 100}}};

constexpr std::array<std::array<int, 3>, 12> kFaces = {{{1, 2, 3},
                                                        {3, 4, 1},
                                                        {8, 7, 6},
                                                        {6, 5, 8},
                                                        {1, 5, 6},
                                                        {6, 2, 1},
                                                        {6, 7, 3},
                                                        {3, 2, 6},
                                                        {7, 8, 4},
                                                        {4, 3, 7},
                                                        {1, 4, 8},
                                                        {8, 5, 1}}};

}  // namespace

void MakeCube(ModelStore& model, int part) {
  int number = 0;
  for (const Vec3& place : kPoints) LayPoint(model, part, ++number, place);
  number = 0;
  for (const auto& corners : kFaces) {
    FaceRec& face = model.Faces(part, ++number);
    face.corner1pt = corners[0], face.corner2pt = corners[1], face.corner3pt = corners[2];
    face.onoff = 1;
  }
  PartHeader& header = model.Part(part);
  header.maxpoints = static_cast<std::int16_t>(kPoints.size());
  header.maxfaces = static_cast<std::int16_t>(kFaces.size());
  header.minpoints = header.minfaces = 1;
  header.grid.reset();
}

}  // namespace pelorium
