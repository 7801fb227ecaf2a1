// Writes whole files as seeds for the fuzz targets: fuzz_seeds CORPUS. They are too long to be kept in the
// sources, and made from the program's own writers they follow the format by themselves.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>

#include "base/files.h"
#include "base/random_series.h"
#include "controls/rich_text_format.h"
#include "core/part_operations.h"
#include "core/profile_file.h"
#include "core/project_file.h"
#include "interchange/dxf_export.h"
#include "interchange/material_settings.h"
#include "interchange/obj_export.h"
#include "interchange/text_part.h"
#include "interchange/texture_file.h"
#include "interchange/uvs_file.h"
#include "interchange/xyz_files.h"
#include "platform/picture_files.h"

using namespace pelorium;
namespace fs = std::filesystem;

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
void WriteProfileSeeds(const fs::path& folder, ModelStore& model) {
  WriteFile(folder / "written.txt", [&](TextWriter& out) { WriteProfiles(model, out); });
  constexpr int kItemsOfAProfile = 21, kItemsOfAPoint = 26, kProfiles = kMaxProfile + 1;
  WriteFile(folder / "whole.txt", [](TextWriter& out) {
    for (int i = 0; i < kProfiles * (kItemsOfAProfile + kProfiles * kItemsOfAPoint); ++i) out.Print(i % 37);
  });
  for (const char* name : {"written.txt", "whole.txt"}) ReadProfileFile(model, ReadFile(folder / name));
}

void WriteProjectSeeds(const fs::path& folder, ModelStore& model) {
  WriteFile(folder / "tetrahedron.prj", [&](TextWriter& out) { WriteProject(model, out); });
  WriteFile(folder / "empty_items.prj", WriteEmptyItems);
  ReadProject(model, ReadFile(folder / "empty_items.prj"));  // a seed that no longer loads is no seed
}

void WriteMeshSeeds(const fs::path& textPart, const fs::path& xyz, const ModelStore& model) {
  WriteFile(textPart / "tetrahedron.txt", [&](TextWriter& out) { WriteTextPart(model, 1, out); });
  WriteFile(xyz / "faces.txt", [&](TextWriter& out) { WriteSeparateFaces(model, 1, out); });
  WriteFile(xyz / "positions.txt", [&](TextWriter& out) { WriteProfilePositions(model, out); });
}

void WriteExchangeSeeds(const std::function<fs::path(const char*)>& folder, const ModelStore& model) {
  WriteFile(folder("obj") / "tetrahedron.obj", [&](TextWriter& out) { WriteObj(model, {}, out); });
  WriteFile(folder("obj_slash") / "tetrahedron.obj", [&](TextWriter& out) {
    WriteObj(model, {"", true, true, true, false}, out);
  });
  for (const char* name : {"dxf_tri", "dxf_quad"}) {
    WriteFile(folder(name) / "tetrahedron.dxf",
              [&](TextWriter& out) { WriteDxfTriangles(model, 1, 10, std::nullopt, out); });
    WriteFile(folder(name) / "subdivided.dxf",
              [&](TextWriter& out) { WriteDxfSubdivided(model, 1, 1, out); });
  }
  WriteFile(folder("dxf_mesh") / "tetrahedron.dxf", [&](TextWriter& out) { WriteDxfMesh(model, 1, out); });
}

// A mapped tetrahedron in every kind of file with texture coordinates.
void WriteUvSeeds(const std::function<fs::path(const char*)>& folder, ModelStore& model) {
  PartHeader& part = model.Part(1);
  part.vtcount = part.vtfacecount = 4;
  for (int i = 1; i <= 4; ++i) {
    model.Points(1, i).u = i / 8.0;
    FaceRec& face = model.Faces(1, i);
    face.vt1 = 1, face.vt2 = 2, face.vt3 = static_cast<std::int16_t>(i);
  }
  WriteFile(folder("uvs") / "mapping.uvs", [&](TextWriter& out) { WriteUvs(model, 1, out); });
  WriteFile(folder("texture") / "mapping.tex", [&](TextWriter& out) { WriteTextureFile(model, out); });
  ObjExportSettings settings;
  settings.textureCoordinates = true;
  WriteFile(folder("obj_uv") / "mapped.obj", [&](TextWriter& out) { WriteObj(model, settings, out); });
  WriteFile(folder("tuv") / "two.tuv",
            [](TextWriter& out) { out.Text("1,1,1,1\r\n1 0 0 1 0 0.5 1\r\n").Line("2 0 0 1 0 -1e3 2"); });
}

// Every look, a bullet, and characters of one to four bytes.
void WriteTextSeeds(const fs::path& folder) {
  RichText text("plain \\ {x}\ttab\nsecond\n\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
  text.SetBullet(1, true);
  text.ForRange(2, 9, [](TextFormat& format) { format.bold = format.underline = true; });
  text.ForRange(8, 9, [](TextFormat& format) {
    format.italic = true;
    format.points = 7.5;
    format.colour = Rgb(9, 200, 77);
  });
  WriteFile(folder / "written.rtf", [&](TextWriter& out) { out.Text(RichTextFile(text)); });
  WriteFile(folder / "plain.txt", [&](TextWriter& out) { out.Text(PlainTextFile(text)); });
}

void WritePictureSeeds(const fs::path& folder) {
  Picture picture(5, 3);
  picture.Line(0, 0, 5, 2, Rgb(1, 2, 3));
  SavePicture(picture, folder / "line.bmp");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: fuzz_seeds CORPUS\n", stderr);
    return 2;
  }
  try {
    const auto folder = [&](const char* name) {
      const fs::path path = fs::path(argv[1]) / name;
      fs::create_directories(path);
      return path;
    };
    RandomSeries random;
    ModelStore model;
    ResetModel(model, random);
    AddTetrahedron(model, 1);
    SyncFaceCorners(model, 1);
    WriteMeshSeeds(folder("text_part"), folder("xyz"), model);
    WriteExchangeSeeds(folder, model);
    WriteFile(folder("material_settings") / "all.txt",
              [&](TextWriter& out) { WriteMaterialSettings(model, out); });
    WriteFile(folder("preset_list") / "list.txt", [](TextWriter& out) { out.Text("cube\r\n\r\nring"); });
    WriteUvSeeds(folder, model);
    WriteTextSeeds(folder("rich_text"));
    WritePictureSeeds(folder("picture"));
    WriteProfileSeeds(folder("profile"), model);
    WriteProjectSeeds(folder("project"), model);
    return 0;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "fuzz_seeds: %s\n", fault.what());
    return 1;
  }
}
