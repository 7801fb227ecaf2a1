// The order of drawing and the colours are fixed: later lines cover earlier ones.
#include "views/draw_views.h"

#include <algorithm>
#include <array>

namespace pelorium {

namespace {

constexpr Colour kGridColour = Rgb(50, 50, 50);
constexpr Colour kChosenFaceColour = Rgb(240, 240, 240);
constexpr Colour kAllPointsColour = Rgb(100, 100, 200);
constexpr Colour kOtherProfilesColour = Rgb(100, 100, 100);
constexpr Colour kOriginColour = Rgb(0, 0, 255);
constexpr Colour kAxisColour = Rgb(0, 0, 150);
constexpr Colour kPlainColour = Rgb(150, 150, 150);
constexpr Colour kBrightColour = Rgb(250, 250, 250);
constexpr int kPointWidth = 6, kChosenPointWidth = 8, kProfilePointWidth = 3;
constexpr double kCrossArm = 20;  // units

struct Pan {
  double x, y;
};

// One projection onto one place of the picture. Positions are worked out in double and handed over in single
// precision.
class Canvas {
 public:
  Canvas(Picture& target, Projection projection, Pan pan)
      : picture(target), projection_(projection), pan_(pan) {}

  Pixel At(double x, double y, double z) const {
    const ScreenPoint p = Project(projection_, x, y, z);
    return picture.ToPixel(static_cast<float>(p.x + pan_.x), static_cast<float>(p.y + pan_.y));
  }
  template <typename Rec>
  Pixel At(const Rec& point) const {
    return At(point.X, point.Y, point.Z);
  }

  Picture& picture;

 private:
  Projection projection_;
  Pan pan_;
};

void DrawGrid(const ViewSettings& settings, Picture& picture) {
  picture.Clear();
  picture.drawWidth = 1;
  picture.foreColour = kGridColour;
  if (!settings.showGrid) return;
  const auto width = static_cast<float>(picture.ScaleWidth()),
             height = static_cast<float>(picture.ScaleHeight());
  const int spacing = std::max(1, settings.gridSpacing);
  for (int y = 0; static_cast<float>(y) >= height; y -= spacing) {
    picture.Line(0, static_cast<float>(y), width, static_cast<float>(y));
  }
  for (int x = 0; static_cast<float>(x) <= width; x += spacing) {
    picture.Line(static_cast<float>(x), 0, static_cast<float>(x), height);
  }
}

void DrawEdges(const Canvas& canvas, const FaceRec& face) {
  const Pixel corner1 = canvas.At(face.c1X, face.c1Y, face.c1Z);
  const Pixel corner2 = canvas.At(face.c2X, face.c2Y, face.c2Z);
  const Pixel corner3 = canvas.At(face.c3X, face.c3Y, face.c3Z);
  canvas.picture.LineBetween(corner1, corner2);
  canvas.picture.LineBetween(corner2, corner3);
  canvas.picture.LineBetween(corner3, corner1);
}

using GroupColours = std::array<Colour, kMaxGroup + 1>;

GroupColours WireColours(const ModelStore& model) {
  GroupColours colours{};
  for (int group = 0; group <= kMaxGroup; ++group) {
    const MaterialRec& m = model.MaterialGroups(group);
    colours[static_cast<std::size_t>(group)] =
        Rgb(ScreenChannel(m.KdR), ScreenChannel(m.KdG), ScreenChannel(m.KdB));
  }
  return colours;
}

// The user's Parts, or the current one alone.
std::pair<int, int> ShownParts(const ViewSettings& settings) {
  if (settings.showOtherParts) return {0, kUserParts - 1};
  return {settings.currentPart, settings.currentPart};
}

void DrawWire(const ModelStore& model, const ViewSettings& settings, const Canvas& canvas) {
  const GroupColours colours = WireColours(model);
  for (auto [part, last] = ShownParts(settings); part <= last; ++part) {
    for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
      if (face.group < 0 || face.group > kMaxGroup) model.MaterialGroups(face.group);  // raises the fault
      canvas.picture.foreColour = colours[static_cast<std::size_t>(face.group)];
      if (face.onoff == 1) DrawEdges(canvas, face);
    }
  }
}

void DrawChosenFace(const ModelStore& model, const ViewSettings& settings, const Canvas& canvas) {
  canvas.picture.foreColour = kChosenFaceColour;
  const FaceRec& face = model.Faces(settings.currentPart, settings.chosenFace);
  if (face.onoff == 1) DrawEdges(canvas, face);
}

void DrawAllPoints(const ModelStore& model, const ViewSettings& settings, const Canvas& canvas) {
  canvas.picture.foreColour = kAllPointsColour;
  canvas.picture.drawWidth = kPointWidth;
  for (auto [part, last] = ShownParts(settings); part <= last; ++part) {
    int i = 1;
    for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
      if (model.PointMark(part, i++) == 1) canvas.picture.DotAt(canvas.At(point));
    }
  }
}

