// Chooses points of a Part: by number, by faces, by layers, by distance and along an axis. Each choice writes
// both marks of a point alike. Numbers outside the tables raise a Subscript fault; what was marked before
// stays.
#pragma once

#include <optional>

#include "core/axes.h"
#include "core/model_store.h"

namespace pelorium {

void MarkPoint(ModelStore& model, int part, int point, bool on);

// The points first..last, none when last < first.
void MarkPoints(ModelStore& model, int part, int first, int last, bool on);

// Points 1, 1 + step, 1 + 2 * step .. of those in use; a step below 1 marks none.
void MarkEvery(ModelStore& model, int part, int step, bool on);

// Those that are chosen no more, the others now.
void InvertPoints(ModelStore& model, int part, int first, int last);

// The three corners of the faces firstFace..lastFace, or only of those of one material group.
void MarkCorners(ModelStore& model, int part, int firstFace, int lastFace, bool on,
                 std::optional<int> group = std::nullopt);

// Whole layers, counted from 0, of rings of `ringWidth` points; they end at the Part's last point.
struct RingLayers {
  int first = 0, last = 0;
  int ringWidth = 0;
};

void MarkLayers(ModelStore& model, int part, const RingLayers& layers, bool on);

// The points 0..maxpoints no further off than `distance` units; the others keep their marks.
void MarkWithin(ModelStore& model, int part, const Vec3& centre, double distance, bool on);

// Every point 1..maxpoints: on when low <= coordinate <= high, else off.
void MarkOnlyBetween(ModelStore& model, int part, Axis axis, double low, double high);

}  // namespace pelorium
