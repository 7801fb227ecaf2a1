// One set of tables tells which fields stand on which line; the writer and the reader both walk it.
#include "core/project_file.h"

#include <algorithm>
#include <array>

#include "base/item_reader.h"
#include "core/material_items.h"
#include "core/profile_file.h"
#include "core/record_lines.h"

namespace pelorium {

namespace {

using F = FaceRec;
const std::array<RecordLine<F>, 4> kFaceLines = {{
    Fractions<F>({&F::c1X, &F::c1Y, &F::c1Z}, ItemForm::Rounded),
    Fractions<F>({&F::c2X, &F::c2Y, &F::c2Z}, ItemForm::Rounded),
    Fractions<F>({&F::c3X, &F::c3Y, &F::c3Z}, ItemForm::Rounded),
    RecordLine<F>{{&F::corner1pt, ItemForm::Exact, 1, kMaxPoints},
                  {&F::corner2pt, ItemForm::Exact, 1, kMaxPoints},
                  {&F::corner3pt, ItemForm::Exact, 1, kMaxPoints},
                  {&F::group, ItemForm::Exact, 0, kMaxGroup},
                  {&F::onoff}},
}};

// Stores a counter within its table and returns the file's own number, which the loops follow.
int ReadCounter(ItemReader& in, std::int16_t& counter, int limit) {
  const auto inFile = in.Integer<std::int16_t>();
  counter = static_cast<std::int16_t>(std::clamp<int>(inFile, 0, limit));
  return inFile;
}

void WriteFaces(const ModelStore& model, int part, TextWriter& out) {
  const PartHeader& header = model.Part(part);
  out.Print(header.maxpoints).Print(header.minpoints).EndLine();
  out.Print(header.maxfaces).Print(header.minfaces).EndLine();
  for (const FaceRec& face : FaceRange(model, part, 1, header.maxfaces)) {
    WriteLines<FaceRec>(out, face, kFaceLines);
  }
}

// Returns the file's own count of points, which the points block follows.
int ReadFaces(ModelStore& model, int part, ItemReader& in) {
  PartHeader& header = model.Part(part);
  header.grid.reset();
  const int points = ReadCounter(in, header.maxpoints, kMaxPoints);
  ReadCounter(in, header.minpoints, kMaxPoints);
  const int faces = ReadCounter(in, header.maxfaces, kMaxFaces);
  ReadCounter(in, header.minfaces, kMaxFaces);
  for (int f = 1; f <= faces; ++f) ReadLines<FaceRec>(in, model.Faces(part, f), kFaceLines);
  return points;
}

void WritePoints(const ModelStore& model, int part, TextWriter& out) {
  out.Print(model.Part(part).Sections).EndLine();
  int i = 1;
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
    out.Rounded(point.X, kPositionDecimals).Text(" ").Rounded(point.Y, kPositionDecimals).Text(" ");
    out.Rounded(point.Z, kPositionDecimals).Text(" ").Integer(model.PointMark(part, i++)).Text(" ");
    out.General(point.u).Text(" ").General(point.v).EndLine();
  }
}

// `points` is the file's own count: the table ends the loop if it is too large.
void ReadPoints(ModelStore& model, int part, int points, ItemReader& in) {
  model.Part(part).Sections = in.Integer<std::int16_t>();
  for (int i = 1; i <= points; ++i) {
    PointRec& point = model.Points(part, i);
    point.X = in.Number();
    point.Y = in.Number();
    point.Z = in.Number();
    model.PointMark(part, i) = in.Integer<std::int16_t>();
    point.u = in.Number();
    point.v = in.Number();
  }
}

void WriteMaterial(const MaterialRec& material, TextWriter& out) {
  WriteMaterialItems(material, out);
  std::string name = material.GroupName;  // a line end inside would shift every later item
  std::erase_if(name, [](char c) { return c == '\r' || c == '\n'; });
  out.Line(name);
}

void ReadMaterial(MaterialRec& material, ItemReader& in) {
  ReadMaterialItems(material, in);
  material.GroupName = in.Line();
}

}  // namespace

void WriteProject(const ModelStore& model, TextWriter& out) {
  for (int part = 0; part < kUserParts; ++part) WriteFaces(model, part, out);
  for (int part = 0; part < kUserParts; ++part) WritePoints(model, part, out);
  WriteProfiles(model, out);
  for (int group = 0; group < kSavedGroups; ++group) WriteMaterial(model.MaterialGroups(group), out);
}

void ReadProject(ModelStore& model, std::string_view text) {
  ItemReader in(text);
  std::array<int, kUserParts> points{};
  for (int part = 0; part < kUserParts; ++part)
    points[static_cast<std::size_t>(part)] = ReadFaces(model, part, in);
  for (int part = 0; part < kUserParts; ++part)
    ReadPoints(model, part, points[static_cast<std::size_t>(part)], in);
  ReadProfiles(model, in, ProfileItems::All);
  for (int group = 0; group < kSavedGroups; ++group) ReadMaterial(model.MaterialGroups(group), in);
}

}  // namespace pelorium
