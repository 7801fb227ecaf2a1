// Quantising, circles, progress.
#include "imaging/effect_samples.h"

#include <cmath>

#include "base/fault.h"

namespace pelorium {

Level Quantise(int value, double divisor) {
  if (divisor == 0) throw Fault(FaultKind::DivisionByZero, "the level divisor is not set");
  const double number = std::floor(value / divisor);
  return {number, number * divisor};
}

void Stamper::Circle(Pixel at, int radius) {
  if (!circle_ || circle_->radius() != radius || circle_->width() != target_.drawWidth) {
    circle_.emplace(radius, target_.drawWidth);
  }
  circle_->Set(grid_, at, target_.foreColour);
}

void StartProgress(const EffectRun& run) {
  if (run.onStart) run.onStart(run.foreground.PixelWidth() + 2);
}

void RestoreWidths(EffectRun& run) {
  run.foreground.drawWidth = run.background.drawWidth = run.settings.pointSize;
}

}  // namespace pelorium
