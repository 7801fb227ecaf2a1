// Picture files: what is saved comes back pixel by pixel, and no broken file gets past the reader.
#include "platform/picture_files.h"

#include <iterator>
#include <string>
#include <vector>

#include "support/harness.h"

namespace pelorium {
namespace {

namespace fs = std::filesystem;
using Pixels = std::vector<std::uint32_t>;

class PictureFiles : public FolderTest {
 protected:
  fs::path Write(const std::string& name, const std::string& bytes) const {
    WriteBytes(folder() / name, bytes);
    return folder() / name;
  }

  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder()), fs::directory_iterator()));
  }
};

// Every pixel another colour, so that an exchange of rows, columns or channels shows.
Picture Motley(int width, int height) {
  Picture picture(width, height);
  std::vector<std::uint32_t> pixels;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) pixels.push_back(Rgb(10 + 7 * x, 250 - 11 * y, 3 * x + 5 * y));
  }
  picture.SetPixels(pixels);
  return picture;
}

std::string Little(std::uint64_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, value >>= 8) text += static_cast<char>(value & 0xFF);
  return text;
}

struct BmpFields {
  std::uint32_t pixelsAt = 54, width = 2, height = 2, bits = 24, compression = 0, colours = 0;
};

std::string BmpHeader(const BmpFields& fields) {
  return "BM" + Little(0, 4) + Little(0, 4) + Little(fields.pixelsAt, 4) + Little(40, 4) +
         Little(fields.width, 4) + Little(fields.height, 4) + Little(1, 2) + Little(fields.bits, 2) +
         Little(fields.compression, 4) + Little(0, 12) + Little(fields.colours, 4) + Little(0, 4);
}

void ExpectRefused(const fs::path& path) {
  Picture picture = Motley(4, 3);
  const std::vector<std::uint32_t> before = picture.Pixels();
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { LoadPicture(picture, path); })) << path;
  EXPECT_EQ(picture.PixelWidth(), 4);
  EXPECT_EQ(picture.PixelHeight(), 3);
  EXPECT_EQ(picture.Pixels(), before);
}

TEST_F(PictureFiles, ComeBackPixelByPixel) {
  for (const char* name : {"a.png", "a.bmp", "UPPER.PNG", "\xC3\xA4 %s\"'\n.b.BmP", "\xFF\xFE.png"}) {
    for (int width : {1, 2, 3, 4, 31}) {
      const Picture saved = Motley(width, 7);
      SavePicture(saved, folder() / name);
      Picture loaded(10, 10);
      LoadPicture(loaded, folder() / name);
      EXPECT_EQ(loaded.PixelWidth(), width) << name;
      EXPECT_EQ(loaded.PixelHeight(), 7) << name;
      EXPECT_EQ(loaded.Pixels(), saved.Pixels()) << name;
    }
  }
  EXPECT_EQ(FilesInFolder(), 5u);
}

// Cut anywhere they are refused; with any byte changed they load whole or are refused.
TEST_F(PictureFiles, ThatAreDamagedDoNoHarm) {
  for (const std::string name : {"odd.png", "odd.bmp"}) {
    SavePicture(Motley(5, 4), folder() / name);
    const std::string whole = BytesOf(folder() / name);
    for (std::size_t at = 0; at < whole.size(); ++at) {
      ExpectRefused(Write(name, whole.substr(0, at)));
      std::string odd = whole;
      odd[at] = static_cast<char>(odd[at] ^ 0xFF);
      Write(name, odd);
      Picture picture(2, 2);
      try {
        LoadPicture(picture, folder() / name);
        EXPECT_EQ(picture.Pixels().size(),
                  static_cast<std::size_t>(picture.PixelWidth() * picture.PixelHeight()));
      } catch (const Fault& fault) {
        EXPECT_EQ(fault.kind(), FaultKind::FileError);
        EXPECT_EQ(picture.PixelWidth(), 2);
      }
    }
  }
}

