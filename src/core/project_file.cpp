// One set of tables tells which fields stand on which line; the writer and the reader both walk it.
#include "core/project_file.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <limits>
#include <span>
#include <variant>
#include <vector>

#include "base/item_reader.h"

namespace pelorium {

namespace {

constexpr int kSavedGroups = 41;  // groups 0..40
constexpr int kPositionDecimals = 2;

enum class Form { Rounded, Exact };

// One item of a line: a member of a record, for fractions the form it is written in, and for whole numbers
// that address a table the limits they are held in when read.
template <typename Rec>
struct Item {
  std::variant<double Rec::*, std::int16_t Rec::*, std::int32_t Rec::*> field;
  Form form = Form::Exact;
  std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
  std::int32_t highest = std::numeric_limits<std::int32_t>::max();
};

template <typename Rec>
using Line = std::vector<Item<Rec>>;

template <typename Rec>
Line<Rec> Joined(std::initializer_list<double Rec::*> fields, Form form = Form::Exact) {
  Line<Rec> line;
  for (auto field : fields) line.push_back({field, form});
  return line;
}

template <typename Rec>
Line<Rec> Whole(std::initializer_list<std::int16_t Rec::*> fields) {
  Line<Rec> line;
  for (auto field : fields) line.push_back({field});
  return line;
}

template <typename Rec>
Line<Rec> operator+(Line<Rec> left, const Line<Rec>& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

using F = FaceRec;
const std::array<Line<F>, 4> kFaceLines = {{
    Joined<F>({&F::c1X, &F::c1Y, &F::c1Z}, Form::Rounded),
    Joined<F>({&F::c2X, &F::c2Y, &F::c2Z}, Form::Rounded),
    Joined<F>({&F::c3X, &F::c3Y, &F::c3Z}, Form::Rounded),
    Line<F>{{&F::corner1pt, Form::Exact, 1, kMaxPoints},
            {&F::corner2pt, Form::Exact, 1, kMaxPoints},
            {&F::corner3pt, Form::Exact, 1, kMaxPoints},
            {&F::group, Form::Exact, 0, kMaxGroup},
            {&F::onoff}},
}};

using H = ProfileHeader;
const std::array<Line<H>, 7> kProfileHeaderLines = {{
    Joined<H>({&H::genRotateX, &H::genTurnY, &H::genSpinZ}),
    Joined<H>({&H::genMoveX, &H::genMoveY, &H::genMoveZ}),
    Joined<H>({&H::genMultX, &H::genMultY, &H::genMultZ}),
    Whole<H>({&H::bottomCap, &H::topCap, &H::layerCount, &H::originPathProfile, &H::sectionCount}),
    Whole<H>({&H::pathProfileX, &H::pathProfileY, &H::pathProfileZ}) + Joined<H>({&H::layerSpacing}),
    Whole<H>({&H::addProfile1X, &H::addProfile1Y, &H::addProfile1Z}),
    Whole<H>({&H::addProfile2X, &H::addProfile2Y, &H::addProfile2Z}),
}};

using L = ProfilePointRec;
const Line<L> kProfilePosition = Joined<L>({&L::X, &L::Y, &L::Z}, Form::Rounded);
// Stands behind the position; only in the record that carries a profile's header it means anything.
const Line<H> kProfileCounts = Whole<H>({&H::first, &H::count});
const std::array<Line<L>, 4> kProfilePointLines = {{
    Joined<L>({&L::rotateX, &L::turnY, &L::spinZ, &L::multX, &L::multY, &L::multZ, &L::moveX, &L::moveY,
               &L::moveZ}),
    Joined<L>({&L::addXAmt1, &L::addYAmt1, &L::addZAmt1}),
    Joined<L>({&L::addXAmt2, &L::addYAmt2, &L::addZAmt2, &L::multZb}),
    Joined<L>({&L::secRotateX, &L::secTurnY, &L::secSpinZ, &L::secMoveX, &L::secMoveY, &L::secMoveZ,
               &L::secMultX, &L::secMultY}),
}};
constexpr int kHeaderPoint = 1;  // the point of a profile whose record carries the header's counts

// Each on a line of its own. The three lines of the filter all hold its red: the last one read decides.
using M = MaterialRec;
const Line<M> kMaterialItems =
    Joined<M>({&M::Ns, &M::d}) + Whole<M>({&M::illum}) +
    Joined<M>({&M::bump_amt, &M::refl_amt, &M::amb_amt, &M::dif_amt, &M::spec_amt, &M::KaR, &M::KaG, &M::KaB,
               &M::KdR, &M::KdG, &M::KdB, &M::KsR, &M::KsG, &M::KsB, &M::TfR, &M::TfR, &M::TfR}) +
    Whole<M>({&M::usebump, &M::usedif, &M::useamb, &M::usespec});

template <typename Rec>
void WriteItem(TextWriter& out, const Rec& record, const Item<Rec>& item) {
  if (const auto* number = std::get_if<double Rec::*>(&item.field)) {
    if (item.form == Form::Rounded) {
      out.Rounded(record.**number, kPositionDecimals);
    } else {
      out.General(record.**number);
    }
  } else if (const auto* narrow = std::get_if<std::int16_t Rec::*>(&item.field)) {
    out.Integer(record.**narrow);
  } else {
    out.Integer(record.*std::get<std::int32_t Rec::*>(item.field));
  }
}

template <typename Rec>
void WriteItems(TextWriter& out, const Rec& record, const Line<Rec>& line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (i > 0) out.Text(" ");
    WriteItem(out, record, line[i]);
  }
}

template <typename Rec>
void WriteLines(TextWriter& out, const Rec& record, std::span<const Line<Rec>> lines) {
  for (const Line<Rec>& line : lines) {
    WriteItems(out, record, line);
    out.EndLine();
  }
}

template <typename Rec>
void ReadItems(ItemReader& in, Rec& record, const Line<Rec>& line) {
  for (const Item<Rec>& item : line) {
    if (const auto* number = std::get_if<double Rec::*>(&item.field)) {
      record.** number = in.Number();
    } else if (const auto* narrow = std::get_if<std::int16_t Rec::*>(&item.field)) {
      record.** narrow = static_cast<std::int16_t>(
          std::clamp<std::int32_t>(in.Integer<std::int16_t>(), item.lowest, item.highest));
    } else {
      record.*std::get<std::int32_t Rec::*>(item.field) =
          std::clamp(in.Integer<std::int32_t>(), item.lowest, item.highest);
    }
  }
}

template <typename Rec>
void ReadLines(ItemReader& in, Rec& record, std::span<const Line<Rec>> lines) {
  for (const Line<Rec>& line : lines) ReadItems(in, record, line);
}

// Stores a counter within its table and returns the file's own number, which the loops follow.
int ReadCounter(ItemReader& in, std::int16_t& counter, int limit) {
  const auto inFile = in.Integer<std::int16_t>();
  counter = static_cast<std::int16_t>(std::clamp<int>(inFile, 0, limit));
  return inFile;
}

void WriteFaces(const ModelStore& model, int part, TextWriter& out) {
  const PartHeader& header = model.Part(part);
  out.Print(header.maxpoints).Print(header.minpoints).EndLine();
  out.Print(header.maxfaces).Print(header.minfaces).EndLine();
  for (const FaceRec& face : FaceRange(model, part, 1, header.maxfaces)) {
    WriteLines<FaceRec>(out, face, kFaceLines);
  }
}

// Returns the file's own count of points, which the points block follows.
int ReadFaces(ModelStore& model, int part, ItemReader& in) {
  PartHeader& header = model.Part(part);
  const int points = ReadCounter(in, header.maxpoints, kMaxPoints);
  ReadCounter(in, header.minpoints, kMaxPoints);
  const int faces = ReadCounter(in, header.maxfaces, kMaxFaces);
  ReadCounter(in, header.minfaces, kMaxFaces);
  for (int f = 1; f <= faces; ++f) ReadLines<FaceRec>(in, model.Faces(part, f), kFaceLines);
  return points;
}

void WritePoints(const ModelStore& model, int part, TextWriter& out) {
  out.Print(model.Part(part).Sections).EndLine();
  int i = 1;
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
    out.Rounded(point.X, kPositionDecimals).Text(" ").Rounded(point.Y, kPositionDecimals).Text(" ");
    out.Rounded(point.Z, kPositionDecimals).Text(" ").Integer(model.PointMark(part, i++)).Text(" ");
    out.General(point.u).Text(" ").General(point.v).EndLine();
  }
}

// `points` is the file's own count: the table ends the loop if it is too large.
void ReadPoints(ModelStore& model, int part, int points, ItemReader& in) {
  model.Part(part).Sections = in.Integer<std::int16_t>();
  for (int i = 1; i <= points; ++i) {
    PointRec& point = model.Points(part, i);
    point.X = in.Number();
    point.Y = in.Number();
    point.Z = in.Number();
    model.PointMark(part, i) = in.Integer<std::int16_t>();
    point.u = in.Number();
    point.v = in.Number();
  }
}

// In this block the settings of profile `a` are followed by point `a` of all profiles.
void WriteProfiles(const ModelStore& model, TextWriter& out) {
  static const ProfileHeader kNoCounts;
  for (int a = 0; a <= kMaxProfile; ++a) {
    WriteLines<ProfileHeader>(out, model.Profile(a), kProfileHeaderLines);
    for (int b = 0; b <= kMaxProfile; ++b) {
      const ProfilePointRec& point = model.ProfilePts(a, b);
      WriteItems(out, point, kProfilePosition);
      out.Text(" ");
      WriteItems(out, a == kHeaderPoint ? model.Profile(b) : kNoCounts, kProfileCounts);
      out.EndLine();
      WriteLines<ProfilePointRec>(out, point, kProfilePointLines);
    }
  }
}

void ReadProfiles(ModelStore& model, ItemReader& in) {
  for (int a = 0; a <= kMaxProfile; ++a) {
    ReadLines<ProfileHeader>(in, model.Profile(a), kProfileHeaderLines);
    for (int b = 0; b <= kMaxProfile; ++b) {
      ProfilePointRec& point = model.ProfilePts(a, b);
      ReadItems(in, point, kProfilePosition);
      ProfileHeader unused;
      ProfileHeader& counts = a == kHeaderPoint ? model.Profile(b) : unused;
      counts.first = in.Integer<std::int16_t>();
      ReadCounter(in, counts.count, kMaxLayer);
      ReadLines<ProfilePointRec>(in, point, kProfilePointLines);
    }
  }
}

void WriteMaterial(const MaterialRec& material, TextWriter& out) {
  for (const Item<M>& item : kMaterialItems) {
    if (const auto* number = std::get_if<double M::*>(&item.field)) {
      out.Print(material.**number).EndLine();
    } else {
      out.Print(material.*std::get<std::int16_t M::*>(item.field)).EndLine();
    }
  }
  std::string name = material.GroupName;  // a line end inside would shift every later item
  std::erase_if(name, [](char c) { return c == '\r' || c == '\n'; });
  out.Line(name);
}

void ReadMaterial(MaterialRec& material, ItemReader& in) {
  ReadItems(in, material, kMaterialItems);
  material.GroupName = in.Line();
}

}  // namespace

void WriteProject(const ModelStore& model, TextWriter& out) {
  for (int part = 0; part < kUserParts; ++part) WriteFaces(model, part, out);
  for (int part = 0; part < kUserParts; ++part) WritePoints(model, part, out);
  WriteProfiles(model, out);
  for (int group = 0; group < kSavedGroups; ++group) WriteMaterial(model.MaterialGroups(group), out);
}

void ReadProject(ModelStore& model, std::string_view text) {
  ItemReader in(text);
  std::array<int, kUserParts> points{};
  for (int part = 0; part < kUserParts; ++part)
    points[static_cast<std::size_t>(part)] = ReadFaces(model, part, in);
  for (int part = 0; part < kUserParts; ++part)
    ReadPoints(model, part, points[static_cast<std::size_t>(part)], in);
  ReadProfiles(model, in);
  for (int group = 0; group < kSavedGroups; ++group) ReadMaterial(model.MaterialGroups(group), in);
}

}  // namespace pelorium