// A point's number, taken as a colour, tells neighbours apart: a dark red that shifts into green.
void DrawChosenPoints(const ModelStore& model, const ViewSettings& settings, const Canvas& canvas) {
  Picture& picture = canvas.picture;
  int i = settings.firstChosenPoint;
  for (const PointRec& point :
       PointRange(model, settings.currentPart, settings.firstChosenPoint, settings.lastChosenPoint)) {
    picture.foreColour = static_cast<Colour>(i);
    picture.drawWidth = i == settings.chosenPoint ? kChosenPointWidth : kPointWidth;
    if (model.PointMark(settings.currentPart, i++) == 1) picture.DotAt(canvas.At(point));
  }
  picture.drawWidth = 1;
}

void DrawOtherProfiles(const ModelStore& model, const ViewSettings& settings, const Canvas& canvas) {
  Picture& picture = canvas.picture;
  picture.foreColour = kOtherProfilesColour;
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    if (profile == settings.currentProfile) continue;
    for (int layer = 0; layer < model.Profile(profile).count; ++layer) {
      const Pixel at = canvas.At(model.ProfilePts(layer, profile));
      picture.drawWidth = 1;
      picture.LineBetween(canvas.At(model.ProfilePts(layer + 1, profile)), at);
      picture.drawWidth = kProfilePointWidth;
      picture.DotAt(at);
      picture.drawWidth = 1;
    }
  }
}

// The dots' ramp of green and blue by layer shows which way the profile runs.
void DrawCurrentProfile(const ModelStore& model, const ViewSettings& settings, const Canvas& canvas,
                        Colour lineColour) {
  Picture& picture = canvas.picture;
  picture.foreColour = lineColour;
  picture.drawWidth = 1;
  for (int layer = 0; layer < model.Profile(settings.currentProfile).count; ++layer) {
    const Pixel at = canvas.At(model.ProfilePts(layer, settings.currentProfile));
    const Pixel next = canvas.At(model.ProfilePts(layer + 1, settings.currentProfile));
    picture.LineBetween(next, at);
    picture.drawWidth = kPointWidth;
    picture.DotAt(at, Rgb(100, 100 + layer, 100 + layer));
    picture.DotAt(next, Rgb(100, 101 + layer, 100 + layer));
    picture.drawWidth = 1;
  }
  picture.foreColour = kPlainColour;
}

// Everything that a refresh draws with. Each routine ends alone at a fault, and the rest of the picture is
// drawn.
class Views {
 public:
  Views(const ModelStore& model, const ViewSettings& settings, Picture& picture, FaultLog& faults)
      : model_(model), settings_(settings), picture_(picture), faults_(faults) {}

  void DrawGrid();
  void DrawProfileView();
  void DrawTopView() { DrawSingleView(Projection::Top); }
  void DrawFrontView() { DrawSingleView(Projection::Front); }
  void DrawSideView() { DrawSingleView(Projection::Side); }
  void Draw3DView() { DrawSingleView(Projection::Oblique); }
  void DrawTriView();

 private:
  template <typename Draw>
  void Try(const char* what, Draw draw) {
    Trapped(faults_, what, draw);
  }
  Canvas CanvasOf(Projection projection) const {
    return Canvas(picture_, projection, {settings_.panX, settings_.panY});
  }
  void DrawParts(const Canvas& canvas);
  void DrawSingleView(Projection projection);
  void DrawOrigin(Projection projection);
  void DrawProfiles(const Canvas& canvas, bool others, bool current, Colour lineColour);

  const ModelStore& model_;
  const ViewSettings& settings_;
  Picture& picture_;
  FaultLog& faults_;
};

void Views::DrawGrid() {
  Try("DrawGrid", [this] { pelorium::DrawGrid(settings_, picture_); });
}

void Views::DrawProfiles(const Canvas& canvas, bool others, bool current, Colour lineColour) {
  if (others) Try("DrawProfiles", [&] { DrawOtherProfiles(model_, settings_, canvas); });
  if (current) Try("DrawProfile", [&] { DrawCurrentProfile(model_, settings_, canvas, lineColour); });
}

void Views::DrawParts(const Canvas& canvas) {
  picture_.drawWidth = 1;
  picture_.foreColour = Rgb(100, 100, 100);
  if (settings_.showWire) Try("DrawWire", [&] { DrawWire(model_, settings_, canvas); });
  if (settings_.showChosenFace) Try("DrawChosenFace", [&] { DrawChosenFace(model_, settings_, canvas); });
  if (settings_.showAllPoints) Try("DrawAllPoints", [&] { DrawAllPoints(model_, settings_, canvas); });
  if (settings_.showChosenPoints)
    Try("DrawChosenPoints", [&] { DrawChosenPoints(model_, settings_, canvas); });
  DrawProfiles(canvas, settings_.showOtherProfiles, settings_.showProfile || settings_.showOtherProfiles,
               kPlainColour);
}

