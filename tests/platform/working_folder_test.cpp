// Which folder the program works in, and how it is made complete.
#include "platform/working_folder.h"

#include <algorithm>

#include "support/harness.h"

namespace pelorium {
namespace {

using WorkingFolderTest = FolderTest;

TEST_F(WorkingFolderTest, VariableThenExecutableThenUser) {
  const std::filesystem::path program = folder() / "program";
  std::filesystem::create_directory(program);
  EXPECT_EQ(WorkingFolder("/somewhere", program, "/home/me"), "/somewhere");
  EXPECT_EQ(WorkingFolder("", program, "/home/me"), program);  // can be written
  EXPECT_EQ(WorkingFolder("", folder() / "none", "/home/me"), "/home/me/Pelorium");
  EXPECT_EQ(WorkingFolder("", folder() / "none", ""), folder() / "none");
}

TEST_F(WorkingFolderTest, IsMadeCompleteAndLeftAsItIs) {
  const std::filesystem::path home = folder() / "new" / "home";
  CompleteWorkingFolder(home);
  EXPECT_EQ(WorkingSubFolders().size(), 29u);
  for (const char* name : WorkingSubFolders())
    EXPECT_TRUE(std::filesystem::is_directory(home / name)) << name;
  EXPECT_TRUE(std::filesystem::exists(home / "parts0" / "presetlist.txt"));
  EXPECT_TRUE(std::filesystem::exists(home / "parts2" / "torus.txt"));
  std::filesystem::remove(home / "parts2" / "torus.txt");
  std::filesystem::remove_all(home / "parts3");
  WriteBytes(home / "help.rtf", "mine");
  WriteBytes(home / "projects" / "a.prj", "kept");
  CompleteWorkingFolder(home);
  EXPECT_EQ(BytesOf(home / "help.rtf"), "mine");
  EXPECT_EQ(BytesOf(home / "projects" / "a.prj"), "kept");
  EXPECT_FALSE(std::filesystem::exists(home / "parts2" / "torus.txt"));  // a library in use is left alone
  EXPECT_TRUE(std::filesystem::exists(home / "parts3" / "star.obj"));
}

}  // namespace
}  // namespace pelorium
