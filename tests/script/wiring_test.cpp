// What every control does: one golden a window under wiring/, with its controls, its layout, and all that one
// event on each of its controls changes anywhere in the program. A new window or control is covered by
// itself.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <sstream>

#include "base/numbers.h"
#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/rich_text_box.h"
#include "core/profile_file.h"
#include "core/project_file.h"
#include "graphics/gl_recorder.h"
#include "platform/working_folder.h"
#include "program_watch.h"
#include "script/answers.h"
#include "script/script_runner.h"
#include "support/harness.h"
#include "support/numbered_model.h"
#include "windows/shell/event_text.h"

namespace pelorium {
namespace {

namespace fs = std::filesystem;

// Takes the calls of the shaded view; its pixels are a number over them.
class CallSurface : public GlSurface {
 public:
  Gl* Begin(int, int) override {
    calls_.Restart();
    return &calls_;
  }
  void ReadBack(std::uint32_t* pixels, int width, int height) override {
    std::uint32_t sum = 2166136261U;
    for (const GlCall& call : calls_.calls()) {
      for (const char c : CallText(call)) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
    }
    std::fill_n(pixels, width * height, sum & 0xffffff);
  }

 private:
  GlRecorder calls_;
};

// Two drawn profiles, a revolved and an extruded Part, all in sight in a small picture.
constexpr const char* kPrepared = R"(
resize Form36.Picture1 320 240
press Form36.Home
press MDIForm1.profileview
mouse Form36.Picture1 down 160 -150
mouse Form36.Picture1 down 170 -135
mouse Form36.Picture1 down 170 -115
mouse Form36.Picture1 down 155 -100
drag revolveprof.HScroll10 5
press revolveprof.Command15
drag Form51.HScroll4 1
drag Form51.HScroll3 1
mouse Form36.Picture1 down 100 -90
mouse Form36.Picture1 down 140 -90
mouse Form36.Picture1 down 140 -60
drag Form55.HScroll24 3
press Form55.Command30
drag Form51.HScroll4 0
drag Form51.HScroll3 0
drag Form51.HScroll9 90
set Points(0,2).onoff 0
set PointMark(0,2) 0
set Points(0,15).onoff 0
set PointMark(0,15) 0
set Faces(0,3).onoff 0
set Faces(0,5).group 2
set ProfilePts(1,0).Y 7
drag texture.HScroll7 30
drag texture.HScroll8 23
press texture.Command49
press texture.Command4
drag texture.HScroll7 2
drag texture.HScroll8 2
set Form31.Text1 projects/sample.prj
set Form31.Text2 projects/sample.prj
set frmsaveprof.Text1 profiles/sample.txt
set helpme.RichTextBox1 "some words"
press Form51.Check14
press Form51.Option16
)";

// The folder of the programs of one test, with a file of each kind.
class Home {
 public:
  Home() {
    for (const char* name : WorkingSubFolders()) fs::create_directory(folder_.path() / name);
  }
  const fs::path& path() const { return folder_.path(); }

  // As it was before the last program.
  void Restore() const {
    for (const auto& entry : fs::recursive_directory_iterator(path())) {
      const std::string name = entry.path().lexically_relative(path()).string();
      if (entry.is_regular_file() && !files_.contains(name)) fs::remove(entry.path());
    }
    for (const auto& [name, bytes] : files_) {
      if (!fs::exists(path() / name) || BytesOf(path() / name) != bytes) WriteBytes(path() / name, bytes);
    }
  }

 private:
  static std::map<std::string, std::string> SampleFiles() {
    ModelStore model, drawn;
    NumberModel(model);
    drawn.ProfilePts(1, 0).X = 5;
    drawn.ProfilePts(2, 3).moveY = 6;
    const std::string project = TextOf([&](TextWriter& out) { WriteProject(model, out); });
    return {{"projects/sample.prj", project},
            {"qsave.txt", project},
            {"profiles/sample.txt", TextOf([&](TextWriter& out) { WriteProfiles(drawn, out); })},
            {"notes/sample.rtf", "{\\rtf1 a {\\b bold} word}"},
            {"objs/sample.obj", "v 1 2 3\n"}};
  }

  TemporaryFolder folder_;
  const std::map<std::string, std::string> files_ = SampleFiles();
};

// A started program with that model.
class Prepared {
 public:
  explicit Prepared(const Home& home) : app(platform, (home.Restore(), home.path())) {
    app.openGl = [] { return std::make_unique<CallSurface>(); };
    app.Start();
    app.random.FixClockSeed(1);
    std::istringstream lines(kPrepared);
    std::ostringstream said;
    ScriptRunner runner(app, platform, said, said);
    runner.Play(lines, "preparation");
    EXPECT_EQ(said.str(), "");
    static_cast<RichTextBox*>(app.FindWindow("helpme")->Find("RichTextBox1"))->SetSelection(2, 5);
    platform.SetClipboardText("from elsewhere");
    platform.SetClipboardPicture(Picture(4, 3));
  }

