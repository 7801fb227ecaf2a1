// The file of the whole mapping.
#include "interchange/texture_file.h"

#include <algorithm>
#include <array>

#include "base/item_reader.h"

namespace pelorium {

namespace {

// Stores a count within its table and returns the file's own number, which the loops follow.
int ReadCount(ItemReader& in, std::int16_t& count, int limit) {
  const auto inFile = in.Integer<std::int16_t>();
  count = static_cast<std::int16_t>(std::clamp<int>(inFile, 0, limit));
  return inFile;
}

}  // namespace

void WriteTextureFile(const ModelStore& model, TextWriter& out) {
  for (int part = 0; part < kUserParts; ++part) {
    const PartHeader& header = model.Part(part);
    out.Print(header.vtcount).EndLine();
    out.Print(header.vtfacecount).EndLine();
    for (const FaceRec& face : FaceRange(model, part, 1, header.vtfacecount)) {
      out.Integer(face.vt1).Text(" ").Integer(face.vt2).Text(" ").Integer(face.vt3).EndLine();
    }
  }
  for (int part = 0; part < kUserParts; ++part) {
    for (const PointRec& point : PointRange(model, part, 1, model.Part(part).vtcount)) {
      out.General(point.u).Text(" ").General(point.v).EndLine();
    }
  }
}

void ReadTextureFile(ModelStore& model, std::string_view text) {
  ItemReader in(text);
  std::array<int, kUserParts> points{};
  for (int part = 0; part < kUserParts; ++part) {
    PartHeader& header = model.Part(part);
    points[static_cast<std::size_t>(part)] = ReadCount(in, header.vtcount, kMaxPoints);
    const int faces = ReadCount(in, header.vtfacecount, kMaxFaces);
    for (int i = 1; i <= faces; ++i) {
      FaceRec& face = model.Faces(part, i);
      for (auto number : {&FaceRec::vt1, &FaceRec::vt2, &FaceRec::vt3})
        face.*number = in.Integer<std::int16_t>();
    }
  }
  for (int part = 0; part < kUserParts; ++part) {
    for (int i = 1; i <= points[static_cast<std::size_t>(part)]; ++i) {
      model.Points(part, i).u = in.Number();
      model.Points(part, i).v = in.Number();
    }
  }
}

}  // namespace pelorium
