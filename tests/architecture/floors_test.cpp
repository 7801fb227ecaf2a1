// The sources keep to their floors.
#include <gtest/gtest.h>

#include "architecture/include_scan.h"

namespace pelorium {
namespace {

using Lines = std::vector<std::string>;

const Sources& OwnSources() {
  static const Sources sources = ReadSources(std::filesystem::path(PELORIUM_TESTS_DIR) / ".." / "src");
  return sources;
}

TEST(Floors, ScanFindsABadArrow) {
  const Sources madeUp = {
      {"base/low.h", "#pragma once\n#include \"core/high.h\"\n"},
      {"core/high.h", "#pragma once\n#include \"base/low.h\"\n#include <vector>\n"},
      {"views/wire.cpp", "#include \"views/wire.h\"\n#include \"geometry/revolve.h\"\n"},
      {"platform/files.cpp",
       "  #  include \"controls/window.h\"\n#include <QImage>\n#include \"core/high.h\""},
      {"desktop/main.cpp",
       "#include <QApplication>\n#include \"windows/shell/app_shell.h\"\n// #include \"script/player.h\"\n"},
      {"stray/new.cpp", "#include \"base/low.h\"\n"},
  };
  EXPECT_EQ(ClimbingIncludes(madeUp),
            (Lines{"base/low.h includes core/high.h", "platform/files.cpp includes QImage",
                   "platform/files.cpp includes core/high.h", "stray/new.cpp includes base/low.h",
                   "views/wire.cpp includes geometry/revolve.h"}));
}

TEST(Floors, ScanFindsAWayBetweenRooms) {
  const Sources madeUp = {
      {"windows/shell/app_shell.cpp",
       "#include \"windows/view/form36.h\"\n#include \"core/model_store.h\"\n"},
      {"windows/view/form36.cpp",
       "#include \"windows/shell/app_shell.h\"\n#include \"windows/frame/menu.h\"\n"},
      {"windows/geometry/form55.cpp",
       "#include \"windows/view/form36.h\"\n#include \"windows/facetools/freeface.h\"\n"},
      {"windows/facetools/freeface.cpp", "#include \"windows/geometry/form55.h\"\n"},
      {"windows/frame/app_windows.cpp", "#include \"windows/facetools/freeface.h\"\n"},
      {"windows/stray.cpp", "#include \"windows/shell/app_shell.h\"\n"},
  };
  EXPECT_EQ(ClimbingIncludes(madeUp),
            (Lines{"windows/geometry/form55.cpp includes windows/facetools/freeface.h",
                   "windows/shell/app_shell.cpp includes windows/view/form36.h",
                   "windows/stray.cpp includes windows/shell/app_shell.h",
                   "windows/view/form36.cpp includes windows/frame/menu.h"}));
}

TEST(Floors, ScanFindsAnUmbrella) {
  Sources madeUp;
  std::string nine;
  for (char name = 'a'; name <= 'i'; ++name) {
    const std::string header = std::string("windows/view/") + name + ".h";
    madeUp[header] = "class Form : public Window {};\n";
    nine += "#include \"" + header + "\"\n";
  }
  madeUp["windows/view/app.h"] = "class App;\n";
  madeUp["windows/frame/app_windows.cpp"] = nine;
  madeUp["windows/view/all.h"] = nine;
  madeUp["windows/view/through.h"] = "#include \"windows/view/app.h\"\n#include \"windows/view/all.h\"\n";
  madeUp["windows/view/a.cpp"] = nine;  // its own header does not count
  madeUp["script/player.cpp"] = "#include \"windows/view/all.h\"\n";
  EXPECT_EQ(UmbrellaIncludes(madeUp),
            (Lines{"windows/view/all.h pulls in 9 windows", "windows/view/through.h pulls in 9 windows"}));
}

TEST(Floors, SourcesAreFound) { EXPECT_EQ(OwnSources().count("base/numbers.cpp"), 1U); }
TEST(Floors, NoIncludeClimbs) { EXPECT_EQ(ClimbingIncludes(OwnSources()), Lines{}); }
TEST(Floors, NoFilePullsInAllWindows) { EXPECT_EQ(UmbrellaIncludes(OwnSources()), Lines{}); }

}  // namespace
}  // namespace pelorium
