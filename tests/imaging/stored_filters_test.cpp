// Stored filters and the file under them.
#include "imaging/stored_filters.h"

#include "imaging/numbered_fault.h"
#include "support/harness.h"

namespace pelorium {
namespace {

using StoredFilters = FolderTest;

TEST_F(StoredFilters, ComeBackFromAReadableFile) {
  cRegistry registry(folder() / "new" / "filters.txt");
  EXPECT_TRUE(ReadStoredFilters(registry).empty());
  StoredFilter filter{"50% [\xC3\xA4]=\n", -9, {}};
  filter.values[0] = -300;
  filter.values[48] = 255;
  SaveStoredFilter(registry, 1, filter);
  SaveStoredFilter(registry, 2, {"second", 1, {}});
  filter.weight = 7;
  SaveStoredFilter(registry, 1, filter);
  const auto filters = ReadStoredFilters(registry);
  ASSERT_EQ(filters.size(), 2u);
  EXPECT_EQ(filters[0].name, filter.name);
  EXPECT_EQ(filters[0].weight, 7);
  EXPECT_EQ(filters[0].values[0], -44);  // the high bits of 300 are lost
  EXPECT_EQ(filters[0].values[48], 255);
  const std::string text = BytesOf(folder() / "new" / "filters.txt");
  EXPECT_EQ(text.substr(0, text.find("Values")),
            "[Software\\Quillbyte\\Quillfilter]\r\nCustomFilters=dword:2\r\n"
            "Filter1=sz:50%25 [\xC3\xA4%5d%3d%0a\r\nFilter2=sz:second\r\n"
            "[Software\\Quillbyte\\Quillfilter\\Filter1]\r\n");
  EXPECT_NE(text.find("Values=hex:012c0000"), std::string::npos);
  registry.SectionKey = "Software\\Quillbyte\\Quillfilter";
  EXPECT_EQ(registry.EnumerateSections(), (std::vector<std::string>{"Filter1", "Filter2"}));
  EXPECT_EQ(registry.EnumerateValues(), (std::vector<std::string>{"CustomFilters", "Filter1", "Filter2"}));
  registry.DeleteKey();
  EXPECT_FALSE(registry.KeyExists());
}

TEST_F(StoredFilters, AreReadFromBrokenFiles) {
  const struct {
    const char* text;
    std::size_t count;
  } kCases[] = {
      {"", 0},
      {"CustomFilters=dword:3\n", 0},
      {"[Software\\Quillbyte\\Quillfilter]\nCustomFilters=dword:x\n", 0},
      {"[Software\\Quillbyte\\Quillfilter]\nCustomFilters=sz:3\n", 0},
      {"[Software\\Quillbyte\\Quillfilter]\nCustomFilters=dword:-3\n", 0},
      {"[Software\\Quillbyte\\Quillfilter]\nCustomFilters=dword:2000000000\n", 10000},
      {"[\n]\n=\n[]=\n[Software\\Quillbyte\\Quillfilter]\rCustomFilters=dword:1\r\nFilter1=hex:0\n", 1}};
  for (const auto& [text, count] : kCases) {
    WriteBytes(folder() / "filters.txt", text);
    cRegistry registry(folder() / "filters.txt");
    EXPECT_EQ(ReadStoredFilters(registry).size(), count) << text;
  }
}

TEST_F(StoredFilters, FailWithTheirNumbers) {
  WriteBytes(folder() / "file", "");
  cRegistry registry(folder() / "file" / "filters.txt");
  registry.ClassKey = 7;
  registry.SectionKey = "S";
  registry.ValueKey = "K";
  const auto told = [&](const RegistryValue& value) -> std::string {
    try {
      registry.Value(value);
    } catch (const NumberedFault& fault) {
      return std::to_string(fault.number()) + " " + fault.source() + " " + fault.text();
    }
    return "none";
  };
  EXPECT_EQ(told("text"),
            "26001 Pelorium.cRegistry Failed to set registry value Key: '7',Section: 'S',Key: 'K' to value: "
            "'text'");
  EXPECT_EQ(told(5), "13 Pelorium.cRegistry Type mismatch");
}

}  // namespace
}  // namespace pelorium
