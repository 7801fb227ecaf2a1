// Sessions of the script language with what they answer. A transcript is its own golden: lines behind "> "
// are played, those that stand together as one script, and what comes of them follows:
//   two blanks and an answer, "! " and an error, "* " and what a control was told, "= " and the exit status.
// "---" begins another program in a folder of its own; the rest of that line says what it shows.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <ostream>
#include <regex>
#include <set>
#include <sstream>

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "platform/headless_platform.h"
#include "script/script_runner.h"
#include "support/harness.h"
#include "windows/shell/app_shell.h"

namespace pelorium {
namespace {

// A program without a screen, with a few controls of the tests' own in one of its windows.
class Program {
 public:
  Program() : old_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder_.path());
    for (const char* name : {"projects", "objs", "objinfo", "parts0", "parts1", "parts4"})
      std::filesystem::create_directory(name);
    std::filesystem::copy_file(PELORIUM_TESTS_DIR "/../data/parts/presetlist.txt", "parts0/presetlist.txt");
    app.drawsAtOnce = std::getenv("PELORIUM_DRAW_AT_ONCE") != nullptr;
    app.Start();
    app.faults.TakeAll();
    app.notices.TakeAll();  // the help text is not there
    list.SetItems({"first", "second", "third"});
    disabled.SetEnabled(false);
    bar.onChange = [this] { Note("bar " + std::to_string(bar.value())); };
    box.onChange = [this] { Note("box " + box.text()); };
    box.onKeyUp = [this] { Note("keyup"); };
    tick.onClick = [this](const Click&) { Note("tick"); };
    list.onClick = [this](const Click&) { Note("list " + list.chosen()); };
    list.onDoubleClick = [this] { Note("list twice"); };
    view.onKey = [this](char c) { Note(std::string("key ") + c); };
    view.onMouseDown = [this](const MouseEvent& e) { Note("down" + PlaceOf(e)); };
    view.onMouseMove = [this](const MouseEvent& e) { Note("move" + PlaceOf(e)); };
    view.onMouseUp = [this](const MouseEvent& e) { Note("up" + PlaceOf(e)); };
    view.onResize = [this](int width, int height) { Note("size " + std::to_string(width * 1000 + height)); };
    BindButtons();
  }
  ~Program() { std::filesystem::current_path(old_); }

  std::string AnswersTo(const std::string& script) {
    if (script.empty()) return {};
    std::ostringstream out, err;
    ScriptRunner runner(app, platform, out, err);
    std::istringstream input(script);
    runner.Play(input, "script");
    std::string answers =
        Prefixed("  ", out.str()) + Prefixed("! ", err.str()) + Prefixed("* ", std::exchange(notes_, {}));
    if (runner.ended()) answers += "= " + std::to_string(runner.exitStatus()) + "\n";
    return answers;
  }

 private:
  void BindButtons() {
    button.onClick = [this](const Click& click) { Note("button" + WordsOf(click)); };
    modal.onClick = [this](const Click&) { platform.RunModal(*app.FindWindow("helpme")); };
    stroke.onClick = [this](const Click&) { view.picture().Line(3, 4, 4, 4, Rgb(200, 100, 50)); };
    fault.onClick = [](const Click&) { throw Fault(FaultKind::DivisionByZero, "here"); };
    random.onClick = [this](const Click&) { Note(std::to_string(app.random.Next())); };
    quit.onClick = [this](const Click&) { app.exitRequested = true; };
    ask.onClick = [this](const Click&) {
      platform.ShowMessage("It says \"no\"\nand more");
      Note("save as " + platform.AskFileName({true, "Save it", "/home/a b", "All (*.x)|*.x", "*.x"}));
      Note("open " + platform.AskFileName({false, "Open", "", "", ""}));
    };
  }

  // The time that a command took is another each time, and so are the folder and names of unfinished files.
  std::string Prefixed(const std::string& prefix, const std::string& text) const {
    const std::string folder = folder_.path().string();
    std::istringstream lines(text);
    std::string prefixed;
    for (std::string line; std::getline(lines, line);) {
      for (auto at = line.find(folder); at != line.npos; at = line.find(folder)) {
        line.replace(at, folder.size(), "~");
      }
      line = std::regex_replace(line, std::regex("saving-[0-9]+"), "saving");
      prefixed += prefix + (line.starts_with("ms ") ? "ms ..." : line) + "\n";
    }
    return prefixed;
  }

  void Note(const std::string& what) { notes_ += what + "\n"; }
  static std::string WordsOf(const Click& click) {
    return std::string(click.IsRight() ? " right" : " left") + (click.keys.shift ? " shift" : "") +
           (click.keys.ctrl ? " ctrl" : "") + (click.keys.alt ? " alt" : "");
  }
  static std::string PlaceOf(const MouseEvent& e) {
    std::ostringstream text;
    text << ' ' << e.x << ' ' << e.y << WordsOf({e.button, e.keys});
    return text.str();
  }

  TemporaryFolder folder_;
  std::filesystem::path old_;
  std::string notes_;
  HeadlessPlatform platform;
  App app{platform, folder_.path()};
  Window& window = *app.FindWindow("frmAbout");
  ScrollBar bar{window, "Bar", {-5, 36, 7, 2, 9}, "How many", "sets \"how many\""};
  TextBox box{window, "Box", "old text"};
  Label label{window, "Label", "a label"};
  CheckBox tick{window, "Tick", "a tick"};
  OptionButton option{window, "Option", "an option", "group"};
  ListBox list{window, "List"};
  ProgressBar progress{window, "Progress", 50};
  PictureBox view{window, "View", 20, 10};
  PushButton button{window, "Button", "Do it"}, disabled{window, "Disabled", "Not now"};
  PushButton modal{window, "Modal", ""}, stroke{window, "Line", ""}, fault{window, "Fault", ""};
  PushButton random{window, "Random", ""}, quit{window, "Quit", ""}, ask{window, "Ask", ""};
};

// The transcript with the answers as they are now.
std::string Played(const std::string& transcript) {
  std::istringstream lines(transcript);
  auto program = std::make_unique<Program>();
  std::string played, script;
  for (std::string line; std::getline(lines, line);) {
    const bool isInput = line.starts_with("> "), isOther = line.starts_with("---");
    if (!isInput) played += program->AnswersTo(std::exchange(script, {}));
    if (isOther) program.reset();  // the old folder is left before another is entered
    if (isOther) program = std::make_unique<Program>();
    if (isInput) script += line.substr(2) + "\n";
    if (isInput || isOther || line.empty() || line.starts_with("#")) played += line + "\n";
  }
  return played + program->AnswersTo(script);
}

class Transcripts : public ::testing::TestWithParam<std::string> {};

TEST_P(Transcripts, AnswerAsTheyDid) {
  const std::string name = "script/transcripts/" + GetParam() + ".txt";
  EXPECT_TRUE(MatchesGolden(Played(BytesOf(std::filesystem::path(PELORIUM_TESTS_DIR) / name)), name));
}

std::set<std::string> NamesOfTranscripts() {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(PELORIUM_TESTS_DIR) /
                                                               "script" / "transcripts")) {
    if (entry.path().extension() == ".txt") names.insert(entry.path().stem());
  }
  return names;
}

INSTANTIATE_TEST_SUITE_P(Script, Transcripts, ::testing::ValuesIn(NamesOfTranscripts()),
                         [](const auto& made) {
                           std::string name = made.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace pelorium
