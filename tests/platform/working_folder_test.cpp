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
  WriteBytes(home / "help.rtf", "mine");
  WriteBytes(home / "projects" / "a.prj", "kept");
  CompleteWorkingFolder(home);
  EXPECT_EQ(BytesOf(home / "help.rtf"), "mine");
  EXPECT_EQ(BytesOf(home / "projects" / "a.prj"), "kept");
}

}  // namespace
}  // namespace pelorium
