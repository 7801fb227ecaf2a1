// What steps cost: a drag with them and without, the way back of a full model, and their memory.
#include "full_model.h"
#include "program.h"
#include "windows/shell/history.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

void Send(App& app, const char* window, const char* control, UserAction action, float x = 0, float y = 0) {
  app.Deliver({window, control, action, 0, {}, {MouseButton::Left, {}}, x, y});
}

void ShowFullPart(App& app, int chosen) {
  FillModel(app.model);
  app.view->form5.HScroll25.SetValueWidening(chosen);
  app.view->form51.Option4.SetValue(true);
  app.view->form36.Option7.SetValue(true);
  app.history->held.Begin();
}

// Moves of one drag of 23000 points, without the pixels: what the pixels cost is measured elsewhere.
void MoveInDrag(benchmark::State& state) {
  Program program;
  App& app = program.app;
  ShowFullPart(app, kMaxPoints);
  Send(app, "Form36", "Picture1", UserAction::MouseDown, 400, -300);
  float way = 0;
  for (auto _ : state) {
    way = way == 0 ? 10.0F : 0.0F;
    Send(app, "Form36", "Picture1", UserAction::MouseMove, 400 + way, -300);
  }
}
BENCHMARK(MoveInDrag)->Unit(benchmark::kMillisecond);

// What the steps add to such a move: the first one of a drag keeps what was, the last one compares it.
void KeepOneMove(benchmark::State& state) {
  Program program;
  App& app = program.app;
  ShowFullPart(app, kMaxPoints);
  for (auto _ : state) {
    for (int i = 1; i <= kMaxPoints; ++i) app.model.Points(0, i).X += 1;
    for (FaceRec& face : FaceRange(app.model, 0, 1, kMaxFaces)) face.c1X += 1;
    if (state.range(0) == 1) benchmark::DoNotOptimize(app.history->held.Take().Bytes());
  }
}
BENCHMARK(KeepOneMove)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// Erase all, and back: the model of two full Parts, every window filled, the picture marked.
void UndoFullModel(benchmark::State& state) {
  Program program;
  App& app = program.app;
  ShowFullPart(app, kMaxPoints);
  Send(app, "MDIForm1", "erase", UserAction::Press);
  bool isErased = true;
  for (auto _ : state) {
    isErased ? app.history->Undo() : app.history->Redo();
    isErased = !isErased;
  }
  state.counters["MB"] = static_cast<double>(app.history->Bytes()) / (1 << 20);
}
BENCHMARK(UndoFullModel)->Unit(benchmark::kMillisecond);

// Fifty drags of 2000 points.
void FiftyMoves(benchmark::State& state) {
  for (auto _ : state) {
    Program program;
    App& app = program.app;
    ShowFullPart(app, 2000);
    for (int i = 0; i < 50; ++i) {
      Send(app, "Form36", "Picture1", UserAction::MouseDown, 400, -300);
      Send(app, "Form36", "Picture1", UserAction::MouseMove, 410, -310);
      Send(app, "Form36", "Picture1", UserAction::MouseUp, 410, -310);
    }
    state.counters["MB"] = static_cast<double>(app.history->Bytes()) / (1 << 20);
    state.counters["steps"] = static_cast<double>(app.history->undoSteps());
  }
}
BENCHMARK(FiftyMoves)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace pelorium
