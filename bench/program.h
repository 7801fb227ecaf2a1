// A started program without a screen, and one bar of it moved again and again.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

#include "platform/headless_platform.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

struct Program {
  HeadlessPlatform platform;
  App app{platform, "."};
  Program() { app.Start(); }
};

// Moves the bar between two values, each time from the event to the pixels of the view.
inline void MeasureDrags(benchmark::State& state, App& app, const std::string& window, const std::string& bar,
                         int first, int second) {
  UserEvent event;
  event.window = window;
  event.control = bar;
  event.action = UserAction::Drag;
  for (auto _ : state) {
    event.value = event.value == first ? second : first;
    app.Deliver(event);
    benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
  }
}

}  // namespace pelorium