  WatchedPlatform platform;
  App app;
};

constexpr int kLongestDrag = 30;

// Events that go together, and when what they do is told.
struct Doing {
  enum class Telling { Always, IfAnything, Never };
  std::vector<UserEvent> events;
  Telling telling = Telling::Always;
};

class DoingsOf {
 public:
  explicit DoingsOf(const Control& control) : control_(control) {
    const ControlKind kind = control.kind();
    if (kind == ControlKind::MenuItem) {
      Press({});
    } else if (kind == ControlKind::PushButton || control.onClick) {
      PressByKind();
    } else if (kind == ControlKind::CheckBox || kind == ControlKind::OptionButton) {
      PressByKind();
    }
    if (kind == ControlKind::ScrollBar) Drag(static_cast<const ScrollBar&>(control));
    if (kind == ControlKind::TextBox) Type(static_cast<const TextBox&>(control));
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) Choose(*list);
    if (kind == ControlKind::PictureBox) Strokes(static_cast<const PictureBox&>(control));
    if (control.onDoubleClick) Do(UserAction::DoubleClick);
    for (const char key : std::string_view(control.onKey ? "mmrspo-" : "")) {
      Do(UserAction::Key).text = key;
      doings_.back().telling = Doing::Telling::IfAnything;
    }
  }

  const std::vector<Doing>& all() const { return doings_; }

 private:
  UserEvent Event(UserAction action) const { return {control_.owner().name(), control_.name(), action}; }
  UserEvent& Do(UserAction action) {
    doings_.push_back({{Event(action)}});
    return doings_.back().events.back();
  }
  void Press(const Click& click) { Do(UserAction::Press).click = click; }

  // A button by both sides of the mouse; what holds a state twice. An option that is on gives way to another
  // first.
  void PressByKind() {
    if (const auto* option = dynamic_cast<const OptionButton*>(&control_);
        option != nullptr && option->value()) {
      for (const Control* other : control_.owner().controls()) {
        const auto* sibling = dynamic_cast<const OptionButton*>(other);
        if (sibling == nullptr || sibling == option || sibling->group() != option->group()) continue;
        Press({});
        doings_.back().events.front().control = sibling->name();
        doings_.back().telling = Doing::Telling::Never;
        break;
      }
    }
    Press({});
    const bool holdsState =
        control_.kind() == ControlKind::CheckBox || control_.kind() == ControlKind::OptionButton;
    Press({holdsState ? MouseButton::Left : MouseButton::Right, {}});
    if (holdsState) doings_.back().telling = Doing::Telling::IfAnything;
  }

  // A third of the way to the upper end, or back from there; a short way, so that all stays in sight.
  void Drag(const ScrollBar& bar) {
    const int low = std::min(bar.min(), bar.max()), high = std::max(bar.min(), bar.max());
    const int third = std::min((high - bar.value() + 2) / 3, kLongestDrag);
    Do(UserAction::Drag).value =
        third > 0 ? bar.value() + third : std::max(high - kLongestDrag, low + (high - low) / 3);
  }

  void Type(const TextBox& box) {
    const std::string& text = box.text();
    const bool isNumber = !text.empty() && text.find_first_not_of("-.0123456789") == std::string::npos;
    Do(UserAction::Type).text = isNumber ? ShortestForm(box.Number() + 1.5) : "typed";
  }

  void Choose(const ListBox& list) {
    if (!list.items().empty()) Do(UserAction::Drag).value = static_cast<double>(list.items().size() - 1);
  }

  // Down, two moves, up, by both sides of the mouse; after each a move that no button holds.
  void Strokes(const PictureBox& box) {
    const Picture& picture = box.measures();
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
      if (!box.onMouseDown && !box.onMouseMove && !box.onMouseUp) break;
      doings_.push_back({});
      const auto at = [&](UserAction action, double across, double down, MouseButton held) {
        UserEvent event = Event(action);
        event.x = picture.ToUserX(static_cast<int>(across * picture.PixelWidth()));
        event.y = picture.ToUserY(static_cast<int>(down * picture.PixelHeight()));
        event.click.button = held;
        doings_.back().events.push_back(event);
      };
      at(UserAction::MouseDown, .4, .5, button), at(UserAction::MouseMove, .45, .55, button);
      at(UserAction::MouseMove, .6, .7, button), at(UserAction::MouseUp, .6, .7, button);
      doings_.push_back({{}, Doing::Telling::IfAnything});
      at(UserAction::MouseMove, .5, .6, MouseButton::None);
    }
    if (!box.onResize) return;
    UserEvent& resize = Do(UserAction::Resize);
    resize.width = picture.PixelWidth() / 2, resize.height = picture.PixelHeight() / 2;
  }

  const Control& control_;
  std::vector<Doing> doings_;
};

