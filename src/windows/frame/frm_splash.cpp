// The splash window and its picture: a turned vase in wires above a floor grid, seen in perspective.
#include "windows/frame/frm_splash.h"

#include <array>
#include <cmath>

#include "base/numbers.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/mdi_form1.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

struct Spot {
  double x, y, z;  // to the right, up, away from the eye; the vase stands on 0, 0, 0 and is about 2 high
};

// The vase's outline from its foot to its lip: radius and height.
struct Ring {
  double radius, height;
};
constexpr std::array<Ring, 15> kOutline = {{{0.42, 0.00},
                                            {0.45, 0.06},
                                            {0.36, 0.14},
                                            {0.40, 0.28},
                                            {0.54, 0.46},
                                            {0.67, 0.66},
                                            {0.72, 0.86},
                                            {0.68, 1.06},
                                            {0.55, 1.24},
                                            {0.38, 1.40},
                                            {0.26, 1.54},
                                            {0.23, 1.68},
                                            {0.27, 1.82},
                                            {0.38, 1.93},
                                            {0.46, 1.98}}};
constexpr int kSides = 32;
constexpr int kFloorLines = 8;  // to each side of the middle
constexpr double kFloorStep = 0.4;

void DrawSky(Picture& picture) {
  const int height = picture.PixelHeight();
  for (int y = 0; y < height; ++y) {
    const int light = 60 * y / height;
    const auto at = static_cast<float>(y);
    picture.Line(0, at, static_cast<float>(picture.PixelWidth()), at,
                 Rgb(14 + light / 3, 20 + light / 2, 44 + light));
  }
}

// Seen from 6 units before the vase, a little from above.
void DrawEdge(Picture& picture, Spot from, Spot to, Colour colour) {
  const auto onPicture = [&picture](Spot spot) {
    constexpr double kEyeDistance = 6, kEyeHeight = 1.7, kTilt = 0.16;
    const double depth = kEyeDistance + spot.z - spot.y * kTilt;
    const double scale = picture.PixelHeight() * 2.35 / depth;
    return std::pair(static_cast<float>(picture.PixelWidth() / 2.0 + spot.x * scale),
                     static_cast<float>(picture.PixelHeight() * 0.20 + (kEyeHeight - spot.y) * scale));
  };
  const auto [x0, y0] = onPicture(from);
  const auto [x1, y1] = onPicture(to);
  picture.Line(x0, y0, x1, y1, colour);
}

void DrawFloor(Picture& picture) {
  const Colour colour = Rgb(70, 96, 140);
  constexpr double kEdge = kFloorLines * kFloorStep;
  for (int i = -kFloorLines; i <= kFloorLines; ++i) {
    const double at = i * kFloorStep;
    DrawEdge(picture, {at, 0, -kEdge}, {at, 0, kEdge}, colour);
    DrawEdge(picture, {-kEdge, 0, at}, {kEdge, 0, at}, colour);
  }
}

Spot OnRing(const Ring& ring, int side) {
  const double angle = side * (360.0 / kSides) * kRadiansPerDegree;
  return {ring.radius * std::cos(angle), ring.height, ring.radius * std::sin(angle)};
}

// From orange at the foot to yellow at the lip, darker on the far side.
Colour WireColour(Spot spot) {
  const double light = 0.72 - 0.38 * spot.z;
  return Rgb(ScreenChannel(light), ScreenChannel(light * (0.42 + 0.26 * spot.y)),
             ScreenChannel(light * (0.16 + 0.14 * spot.y)));
}

// The far half first, so that the near wires lie above it.
void DrawVase(Picture& picture) {
  for (const bool far : {true, false}) {
    for (std::size_t i = 0; i < kOutline.size(); ++i) {
      for (int side = 0; side < kSides; ++side) {
        const Spot spot = OnRing(kOutline[i], side);
        if ((spot.z > 0) != far) continue;
        DrawEdge(picture, spot, OnRing(kOutline[i], side + 1), WireColour(spot));
        if (i > 0) DrawEdge(picture, spot, OnRing(kOutline[i - 1], side), WireColour(spot));
      }
    }
  }
}

}  // namespace

FrmSplash::FrmSplash(App& app) : Window(app.host, "frmSplash", "Pelorium"), app_(app) {
  SetRole(WindowRole::Splash);
  DrawSky(Picture1.picture());
  DrawFloor(Picture1.picture());
  DrawVase(Picture1.picture());
  for (Control* part : controls()) {
    part->onClick = [this](const Click&) { Form_Click(); };
    part->onKey = [this](char) { Form_Click(); };
  }
  SetLayout(Column({Single(Picture1), Single(Label1), Single(Label2)}));
}

void FrmSplash::Form_Click() {
  if (begun_ || app_.started) return;
  begun_ = true;
  Hide();
  app_.Start();
}

}  // namespace pelorium
