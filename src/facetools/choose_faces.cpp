// Choosing faces.
#include "facetools/choose_faces.h"

#include "base/numbers.h"

namespace pelorium {

namespace {

// A corner outside the range, and be it outside the table, is simply not chosen.
bool IsChosen(const ModelStore& model, const ChosenPoints& chosen, int point) {
  return point >= chosen.first && point <= chosen.last && (point - chosen.first) % chosen.step == 0 &&
         model.PointMark(chosen.part, point) == 1;
}

template <typename Act>
void ForEachChosenFace(ModelStore& model, const ChosenPoints& chosen, Act act) {
  const int last = model.Part(chosen.part).maxfaces;
  for (FaceRec& face : FaceRange(model, chosen.part, FirstFace(model, chosen.part), last)) {
    if (IsChosen(model, chosen, face.corner1pt) && IsChosen(model, chosen, face.corner2pt) &&
        IsChosen(model, chosen, face.corner3pt)) {
      act(face);
    }
  }
}

}  // namespace

void GroupFaceRange(ModelStore& model, int part, int first, int last, int group) {
  for (FaceRec& face : FaceRange(model, part, first, last)) face.group = Narrow<std::int16_t>(group);
}

void SwitchChosenFaces(ModelStore& model, const ChosenPoints& chosen, bool on) {
  ForEachChosenFace(model, chosen, [on](FaceRec& face) { face.onoff = on ? 1 : 0; });
}

void GroupChosenFaces(ModelStore& model, const ChosenPoints& chosen, int group) {
  ForEachChosenFace(model, chosen, [group](FaceRec& face) { face.group = Narrow<std::int16_t>(group); });
}

std::optional<int> GroupOfPoint(const ModelStore& model, int part, int point) {
  for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
    if (face.corner1pt == point || face.corner2pt == point || face.corner3pt == point) return face.group;
  }
  return std::nullopt;
}

}  // namespace pelorium