std::string LineOf(const Doing& doing) {
  std::string line = ScriptLine(doing.events.front());
  for (std::size_t i = 1; i < doing.events.size(); ++i) {
    const UserEvent& event = doing.events[i];
    line += ", " + ShortestForm(event.x) + " " + ShortestForm(event.y);
  }
  return line;
}

// A program to be watched, with the window that the person is at.
class Watched {
 public:
  Watched(const Home& home, ProgramWatch& watch, const std::string& name)
      : prepared(home), watch_(watch), window(*prepared.app.FindWindow(name)) {
    window.Show();
    prepared.app.Deliver({"Form51", "Command1"});  // refreshes what a hidden window leaves undone
    watch.Follow(prepared.app, prepared.platform);
  }

  std::string Do(const Doing& doing) {
    bool applies = true;
    for (const UserEvent& event : doing.events) applies = prepared.app.Deliver(event) && applies;
    const std::vector<std::string> changes = watch_.TakeChanges(window.name());
    if (doing.telling == Doing::Telling::Never) return {};
    if (doing.telling == Doing::Telling::IfAnything && changes.empty()) return {};
    std::string lines = LineOf(doing) + (applies ? changes.empty() ? ": nothing\n" : "\n" : ": disabled\n");
    for (const std::string& change : changes) lines += "  " + change + "\n";
    return lines;
  }

  // Another view, and each bar to another value: a button that moves by 0 shows nothing.
  void ChangeAround() {
    prepared.app.Deliver({"MDIForm1", "profileview"});
    for (const Control* control : window.controls()) {
      if (control->kind() != ControlKind::ScrollBar) continue;
      const DoingsOf doings(*control);
      for (const Doing& doing : doings.all()) prepared.app.Deliver(doing.events.front());
    }
    watch_.TakeChanges();
  }

 private:
  Prepared prepared;
  ProgramWatch& watch_;

 public:
  Window& window;
};

// The lines of one control, in a program of its own. A button that does nothing is tried again with all bars
// moved.
std::string EffectsOf(const Home& home, ProgramWatch& watch, const std::string& window,
                      const std::string& control, bool isChanged) {
  Watched program(home, watch, window);
  if (isChanged) program.ChangeAround();
  std::string lines;
  const Control& tried = *program.window.Find(control);
  const DoingsOf doings(tried);
  for (const Doing& doing : doings.all()) lines += program.Do(doing);
  const bool isStill =
      lines.find("\n  ") == std::string::npos && lines.find(": disabled") == std::string::npos;
  if (isChanged) return isStill ? "" : "in another view, with all bars moved:\n" + lines;
  const bool isButton =
      isStill && (tried.kind() == ControlKind::PushButton || tried.kind() == ControlKind::MenuItem);
  return isButton ? lines + EffectsOf(home, watch, window, control, true) : lines;
}

std::string ClosingOf(const Home& home, ProgramWatch& watch, const std::string& window) {
  std::string lines = Watched(home, watch, window).Do({{{window, {}, UserAction::CloseWindow}}});
  return lines.replace(lines.find("set"), 0, "close: ");
}

// How far the ends of the bars and the ways beside their sliders go: a line for each pair of steps.
std::string StepsOfBars(const Window& window) {
  std::map<std::pair<int, int>, std::string> bars;
  for (const Control* control : window.controls()) {
    if (control->kind() != ControlKind::ScrollBar) continue;
    const auto& bar = static_cast<const ScrollBar&>(*control);
    bars[{bar.smallChange, bar.largeChange}] += " " + bar.name();
  }
  std::string lines;
  for (const auto& [steps, names] : bars)
    lines += std::to_string(steps.first) + " " + std::to_string(steps.second) + ":" + names + "\n";
  return lines.empty() ? lines : "\n# Steps of the bars\n" + lines;
}

class Wiring : public testing::TestWithParam<std::string> {};

TEST_P(Wiring, OfEveryControl) {
  const Home home;
  const Prepared still(home);
  const Window& window = *still.app.FindWindow(GetParam());
  std::string text = "# Controls\n" + ControlLines(window) + StepsOfBars(window) + "\n# Layout\n" +
                     LayoutLines(window.layout()) + "\n# What one event on each control changes\n";
  const std::string folder = still.app.applicationPath.string();
  for (std::size_t at; (at = text.find(folder)) != std::string::npos;) text.replace(at, folder.size(), "~");
  ProgramWatch watch;
  for (const Control* control : window.controls())
    text += EffectsOf(home, watch, window.name(), control->name(), false);
  text += ClosingOf(home, watch, window.name());
  EXPECT_TRUE(MatchesGolden(text, "script/wiring/" + window.name() + ".txt"));
}

std::vector<std::string> AllWindows() {
  HeadlessPlatform platform;
  const App app(platform, ".");
  std::vector<std::string> names;
  for (const Window* window : app.windows()) names.push_back(window->name());
  return names;
}

INSTANTIATE_TEST_SUITE_P(Windows, Wiring, testing::ValuesIn(AllWindows()),
                         [](const auto& made) { return made.param; });

}  // namespace
}  // namespace pelorium
