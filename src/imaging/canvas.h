// Painting on pictures pixel by pixel: the image maker's places are pixels, whatever the scale of a picture,
// and every mark is there for the next read.
#pragma once

#include <algorithm>
#include <vector>

#include "graphics/picture.h"

namespace pelorium {

inline constexpr Colour kWhite = Rgb(255, 255, 255);  // what lies outside a picture

// Half to even; what is far away stays far away.
int RoundedPlace(double place);
inline int ToPixelPlace(double place) {
  const bool isNear = place > -kFarAway && place < kFarAway;
  const int whole = isNear ? static_cast<int>(place) : 0;
  return isNear && whole == place ? whole : RoundedPlace(place);  // most places are whole
}
inline Pixel ToPixel(double x, double y) { return {ToPixelPlace(x), ToPixelPlace(y)}; }

// Each channel rounded half to even and held in 0..255.
Colour ColourOf(double red, double green, double blue);
inline Colour ColourOf(int red, int green, int blue) {
  return Rgb(std::clamp(red, 0, 255), std::clamp(green, 0, 255), std::clamp(blue, 0, 255));
}

inline Colour ReadPixel(const PixelGrid& grid, Pixel at) { return grid.Holds(at) ? *grid.At(at) : kWhite; }
inline void WritePixel(const PixelGrid& grid, Pixel at, Colour colour) {
  if (grid.Holds(at)) *grid.At(at) = colour;
}

// The outline of a circle in a draw width: pixels whose doubled distance from the centre lies within width of
// the doubled radius. Radius 0 is a dot. Made once, set many times.
class CircleStamp {
 public:
  CircleStamp(int radius, int width);
  void Set(const PixelGrid& grid, Pixel centre, Colour colour) const;

  int radius() const { return radius_; }
  int width() const { return width_; }

 private:
  struct Span {
    int row, left, end;
  };
  int radius_, width_;
  std::vector<Span> spans_;
};

// A filled square, `side` pixels wide, from its upper left corner.
void FillSquare(const PixelGrid& grid, Pixel corner, int side, Colour colour);

// In the picture's pen and draw width.
void PaintDot(Picture& picture, double x, double y);
void PaintCircle(Picture& picture, double x, double y, int radius);
void PaintLine(Picture& picture, double x0, double y0, double x1, double y1);

// The picture with other sides: what lies under both stays, the rest is ground. More than 64 M pixels or a
// side past Picture::kMaxSide raise InvalidValue before anything is changed.
void ResizeKeeping(Picture& picture, double width, double height);

}  // namespace pelorium
