// Saving and opening a project of the largest size, disk included.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>

#include "base/files.h"
#include "core/project_file.h"
#include "full_model.h"

namespace pelorium {
namespace {

std::filesystem::path ProjectPath() {
  return std::filesystem::temp_directory_path() / ("pelorium-bench-" + std::to_string(getpid()) + ".prj");
}

void SaveLargestProject(benchmark::State& state) {
  ModelStore model;
  FillModel(model);
  for (auto _ : state) {
    ReplaceFile(ProjectPath(), [&model](TextWriter& out) { WriteProject(model, out); });
  }
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(ProjectPath()));
  std::filesystem::remove(ProjectPath());
}
BENCHMARK(SaveLargestProject)->Unit(benchmark::kMillisecond)->UseRealTime();

void OpenLargestProject(benchmark::State& state) {
  ModelStore model;
  FillModel(model);
  ReplaceFile(ProjectPath(), [&model](TextWriter& out) { WriteProject(model, out); });
  for (auto _ : state) ReadProject(model, ReadFile(ProjectPath()));
  std::filesystem::remove(ProjectPath());
}
BENCHMARK(OpenLargestProject)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace pelorium
