// A program without a screen, with a few controls of the tests' own in one of its windows, and a script to
// play on it.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "platform/headless_platform.h"
#include "script/script_runner.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

class ScriptTest : public testing::Test {
 protected:
  ScriptTest() {
    app.Start();
    bar.onChange = [this] { Note("bar " + std::to_string(bar.value())); };
    box.onChange = [this] { Note("box " + box.text()); };
    box.onKeyUp = [this] { Note("keyup"); };
    button.onClick = [this](const Click& click) { Note(std::string("button") + WordsOf(click)); };
    tick.onClick = [this](const Click&) { Note("tick"); };
    list.onClick = [this](const Click&) { Note("list " + list.chosen()); };
    list.onDoubleClick = [this] { Note("list twice"); };
    view.onKey = [this](char c) { Note(std::string("key ") + c); };
    view.onMouseDown = [this](const MouseEvent& e) { Note("down" + PlaceOf(e)); };
    view.onMouseMove = [this](const MouseEvent& e) { Note("move" + PlaceOf(e)); };
    view.onMouseUp = [this](const MouseEvent& e) { Note("up" + PlaceOf(e)); };
    opener.onClick = [this](const Click&) { platform.RunModal(modal); };
    list.SetItems({"first", "second", "third"});
  }

  // Plays the text as the file "test.pls"; true if nothing failed.
  bool Play(const std::string& text, OnFailure onFailure = OnFailure::Stop) {
    out.str("");
    err.str("");
    ScriptRunner runner(app, platform, out, err, onFailure);
    std::istringstream input(text);
    runner.Play(input, "test.pls");
    status = runner.exitStatus();
    ended = runner.ended();
    return err.str().empty();
  }

  // What a line that must work answers, and the error of one that must not.
  std::string AnswerTo(const std::string& line) {
    EXPECT_TRUE(Play(line)) << line << " -> " << err.str();
    return out.str();
  }
  std::string ErrorOf(const std::string& line) {
    EXPECT_FALSE(Play(line)) << line;
    return err.str();
  }
  // The error of a script of one line.
  static std::string ErrorText(const std::string& what) { return "error: test.pls:1: " + what + "\n"; }

  std::string TakeNotes() { return std::exchange(notes_, {}); }

  HeadlessPlatform platform;
  App app{platform, testing::TempDir()};
  Window& window = *app.FindWindow("frmAbout");
  Window& modal = *app.FindWindow("helpme");
  std::ostringstream out, err;
  int status = 0;
  bool ended = false;

  ScrollBar bar{window, "TestBar", {-5, 36, 7, 2, 9}, "How many", "sets \"how many\""};
  TextBox box{window, "TestBox", "old text"};
  Label label{window, "TestLabel", "a label"};
  PushButton button{window, "TestButton", "Do it"};
  CheckBox tick{window, "TestTick", "a tick"};
  OptionButton option{window, "TestOption", "an option", "group"};
  ListBox list{window, "TestList"};
  ProgressBar progress{window, "TestProgress", 50};
  PictureBox view{window, "TestView", 20, 10};
  PushButton opener{window, "TestOpener", "Open"};

 private:
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

  std::string notes_;
};

}  // namespace pelorium
