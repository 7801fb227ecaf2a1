// Filters of file dialogs in the toolkit's form.
#include "desktop/file_filters.h"

#include <gtest/gtest.h>

namespace pelorium {
namespace {

TEST(FileFilters, TakeTheToolkitsForm) {
  EXPECT_EQ(NameFilters("Notes|*.txt*;*rtf|Meshes (*.obj)|*.obj"),
            (QStringList{"Notes (*.txt* *rtf)", "Meshes (*.obj)", "All files (*)"}));
  for (const char* odd : {"", "only a text", "text|"}) {
    EXPECT_EQ(NameFilters(odd), QStringList{"All files (*)"}) << odd;
  }
  EXPECT_EQ(DefaultSuffix("*.prj"), "prj");
  EXPECT_EQ(DefaultSuffix("*.*"), "");
}

}  // namespace
}  // namespace pelorium
