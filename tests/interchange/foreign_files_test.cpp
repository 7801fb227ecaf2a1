// Files that other programs made (data/README.md): counts and boxes, or how they end.
#include <algorithm>
#include <functional>

#include "base/files.h"
#include "base/numbers.h"
#include "interchange/dxf_import.h"
#include "interchange/obj_import.h"
#include "support/harness.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

constexpr int kPart = 1;

using Reader = std::function<void(ModelStore&, ByteSource&)>;

Reader Obj(ObjKind kind) {
  return [kind](ModelStore& model, ByteSource& file) {
    ObjImportSettings settings;
    settings.kind = kind;
    settings.origin.reset();
    ReadObj(model, kPart, file, settings);
  };
}

Reader Dxf(void (*read)(ModelStore&, int, ByteSource&, double)) {
  return [read](ModelStore& model, ByteSource& file) { read(model, kPart, file, 1); };
}

// "0..20": of the points that the faces name.
std::string Extent(const ModelStore& model, double PointRec::*coordinate) {
  double low = 1e300, high = -1e300;
  for (const FaceRec& face : FaceRange(model, kPart, 1, model.Part(kPart).maxfaces)) {
    for (const int corner : {face.corner1pt, face.corner2pt, face.corner3pt}) {
      low = std::min(low, model.Points(kPart, corner).*coordinate);
      high = std::max(high, model.Points(kPart, corner).*coordinate);
    }
  }
  return RoundedForm(low, 3) + ".." + RoundedForm(high, 3);
}

TEST(ForeignFiles, LoadOrEndAsTold) {
  const std::string bracketOfObj = " 0..20 0..22 0..30", bracket = " 0..20 0..30 0..22",
                    ball = " -5..5 -5..5 -5..5";
  struct Row {
    const char* file;
    Reader read;
    std::string outcome;
  };
  const Row table[] = {
      {"openctm.obj", Obj(ObjKind::WithSlashes), "48 points 96 faces" + bracketOfObj + ", 46 47 48"},
      {"openctm.obj", Obj(ObjKind::Plain), "bad number: \"46//\", line 51"},
      {"meshio.obj", Obj(ObjKind::Plain), "48 points 96 faces" + bracketOfObj},
      {"meshio.obj", Obj(ObjKind::WithSlashes), "bad number: \"\", line 50"},
      // Two blanks behind the "f" shift the corners: points 1, 1, 2 where the file says 1, 2, 3.
      {"assimp.obj", Obj(ObjKind::WithSlashes), "48 points 96 faces" + bracketOfObj + ", 1 1 2"},
      {"admesh.dxf", Dxf(ReadDxfTriangles), "288 points 96 faces" + bracket},
      {"ezdxf_faces.dxf", Dxf(ReadDxfTriangles), "240 points 80 faces" + ball},
      {"ezdxf_mesh.dxf", Dxf(ReadDxfMesh), "42 points 80 faces" + ball},
      {"ezdxf_quads.dxf", Dxf(ReadDxfQuads), "36 points 12 faces 0..1 0..1 0..1"},
      {"ezdxf_r2000.dxf", Dxf(ReadDxfQuads), "36 points 12 faces 0..1 0..1 0..1"},
      {"ezdxf_r2000.dxf", Dxf(ReadDxfTriangles),
       "bad number: no group 10 in 17 lines"},  // it is the 19th there
      {"ezdxf_faces.dxf", Dxf(ReadDxfMesh), "end of file: no group 71"},
      // LINEs: places are fixed, so that coordinates are taken for others.
      {"openscad.dxf", Dxf(ReadDxfTriangles), "18 points 6 faces 0..30 0..30 0..20"},
  };
  for (const Row& row : table) {
    ModelStore model;
    std::string outcome;
    try {
      FileSource file(std::filesystem::path(PELORIUM_TESTS_DIR) / "interchange/data" / row.file);
      row.read(model, file);
      const PartHeader& part = model.Part(kPart);
      outcome = std::to_string(part.maxpoints) + " points " + std::to_string(part.maxfaces) + " faces " +
                Extent(model, &PointRec::X) + " " + Extent(model, &PointRec::Y) + " " +
                Extent(model, &PointRec::Z) + ", " + FacesText(model, kPart, 1, 1);
    } catch (const Fault& fault) {
      outcome = fault.what();
    }
    EXPECT_TRUE(outcome.starts_with(row.outcome)) << row.file << ": " << outcome;
  }
}

// What may come in of any file, good or bad: it loads or ends in a fault, and soon.
TEST(ForeignFiles, BadInputEndsInAFaultOrLoads) {
  const std::filesystem::path folder = std::filesystem::path(PELORIUM_TESTS_DIR) / "interchange/data";
  const std::pair<const char*, Reader> table[] = {{"openctm.obj", Obj(ObjKind::WithSlashes)},
                                                  {"meshio.obj", Obj(ObjKind::Plain)},
                                                  {"admesh.dxf", Dxf(ReadDxfTriangles)},
                                                  {"ezdxf_quads.dxf", Dxf(ReadDxfQuads)},
                                                  {"ezdxf_mesh.dxf", Dxf(ReadDxfMesh)}};
  ModelStore model;
  for (const auto& [name, read] : table) {
    const std::string whole = ReadFile(folder / name);
    std::vector<std::string> texts = {"", std::string(1000, '\0'), whole + std::string(1 << 20, 'x'),
                                      std::string(1 << 20, ' ') + "\n" + whole, "\xEF\xBB\xBF" + whole};
    for (std::size_t cut = 97; cut < whole.size(); cut += 97) texts.push_back(whole.substr(0, cut));
    std::string returns = whole;
    std::erase(returns, '\r');
    std::replace(returns.begin(), returns.end(), '\n', '\r');
    texts.push_back(returns);
    int loaded = 0;
    for (const std::string& text : texts) {
      StringSource file(text);
      try {
        read(model, file);
        ++loaded;
      } catch (const Fault&) {
      }
    }
    EXPECT_GE(loaded, 3) << name;  // with a mark, with CR, and with a tail or a blank line
    StringSource file(returns);
    const int faces = model.Part(kPart).maxfaces;
    read(model, file);
    EXPECT_EQ(model.Part(kPart).maxfaces, faces) << name;
  }
}

}  // namespace
}  // namespace pelorium
