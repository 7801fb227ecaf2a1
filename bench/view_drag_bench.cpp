// Drags over the view at full tables: one mouse event, from the door to the pixels of the view.
#include "full_model.h"
#include "program.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

void SendMouse(App& app, UserAction action, float x, float y, MouseButton button) {
  app.Deliver({"Form36", "Picture1", action, 0, {}, {button, {}}, x, y});
}

void ShowFullPart(App& app) {
  FillModel(app.model);
  app.view->form5.HScroll25.SetValueWidening(kMaxPoints);
  app.view->form51.Option4.SetValue(true);
}

// 23000 chosen points of a full Part beside another full one, in the 3D view.
void MeasureMode(benchmark::State& state, OptionButton Form36::*mode, MouseButton button) {
  Program program;
  App& app = program.app;
  ShowFullPart(app);
  (app.view->form36.*mode).SetValue(true);
  SendMouse(app, UserAction::MouseDown, 400, -300, button);
  float way = 0;
  for (auto _ : state) {
    way = way == 0 ? 10.0F : 0.0F;
    SendMouse(app, UserAction::MouseMove, 400 + way, -300 - way, button);
    benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
  }
}

BENCHMARK_CAPTURE(MeasureMode, Move, &Form36::Option7, MouseButton::Left)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeasureMode, Rotate, &Form36::Option8, MouseButton::Left)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeasureMode, Scale, &Form36::Option9, MouseButton::Left)->Unit(benchmark::kMillisecond);

// The peer: a redraw alone, with nothing moved.
void Redraw(benchmark::State& state) {
  Program program;
  App& app = program.app;
  ShowFullPart(app);
  for (auto _ : state) {
    app.view->form51.Command1.Press();
    benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
  }
}

BENCHMARK(Redraw)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
