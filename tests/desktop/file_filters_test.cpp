// Filters of file dialogs in the toolkit's form.
#include "desktop/file_filters.h"

#include <gtest/gtest.h>

namespace pelorium {
namespace {

TEST(FileFilters, PairsBecomeTheToolkitsForm) {
  EXPECT_EQ(NameFilters("All Files (*.prj)|*.prj"), (QStringList{"All Files (*.prj)", "All files (*)"}));
  EXPECT_EQ(NameFilters("Notes|*.txt*;*rtf|Meshes (*.obj)|*.obj"),
            (QStringList{"Notes (*.txt* *rtf)", "Meshes (*.obj)", "All files (*)"}));
}

TEST(FileFilters, WithoutPairsAllFilesAreShown) {
  EXPECT_EQ(NameFilters(""), QStringList{"All files (*)"});
  EXPECT_EQ(NameFilters("only a text"), QStringList{"All files (*)"});
  EXPECT_EQ(NameFilters("text|"), QStringList{"All files (*)"});
}

TEST(FileFilters, SuffixesLoseTheirStarAndPoint) {
  EXPECT_EQ(DefaultSuffix("*.prj"), "prj");
  EXPECT_EQ(DefaultSuffix(".prj"), "prj");
  EXPECT_EQ(DefaultSuffix("prj"), "prj");
  EXPECT_EQ(DefaultSuffix("*.*"), "");
  EXPECT_EQ(DefaultSuffix(""), "");
}

}  // namespace
}  // namespace pelorium
