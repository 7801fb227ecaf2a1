// Tables as short texts.
#include "support/model_text.h"

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kDecimals = 4;

// The texts of the records first..last.
template <typename TextOf>
std::string Joined(int first, int last, TextOf textOf) {
  std::string text;
  for (int i = first; i <= last; ++i) text += (i > first ? " | " : "") + textOf(i);
  return text;
}

template <typename Rec>
std::string Place(const Rec& p) {
  return RoundedForm(p.X, kDecimals) + ' ' + RoundedForm(p.Y, kDecimals) + ' ' + RoundedForm(p.Z, kDecimals);
}

}  // namespace

void PutPoints(ModelStore& model, int part, int first, std::initializer_list<Vec3> places) {
  for (const Vec3& place : places) CopyPosition(model.Points(part, first++), place);
}

void PutProfile(ModelStore& model, int profile, int first, std::initializer_list<Vec3> places) {
  for (const Vec3& place : places) CopyPosition(model.ProfilePts(first++, profile), place);
}

std::string PointsText(const ModelStore& model, int part, int first, int last) {
  return Joined(first, last, [&](int i) { return Place(model.Points(part, i)); });
}

std::string ProfileText(const ModelStore& model, int profile, int first, int last) {
  return Joined(first, last, [&](int i) { return Place(model.ProfilePts(i, profile)); });
}

std::string FacesText(const ModelStore& model, int part, int first, int last) {
  return Joined(first, last, [&](int i) {
    const FaceRec& f = model.Faces(part, i);
    return std::to_string(f.corner1pt) + ' ' + std::to_string(f.corner2pt) + ' ' +
           std::to_string(f.corner3pt);
  });
}

}  // namespace pelorium
