// .jpg files through libjpeg.
#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>
// After jpeglib.h, which it needs.
#include <jerror.h>

#include "platform/image_formats.h"

namespace pelorium {

namespace {

constexpr std::int64_t kPixelsPerByte = 4096;
constexpr int kMostScans = 200;  // more passes over one picture serve only to keep a reader busy

// libjpeg reports by calls that must not return; they come back to the reader by a long jump.
struct JpegErrors : jpeg_error_mgr {
  std::jmp_buf back;
  char text[JMSG_LENGTH_MAX];
};

void GiveUp(j_common_ptr info) {
  auto* errors = static_cast<JpegErrors*>(info->err);
  errors->format_message(info, errors->text);
  std::longjmp(errors->back, 1);
}

// A file that ends too early is only a warning to libjpeg; here it is refused, the others pass.
void Hear(j_common_ptr info, int level) {
  if (level < 0 && info->err->msg_code == JWRN_JPEG_EOF) GiveUp(info);
}

void CountScans(j_common_ptr info) {
  auto* errors = static_cast<JpegErrors*>(info->err);
  if (reinterpret_cast<j_decompress_ptr>(info)->input_scan_number <= kMostScans) return;
  std::snprintf(errors->text, sizeof errors->text, "too many scans");
  std::longjmp(errors->back, 1);
}

struct JpegReader {
  jpeg_decompress_struct info{};
  JpegErrors errors{};
  jpeg_progress_mgr progress{};

  JpegReader() {
    info.err = jpeg_std_error(&errors);
    errors.error_exit = GiveUp;
    errors.emit_message = Hear;
    progress.progress_monitor = CountScans;
  }
  ~JpegReader() { jpeg_destroy_decompress(&info); }
  JpegReader(const JpegReader&) = delete;
  JpegReader& operator=(const JpegReader&) = delete;
};

// Both steps hold nothing that a long jump would leak; false with the reason in the reader's errors.
bool ReadHeader(JpegReader& reader, std::string_view bytes) {
  if (setjmp(reader.errors.back) != 0) return false;
  jpeg_create_decompress(&reader.info);
  reader.info.progress = &reader.progress;
  jpeg_mem_src(&reader.info, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  jpeg_read_header(&reader.info, TRUE);
  const bool isCmyk = reader.info.jpeg_color_space == JCS_CMYK || reader.info.jpeg_color_space == JCS_YCCK;
  reader.info.out_color_space = isCmyk ? JCS_CMYK : JCS_RGB;
  return true;
}

// Inks are stored turned round, as the programs that write such files do.
Colour InkColour(const unsigned char* at) {
  return Rgb(at[0] * at[3] / 255, at[1] * at[3] / 255, at[2] * at[3] / 255);
}

void TakeRows(jpeg_decompress_struct& info, std::vector<unsigned char>& row, DecodedImage& image) {
  const bool isCmyk = info.out_color_space == JCS_CMYK;
  std::uint32_t* to = image.pixels.data();
  while (info.output_scanline < info.output_height) {
    unsigned char* at = row.data();
    jpeg_read_scanlines(&info, &at, 1);
    for (unsigned x = 0; x < info.output_width; ++x, at += isCmyk ? 4 : 3) {
      *to++ = isCmyk ? InkColour(at) : Rgb(at[0], at[1], at[2]);
    }
  }
}

bool ReadRows(JpegReader& reader, std::vector<unsigned char>& row, DecodedImage& image) {
  if (setjmp(reader.errors.back) != 0) return false;
  jpeg_start_decompress(&reader.info);
  TakeRows(reader.info, row, image);
  jpeg_finish_decompress(&reader.info);
  return true;
}

}  // namespace

DecodedImage ReadJpeg(std::string_view bytes) {
  if (bytes.empty()) RefusePicture("no .jpg file");
  JpegReader reader;
  if (!ReadHeader(reader, bytes)) RefusePicture(reader.errors.text);
  CheckSidesAgainst(reader.info.image_width, reader.info.image_height, bytes.size(), kPixelsPerByte);
  DecodedImage image{
      static_cast<int>(reader.info.image_width), static_cast<int>(reader.info.image_height), {}};
  image.pixels.resize(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height));
  std::vector<unsigned char> row(static_cast<std::size_t>(image.width) * 4);
  if (!ReadRows(reader, row, image)) RefusePicture(reader.errors.text);
  return image;
}

}  // namespace pelorium
