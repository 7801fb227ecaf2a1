// The program without a screen: plays scripts from files or standard input.
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "platform/headless_platform.h"
#include "script/command_line.h"
#include "script/script_runner.h"
#include "windows/app.h"

namespace {

// The folder of the executable; the working folder where the machine does not tell.
std::filesystem::path ExecutableFolder() {
  char name[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", name, sizeof name);
  if (length <= 0) return std::filesystem::current_path();
  return std::filesystem::path(std::string(name, static_cast<std::size_t>(length))).parent_path();
}

}  // namespace

int main(int argc, char** argv) {
  using namespace pelorium;
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const std::optional<CommandLine> line = ParseCommandLine({argv + 1, argv + argc});
  if (!line) {
    std::cerr << kUsage;
    return 2;
  }
  HeadlessPlatform platform;
  App app(platform, HomeFolder(*line, std::getenv("PELORIUM_HOME"), ExecutableFolder()));
  app.Start();
  ScriptRunner runner(app, platform, std::cout, std::cerr, line->onFailure);
  return PlayAll(runner, line->files, std::cin, std::cerr);
}