TEST_F(PictureFiles, NeedAKnownEndingThatSaysWhatTheyHold) {
  for (const char* name : {"a.jpg", "a.gif", "a.png.txt", "png", "missing/a.png"}) {
    EXPECT_TRUE(Raises(FaultKind::FileError, [&] { SavePicture(Motley(2, 2), folder() / name); })) << name;
    ExpectRefused(folder() / name);
  }
  EXPECT_EQ(FilesInFolder(), 0u);
  SavePicture(Motley(2, 2), folder() / "a.bmp");
  fs::rename(folder() / "a.bmp", folder() / "a.png");
  ExpectRefused(folder() / "a.png");
  ExpectRefused(folder() / "missing.png");
}

TEST_F(PictureFiles, WriteTheLowestRowFirstInBlueGreenRed) {
  Picture picture(1, 2);
  picture.SetPixels({Rgb(1, 2, 3), Rgb(4, 5, 6)});
  SavePicture(picture, folder() / "a.bmp");
  const std::string bytes = BytesOf(folder() / "a.bmp");
  ASSERT_EQ(bytes.size(), 54u + 8u);
  EXPECT_EQ(bytes.substr(54), std::string("\x06\x05\x04\0\x03\x02\x01\0", 8));
  EXPECT_EQ(bytes.substr(2, 4), Little(62, 4));
}

TEST_F(PictureFiles, OfOtherDepthsAreRead) {
  const auto pixels = [this](const BmpFields& fields, const std::string& rest) {
    Picture picture(1, 1);
    LoadPicture(picture, Write("a.bmp", BmpHeader(fields) + rest));
    return picture.Pixels();
  };
  const std::string rows =
      Little(0xFF010203, 4) + Little(0x040506, 4) + Little(0x070809, 4) + Little(0x0A0B0C, 4);
  EXPECT_EQ(pixels({.height = 0xFFFFFFFE, .bits = 32}, rows),  // the topmost row comes first
            (Pixels{Rgb(1, 2, 3), Rgb(4, 5, 6), Rgb(7, 8, 9), Rgb(10, 11, 12)}));
  EXPECT_EQ(pixels({.pixelsAt = 70000, .width = 1, .height = 1},
                   std::string(70000 - 54, '\1') + Little(0x020304, 4)),
            Pixels{Rgb(2, 3, 4)});
  const std::string palette = Little(0x00102030, 4) + Little(0x00405060, 4);
  const std::string places = Little(0x0100, 4) + Little(0x0501, 4);  // 5 lies behind the palette
  EXPECT_EQ(pixels({.pixelsAt = 62, .bits = 8, .colours = 2}, palette + places),
            (Pixels{Rgb(0x40, 0x50, 0x60), 0, Rgb(0x10, 0x20, 0x30), Rgb(0x40, 0x50, 0x60)}));
}

TEST_F(PictureFiles, OfFewBitsNameTheirColours) {
  const auto text = [this](const BmpFields& fields, const std::string& rest) {
    Picture picture(1, 1);
    LoadPicture(picture, Write("a.bmp", BmpHeader(fields) + rest));
    std::string numbers;
    for (const std::uint32_t pixel : picture.Pixels()) numbers += std::to_string(Blue(pixel)) + " ";
    return numbers;
  };
  const std::string two = Little(0x07, 4) + Little(0x09, 4);
  EXPECT_EQ(text({.pixelsAt = 62, .width = 10, .height = 1, .bits = 1}, two + Little(0x40B1, 4)),
            "9 7 9 9 7 7 7 9 7 9 ");
  EXPECT_EQ(text({.pixelsAt = 62, .width = 3, .height = 1, .bits = 4, .colours = 2}, two + Little(0x2010, 4)),
            "9 7 0 ");
}

std::string Loaded(const char* name) {
  Picture picture(1, 1);
  picture.backColour = Rgb(100, 200, 0);
  LoadPicture(picture, fs::path(PELORIUM_TESTS_DIR) / "platform/pictures" / name);
  std::string text = std::to_string(picture.PixelWidth()) + "x" + std::to_string(picture.PixelHeight());
  for (int place : {0, 1, 2, 8, 15, 22}) {
    const int i = place % (picture.PixelWidth() * picture.PixelHeight());
    const auto pixel =
        static_cast<Colour>(picture.PixelAt(i % picture.PixelWidth(), i / picture.PixelWidth()));
    text += " " + std::to_string(Red(pixel)) + "/" + std::to_string(Green(pixel)) + "/" +
            std::to_string(Blue(pixel));
  }
  return text;
}

