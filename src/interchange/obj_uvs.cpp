// Texture coordinates of OBJ files.
#include "interchange/obj_uvs.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr std::size_t kLongestLine = 1000;  // more than any line of numbers needs
constexpr std::size_t kFirstCorner = 1;     // from 0: the blank behind the "f"
constexpr std::size_t kMostToSlash = 12;

// The number of the corner that starts at `start`, which goes on to the start of the next one.
double CornerNumber(std::string_view line, std::size_t& start) {
  std::size_t end = start + 1;
  double number = 0;
  const std::size_t slash = line.find('/', end);
  if (slash != std::string_view::npos && slash - start <= kMostToSlash) {
    end = std::min(line.find_first_of("/ ", slash + 1), line.size());
    number = LeadingNumber(line.substr(slash + 1, end - slash - 1));
  }
  const std::size_t blank = line.find(' ', std::min(end, line.size()));
  start = blank == std::string_view::npos ? line.size() : blank + 1;
  return number;
}

using Numbers = std::array<double, 3>;

// Calls store(face number, the three numbers of its line) for each line.
template <typename Store>
void ForEachFace(const UvLines& lines, Store store) {
  std::string_view rest = lines.faces.text();
  for (int i = 1; i <= lines.faces.count(); ++i) {
    const std::string_view line = rest.substr(0, rest.find("\r\n"));
    rest.remove_prefix(std::min(rest.size(), line.size() + 2));
    const std::size_t kept = std::min(static_cast<std::size_t>(i), lines.faces.numbers().size()) - 1;
    try {
      std::size_t start = kFirstCorner;
      Numbers numbers;
      for (double& number : numbers) number = CornerNumber(line, start);
      store(i, numbers);
    } catch (const Fault& fault) {
      throw fault.At(", line " + std::to_string(lines.faces.numbers()[kept]));
    }
  }
}

// Calls store(point number, u, v) for each point that fits.
template <typename Store>
void ForEachPoint(const UvLines& lines, VtNumbers perLine, Store store) {
  ItemReader items = lines.points.Items();
  for (int i = 1, count = UvPointsIn(lines); i <= count; ++i) {
    const double u = items.Number(), v = items.Number();
    if (perLine == VtNumbers::Three) items.Number();
    store(i, u, v);
  }
}

std::int32_t Corner(double number) { return std::min(ToInteger<std::int32_t>(number), kMaxPoints); }

}  // namespace

UvLines SplitObjUvs(ByteSource& file) {
  UvLines lines;
  LineReader reader(file);
  for (std::string_view line; reader.Next(line);) {
    const std::string_view kept = line.substr(0, kLongestLine);
    if (line.starts_with("vt")) lines.points.Take(kept.substr(2), reader.number());
    if (line.starts_with("f ")) lines.faces.Take(std::string(kept) + " ", reader.number());
  }
  return lines;
}

void ReadObjUvs(ModelStore& model, int part, const UvLines& lines, VtNumbers perLine) {
  StoreUvCounts(model.Part(part), lines);
  ForEachPoint(lines, perLine, [&](int i, double u, double v) {
    model.Points(part, i).u = u;
    model.Points(part, i).v = v;
  });
  ForEachFace(lines, [&](int i, const Numbers& numbers) {
    FaceRec& face = model.Faces(part, i);
    face.vt1 = ToInteger<std::int16_t>(numbers[0]);
    face.vt2 = ToInteger<std::int16_t>(numbers[1]);
    face.vt3 = ToInteger<std::int16_t>(numbers[2]);
  });
}

void ReadObjUvsAsModel(ModelStore& model, int part, const UvLines& lines, VtNumbers perLine, double scale) {
  ForEachPoint(lines, perLine, [&](int i, double u, double v) { LayUvPoint(model, part, i, u, v); });
  ForEachFace(lines, [&](int i, const Numbers& numbers) {
    FaceRec& face = model.Faces(part, i);
    face.corner1pt = Corner(numbers[0]);
    face.corner2pt = Corner(numbers[1]);
    face.corner3pt = Corner(numbers[2]);
    face.onoff = 1;
  });
  for (int i = 1, count = UvPointsIn(lines); i <= count; ++i) {
    for (auto coordinate : {&PointRec::X, &PointRec::Y, &PointRec::Z})
      model.Points(part, i).*coordinate *= scale;
  }
  FinishUvModel(model, part, lines);
}

}  // namespace pelorium
