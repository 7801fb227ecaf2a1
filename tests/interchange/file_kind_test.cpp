// Files are told apart by what they hold.
#include "interchange/file_kind.h"

#include <gtest/gtest.h>

#include "support/harness.h"

namespace pelorium {
namespace {

std::string Face(const char* third, const char* fourth) {
  const auto corner = [](const std::string& which, const std::string& at) {
    return "1" + which + "\n" + at + "\n2" + which + "\n0\n3" + which + "\n0\n";
  };
  return "0\nSECTION\n2\nENTITIES\n0\n3DFACE\n" + corner("0", "0") + corner("1", "1") + corner("2", third) +
         corner("3", fourth) + "0\nENDSEC\n0\nEOF\n";
}

TEST(FileKinds, AreToldByEndingAndContent) {
  const TemporaryFolder folder;
  struct Case {
    const char* name;
    std::string text;
    FileKind kind;
  };
  const std::vector<Case> cases = {
      {"a.PRJ", "", FileKind::Project},
      {"a.png", "", FileKind::Picture},
      {"a.obj", "v 1 2 3\nvt 0 0\nf 1 1 1\nf 1/1 1/1 1/1\n", FileKind::PlainObj},
      {"b.obj", "# f 1\nf 1//2 1//2 1//2\n", FileKind::SlashObj},
      {"empty.obj", "", FileKind::PlainObj},
      {"a.dxf", Face("2", "2"), FileKind::DxfTriangles},
      {"quad.dxf", Face("2", "2.0") + Face("2", "3"), FileKind::DxfQuads},
      {"mesh.dxf", "  0\nSECTION\n  2\nENTITIES\n  0\nPOLYLINE\n", FileKind::DxfMesh},
      {"part.txt", "Part Name\r\nwing\r\n", FileKind::TextPart},
      {"profiles.txt", "\xEF\xBB\xBF 1.5 , 2\n 3 \n", FileKind::Profiles},
      {"letter.txt", "1 2 dear reader", FileKind::Unknown},
      {"a.doc", "1 2 3", FileKind::Unknown},
  };
  for (const Case& c : cases) {
    WriteBytes(folder.path() / c.name, c.text);
    EXPECT_EQ(KindOfFile(folder.path() / c.name), c.kind) << c.name;
  }
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { KindOfFile(folder.path() / "missing.obj"); }));
}

}  // namespace
}  // namespace pelorium
