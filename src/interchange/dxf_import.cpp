// The DXF imports.
#include "interchange/dxf_import.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "base/fault.h"
#include "base/numbers.h"
#include "core/part_operations.h"

namespace pelorium {

namespace {

constexpr int kMostLinesToCorner = 17;

// The lines of the file without the blanks around them.
class DxfTokens {
 public:
  explicit DxfTokens(ByteSource& file) : lines_(file) {
    while (Next() != "ENTITIES") {
    }
  }

  std::string_view Next() {
    std::string_view line;
    if (!lines_.Next(line)) throw Fault(FaultKind::EndOfFile, "the entities do not end" + Place());
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    return line.substr(0, line.find_last_not_of(" \t") + 1);
  }

  double Value() {
    const std::string_view token = Next();
    try {
      return LeadingNumber(token);
    } catch (const Fault& fault) {
      throw fault.At(Place());
    }
  }

  double Coordinate(double factor) {
    const double value = Value() * factor;
    if (!std::isfinite(value)) throw Fault(FaultKind::Overflow, "a coordinate" + Place());
    return value;
  }

  template <std::integral Field>
  Field Integer() {
    const double value = Value();
    try {
      return ToInteger<Field>(value);
    } catch (const Fault& fault) {
      throw fault.At(Place());
    }
  }

  std::string Place() const { return ", line " + std::to_string(lines_.number()); }

 private:
  LineReader lines_;
};

bool EndsEntities(std::string_view token) { return token == "ENDSEC" || token == "EOF"; }

// Leaves the tokens behind the code of the next entity's first coordinate; false at the end of the entities.
// Codes and values alternate, and only a code counts as "10": a colour or a coordinate may be 10 as well.
bool SeekCorner(DxfTokens& tokens) {
  for (int number = 1; number <= kMostLinesToCorner; ++number) {
    const std::string_view token = tokens.Next();
    if (EndsEntities(token)) return false;
    const bool isCode = number % 2 == 1;
    if (isCode && token == "10") return true;
  }
  throw Fault(FaultKind::BadNumber,
              "no group 10 in " + std::to_string(kMostLinesToCorner) + " lines" + tokens.Place());
}

// The three values of a place; the code of the first has been read.
Vec3 ReadPlace(DxfTokens& tokens, double factor) {
  Vec3 place;
  place.X = tokens.Coordinate(factor);
  tokens.Next();
  place.Y = tokens.Coordinate(factor);
  tokens.Next();
  place.Z = tokens.Coordinate(factor);
  return place;
}

Vec3 ReadNextPlace(DxfTokens& tokens, double factor) {
  tokens.Next();
  return ReadPlace(tokens, factor);
}

void SetCounts(ModelStore& model, int part, int points, int faces) {
  PartHeader& header = model.Part(part);
  header.maxpoints = Narrow<std::int16_t>(points);
  header.maxfaces = Narrow<std::int16_t>(faces);
  header.minpoints = header.minfaces = 1;
}

void SwitchOn(ModelStore& model, int part, int face) {
  model.Faces(part, face).onoff = model.FaceMark(part, face) = 1;
}

// Faces one after another, with three points of their own each.
class SeparateFaces {
 public:
  SeparateFaces(ModelStore& model, int part) : model_(model), part_(part) { model.Part(part).grid.reset(); }

  // The next corner of the next face, which holds its position from now on.
  void AddCorner(const Vec3& place) {
    FaceRec& face = model_.Faces(part_, faces_ + 1);
    const auto [x, y, z] = kCopies[static_cast<std::size_t>(points_ % 3)];
    face.*x = place.X, face.*y = place.Y, face.*z = place.Z;
    LayPoint(model_, part_, ++points_, place);
    if (points_ % 3 == 0) AddFace(face);
  }

  // A file whose faces do not fit never gets here: they stand in the tables, with the counts as they were.
  void Finish() { SetCounts(model_, part_, points_, faces_); }

 private:
  using F = FaceRec;
  static constexpr std::array<std::array<double F::*, 3>, 3> kCopies = {
      {{&F::c1X, &F::c1Y, &F::c1Z}, {&F::c2X, &F::c2Y, &F::c2Z}, {&F::c3X, &F::c3Y, &F::c3Z}}};

