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

void DrawWire(const ModelStore& model, const Canvas& canvas) {
  const GroupColours colours = WireColours(model);
  for (int part = 0; part < kUserParts; ++part) {
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

void DrawAllPoints(const ModelStore& model, const Canvas& canvas) {
  canvas.picture.foreColour = kAllPointsColour;
  canvas.picture.drawWidth = kPointWidth;
  for (int part = 0; part < kUserParts; ++part) {
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

void DrawParts(const ModelStore& model, const ViewSettings& settings, Picture& picture, Projection projection,
               Pan pan) {
  const Canvas canvas(picture, projection, pan);
  picture.drawWidth = 1;
  picture.foreColour = Rgb(100, 100, 100);
  if (settings.showWire) DrawWire(model, canvas);
  if (settings.showChosenFace) DrawChosenFace(model, settings, canvas);
  if (settings.showAllPoints) DrawAllPoints(model, canvas);
  if (settings.showChosenPoints) DrawChosenPoints(model, settings, canvas);
  if (settings.showOtherProfiles) DrawOtherProfiles(model, settings, canvas);
  if (settings.showProfile || settings.showOtherProfiles) {
    DrawCurrentProfile(model, settings, canvas, kPlainColour);
  }
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

void DrawProfileView(const ModelStore& model, const ViewSettings& settings, Picture& picture) {
  const Canvas canvas(picture, settings.profileProjection, {settings.panX, settings.panY});
  picture.drawWidth = 1;
  if (settings.showPartsInProfileView) DrawWire(model, canvas);
  DrawOtherProfiles(model, settings, canvas);
  DrawCurrentProfile(model, settings, canvas, Rgb(220, 220, 220));
  DrawAxes(settings, picture);
  picture.foreColour = kOriginColour;
  if (settings.showOrigin) DrawOriginCross(settings, picture, settings.profileProjection);
  picture.foreColour = Rgb(250, 0, 0);  // the pen of the line that leads to the next point
}

// One of the views that show the Parts alone, with the origin and, but for the oblique one, the axes.
void DrawSingleView(const ModelStore& model, const ViewSettings& settings, Picture& picture,
                    Projection projection) {
  DrawParts(model, settings, picture, projection, {settings.panX, settings.panY});
  picture.foreColour = kOriginColour;
  picture.drawWidth = 1;
  if (settings.showOrigin) DrawOriginCross(settings, picture, projection);
  if (projection != Projection::Oblique) DrawAxes(settings, picture);
  picture.foreColour = kBrightColour;
}

// Top at its place, Front above it, Side to the right of it.
void DrawTriView(const ModelStore& model, const ViewSettings& settings, Picture& picture) {
  const double x = settings.panX, y = settings.panY, apart = settings.triSeparation;
  DrawParts(model, settings, picture, Projection::Top, {x, y});
  DrawParts(model, settings, picture, Projection::Front, {x, y + apart});
  DrawParts(model, settings, picture, Projection::Side, {x + apart, y});
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

void DrawViews(const ModelStore& model, const ViewSettings& settings, Picture& picture) {
  DrawGrid(settings, picture);
  switch (settings.mode) {
    case ViewMode::None:
      return;
    case ViewMode::Profile:
      return DrawProfileView(model, settings, picture);
    case ViewMode::Top:
    case ViewMode::Tesselate:
      return DrawSingleView(model, settings, picture, Projection::Top);
    case ViewMode::Front:
      return DrawSingleView(model, settings, picture, Projection::Front);
    case ViewMode::Side:
      return DrawSingleView(model, settings, picture, Projection::Side);
    case ViewMode::View3D:
      return DrawSingleView(model, settings, picture, Projection::Oblique);
    case ViewMode::Tri:
      return DrawTriView(model, settings, picture);
  }
}

}  // namespace pelorium
