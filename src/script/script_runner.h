// Plays lines of the script language on a program without a screen.
#pragma once

#include <deque>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "script/parser.h"

namespace pelorium {

class App;
class HeadlessPlatform;
class Window;

enum class OnFailure { Stop, KeepGoing };

// Answers go to `out`, flushed after each command; "error: FILE:LINE: what" goes to `err` when a command
// fails.
class ScriptRunner {
 public:
  // Takes over the platform's modal windows as long as it lives.
  ScriptRunner(App& app, HeadlessPlatform& platform, std::ostream& out, std::ostream& err,
               OnFailure onFailure = OnFailure::Stop);
  ~ScriptRunner();
  ScriptRunner(const ScriptRunner&) = delete;
  ScriptRunner& operator=(const ScriptRunner&) = delete;

  // Plays the lines of `input` to its end, or until the run ends. Takes no more lines than it plays, so that
  // whoever feeds the input may wait for an answer first. `name` stands for the input in errors.
  void Play(std::istream& input, const std::string& name);

  // True after `quit`, after the program's own exit, and after a failure that stops the run.
  bool ended() const { return ended_; }
  // Of the whole program: 0, or 2 after a failure that stops the run.
  int exitStatus() const { return exitStatus_; }

  // For the commands.
  App& app() { return app_; }
  HeadlessPlatform& platform() { return platform_; }
  std::ostream& out() { return out_; }
  void Execute(const Words& words);           // a command with its words; raises what it fails with
  void KeepModal(const std::string& window);  // takes the lines up to `end` and keeps them for that window
  void Quit() { ended_ = true; }

 private:
  struct Line {
    std::string text;
    std::string file;
    int number = 0;  // from 1
  };
  using LineSource = std::function<bool(Line&)>;
  struct KeptLines {
    std::string window;
    std::vector<Line> lines;
  };

  void PlayFrom(const LineSource& source);
  void PlayLine(const Line& line);
  void PlayModal(Window& window);
  void Fail(const Line& line, const std::string& what);

  App& app_;
  HeadlessPlatform& platform_;
  std::ostream& out_;
  std::ostream& err_;
  OnFailure onFailure_;
  const LineSource* source_ = nullptr;  // where the present line came from
  std::deque<KeptLines> kept_;
  bool ended_ = false;
  int exitStatus_ = 0;
};

}  // namespace pelorium