  void AddFace(FaceRec& face) {
    face.corner1pt = points_ - 2, face.corner2pt = points_ - 1, face.corner3pt = points_;
    SwitchOn(model_, part_, ++faces_);
  }

  ModelStore& model_;
  int part_;
  int points_ = 0, faces_ = 0;
};

// Goes on to a group code within the present entity and leaves the tokens before its value.
void SeekCode(DxfTokens& tokens, std::string_view code) {
  for (std::string_view token = tokens.Next(); token != code; token = tokens.Next()) {
    if (token == "0") throw Fault(FaultKind::EndOfFile, "no group " + std::string(code) + tokens.Place());
    tokens.Next();
  }
}

// Goes on to the name of the next entity.
std::string_view NextEntity(DxfTokens& tokens) {
  while (tokens.Next() != "0") tokens.Next();
  return tokens.Next();
}

void NextVertex(DxfTokens& tokens) {
  const std::string_view name = NextEntity(tokens);
  if (name != "VERTEX") throw Fault(FaultKind::EndOfFile, "the mesh ends too early" + tokens.Place());
}

int ReadCount(DxfTokens& tokens, std::string_view code, int most) {
  SeekCode(tokens, code);
  const int count = tokens.Integer<std::int16_t>();
  if (count < 0 || count > most) {
    throw Fault(FaultKind::Subscript, "a count of " + std::to_string(count) + tokens.Place());
  }
  return count;
}

void ReadMeshPoint(DxfTokens& tokens, double factor, ModelStore& model, int part, int number) {
  NextVertex(tokens);
  Vec3 place;
  for (auto [code, coordinate] : {std::pair{"10", &Vec3::X}, {"20", &Vec3::Y}, {"30", &Vec3::Z}}) {
    SeekCode(tokens, code);
    place.*coordinate = tokens.Coordinate(factor);
  }
  LayPoint(model, part, number, place);
}

void ReadMeshFace(DxfTokens& tokens, ModelStore& model, int part, int number) {
  NextVertex(tokens);
  FaceRec& face = model.Faces(part, number);
  for (auto [code, corner] :
       {std::pair{"71", &FaceRec::corner1pt}, {"72", &FaceRec::corner2pt}, {"73", &FaceRec::corner3pt}}) {
    SeekCode(tokens, code);
    face.*corner = tokens.Integer<std::int32_t>();
    if (face.*corner > kMaxPoints) {
      throw Fault(FaultKind::Subscript, "corner " + std::to_string(face.*corner) + tokens.Place());
    }
  }
  SwitchOn(model, part, number);
}

}  // namespace

void ReadDxfTriangles(ModelStore& model, int part, ByteSource& file, double factor) {
  SeparateFaces faces(model, part);
  DxfTokens tokens(file);
  while (SeekCorner(tokens)) {
    faces.AddCorner(ReadPlace(tokens, factor));
    faces.AddCorner(ReadNextPlace(tokens, factor));
    faces.AddCorner(ReadNextPlace(tokens, factor));
  }
  faces.Finish();
}

void ReadDxfQuads(ModelStore& model, int part, ByteSource& file, double factor) {
  SeparateFaces faces(model, part);
  DxfTokens tokens(file);
  while (SeekCorner(tokens)) {
    const Vec3 first = ReadPlace(tokens, factor), second = ReadNextPlace(tokens, factor);
    const Vec3 third = ReadNextPlace(tokens, factor), fourth = ReadNextPlace(tokens, factor);
    for (const Vec3& corner : {first, second, third, first, third, fourth}) faces.AddCorner(corner);
  }
  faces.Finish();
}

void ReadDxfMesh(ModelStore& model, int part, ByteSource& file, double factor) {
  model.Part(part).grid.reset();
  DxfTokens tokens(file);
  NextEntity(tokens);
  const int points = ReadCount(tokens, "71", kMaxPoints);
  const int faces = ReadCount(tokens, "72", kMaxFaces);
  for (int i = 1; i <= points; ++i) ReadMeshPoint(tokens, factor, model, part, i);
  for (int i = 1; i <= faces; ++i) ReadMeshFace(tokens, model, part, i);
  SetCounts(model, part, points, faces);
  SyncFaceCorners(model, part);
}

}  // namespace pelorium
