// The numbered model.
#include "support/numbered_model.h"

#include <array>
#include <cstdint>

namespace pelorium {

namespace {

class Numbering {
 public:
  template <typename Rec>
  void Fill(Rec& record) {
    for (const RecordField<Rec>& field : FieldsOf<Rec>()) {
      std::visit([&](auto member) { Put(record.*member); }, field.member);
    }
  }

  // The fractions are ties of two and of three decimals, to both sides.
  void Put(double& field) {
    constexpr std::array<double, 4> kEnds = {0.125, 0.375, 0.0625, 0.1875};
    ++fractions_;
    field = fractions_ + kEnds[static_cast<std::size_t>(fractions_ % 4)];
  }
  void Put(std::int16_t& field) { field = static_cast<std::int16_t>(++wholes_); }
  void Put(std::int32_t& field) { field = ++wholes_; }
  void Put(std::string& field) { field = " name, \"" + std::to_string(++wholes_) + "\" "; }

 private:
  int fractions_ = 0, wholes_ = 100;
};

void NumberPart(ModelStore& model, int part, Numbering& numbers) {
  PartHeader& header = model.Part(part);
  numbers.Fill(header);
  header.maxpoints = static_cast<std::int16_t>(3 + part);
  header.minpoints = static_cast<std::int16_t>(2 + part);
  header.maxfaces = static_cast<std::int16_t>(2 + part);
  header.minfaces = static_cast<std::int16_t>(1 + part);
  header.vtcount = static_cast<std::int16_t>(2 + part);
  for (int i = 1; i <= header.maxpoints; ++i) {
    numbers.Fill(model.Points(part, i));
    numbers.Put(model.PointMark(part, i));
  }
  constexpr std::array<std::int16_t, 3> kSwitches = {1, 0, 5};
  for (int i = 1; i <= header.maxfaces; ++i) {
    FaceRec& face = model.Faces(part, i);
    numbers.Fill(face);
    face.c2X += 30, face.c3Y += 40;  // or the corners would lie on one line
    face.group = static_cast<std::int16_t>(i + 10 * part);
    face.onoff = kSwitches[static_cast<std::size_t>(i - 1)];
  }
}

void NumberProfiles(ModelStore& model, Numbering& numbers) {
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    numbers.Fill(model.Profile(profile));
    model.Profile(profile).count = static_cast<std::int16_t>(std::min(profile + 1, kMaxLayer));
    for (int point = 0; point <= kMaxLayer; ++point) numbers.Fill(model.ProfilePts(point, profile));
  }
}

}  // namespace

void NumberModel(ModelStore& model) {
  Numbering numbers;
  for (int part = 0; part < kUserParts; ++part) NumberPart(model, part, numbers);
  NumberProfiles(model, numbers);
  for (int group = 0; group <= kMaxGroup; ++group) numbers.Fill(model.MaterialGroups(group));
  model.MaterialGroups(0).usebump = model.MaterialGroups(1).useamb = 1;
  model.MaterialGroups(2).usedif = model.MaterialGroups(3).usespec = 1;
}

}  // namespace pelorium
