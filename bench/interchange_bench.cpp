// OBJ and DXF files of models as large as users have them, in memory; another reader of OBJ text beside ours.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <sstream>

#include "base/files.h"
#include "core/part_operations.h"
#include "full_model.h"
#include "interchange/dxf_export.h"
#include "interchange/dxf_import.h"
#include "interchange/obj_export.h"
#include "interchange/obj_import.h"
#include "program.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/interchange_windows.h"

#ifdef PELORIUM_HAS_PEER
#include <tiny_obj_loader.h>
#endif

namespace pelorium {
namespace {

constexpr int kPoints = 3900, kFaces = 7600;

// Part 0 with 3900 points, whose numbers have all their digits, and 7600 faces on them.
void FillLargePart(ModelStore& model) {
  FillModel(model);
  for (int i = 1; i <= kPoints; ++i) {
    PointRec& point = model.Points(0, i);
    point.X /= 3, point.Y /= 7, point.Z /= 9;
  }
  for (int f = 1; f <= kFaces; ++f) {
    FaceRec& face = model.Faces(0, f);
    const int base = f / 2 + 1;
    face.corner1pt = base, face.corner2pt = base + 1, face.corner3pt = base + 60;
  }
  model.Part(0).maxpoints = kPoints, model.Part(0).maxfaces = kFaces;
  model.Part(1).maxpoints = model.Part(1).maxfaces = 0;
  SyncFaceCorners(model, 0);
}

template <typename Write>
std::string Written(Write write) {
  StringSink sink;
  TextWriter out(sink);
  write(out);
  out.Flush();
  return sink.text();
}

std::string LargeObj(bool withSlashes) {
  ModelStore model;
  FillLargePart(model);
  ObjExportSettings settings;
  settings.textureCoordinates = withSlashes;
  return Written([&](TextWriter& out) { WriteObj(model, settings, out); });
}

void ImportObj(benchmark::State& state) {
  ObjImportSettings settings;
  settings.kind = state.range(0) != 0 ? ObjKind::WithSlashes : ObjKind::Plain;
  const std::string text = LargeObj(state.range(0) != 0);
  ModelStore model;
  for (auto _ : state) {
    StringSource file(text);
    ReadObj(model, 1, file, settings);
    benchmark::DoNotOptimize(model.Faces(1, kFaces).c3Z);
  }
  state.counters["faces"] = model.Part(1).maxfaces;
}
BENCHMARK(ImportObj)->ArgName("slashes")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

#ifdef PELORIUM_HAS_PEER
// Parses into arrays of its own; no copies of corners.
void SameThroughTinyObjLoader(benchmark::State& state) {
  const std::string text = LargeObj(false);
  for (auto _ : state) {
    std::istringstream file(text);
    tinyobj::attrib_t points;
    std::vector<tinyobj::shape_t> shapes;
    std::vector<tinyobj::material_t> materials;
    std::string warning, error;
    if (!tinyobj::LoadObj(&points, &shapes, &materials, &warning, &error, &file))
      state.SkipWithError(error.c_str());
    benchmark::DoNotOptimize(shapes.data());
  }
}
BENCHMARK(SameThroughTinyObjLoader)->Unit(benchmark::kMillisecond);
#endif

// The button: dialog, file, scratch files, ranges, views.
void ImportObjThroughItsButton(benchmark::State& state) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / ("pelorium-bench-" + std::to_string(getpid()));
  fs::create_directories(folder);
  WriteFile(folder / "a.obj", [](TextWriter& out) { out.Text(LargeObj(false)); });
  {
    HeadlessPlatform platform;
    App app(platform, folder);
    app.Start();
    for (auto _ : state) {
      platform.QueueAnswer((folder / "a.obj").string());
      app.interchange->form14.imports.Command25.Press();
    }
    state.counters["faces"] = app.model.Part(0).maxfaces;
  }
  fs::remove_all(folder);
}
BENCHMARK(ImportObjThroughItsButton)->Unit(benchmark::kMillisecond)->UseRealTime();

void ExportTwoFullParts(benchmark::State& state) {
  ModelStore model;
  FillModel(model);
  std::size_t bytes = 0;
  for (auto _ : state) bytes = Written([&](TextWriter& out) { WriteObj(model, {}, out); }).size();
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(ExportTwoFullParts)->Unit(benchmark::kMillisecond);

std::string LargeDxf(const ModelStore& model) {
  return Written([&](TextWriter& out) { WriteDxfTriangles(model, 0, 1, std::nullopt, out); });
}

void ExportDxfTriangles(benchmark::State& state) {
  ModelStore model;
  FillLargePart(model);
  std::size_t bytes = 0;
  for (auto _ : state) bytes = LargeDxf(model).size();
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(ExportDxfTriangles)->Unit(benchmark::kMillisecond);

void ImportDxfTriangles(benchmark::State& state) {
  ModelStore model;
  FillLargePart(model);
  const std::string text = LargeDxf(model);
  for (auto _ : state) {
    StringSource file(text);
    ReadDxfTriangles(model, 1, file, 1);
  }
  state.counters["faces"] = model.Part(1).maxfaces;
}
BENCHMARK(ImportDxfTriangles)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