// Made by another program; what is transparent or not covered shows the ground.
TEST_F(PictureFiles, OfOtherKindsAreRead) {
  EXPECT_EQ(Loaded("interlaced.gif"), "5x6 10/250/0 50/250/30 90/250/60 130/210/95 10/130/15 90/90/80");
  EXPECT_EQ(Loaded("offset.gif"), "6x5 100/200/0 100/200/0 100/200/0 200/10/20 0/0/255 100/200/0");
  EXPECT_EQ(Loaded("two.ico"), "4x4 9/8/7 150/150/25 150/150/25 150/150/25 150/150/25 150/150/25");
  EXPECT_EQ(Loaded("gray.jpg"), "8x8 77/77/77 77/77/77 77/77/77 77/77/77 77/77/77 77/77/77");
  EXPECT_EQ(Loaded("gradient.jpg").substr(0, 13), "24x16 254/0/0");
}

TEST_F(PictureFiles, OfOtherKindsThatAreDamagedDoNoHarm) {
  for (const std::string name : {"interlaced.gif", "offset.gif", "two.ico", "gray.jpg"}) {
    const std::string whole = BytesOf(fs::path(PELORIUM_TESTS_DIR) / "platform/pictures" / name);
    for (std::size_t at = 0; at < whole.size(); ++at) {
      for (const std::string& bytes :
           {whole.substr(0, at), whole.substr(0, at) + '\xFF' + whole.substr(at + 1)}) {
        Picture picture(2, 2);
        try {
          LoadPicture(picture, Write(name, bytes));
        } catch (const Fault& fault) {
          EXPECT_EQ(fault.kind(), FaultKind::FileError);
          EXPECT_EQ(picture.PixelWidth(), 2);
        }
      }
    }
    ExpectRefused(Write(name, whole.substr(0, whole.size() * 3 / 4)));
  }
  std::string icon = BytesOf(fs::path(PELORIUM_TESTS_DIR) / "platform/pictures/two.ico");
  ExpectRefused(Write("empty.ico", icon.replace(30, 4, 4, '\0')));  // the largest image has no bytes
}

TEST_F(PictureFiles, WithImpossibleHeadersAreRefused) {
  const BmpFields kCases[] = {{.width = 0},
                              {.width = 32768, .height = 1},
                              {.width = 32767, .height = 1025},
                              {.width = 0x7FFFFFFF, .height = 0x7FFFFFFF},
                              {.width = 16384, .height = 16384},
                              {.height = 0x80000000},
                              {.width = 0xFFFFFFFE},
                              {.bits = 16},
                              {.compression = 1},
                              {.pixelsAt = 0},
                              {.pixelsAt = 0xFFFFFFFF},
                              {.bits = 8},
                              {.pixelsAt = 70, .bits = 1, .colours = 3},
                              {.pixelsAt = 122, .bits = 4, .colours = 17},
                              {.bits = 8, .colours = 257},
                              {.bits = 8, .colours = 0xFFFFFFFF}};
  for (const BmpFields& fields : kCases) {
    ExpectRefused(Write("bad.bmp", BmpHeader(fields) + std::string(16, '\1')));
  }
}

TEST_F(PictureFiles, OfPngThatClaimMoreThanTheyHoldAreRefused) {
  // A first chunk with right check sums and sides of 16385 and of 16384, then nothing that could fill them.
  const std::string start("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR", 16);
  const std::string end("\0\0\0\0IEND\xAE\x42\x60\x82", 12);
  const std::string tooWide = start + std::string("\0\0\x40\x01\0\0\0\x01\x08\x02\0\0\0\x46\x3F\x4A\x31", 17);
  const std::string tooLarge = start + std::string("\0\0\x40\0\0\0\x40\0\x08\x02\0\0\0\x26\xAA\x87\xD3", 17);
  ExpectRefused(Write("wide.png", tooWide + end));
  ExpectRefused(Write("large.png", tooLarge + end));
}

}  // namespace
}  // namespace pelorium
