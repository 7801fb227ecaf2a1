// One Auto Extrude event at the tables' limits, and its points alone.
#include <benchmark/benchmark.h>

#include <cmath>

#include "geometry/extrude.h"
#include "program.h"
#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

constexpr int kEffector = 7;

// A ring of 36 points and 37 layers, all bent, with every effector on.
void PrepareProfile(ModelStore& model, int profile) {
  ProfileHeader& header = model.Profile(profile);
  header.count = kMaxLayer;
  header.layerCount = kMaxLayer;
  header.genRotateX = 10, header.genTurnY = 20, header.genSpinZ = 30;
  header.genMoveX = 5;
  for (auto picker :
       {&ProfileHeader::originPathProfile, &ProfileHeader::pathProfileX, &ProfileHeader::pathProfileY,
        &ProfileHeader::pathProfileZ, &ProfileHeader::addProfile1X, &ProfileHeader::addProfile1Y,
        &ProfileHeader::addProfile1Z, &ProfileHeader::addProfile2X, &ProfileHeader::addProfile2Y,
        &ProfileHeader::addProfile2Z}) {
    header.*picker = kEffector;
  }
  for (int i = 0; i <= kMaxLayer; ++i) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    point.X = 100 * std::cos(i * 0.17), point.Z = 100 * std::sin(i * 0.17);
    point.spinZ = i, point.turnY = 2 * i, point.rotateX = 3 * i;
    point.secSpinZ = i, point.secTurnY = i, point.secRotateX = i;
    point.multX = 1.01, point.multZ = 0.99, point.moveX = i, point.secMoveY = i;
    point.addXAmt1 = point.addYAmt1 = point.addZAmt1 = 1;
    point.addXAmt2 = point.addYAmt2 = point.addZAmt2 = 0.5;
    ProfilePointRec& effector = model.ProfilePts(i, kEffector);
    effector.X = i, effector.Y = -i, effector.Z = 2 * i;
  }
}

void ExtrudedPoints(benchmark::State& state) {
  ModelStore model;
  PrepareProfile(model, 0);
  ExtrudeSettings settings;
  settings.lastSection = kMaxLayer;
  for (auto _ : state) benchmark::DoNotOptimize(LayExtrudedPoints(model, settings));
}
BENCHMARK(ExtrudedPoints)->Unit(benchmark::kMillisecond);

// A bar of the window is moved; event to pixels. With everything on, both caps are pressed and the seam is welded.
void AutoExtrudeEvent(benchmark::State& state) {
  Program program;
  App& app = program.app;
  PrepareProfile(app.model, 0);
  app.view->form51.ShowProfile();
  app.view->form51.Option4.SetValue(true);
  if (state.range(0) != 0) {
    for (const char* tick : {"Check2", "Check3", "Check8"}) {
      app.Deliver({"Form55", tick, UserAction::Press});
    }
  }
  app.geometry->form55.Check1.SetValue(true);
  MeasureDrags(state, app, "Form55", "HScroll23", 10, 11);
  state.counters["faces"] = app.model.Part(0).maxfaces;
}
BENCHMARK(AutoExtrudeEvent)->ArgName("capsAndWeld")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
