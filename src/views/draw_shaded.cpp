// The order of drawing decides between fragments of equal depth: the first one stays. No projection is set,
// so that the fragment with the smaller turned Z lies in front.
#include "views/draw_shaded.h"

#include <algorithm>
#include <array>

#include "core/part_operations.h"

namespace pelorium {

namespace {

struct Shade {
  double red, green, blue;
};

constexpr Shade kGridShade = {0.3, 0.3, 0.3};
constexpr std::array<Shade, 3> kAxisShades = {{{0.7, 0.2, 0.2}, {0.2, 0.7, 0.2}, {0.2, 0.2, 0.7}}};
constexpr Shade kChosenFaceShade = {0.9, 0.9, 0.9};
constexpr Shade kEdgeShade = {0.5, 0.5, 0.5}, kOtherEdgeShade = {0.2, 0.2, 0.2};
constexpr Shade kOtherProfilesShade = {0.4, 0.4, 0.4};
constexpr Shade kProfileShade = {0.7, 0.7, 0.7}, kProfilePointShade = {0.7, 0, 0};
constexpr Shade kChosenPointsShade = {0.8, 0.2, 0.2}, kChosenPointShade = {1, 1, 0};
constexpr Shade kAllPointsShade = {0.39, 0.39, 0.78};

// Pixels.
constexpr float kOtherProfilePoint = 2, kProfilePoint = 3, kChosenPointSize = 3, kAnyPoint = 2;

// Units.
constexpr int kGridReach = 1000;
constexpr double kAxisReach = 40, kOriginReach = 700;
constexpr double kAxisLift = 1;  // the axes lie on the grid, and would not show through it

// Neighbouring faces differ a little, in bands, so that a surface shows its facets with no light at all.
constexpr double kTintStep = 0.01;
constexpr int kTintBand = 61;

// Lines lie on the faces that they belong to, so they are brought nearer by this part of the depth range.
constexpr double kNearer = 0.0005;

// A shape between Begin and End, which a fault in between ends too.
class Drawing {
 public:
  Drawing(Gl& gl, GlShape shape) : gl_(gl) { gl_.Begin(shape); }
  ~Drawing() { gl_.End(); }
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

  void Colour(const Shade& shade) {
    gl_.Color3f(static_cast<float>(shade.red), static_cast<float>(shade.green),
                static_cast<float>(shade.blue));
  }

  template <typename Place>
  void Vertex(const Place& place) {
    gl_.Vertex3f(static_cast<float>(place.X), static_cast<float>(place.Y), static_cast<float>(place.Z));
  }

  template <typename Place>
  void Line(const Place& from, const Place& to) {
    Vertex(from);
    Vertex(to);
  }

 private:
  Gl& gl_;
};

class Scene {
 public:
  Scene(const ModelStore& model, const ShadedSettings& settings, Gl& gl)
      : model_(model), settings_(settings), gl_(gl) {}

  void SetUp();
  void DrawGrid();
  void DrawOrigin();
  void DrawFaces();
  void DrawEdges(int part, const Shade& shade);
  void DrawOtherEdges();
  void DrawOtherProfiles();
  void DrawProfile();
  void DrawChosenPoints();
  void DrawAllPoints();

 private:
  Range<const FaceRec> FacesInUse(int part) const {
    return FaceRange(model_, part, FirstFace(model_, part), model_.Part(part).maxfaces);
  }
  std::array<const PointRec*, 3> Corners(int part, const FaceRec& face) const {
    return {&model_.Points(part, face.corner1pt), &model_.Points(part, face.corner2pt),
            &model_.Points(part, face.corner3pt)};
  }
  const FaceRec* ChosenFace() const;
  void AddProfileLines(Drawing& lines, int profile) const;
  void AddProfilePoints(Drawing& points, int profile) const;

