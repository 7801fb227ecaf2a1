// Writes whole files as seeds for the fuzz targets: fuzz_seeds CORPUS. They are too long to be kept in the
// sources, and made from the program's own writers they follow the format by themselves.
#include <cstdio>
#include <exception>
#include <filesystem>

#include "base/files.h"
#include "base/random_series.h"
#include "core/profile_file.h"
#include "core/project_file.h"

using namespace pelorium;

namespace {

void AddTetrahedron(ModelStore& model, int part) {
  constexpr double kPoints[4][3] = {{0, 0, 0}, {10.25, 0, 0}, {0, 10, -0.5}, {0, 0, 1e15}};
  constexpr int kFaces[4][3] = {{1, 2, 3}, {1, 2, 4}, {2, 3, 4}, {3, 1, 4}};
  for (int i = 0; i < 4; ++i) {
    PointRec& point = model.Points(part, i + 1);
    point.X = kPoints[i][0], point.Y = kPoints[i][1], point.Z = kPoints[i][2];
    FaceRec& face = model.Faces(part, i + 1);
    face.corner1pt = kFaces[i][0], face.corner2pt = kFaces[i][1], face.corner3pt = kFaces[i][2];
  }
  model.Part(part).maxpoints = model.Part(part).maxfaces = 4;
}

// The shortest whole file: two empty Parts, and nothing but empty items up to the group names.
void WriteEmptyItems(TextWriter& out) {
  out.Line("0,0,0,0,0,0,0,0,31,31");
  constexpr int kItemsOfAProfile = 24, kItemsOfAPoint = 29, kItemsOfAGroup = 24, kProfiles = kMaxProfile + 1;
  out.Line(std::string(kProfiles * (kItemsOfAProfile + kProfiles * kItemsOfAPoint), ','));
  for (int group = 0; group < kMaxGroup; ++group) {
    out.Line(std::string(kItemsOfAGroup - 1, ',') + "0");
    out.Line("g");
  }
}

// Both forms of a profile file: what the writer makes, and one with exactly the items that the reader takes.
void WriteProfileSeeds(const std::filesystem::path& folder, ModelStore& model) {
  std::filesystem::create_directories(folder);
  WriteFile(folder / "written.txt", [&](TextWriter& out) { WriteProfiles(model, out); });
  constexpr int kItemsOfAProfile = 21, kItemsOfAPoint = 26, kProfiles = kMaxProfile + 1;
  WriteFile(folder / "whole.txt", [](TextWriter& out) {
    for (int i = 0; i < kProfiles * (kItemsOfAProfile + kProfiles * kItemsOfAPoint); ++i) out.Print(i % 37);
  });
  for (const char* name : {"written.txt", "whole.txt"}) ReadProfileFile(model, ReadFile(folder / name));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: fuzz_seeds CORPUS\n", stderr);
    return 2;
  }
  try {
    const auto folder = std::filesystem::path(argv[1]) / "project";
    std::filesystem::create_directories(folder);
    RandomSeries random;
    ModelStore model;
    ResetModel(model, random);
    AddTetrahedron(model, 1);
    WriteFile(folder / "tetrahedron.prj", [&](TextWriter& out) { WriteProject(model, out); });
    WriteProfileSeeds(std::filesystem::path(argv[1]) / "profile", model);
    WriteFile(folder / "empty_items.prj", WriteEmptyItems);
    ReadProject(model, ReadFile(folder / "empty_items.prj"));  // a seed that no longer loads is no seed
    return 0;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "fuzz_seeds: %s\n", fault.what());
    return 1;
  }
}
