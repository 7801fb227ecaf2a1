// Saving, opening and reporting on profiles through the window.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "base/files.h"
#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/profiles/frmsaveprof_profile_files.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class ProfileFilesWindow : public AppTest {
 protected:
  void AnswerAndPress(const std::filesystem::path& path, const char* menuItem) {
    platform.QueueAnswer(path.string());
    PressItem(menuItem);
  }

  // Every item of a file that this window reads is `item`.
  void OpenFileOf(const std::string& item) {
    WriteFile(Profiles(), [&](TextWriter& out) {
      for (int i = 0; i < 37 * (21 + 37 * 26); ++i) out.Line(item);
    });
    AnswerAndPress(Profiles(), "openprof");
  }

  std::filesystem::path Profiles() const { return folder() / "größe \"1\".txt"; }
};

TEST_F(ProfileFilesWindow, WritesItsFiles) {
  PressItem("saveprof");  // cancelled
  EXPECT_FALSE(std::filesystem::exists(folder() / "profiles"));
  AnswerAndPress("all", "saveprof");  // a relative name lies in the working folder
  EXPECT_EQ(app.profiles->frmsaveprof.Text1.text(), "all.txt");
  EXPECT_EQ(BytesOf(folder() / "all.txt").substr(0, 14), "0 0 0\r\n0 0 0\r\n");
  AnswerAndPress(folder() / "points.txt", "exportprofinfome");
  AnswerAndPress(folder() / "parametric.txt", "exportprofpara");
  EXPECT_EQ(BytesOf(folder() / "points.txt").find("Parametric"), std::string::npos);
  EXPECT_NE(BytesOf(folder() / "parametric.txt").find("Parametric"), std::string::npos);
}

TEST_F(ProfileFilesWindow, EverythingShowsWhatWasOpened) {
  app.geometry->revolveprof.Option2.SetValue(true);  // an open file revolves nothing
  OpenFileOf("20");
  EXPECT_EQ(app.geometry->revolveprof.HScroll10.value(), 20);
  EXPECT_EQ(app.model.Profile(0).layerCount, 20);
  EXPECT_EQ(app.geometry->form55.HScroll24.box.text(), "20");
  EXPECT_EQ(app.view->form51.Label17.caption(), "20");
  EXPECT_EQ(app.model.Part(0).maxfaces, 0);
  OpenFileOf("90");  // more sections than the bar holds
  EXPECT_EQ(app.geometry->revolveprof.HScroll10.value(), 61);
  EXPECT_EQ(app.model.Profile(1).sectionCount, 90);
  EXPECT_EQ(app.model.Profile(0).count, 36);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(ProfileFilesWindow, AFileCutShortLeavesWhatWasRead) {
  WriteFile(Profiles(), [](TextWriter& out) { out.Line("1 2 3 4"); });
  AnswerAndPress(Profiles(), "openprof");
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(app.model.Profile(0).genMoveX, 4);
  EXPECT_EQ(app.geometry->revolveprof.HScroll31.box.text(), "4");
  EXPECT_EQ(app.geometry->revolveprof.HScroll10.value(), 36);
  AnswerAndPress(folder() / "missing.txt", "openprof");
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
}

}  // namespace
}  // namespace pelorium
