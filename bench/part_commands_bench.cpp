// Menu commands on whole Parts with full tables, from the press to the pixels of the view.
#include "full_model.h"
#include "program.h"
#include "windows/view/form51_view_options.h"

namespace pelorium {
namespace {

void PressItem(benchmark::State& state, const char* item) {
  Program program;
  program.app.view->form51.Option4.SetValue(true);
  UserEvent event;
  event.window = "MDIForm1";
  event.control = item;
  for (auto _ : state) {
    state.PauseTiming();
    FillModel(program.app.model);
    state.ResumeTiming();
    program.app.Deliver(event);
    benchmark::DoNotOptimize(program.app.view->form36.Picture1.picture().Pixels().data());
  }
  if (program.app.faults.count() > 1) state.SkipWithError("the command met a fault");  // the help text is one
}
BENCHMARK_CAPTURE(PressItem, join, "joinitall")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PressItem, deleteTurnedOff, "eraseoff")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PressItem, disjoin, "disjoinit")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PressItem, subdivide, "subdivideme")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PressItem, copy, "copypart")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PressItem, pasteInto, "pasteintome")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PressItem, eraseAll, "erase")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
