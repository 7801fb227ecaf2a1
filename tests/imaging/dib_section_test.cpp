// The surface: its layout, its copies, its file and its resampling.
#include "imaging/dib_section.h"

#include "base/random_series.h"
#include "imaging/numbered_fault.h"
#include "support/harness.h"

namespace pelorium {
namespace {

using DibSectionFile = FolderTest;

TEST(DibSection, LaysRowsFromTheBottom) {
  cDIBSection surface;
  for (const auto& [width, bytes] : {std::pair{1, 4}, {2, 8}, {4, 12}}) {
    ASSERT_TRUE(surface.Create(width, 2));
    EXPECT_EQ(surface.BytesPerScanLine(), bytes);
  }
  Picture picture(2, 2);
  picture.SetPixels({Rgb(1, 2, 3), Rgb(4, 5, 6), Rgb(7, 8, 9), Rgb(10, 11, 12)});
  ASSERT_TRUE(surface.CreateFromPicture(picture));
  EXPECT_EQ(surface.DIBSectionBitsPtr()[0], 9);  // blue of the lower left
  EXPECT_EQ(surface.PixelAt(1, 1), Rgb(4, 5, 6));
  Picture target(3, 3);
  surface.PaintPicture(target, 1, -1);
  EXPECT_EQ(target.PixelAt(1, 0), static_cast<int>(Rgb(7, 8, 9)));
  EXPECT_EQ(target.PixelAt(0, 0), 0x404040);
  EXPECT_EQ(target.PixelAt(1, 1), 0x404040);
  surface.LoadPictureBlt(target, 1, 0, 1, 1);
  EXPECT_EQ(surface.PixelAt(0, 1), Rgb(7, 8, 9));
  EXPECT_EQ(surface.PixelAt(1, 1), Rgb(4, 5, 6));
}

TEST(DibSection, HoldsItsLimitsAndItsSession) {
  cDIBSection surface;
  EXPECT_TRUE(surface.Create(32767, 2));
  EXPECT_FALSE(surface.Create(32768, 1));
  EXPECT_FALSE(surface.Create(16384, 4097));
  EXPECT_FALSE(surface.Create(0, 5));
  EXPECT_EQ(surface.Width(), 0);
  surface.UseDrawDib(true);
  surface.UseDrawDib(false);  // the session stays open, over a Create too
  EXPECT_TRUE(surface.Create(2, 2) && surface.UseDrawDib());
  EXPECT_FALSE(surface.Create(2, -2) || surface.UseDrawDib());
  surface.UseDrawDib(true);
  surface.ClearUp();
  EXPECT_FALSE(surface.UseDrawDib());
}

TEST(DibSection, ResamplesBetweenTheFarEdges) {
  cDIBSection surface;
  surface.Create(2, 2);
  const int levels[] = {0, 100, 50, 201};
  for (int i = 0; i < 4; ++i)
    std::fill_n(surface.Row(i / 2) + 3 * (i % 2), 3, static_cast<std::uint8_t>(levels[i]));
  const auto grays = [](const cDIBSection& of) {
    std::string text;
    for (int y = 0; y < of.Height(); ++y) {
      for (int x = 0; x < of.Width(); ++x) text += std::to_string(Red(of.PixelAt(x, y))) + " ";
    }
    return text;
  };
  EXPECT_EQ(grays(*surface.Resample(2, 2)), "0 100 50 201 ");
  EXPECT_EQ(grays(*surface.Resample(4, 1)), "0 12 25 38 ");               // 12.5 and 37.5: half to even
  EXPECT_EQ(grays(*surface.Resample(1, 4)), "0 25 50 75 ");               // the upper edge is never reached
  EXPECT_EQ(grays(*surface.Resample(2, 4)), "0 25 50 75 25 56 88 119 ");  // 150.5 down the rows is 150
  surface.Create(1, 1);
  EXPECT_EQ(grays(*surface.Resample(2, 2)), "0 0 0 0 ");
  EXPECT_FALSE(surface.Resample(0, 1));
}

TEST_F(DibSectionFile, HasFiftyEightBytesBeforeThePixels) {
  cDIBSection surface;
  surface.Create(1, 1);
  std::fill_n(surface.Row(0), 3, 7);
  ASSERT_TRUE(surface.SavePicture(folder() / "a.bmp"));
  const std::string header(
      "BM\x3E\0\0\0\0\0\0\0\x3A\0\0\0\x28\0\0\0\x01\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x04\0\0\0", 38);
  EXPECT_EQ(BytesOf(folder() / "a.bmp"), header + std::string(20, '\0') + std::string("\7\7\7\0", 4));
  for (const std::size_t room : {0u, 14u, 58u}) {  // each of the three writes fails
    FailingSink sink(room);
    EXPECT_FALSE(surface.SaveToBitmap(sink));
    EXPECT_EQ(sink.text().size(), room);
  }
  try {
    surface.SavePicture(folder() / "missing" / "a.bmp");
    FAIL();
  } catch (const NumberedFault& fault) {
    EXPECT_EQ(fault.number(), 17u);
    EXPECT_EQ(fault.source() + ": " + fault.text(), "Pelorium.cDIBSection: No such file or directory");
  }
}

TEST(DibSection, NoiseIsDrawnInItsOrder) {
  cDIBSection surface;
  surface.Create(2, 2);
  RandomSeries random, plain;
  const auto draw = [&] { return static_cast<int>(std::nearbyint(plain.Next() * 255)); };
  surface.RandomiseBits(random, false);
  for (const auto& [x, y] : {std::pair{0, 0}, {0, 1}, {1, 0}, {1, 1}}) {
    const int green = draw(), red = draw();
    EXPECT_EQ(surface.PixelAt(x, y), Rgb(red, green, 0));
  }
  surface.RandomiseBits(random, true);
  for (const auto& [x, y] : {std::pair{0, 0}, {1, 0}, {0, 1}, {1, 1}}) {
    const int gray = draw();
    EXPECT_EQ(surface.PixelAt(x, y), Rgb(gray, gray, gray));
  }
}

}  // namespace
}  // namespace pelorium
