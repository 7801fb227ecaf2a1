// The program without a screen: plays scripts from files or standard input.
#include <iostream>

#include "platform/headless_platform.h"
#include "platform/working_folder.h"
#include "script/command_line.h"
#include "script/script_runner.h"
#include "windows/shell/app_shell.h"

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
  App app(platform, line->home ? *line->home : WorkingFolder());
  app.Start();
  ScriptRunner runner(app, platform, std::cout, std::cerr, line->onFailure);
  return PlayAll(runner, line->files, std::cin, std::cerr);
}