void DrawOriginCross(const ViewSettings& settings, Picture& picture, Projection projection) {
  const Vec3& o = settings.origin;
  const ScreenPoint p = Project(projection, o.X, o.Y, o.Z);
  const double x = p.x + settings.panX, y = p.y + settings.panY;
  const auto line = [&picture](double x0, double y0, double x1, double y1) {
    picture.Line(static_cast<float>(x0), static_cast<float>(y0), static_cast<float>(x1),
                 static_cast<float>(y1));
  };
  line(x, y - kCrossArm, x, y + kCrossArm);
  line(x - kCrossArm, y, x + kCrossArm, y);
}

void DrawAxes(const ViewSettings& settings, Picture& picture) {
  const auto x = static_cast<float>(settings.panX), y = static_cast<float>(settings.panY);
  picture.foreColour = kAxisColour;
  picture.drawWidth = 1;
  picture.Line(x, 0, x, static_cast<float>(picture.ScaleHeight()));
  picture.Line(0, y, static_cast<float>(picture.ScaleWidth()), y);
}

void Views::DrawOrigin(Projection projection) {
  picture_.foreColour = kOriginColour;
  picture_.drawWidth = 1;
  if (settings_.showOrigin) Try("DrawOrigin", [&] { DrawOriginCross(settings_, picture_, projection); });
}

void Views::DrawProfileView() {
  const Canvas canvas = CanvasOf(settings_.profileProjection);
  picture_.drawWidth = 1;
  if (settings_.showPartsInProfileView) Try("DrawWire", [&] { DrawWire(model_, settings_, canvas); });
  DrawProfiles(canvas, true, true, Rgb(220, 220, 220));
  Try("DrawAxes", [this] { DrawAxes(settings_, picture_); });
  DrawOrigin(settings_.profileProjection);
  picture_.foreColour = Rgb(250, 0, 0);  // the pen of the line that leads to the next point
}

// One of the views that show the Parts alone, with the origin and, but for the oblique one, the axes.
void Views::DrawSingleView(Projection projection) {
  DrawParts(CanvasOf(projection));
  DrawOrigin(projection);
  if (projection != Projection::Oblique) Try("DrawAxes", [this] { DrawAxes(settings_, picture_); });
  picture_.foreColour = kBrightColour;
}

// Top at its place, Front above it, Side to the right of it.
void Views::DrawTriView() {
  const double x = settings_.panX, y = settings_.panY, apart = settings_.triSeparation;
  DrawParts(Canvas(picture_, Projection::Top, {x, y}));
  DrawParts(Canvas(picture_, Projection::Front, {x, y + apart}));
  DrawParts(Canvas(picture_, Projection::Side, {x + apart, y}));
}

}  // namespace

std::string_view ViewCaption(const ViewSettings& settings) {
  switch (settings.mode) {
    case ViewMode::None:
      return "";
    case ViewMode::Top:
      return " TOP VIEW";
    case ViewMode::Tesselate:
      return " TESSELATE (top view)";
    case ViewMode::Front:
      return " FRONT VIEW";
    case ViewMode::Side:
      return " SIDE VIEW ";
    case ViewMode::View3D:
      return " 3D VIEW ";
    case ViewMode::Tri:
      return "TRIVIEW";
    case ViewMode::Profile:
      break;
  }
  switch (settings.profileProjection) {
    case Projection::Front:
      return " PROFILE VIEW--Front ";
    case Projection::Top:
      return " PROFILE VIEW--Top ";
    case Projection::Side:
      return " PROFILE VIEW--Side ";
    case Projection::Oblique:
      return " PROFILE VIEW--3D ";
  }
  return "";
}

void DrawViews(const ModelStore& model, const ViewSettings& settings, Picture& picture, FaultLog& faults) {
  Views views(model, settings, picture, faults);
  views.DrawGrid();
  switch (settings.mode) {
    case ViewMode::None:
      return;
    case ViewMode::Profile:
      return views.DrawProfileView();
    case ViewMode::Top:
    case ViewMode::Tesselate:
      return views.DrawTopView();
    case ViewMode::Front:
      return views.DrawFrontView();
    case ViewMode::Side:
      return views.DrawSideView();
    case ViewMode::View3D:
      return views.Draw3DView();
    case ViewMode::Tri:
      return views.DrawTriView();
  }
}

}  // namespace pelorium
