// A random walk over events with undo and redo among them. What each step is to bring back is told here by
// the rules alone: an event is a step; what goes on with the same control, and what lies between a press on a
// picture and its release, is one; changes of nothing but corner copies belong to the step before.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>
#include <utility>

#include "controls/boxed_bar.h"
#include "script/events.h"
#include "script/script_runner.h"
#include "windows/held_digest.h"
#include "windows/monkey.h"
#include "windows/shell/event_text.h"
#include "windows/shell/history.h"

namespace pelorium {
namespace {

class UndoWalk : public Monkey {
 protected:
  struct Known {
    Digests before, after;
  };

  UndoWalk() : runner_(app, platform, out_, out_, OnFailure::KeepGoing) {
    app.random.FixClockSeed(GetParam());
    for (int group = 0; group <= kMaxGroup; ++group) colours.push_back(app.model.MaterialGroups(group));
    run_ = now_ = DigestOfHeld(app);
  }

  // A line of the script, or nothing when it was refused.
  void Play(const std::string& line) {
    journal += line + "\n";
    PlayOn(runner_, line);
  }

  // Past a refusal, and past Exit, which would end a script.
  static void PlayOn(ScriptRunner& runner, const std::string& line) {
    try {
      runner.Execute(SplitWords(line));
    } catch (const std::exception&) {
    }
  }

  std::string NextLine() {
    if (!held_.empty() && Below(4) == 0) return "mouse " + *held_.begin() + " up 30 30 left";
    const int what = Below(100);
    if (what < 9) return "undo";
    if (what < 15) return "redo";
    if (what < 18) return TableLine();
    if (what < 22) return "mouse texture.Picture" + std::string(Below(2) == 0 ? "1" : "5") + StrokeWords();
    if (what < 24) return "press texture." + OneOf(app.FindWindow("texture")->controls())->name();
    if (what < 26) return repeated_;
    for (;;) {
      const UserEvent event = Doing();
      // Images of all sizes would take most of the walk.
      if (event.window == "texture" && (event.action == UserAction::Drag || event.action == UserAction::Type))
        continue;
      const std::string line = ScriptLine(event);
      if (event.action == UserAction::Drag || event.action == UserAction::Type) repeated_ = line;
      return line;
    }
  }

  std::string TableLine() {
    const std::string at = "(" + std::to_string(Below(4)) + "," + std::to_string(1 + Below(200)) + ").";
    static const std::vector<std::string> kFields = {"X -0", "Y 12.25", "Z 0", "onoff 0"};
    static const std::vector<std::string> kOthers = {"texture.HScroll33 120", "texture.HScroll33 300",
                                                     "texture.HScroll30 90",  "Part(0).PartName other",
                                                     "TessCount 7",           "MaterialGroups(3).KdR 0.25",
                                                     "Form5.Text5 12",        "Part(1).maxfaces 7"};
    if (Below(3) == 0) return "set " + OneOf(kOthers);
    return Below(2) == 0 ? "set Points" + at + OneOf(kFields)
                         : "set Faces" + at + "c1X " + std::to_string(Below(9));
  }

  std::string StrokeWords() {
    static const std::vector<std::string> kWhat = {" down ", " move ", " move ", " up "};
    return OneOf(kWhat) + std::to_string(Below(400)) + " " + std::to_string(Below(300)) + " left";
  }

  // Which control an event goes on with, or nothing.
  std::string Continued(const Words& words) const {
    if (words[0] != "drag" && words[0] != "type") return {};
    const std::size_t point = words[1].find('.');
    const Window* window = app.FindWindow(words[1].substr(0, point));
    for (const Control* control : window->controls()) {
      const auto* bar = dynamic_cast<const BoxedBar*>(control);
      if (bar != nullptr && &bar->box == window->Find(words[1].substr(point + 1))) return bar->FullName();
    }
    return words[1];
  }

  bool IsPossible(const Words& words) const {
    if (words[0] == "undo" || words[0] == "redo" || words[0] == "set") return true;
    try {
      CheckPossible(app, EventOf(words));
      return true;
    } catch (const std::exception&) {
      return false;
    }
  }

  void CloseRun() {
    if (run_.all == now_.all) return;
    if (run_.withoutCorners == now_.withoutCorners) {
      if (!undo_.empty()) undo_.back().after = now_;
      if (!redo_.empty()) redo_.back().before = now_;
    } else {
      undo_.push_back({run_, now_});
      redo_.clear();
    }
    run_ = now_;
  }

