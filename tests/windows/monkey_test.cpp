// Seeded random walks over every control and the view: nothing may break the tables' invariants or leave a
// handler.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "windows/monkey.h"
#include "windows/shell/event_text.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

void ExpectInvariants(const App& app, int step) {
  for (int part = 0; part < kParts; ++part) {
    const PartHeader& p = app.model.Part(part);
    ASSERT_TRUE(p.maxfaces >= -1 && p.maxfaces <= kMaxFaces) << "step " << step;
    ASSERT_TRUE(p.maxpoints >= 0 && p.maxpoints <= kMaxPoints) << "step " << step;
    for (const FaceRec& f : FaceRange(app.model, part, 1, p.maxfaces)) {
      // Corners may be any numbers: an import that met a fault leaves those that it read.
      ASSERT_TRUE(f.group >= 0 && f.group <= kMaxGroup) << "step " << step;
    }
  }
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    const int count = app.model.Profile(profile).count;
    ASSERT_TRUE(count >= 0 && count <= kMaxLayer) << "step " << step;
  }
  ASSERT_EQ(app.automaticActionsHeld, 0) << "step " << step;
  ASSERT_TRUE(app.TessCount >= 1 && app.TessCount <= kMaxPoints + 1) << "step " << step;
}

TEST_P(Monkey, WalksOverEveryControl) {
  // PELORIUM_MONKEY_STEPS asks for a longer walk by hand.
  const char* asked = std::getenv("PELORIUM_MONKEY_STEPS");
  const int steps = asked != nullptr ? std::atoi(asked) : 20000;
  for (int step = 0; step < steps; ++step) {
    platform.QueueAnswer(Below(2) == 0 ? "" : (folder() / ("file" + std::to_string(Below(4)))).string());
    app.Deliver(Doing());
    ASSERT_NO_FATAL_FAILURE(ExpectInvariants(app, step));
    if (step % 10 == 0) app.view->form36.Picture1.picture().Pixels();
  }
}

// The same walk with pictures drawn at once: the same pixels at the end of every event.
TEST_P(Monkey, ShowsTheSameWhenDrawnAtOnce) {
  const TemporaryFolder other;
  HeadlessPlatform otherPlatform;
  App atOnce(otherPlatform, other.path());
  atOnce.drawsAtOnce = true;
  atOnce.Start();
  for (App* each : {&app, &atOnce}) each->random.FixClockSeed(1);
  const auto pixels = [](App& a) -> const std::vector<std::uint32_t>& {
    return a.view->form36.Picture1.picture().Pixels();
  };
  for (int step = 0; step < 400; ++step) {
    const UserEvent event = Doing();
    app.Deliver(event);
    atOnce.Deliver(event);
    if (app.view->form36.Label54.caption() == " SHADED VIEW ") continue;  // one surface draws both
    ASSERT_EQ(pixels(app), pixels(atOnce)) << "step " << step << ": " << ScriptLine(event);
  }
}

// Ten walks of 20000 steps, side by side where there are processors for it.
INSTANTIATE_TEST_SUITE_P(Seeds, Monkey, testing::Range(1, 11));

}  // namespace
}  // namespace pelorium
