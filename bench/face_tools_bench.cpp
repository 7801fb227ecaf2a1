// The tools of single faces at a full Part: choosing a face, unfolding pair after pair, and a large pattern.
#include <array>

#include "facetools/draw_face.h"
#include "facetools/switch_faces.h"
#include "full_model.h"
#include "interchange/svg_pattern.h"
#include "program.h"
#include "windows/facetools/editbyface_face_info.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/facetools/unfold_flat_pattern.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"

namespace pelorium {
namespace {

// Faces of three points each, as many as a Part holds.
void DisjoinFully(ModelStore& model) {
  constexpr int kFaces = kMaxPoints / 3;
  for (int f = 1; f <= kFaces; ++f) {
    FaceRec& face = model.Faces(0, f);
    face.corner1pt = 3 * f - 2, face.corner2pt = 3 * f - 1, face.corner3pt = 3 * f;
  }
  model.Part(0).maxfaces = kFaces;
  model.Part(0).maxpoints = 3 * kFaces;
}

void Show(App& app) {
  FillModel(app.model);
  DisjoinFully(app.model);
  FollowCounts(app);
  SyncFaceCorners(app);
  app.view->form51.Option4.SetValue(true);
}

// The panel alone: its picture with the scan for equal places.
void FacePicture(benchmark::State& state) {
  ModelStore model;
  FillModel(model);
  for (int i = 1; i <= kMaxPoints; i += 2)
    model.Points(0, i) = {.X = 1, .Y = 2, .Z = 3};  // many equal places
  Picture picture(200, 200);
  for (auto _ : state) {
    DrawFace(model, 0, 1, picture);
    benchmark::DoNotOptimize(picture.Pixels().data());
  }
}

BENCHMARK(FacePicture)->Unit(benchmark::kMillisecond);

void ChooseFace(benchmark::State& state) {
  Program program;
  Show(program.app);
  program.app.facetools->editbyface.Show();
  MeasureDrags(state, program.app, "editbyface", "VScroll2", 1, 2);
}

BENCHMARK(ChooseFace)->Unit(benchmark::kMillisecond);

// One event of a walk over a hundred pairs, picture included.
void UnfoldPairs(benchmark::State& state) {
  Program program;
  App& app = program.app;
  Show(app);
  app.facetools->unfold.Show();
  app.facetools->unfold.Check1.SetValue(true);
  int face = 1;
  for (auto _ : state) {
    face = face >= 199 ? 1 : face + 2;
    app.Deliver({"unfold", "VScroll2", UserAction::Drag, static_cast<double>(face)});
    benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
  }
}

BENCHMARK(UnfoldPairs)->Unit(benchmark::kMillisecond);

// 3000 faces of a flat grid that was bent before, with tabs and all numbers, from the model to the last byte.
void SvgOf3000Faces(benchmark::State& state) {
  ModelStore model;
  constexpr int kColumns = 50, kFaces = 3000;
  for (int f = 0; f < kFaces; ++f) {
    const double x = f / 2 % kColumns * 10, y = f / 2 / kColumns * 10;
    const std::array<std::array<double, 2>, 3> odd = {{{0, 0}, {10, 0}, {0, 10}}},
                                               even = {{{10, 0}, {10, 10}, {0, 10}}};
    for (int i = 0; i < 3; ++i) {
      const auto& at = (f % 2 == 0 ? odd : even)[static_cast<std::size_t>(i)];
      model.Points(0, 3 * f + i + 1) = {.X = x + at[0], .Y = y + at[1], .Z = 10};
      model.Points(kTempPart, 3 * f + i + 1) = {.X = x + at[0], .Y = y + at[1], .Z = x * x / 100};
    }
    model.Faces(0, f + 1) = {.corner1pt = 3 * f + 1, .corner2pt = 3 * f + 2, .corner3pt = 3 * f + 3};
    if (state.range(0) != 0 && f % 4 == 0) model.Faces(0, f + 1).onoff = 0;  // many edges to cut
  }
  model.Part(0).maxfaces = kFaces;
  model.Part(0).maxpoints = model.Part(kTempPart).maxpoints = 3 * kFaces;
  PatternSettings settings;
  settings.lastFace = kFaces;
  settings.tabWidth = 3;
  settings.faceNumbers = true;
  for (auto _ : state) {
    StringSink sink;
    TextWriter out(sink);
    const FlatPattern pattern = MakeFlatPattern(model, settings);
    const PatternPages pages = LayOutPages(pattern, PatternPaper::Fit);
    WriteSvgPage(pattern, pages, 0, out);
    out.Flush();
    benchmark::DoNotOptimize(sink.text().size());
  }
}

BENCHMARK(SvgOf3000Faces)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