  // One event by the rules: `goesOn_` is the control whose run is open.
  void Expect(const std::string& line) {
    const Words words = SplitWords(line);
    if (!IsPossible(words)) return Play(line);
    const std::string continued = Continued(words);
    const bool goesOn = !held_.empty() || (!continued.empty() && continued == goesOn_);
    if (!goesOn) CloseRun();
    const bool wasHeld = !held_.empty();
    if (words[0] == "mouse" && words[2] == "down") held_.insert(words[1]);
    if (words[0] == "mouse" && words[2] == "up") held_.erase(words[1]);
    Play(line);
    const Digests before = now_;
    now_ = DigestOfHeld(app);
    const bool isUndo = words[0] == "undo" || words.back() == "MDIForm1.undoit";
    if (isUndo || words[0] == "redo" || words.back() == "MDIForm1.redoit") {
      goesOn_ = wasHeld ? goesOn_ : "";
      return ExpectRestored(before, isUndo, wasHeld);
    }
    if (!wasHeld) goesOn_ = continued;
    if (held_.empty() && (wasHeld || goesOn_.empty())) {
      goesOn_.clear();
      return CloseRun();
    }
    if (run_.withoutCorners != now_.withoutCorners) redo_.clear();
  }

  void ExpectRestored(const Digests& before, bool isUndo, bool isHeld) {
    auto &from = isUndo ? undo_ : redo_, &to = isUndo ? redo_ : undo_;
    if (isHeld || from.empty()) {
      ASSERT_EQ(now_.all, before.all) << "nothing was to change";
      return;
    }
    ASSERT_EQ(before.all, isUndo ? from.back().after.all : from.back().before.all) << "unseen change";
    ASSERT_EQ(now_.all, isUndo ? from.back().before.all : from.back().after.all) << "not as it was";
    to.push_back(from.back());
    from.pop_back();
    run_ = now_;
    ++restored;
  }

  // Steps may be dropped for their memory only.
  void FollowDropped() {
    const History& history = *app.history;
    const std::size_t bytes = std::max(history.Bytes(), std::exchange(bytesBefore_, history.Bytes()));
    const bool mayDrop =
        history.limit() < History::kUsualLimit || bytes > history.limit() / 2 || history.undoSteps() == 0;
    for (auto [mine, steps] : {std::pair{&undo_, history.undoSteps()}, {&redo_, history.redoSteps()}}) {
      ASSERT_GE(mine->size(), steps);
      ASSERT_TRUE(mine->size() == steps || mayDrop) << mine->size() << " and " << steps;
      mine->erase(mine->begin(), mine->end() - static_cast<std::ptrdiff_t>(steps));
    }
  }

  std::vector<MaterialRec> colours;  // those of the start come from the clock
  int restored = 0;
  std::string journal;

 private:
  std::ostringstream out_;
  ScriptRunner runner_;
  std::vector<Known> undo_, redo_;
  Digests run_, now_;
  std::size_t bytesBefore_ = 0;
  std::string goesOn_, repeated_ = "drag Form5.HScroll10 3";
  std::set<std::string> held_;
};

TEST_P(UndoWalk, BringsBackWhatWasAndPlaysBackTheSame) {
  // PELORIUM_UNDO_STEPS asks for a longer walk by hand.
  const char* asked = std::getenv("PELORIUM_UNDO_STEPS");
  const int steps = asked != nullptr ? std::atoi(asked) : 250;
  if (GetParam() == 2) Play("set UndoLimit 1");
  for (const char* line : {"press MDIForm1.revolve2", "press Form51.Option4", "set Points(0,1).X 5"})
    Expect(line);
  for (int step = 0; step < steps; ++step) {
    if (Below(3) == 0) Play(Below(2) == 0 ? "cancel" : "answer file" + std::to_string(Below(4)));
    const std::string line = NextLine();
    Expect(line);
    FollowDropped();
    if (HasFailure()) FAIL() << "step " << step << ": " << line;
  }
  EXPECT_GT(restored, steps / 60);
  RecordProperty("restored", restored);
  const TemporaryFolder other;
  for (const char* name : {"projects", "objs", "objinfo"})
    std::filesystem::create_directory(other.path() / name);
  HeadlessPlatform otherPlatform;
  App again(otherPlatform, other.path());
  again.openGl = app.openGl;
  again.Start();
  again.random.FixClockSeed(GetParam());
  for (int group = 0; group <= kMaxGroup; ++group)
    again.model.MaterialGroups(group) = colours[static_cast<std::size_t>(group)];
  again.history->held.Begin();
  std::filesystem::current_path(other.path());
  std::ostringstream out;
  std::istringstream lines(journal);
  ScriptRunner runner(again, otherPlatform, out, out, OnFailure::KeepGoing);
  for (std::string line; std::getline(lines, line);) PlayOn(runner, line);
  EXPECT_EQ(DigestOfHeld(again).all, DigestOfHeld(app).all);
  std::filesystem::current_path(folder());
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoWalk, testing::Values(1, 2));

}  // namespace
}  // namespace pelorium
