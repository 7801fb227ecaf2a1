// Kinds of files.
#include "interchange/file_kind.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>

#include "base/fault.h"
#include "base/files.h"
#include "base/item_reader.h"
#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr std::size_t kTextHead = 1000;  // bytes that tell a text's kind

struct Ending {
  std::string_view ending;
  FileKind kind;
};

constexpr Ending kEndings[] = {
    {".prj", FileKind::Project}, {".uvs", FileKind::Uvs},     {".tex", FileKind::TextureFile},
    {".tuv", FileKind::Tuv},     {".bmp", FileKind::Picture}, {".png", FileKind::Picture},
    {".jpg", FileKind::Picture}, {".gif", FileKind::Picture}, {".ico", FileKind::Picture},
};

std::string LowEnding(const std::filesystem::path& path) {
  std::string ending = path.extension().string();
  for (char& c : ending) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return ending;
}

std::string_view Trimmed(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  return line.substr(0, line.find_last_not_of(" \t") + 1);
}

bool BeginsWithNumbers(std::string_view text, int count) {
  try {
    ItemReader items(text);
    for (int i = 0; i < count; ++i) items.Number();
    return true;
  } catch (const Fault&) {
    return false;
  }
}

// The last two corners of the faces of a DXF, group by group.
class LastCorners {
 public:
  void Take(std::string_view code, std::string_view value) {
    static constexpr std::array<std::string_view, 6> kCodes = {"12", "22", "32", "13", "23", "33"};
    const auto at = std::find(kCodes.begin(), kCodes.end(), code) - kCodes.begin();
    if (at < 6) numbers_[static_cast<std::size_t>(at)] = LeadingNumber(value);
    if (code == "33")
      hasFour_ = hasFour_ || !std::equal(numbers_.begin(), numbers_.begin() + 3, &numbers_[3]);
  }
  bool hasFour() const { return hasFour_; }

 private:
  std::array<double, 6> numbers_{};
  bool hasFour_ = false;
};

}  // namespace

FileKind KindOfObj(ByteSource& file) {
  LineReader lines(file);
  for (std::string_view line; lines.Next(line);) {
    if (line.starts_with("f "))
      return line.find('/') == std::string_view::npos ? FileKind::PlainObj : FileKind::SlashObj;
  }
  return FileKind::PlainObj;
}

FileKind KindOfDxf(ByteSource& file) {
  LineReader lines(file);
  LastCorners corners;
  std::string code;
  bool isCode = true;
  for (std::string_view line; lines.Next(line); isCode = !isCode) {
    const std::string_view token = Trimmed(line);
    if (token == "POLYLINE") return FileKind::DxfMesh;
    if (isCode) {
      code = token;
    } else {
      corners.Take(code, token);
    }
    if (corners.hasFour()) return FileKind::DxfQuads;
  }
  return FileKind::DxfTriangles;
}

FileKind KindOfText(ByteSource& file) {
  std::string head(kTextHead, '\0');
  head.resize(file.Read(head.data(), head.size()));
  const std::string_view text = WithoutByteOrderMark(head);
  if (text.starts_with("Part Name") || text.starts_with("\"Part Name")) return FileKind::TextPart;
  return BeginsWithNumbers(text, 3) ? FileKind::Profiles : FileKind::Unknown;
}

FileKind KindOfFile(const std::filesystem::path& path) {
  const std::string ending = LowEnding(path);
  for (const Ending& known : kEndings) {
    if (ending == known.ending) return known.kind;
  }
  if (ending != ".obj" && ending != ".dxf" && ending != ".txt") return FileKind::Unknown;
  FileSource file(path);
  if (ending == ".obj") return KindOfObj(file);
  return ending == ".dxf" ? KindOfDxf(file) : KindOfText(file);
}

}  // namespace pelorium
