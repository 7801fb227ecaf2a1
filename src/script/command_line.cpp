// Options and files.
#include "script/command_line.h"

#include <fstream>

namespace pelorium {

std::optional<CommandLine> ParseCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--home") {
      if (++i == words.size()) return std::nullopt;
      line.home = words[i];
    } else if (words[i] == "--keep-going") {
      line.onFailure = OnFailure::KeepGoing;
    } else if (words[i].starts_with('-') && words[i] != "-") {
      return std::nullopt;
    } else {
      line.files.push_back(words[i]);
    }
  }
  return line;
}

int PlayAll(ScriptRunner& runner, const std::vector<std::string>& files, std::istream& standardInput,
            std::ostream& err) {
  if (files.empty()) runner.Play(standardInput, "stdin");
  for (const std::string& name : files) {
    if (runner.ended()) break;
    if (name == "-") {
      runner.Play(standardInput, "stdin");
      continue;
    }
    std::ifstream file(name, std::ios::binary);
    std::error_code ignored;
    if (!file || std::filesystem::is_directory(name, ignored)) {
      err << "error: " << name << ": cannot be opened" << std::endl;
      return 2;
    }
    runner.Play(file, name);
  }
  return runner.exitStatus();
}

}  // namespace pelorium
