// The drawing surface: 32-bit pixels 0x00BBGGRR row by row from the top, a pen, a user scale that may be
// negative, and the drawing primitives. The same calls give the same pixels on every machine.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "base/colour.h"
#include "graphics/bitmap_font.h"
#include "graphics/rasteriser.h"

namespace pelorium {

// A shape shown over the picture and not part of it; in user units. A rectangle and an ellipse have the two
// points as opposite corners.
struct OverlayShape {
  enum class Form { Line, Rectangle, Ellipse };
  float x0, y0, x1, y1;
  Colour colour;
  Form form = Form::Line;
  bool operator==(const OverlayShape&) const = default;
};

// Works the pixels of a picture out when they are asked for: for pictures that are dear to make.
class PixelSource {
 public:
  virtual ~PixelSource() = default;
  // Row by row from the top, as the picture holds them.
  virtual void Fill(std::uint32_t* pixels, int width, int height) = 0;
};

// An image that lies on the ground of a picture, under everything drawn. Left and top in pixels.
struct Backdrop {
  int width = 0, height = 0;
  std::shared_ptr<const std::vector<std::uint32_t>>
      pixels;  // row by row from the top; shared when it only moves
  int left = 0, top = 0;
};

// Calls are recorded with their pixel positions as they come and drawn when the pixels are asked for. A
// picture that is cleared and drawn again several times within one event is thus rasterised once.
class Picture {
 public:
  static constexpr int kMaxSide = 32767;  // pixels

  // Sides are held in 1..kMaxSide. The scale starts at one unit a pixel.
  Picture(int width, int height);

  int PixelWidth() const { return width_; }
  int PixelHeight() const { return height_; }
  double ScaleWidth() const { return scaleWidth_; }
  double ScaleHeight() const { return scaleHeight_; }

  // Units across the picture and down it. 0 is refused as a division by zero.
  void SetScale(double scaleWidth, double scaleHeight);

  // Gives the picture new pixels in its background colour; the scale stays.
  void Resize(int width, int height);

  // Fills with the background colour and the backdrop as they are now.
  void Clear();

  // From the next Clear on; null takes it away.
  void SetBackdrop(std::shared_ptr<const Backdrop> backdrop) { backdrop_ = std::move(backdrop); }
  const std::shared_ptr<const Backdrop>& backdrop() const { return backdrop_; }

  // Replaces all that was drawn: the pixels come from `source` when they are next asked for, unless the
  // picture is cleared before.
  void TakeFrom(std::shared_ptr<PixelSource> source);

  // A line in the pen's width: the pixel of its start is set, that of its end is not. Width 1 is an integer
  // DDA along the longer axis.
  void Line(float x0, float y0, float x1, float y1, Colour colour);
  void Line(float x0, float y0, float x1, float y1) { Line(x0, y0, x1, y1, foreColour); }

  // A disc whose diameter is the pen's width in pixels, whatever the scale. An odd width is centred on the
  // pixel, an even one on the pixel's top left corner; a pixel belongs to it when its centre lies within
  // width / 2.
  void Dot(float x, float y, Colour colour);
  void Dot(float x, float y) { Dot(x, y, foreColour); }

  // The same between pixels, in the pen's colour: for shapes whose corners serve several lines.
  void LineBetween(Pixel from, Pixel to);
  void DotAt(Pixel at) { DotAt(at, foreColour); }
  void DotAt(Pixel at, Colour colour);

  // One line of text whose top left corner is that pixel, upright whatever the scale; what reaches over the
  // edges is cut off.
  void Text(Pixel at, std::string_view text, Colour colour, TextSize size = TextSize::Small);

  // The pixel under a point in user units, and the point (in user units) that a pixel stands for.
  Pixel ToPixel(float x, float y) const;
  float ToUserX(int pixelX) const;
  float ToUserY(int pixelY) const;

  // The colour of a pixel, -1 outside the picture.
  int PixelAt(int x, int y) const;

  // All pixels, row by row; copies into the picture, as many as it holds.
  const std::vector<std::uint32_t>& Pixels() const;
  void SetPixels(const std::vector<std::uint32_t>& pixels);

  // Pixels that were made elsewhere, width times height of them, instead of all that was there; the scale
  // stays.
  void TakePixels(int width, int height, std::vector<std::uint32_t> pixels);

  // The pixels to read and write in place, for painting that reads what it has just written. Good until the
  // next other call of the picture that changes it.
  PixelGrid Edit();

  // Another number after each change, so that a screen knows whether it shows the present picture. Pictures
  // of the same number hold the same pixels.
  std::uint64_t Revision() const { return revision_; }

  // The colour that the picture is all over, as long as nothing was drawn or looked at since it was cleared.
  std::optional<Colour> PlainColour() const;

  // The pen and the ground.
  Colour foreColour = Rgb(224, 224, 224);
  Colour backColour = Rgb(64, 64, 64);
  int drawWidth = 1;

  std::vector<OverlayShape> overlay;

 private:
  struct Call {
    Pixel from, to;
    Colour colour;
    std::int16_t width;
    bool isDot;
  };

  std::int16_t StoredWidth() const;
  void Record(const Call& call);
  void Rasterise() const;
  void FillGround() const;
  void Changed();

  int width_, height_;
  double scaleWidth_, scaleHeight_;
  mutable std::vector<std::uint32_t> pixels_;
  mutable std::vector<Call> calls_;
  mutable bool cleared_ = true;                  // the ground is to be filled before the calls
  mutable std::shared_ptr<PixelSource> source_;  // and then these pixels taken
  Colour ground_ = Rgb(64, 64, 64);
  std::shared_ptr<const Backdrop> backdrop_, groundBackdrop_;
  std::uint64_t revision_ = 0;
};

}  // namespace pelorium
