// The extrude. The order of the arithmetic decides the last digits of the points; it stays.
#include "geometry/extrude.h"

#include <algorithm>
#include <vector>

#include "base/fault.h"
#include "geometry/rot.h"

namespace pelorium {

namespace {

constexpr int kLeastCount = 4;

// What all layers use at one section.
struct Section {
  const ProfilePointRec& own;
  const ProfilePointRec& pivot;      // of the section's turns
  const ProfilePointRec& effector1;  // for Y
  const ProfilePointRec& effector2;
  Turns turns;
};

// What all sections use at one layer.
struct Layer {
  int number;
  const ProfilePointRec& own;
  const ProfilePointRec& pivot;
  const ProfilePointRec &pathX, &pathY, &pathZ;
  const ProfilePointRec &effector1X, &effector1Z;
  const ProfilePointRec &effector2X, &effector2Z;
  Turns turns;
};

class Extrusion {
 public:
  Extrusion(const ModelStore& model, const ExtrudeSettings& settings)
      : model_(model),
        settings_(settings),
        header_(model.Profile(settings.profile)),
        generalTurns_(Turns::By(header_.genSpinZ, header_.genTurnY, header_.genRotateX)) {}

  Section SectionAt(int i) const {
    const ProfilePointRec& own = At(i, settings_.profile);
    return {own, At(i, header_.originPathProfile), At(i, header_.addProfile1Y), At(i, header_.addProfile2Y),
            Turns::By(own.secSpinZ, own.secTurnY, own.secRotateX)};
  }

  Layer LayerAt(int j) const {
    const ProfileHeader& h = header_;
    const ProfilePointRec& own = At(j, settings_.profile);
    return {j,
            own,
            At(j, h.originPathProfile),
            At(j, h.pathProfileX),
            At(j, h.pathProfileY),
            At(j, h.pathProfileZ),
            At(j, h.addProfile1X),
            At(j, h.addProfile1Z),
            At(j, h.addProfile2X),
            At(j, h.addProfile2Z),
            Turns::By(own.spinZ, own.turnY, own.rotateX)};
  }

  // Carries a point through all settings; `p` comes in as the Part holds it.
  void Place(const Layer& layer, const Section& section, PointRec& p) const {
    Start(layer, section, p);
    BendLayer(layer, section, p);
    BendSection(section, p);
    PositionGenerally(p);
  }

 private:
  const ProfilePointRec& At(int point, int profile) const { return model_.ProfilePts(point, profile); }

  void Start(const Layer& layer, const Section& s, PointRec& p) const {
    if (!settings_.additive) {
      p.X = layer.pathX.X + s.own.X;
      p.Z = layer.pathZ.Z + s.own.Z;
    }
    p.X += s.own.addXAmt1 * layer.effector1X.X;
    p.X += s.own.addXAmt2 * layer.effector2X.X;
    p.Z += s.own.addZAmt1 * layer.effector1Z.Z;
    p.Z += s.own.addZAmt2 * layer.effector2Z.Z;
    if (!settings_.additive) p.Y = layer.number * header_.layerSpacing;
    p.Y += layer.pathY.Y;
    p.Y += layer.own.addYAmt1 * s.effector1.Y;
    p.Y += layer.own.addYAmt2 * s.effector2.Y;
  }

  void BendLayer(const Layer& layer, const Section& s, PointRec& p) const {
    p.X *= layer.own.multX;
    p.Z *= layer.own.multZ;
    p.Z *= s.own.multZb;
    p.Y *= s.own.multY;
    RotAll(p, layer.turns, layer.pivot);
    // The layer's multipliers act before and after its turns, so that a turned ring shrinks both ways.
    p.X *= layer.own.multX;
    p.Z *= layer.own.multZ;
    p.X += layer.own.moveX;
    p.Y += layer.own.moveY;
    p.Z += layer.own.moveZ;
  }

  void BendSection(const Section& s, PointRec& p) const {
    p.X += s.own.secMoveX;
    p.Y += s.own.secMoveY;
    p.Z += s.own.secMoveZ;
    RotAll(p, s.turns, s.pivot);
    p.X *= s.own.secMultX;
    p.Y *= s.own.secMultY;
    p.Z *= -1;  // undoes the flip that the turns leave
  }

  void PositionGenerally(PointRec& p) const {
    const ProfileHeader& h = header_;
    p.X += h.genMoveX;
    p.Y += h.genMoveY;
    p.Z += h.genMoveZ;
    p.X *= h.genMultX;
    p.Y *= h.genMultY;
    p.Z *= h.genMultZ;
    RotAll(p, generalTurns_, settings_.origin);
  }

  const ModelStore& model_;
  const ExtrudeSettings& settings_;
  const ProfileHeader& header_;
  Turns generalTurns_;
};

}  // namespace

int RingWidth(const ExtrudeSettings& settings) {
  return std::max(0, settings.lastSection - settings.firstSection + 1);
}

int RingsOf(const ModelStore& model, const ExtrudeSettings& settings) {
  return std::max(0, model.Profile(settings.profile).layerCount + 1);
}

bool RaiseCountForExtrude(ModelStore& model, int profile) {
  std::int16_t& count = model.Profile(profile).count;
  if (count >= kLeastCount) return false;
  count = kLeastCount;
  return true;
}

int LayExtrudedPoints(ModelStore& model, const ExtrudeSettings& settings) {
  const Extrusion extrusion(model, settings);
  int number = 1;
  const int layers = model.Profile(settings.profile).layerCount;
  if (layers < 0) return number;
  std::vector<Section> sections;
  for (int i = settings.firstSection; i <= settings.lastSection; ++i) {
    sections.push_back(extrusion.SectionAt(i));
  }
  for (int j = 0; j <= layers; ++j) {
    const Layer layer = extrusion.LayerAt(j);
    for (const Section& section : sections) {
      PointRec& point = model.Points(settings.part, number);
      extrusion.Place(layer, section, point);
      point.onoff = 1;
      model.PointMark(settings.part, number) = 1;
      number = std::min(number + 1, kMaxPoints);
      model.PointMark(settings.part, number) = 1;
    }
  }
  return number;
}

void CountExtrudedPoints(ModelStore& model, const ExtrudeSettings& settings, int next, int rows) {
  const int withoutLastRing = next - (settings.lastSection + 1) - 1;
  PartHeader& header = model.Part(settings.part);
  header.maxpoints = static_cast<std::int16_t>(std::max({0, withoutLastRing, rows * RingWidth(settings)}));
  header.minpoints = 1;
}

void SpinLayersEvenly(ModelStore& model, int profile, int sections) {
  constexpr double kFullTurn = 360;
  if (sections == 1) throw Fault(FaultKind::DivisionByZero, "spin of one section");
  const double spin = kFullTurn / (sections - 1);
  for (int layer = 0; layer <= sections; ++layer) model.ProfilePts(layer, profile).spinZ = spin;
}

void ClearExtrudeSettings(ModelStore& model, int profile) {
  ProfileHeader& header = model.Profile(profile);
  ProfileHeader cleared;
  cleared.first = header.first;
  cleared.count = header.count;
  header = cleared;
  for (int i = 0; i <= kMaxLayer; ++i) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    ProfilePointRec bare;
    CopyPosition(bare, point);
    point = bare;
  }
}

}  // namespace pelorium
