// The run of a script: lines, failures, and the lines kept for modal windows.
#include "script/script_runner.h"

#include <algorithm>
#include <utility>

#include "platform/headless_platform.h"
#include "script/commands.h"
#include "script/places.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

// The first word of a line, however the rest of it is spelt: what tells the borders of a block of lines.
std::string FirstWord(const std::string& line) {
  const std::size_t start = line.find_first_not_of(" \t");
  if (start == std::string::npos) return {};
  return line.substr(start, line.find_first_of(" \t\r", start) - start);
}

}  // namespace

ScriptRunner::ScriptRunner(App& app, HeadlessPlatform& platform, std::ostream& out, std::ostream& err,
                           OnFailure onFailure)
    : app_(app), platform_(platform), out_(out), err_(err), onFailure_(onFailure) {
  platform_.onModal = [this](Window& window) { PlayModal(window); };
}

ScriptRunner::~ScriptRunner() { platform_.onModal = nullptr; }

void ScriptRunner::Play(std::istream& input, const std::string& name) {
  int number = 0;
  PlayFrom([&](Line& line) {
    line = {{}, name, ++number};
    return static_cast<bool>(std::getline(input, line.text));
  });
}

void ScriptRunner::PlayFrom(const LineSource& source) {
  const LineSource* const outer = std::exchange(source_, &source);
  Line line;
  while (!ended_ && source(line)) PlayLine(line);
  source_ = outer;
}

void ScriptRunner::PlayLine(const Line& line) {
  try {
    const Words words = SplitWords(line.text);
    if (words.empty()) return;
    Execute(words);
  } catch (const std::exception& fault) {
    Fail(line, fault.what());
  }
  out_.flush();
  if (app_.exitRequested) ended_ = true;
}

void ScriptRunner::Fail(const Line& line, const std::string& what) {
  out_.flush();
  err_ << "error: " << line.file << ':' << line.number << ": " << what << std::endl;
  if (onFailure_ == OnFailure::KeepGoing) return;
  ended_ = true;
  exitStatus_ = 2;
}

void ScriptRunner::Execute(const Words& words) {
  const Command* command = FindCommand(words[0]);
  if (command == nullptr) throw ScriptError("unknown command " + Quoted(words[0]));
  const std::size_t given = words.size() - 1;
  if (given < command->least || given > command->most) {
    throw ScriptError("the command is " + UsageOf(*command));
  }
  command->run(*this, words);
  app_.EndEvent();
}

void ScriptRunner::KeepModal(const std::string& window) {
  KeptLines kept{window, {}};
  int depth = 1;
  for (Line line; (*source_)(line);) {
    const std::string first = FirstWord(line.text);
    if (first == "modal") ++depth;
    if (first == "end" && --depth == 0) {
      FindWindow(app_, window);
      kept_.push_back(std::move(kept));
      return;
    }
    kept.lines.push_back(std::move(line));
  }
  throw ScriptError("modal " + window + " has no end");
}

void ScriptRunner::PlayModal(Window& window) {
  const auto next = std::find_if(kept_.begin(), kept_.end(),
                                 [&](const KeptLines& kept) { return kept.window == window.name(); });
  if (next != kept_.end()) {
    const std::vector<Line> lines = std::move(next->lines);
    kept_.erase(next);
    std::size_t at = 0;
    PlayFrom([&](Line& line) {
      if (at == lines.size()) return false;
      line = lines[at++];
      return true;
    });
  }
  if (window.visible()) window.Hide();
}

}  // namespace pelorium