  const ModelStore& model_;
  const ShadedSettings& settings_;
  Gl& gl_;
};

void Scene::SetUp() {
  const ShadedPose& pose = settings_.pose;
  gl_.ClearColourAndDepth();
  gl_.LoadIdentity();
  const auto scale = static_cast<float>(settings_.scale);
  gl_.Scalef(scale, scale, scale);
  gl_.Viewport(0, 0, settings_.viewportSide, settings_.viewportSide);
  gl_.Translatef(static_cast<float>(pose.ShadeMoveX), static_cast<float>(pose.ShadeMoveY),
                 static_cast<float>(pose.ShadeMoveZ));
  gl_.Rotatef(pose.RotX, 1, 0, 0);
  gl_.Rotatef(pose.RotY, 0, 1, 0);
  gl_.Rotatef(pose.RotZ, 0, 0, 1);
}

void Scene::DrawGrid() {
  Drawing lines(gl_, GlShape::Lines);
  lines.Colour(kGridShade);
  const int spacing = std::max(1, settings_.shown.gridSpacing);
  constexpr double kReach = kGridReach;
  for (int at = -kGridReach; at <= kGridReach; at += spacing) {
    const double t = at;
    lines.Line(Vec3{-kReach, t, 0}, Vec3{kReach, t, 0});
    lines.Line(Vec3{t, -kReach, 0}, Vec3{t, kReach, 0});
  }
  lines.Colour(kAxisShades[0]);
  lines.Line(Vec3{-kAxisReach, 0, kAxisLift}, Vec3{kAxisReach, 0, kAxisLift});
  lines.Colour(kAxisShades[1]);
  lines.Line(Vec3{0, -kAxisReach, kAxisLift}, Vec3{0, kAxisReach, kAxisLift});
  lines.Colour(kAxisShades[2]);
  lines.Line(Vec3{0, 0, -kAxisReach}, Vec3{0, 0, kAxisReach});
}

void Scene::DrawOrigin() {
  const Vec3& o = settings_.shown.origin;
  Drawing lines(gl_, GlShape::Lines);
  lines.Colour(kAxisShades[0]);
  lines.Line(Vec3{o.X - kOriginReach, o.Y, o.Z}, Vec3{o.X + kOriginReach, o.Y, o.Z});
  lines.Colour(kAxisShades[1]);
  lines.Line(Vec3{o.X, o.Y - kOriginReach, o.Z}, Vec3{o.X, o.Y + kOriginReach, o.Z});
  lines.Colour(kAxisShades[2]);
  lines.Line(Vec3{o.X, o.Y, o.Z - kOriginReach}, Vec3{o.X, o.Y, o.Z + kOriginReach});
}

const FaceRec* Scene::ChosenFace() const {
  if (!settings_.shown.showChosenFace) return nullptr;
  return &model_.Faces(settings_.shown.currentPart, settings_.shown.chosenFace);
}

// The tint runs on from one Part to the next, and over faces that are off.
void Scene::DrawFaces() {
  const FaceRec* chosen = ChosenFace();
  Drawing triangles(gl_, GlShape::Triangles);
  double tint = 0;
  int inBand = 0;
  for (int part = 0; part < kUserParts; ++part) {
    for (const FaceRec& face : FacesInUse(part)) {
      const MaterialRec& m = model_.MaterialGroups(face.group);
      if (face.onoff == 1 && CornersAreInTable(face)) {
        triangles.Colour(&face == chosen ? kChosenFaceShade
                                         : Shade{m.KdR + tint, m.KdG + tint, m.KdB + tint});
        for (const PointRec* corner : Corners(part, face)) triangles.Vertex(*corner);
      }
      tint += kTintStep;
      if (++inBand == kTintBand) tint = inBand = 0;
    }
  }
}

void Scene::DrawEdges(int part, const Shade& shade) {
  Drawing lines(gl_, GlShape::Lines);
  lines.Colour(shade);
  for (const FaceRec& face : FacesInUse(part)) {
    if (face.onoff != 1 || !CornersAreInTable(face)) continue;
    const auto [corner1, corner2, corner3] = Corners(part, face);
    lines.Line(*corner1, *corner2);
    lines.Line(*corner2, *corner3);
    lines.Line(*corner3, *corner1);
  }
}

void Scene::DrawOtherEdges() {
  for (int part = 0; part < kUserParts; ++part) {
    if (part != settings_.shown.currentPart) DrawEdges(part, kOtherEdgeShade);
  }
}

// The last segment ends in the pen's slot.
void Scene::AddProfileLines(Drawing& lines, int profile) const {
  for (int layer = 0; layer < model_.Profile(profile).count; ++layer) {
    lines.Line(model_.ProfilePts(layer, profile), model_.ProfilePts(layer + 1, profile));
  }
}

// The pen's slot shows too, once something is drawn.
void Scene::AddProfilePoints(Drawing& points, int profile) const {
  const int count = model_.Profile(profile).count;
  for (int layer = 0; count > 0 && layer <= count; ++layer) {
    points.Vertex(model_.ProfilePts(layer, profile));
  }
}

void Scene::DrawOtherProfiles() {
  const auto each = [this](GlShape shape, auto add) {
    Drawing drawing(gl_, shape);
    drawing.Colour(kOtherProfilesShade);
    for (int profile = 0; profile <= kMaxProfile; ++profile) {
      if (profile != settings_.shown.currentProfile) (this->*add)(drawing, profile);
    }
  };
  each(GlShape::Lines, &Scene::AddProfileLines);
  gl_.PointSize(kOtherProfilePoint);
  each(GlShape::Points, &Scene::AddProfilePoints);
}

void Scene::DrawProfile() {
  {
    Drawing lines(gl_, GlShape::Lines);
    lines.Colour(kProfileShade);
    AddProfileLines(lines, settings_.shown.currentProfile);
  }
  gl_.PointSize(kProfilePoint);
  Drawing points(gl_, GlShape::Points);
  points.Colour(kProfilePointShade);
  AddProfilePoints(points, settings_.shown.currentProfile);
}

void Scene::DrawChosenPoints() {
  const int part = settings_.shown.currentPart;
  gl_.PointSize(kChosenPointSize);
  Drawing points(gl_, GlShape::Points);
  int number = settings_.shown.firstChosenPoint;
  for (const PointRec& point : PointRange(model_, part, number, settings_.shown.lastChosenPoint)) {
    const bool isChosen = number == settings_.shown.chosenPoint;
    if (model_.PointMark(part, number++) != 1) continue;
    points.Colour(isChosen ? kChosenPointShade : kChosenPointsShade);
    points.Vertex(point);
  }
}

void Scene::DrawAllPoints() {
  gl_.PointSize(kAnyPoint);
  Drawing points(gl_, GlShape::Points);
  points.Colour(kAllPointsShade);
  for (int part = 0; part < kUserParts; ++part) {
    int number = 1;
    for (const PointRec& point : PointRange(model_, part, 1, model_.Part(part).maxpoints)) {
      if (model_.PointMark(part, number++) == 1) points.Vertex(point);
    }
  }
}

}  // namespace

void DrawShaded(const ModelStore& model, const ShadedSettings& settings, Gl& gl) {
  Scene scene(model, settings, gl);
  scene.SetUp();
  gl.DepthRange(kNearer, 1);
  if (settings.shown.showGrid) scene.DrawGrid();
  if (settings.shown.showOrigin) scene.DrawOrigin();
  if (settings.shown.showWire) scene.DrawFaces();
  gl.DepthRange(0, 1 - kNearer);
  if (settings.showEdges) scene.DrawEdges(settings.shown.currentPart, kEdgeShade);
  if (settings.showOtherEdges) scene.DrawOtherEdges();
  if (settings.shown.showOtherProfiles) scene.DrawOtherProfiles();
  if (settings.shown.showProfile) scene.DrawProfile();
  gl.DepthRange(kNearer, 1);
  if (settings.shown.showChosenPoints) scene.DrawChosenPoints();
  if (settings.shown.showAllPoints) scene.DrawAllPoints();
}

}  // namespace pelorium
