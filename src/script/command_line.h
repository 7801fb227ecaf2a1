// The options of the program without a screen, and the playing of its files in turn.
#pragma once

#include <filesystem>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "script/script_runner.h"

namespace pelorium {

inline constexpr std::string_view kUsage = "usage: pelorium-script [--home DIR] [--keep-going] [FILE ...]\n";

struct CommandLine {
  std::optional<std::filesystem::path> home;
  OnFailure onFailure = OnFailure::Stop;
  std::vector<std::string> files;  // none: standard input; so is "-"
};

// Nothing for an option that is unknown or lacks its word.
std::optional<CommandLine> ParseCommandLine(const std::vector<std::string>& words);

// Plays the files in turn, or `standardInput`, and gives the exit status. A file that cannot be opened ends
// the run with 2.
int PlayAll(ScriptRunner& runner, const std::vector<std::string>& files, std::istream& standardInput,
            std::ostream& err);

}  // namespace pelorium
