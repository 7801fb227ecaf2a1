// From flat faces to the lines of a pattern.
#include "interchange/flat_pattern.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/fault.h"
#include "base/numbers.h"
#include "interchange/edge_matches.h"
#include "interchange/pattern_tabs.h"

namespace pelorium {

namespace {

constexpr double kSamePlace = 0.01;  // units
// By how much of its length an unfolded edge may miss its neighbour: two sweeps of 0.1 degree and the rounded
// turns. Long edges are given no more than `kMostGrain` units.
constexpr double kUnfoldingGrain = 0.004, kMostGrain = 1;
constexpr double kFlatFold = 0.001;  // planes that differ by less are one
constexpr double kTextHeight = 3, kTextOfEdge = 0.3, kTextOfFace = 0.5;
constexpr int kCorners = 3;

using Places = std::array<Vec3, kCorners>;

struct Piece {
  int face;
  Places flat;    // counterclockwise on the paper
  Places folded;  // where the same corners were, if that is known
};

struct Pieces {
  std::vector<Piece> all;
  bool areFolded = false;
};

Vec3 Minus(const Vec3& p, const Vec3& q) { return {p.X - q.X, p.Y - q.Y, p.Z - q.Z}; }
double Dot(const Vec3& u, const Vec3& v) { return u.X * v.X + u.Y * v.Y + u.Z * v.Z; }
Vec3 Cross(const Vec3& u, const Vec3& v) {
  return {u.Y * v.Z - u.Z * v.Y, u.Z * v.X - u.X * v.Z, u.X * v.Y - u.Y * v.X};
}
double Length(const Vec3& v) { return std::sqrt(Dot(v, v)); }
Vec3 CentreOf(const Places& p) {
  return {(p[0].X + p[1].X + p[2].X) / 3, (p[0].Y + p[1].Y + p[2].Y) / 3, (p[0].Z + p[1].Z + p[2].Z) / 3};
}

Vec3 PlaceOf(const ModelStore& model, int part, int number) {
  const PointRec& point = model.Points(part, number);
  return {point.X, point.Y, point.Z};
}

bool LiesAt(const Places& places, double elevation) {
  return std::all_of(places.begin(), places.end(),
                     [elevation](const Vec3& p) { return std::abs(p.Z - elevation) <= kSamePlace; });
}

bool HasArea(const Places& p) {
  for (int i = 0; i < kCorners; ++i) {
    if (AreOnePlace(p[static_cast<std::size_t>(i)], p[static_cast<std::size_t>((i + 1) % kCorners)],
                    kSamePlace))
      return false;
  }
  const double area = Cross(Minus(p[1], p[0]), Minus(p[2], p[0])).Z;
  return area != 0 && std::isfinite(area);
}

Piece MakePiece(const ModelStore& model, int part, int face) {
  const FaceRec& f = model.Faces(part, face);
  Piece piece{face, {}, {}};
  const std::array<int, kCorners> numbers = {f.corner1pt, f.corner2pt, f.corner3pt};
  for (std::size_t i = 0; i < numbers.size(); ++i) piece.flat[i] = PlaceOf(model, part, numbers[i]);
  // The flat triangle's first two corners are the face's, exchanged.
  piece.folded = {PlaceOf(model, kTempPart, numbers[1]), PlaceOf(model, kTempPart, numbers[0]),
                  PlaceOf(model, kTempPart, numbers[2])};
  return piece;
}

Pieces CollectPieces(const ModelStore& model, const PatternSettings& settings) {
  Pieces pieces;
  const PartHeader& part = model.Part(settings.part);
  pieces.areFolded = part.maxpoints > 0 && model.Part(kTempPart).maxpoints == part.maxpoints;
  const int last = std::min<int>(settings.lastFace, part.maxfaces);
  for (int face = std::max(1, settings.firstFace); face <= last; ++face) {
    if (model.Faces(settings.part, face).onoff != 1) continue;
    Piece piece = MakePiece(model, settings.part, face);
    if (!LiesAt(piece.flat, settings.elevation) || !HasArea(piece.flat)) continue;
    if (Cross(Minus(piece.flat[1], piece.flat[0]), Minus(piece.flat[2], piece.flat[0])).Z < 0) {
      std::swap(piece.flat[1], piece.flat[2]);
      std::swap(piece.folded[1], piece.folded[2]);
    }
    pieces.all.push_back(piece);
  }
  return pieces;
}

// Side `i` of piece `p` has the number 3 * p + i, here and in all that is said of edges.
std::vector<PlacedEdge> EdgesOf(const std::vector<Piece>& pieces, Places Piece::*places) {
  std::vector<PlacedEdge> edges;
  edges.reserve(pieces.size() * kCorners);
  for (std::size_t p = 0; p < pieces.size(); ++p) {
    const Places& at = pieces[p].*places;
    for (std::size_t i = 0; i < kCorners; ++i) {
      edges.push_back({at[i], at[(i + 1) % kCorners], static_cast<int>(p), kSamePlace});
    }
  }
  for (PlacedEdge& edge : edges) {
    if (places == &Piece::flat) edge.from.Z = edge.to.Z = 0;
  }
  return edges;
}

class PatternMaker {
 public:
  PatternMaker(const ModelStore& model, const PatternSettings& settings)
      : settings_(settings), pieces_(CollectPieces(model, settings)) {
    flat_ = EdgesOf(pieces_.all, &Piece::flat);
    MatchEdges(flat_, shared_);
    if (!pieces_.areFolded) {
      ShareWhatUnfoldingLays();
      return;
    }
    MatchEdges(EdgesOf(pieces_.all, &Piece::folded), glued_);
    for (PlacedEdge& edge : flat_) edge.tolerance = GrainOf(edge);
    MatchEdges(flat_, shared_);
  }

  FlatPattern Make() {
    pattern_.faces = static_cast<int>(pieces_.all.size());
    if (settings_.tabWidth) TakeRoomOfFaces();
    for (int edge = 0; edge < static_cast<int>(flat_.size()); ++edge) {
      if (shared_[At(edge)] == kNoMatch) {
        AddOuterEdge(edge);
      } else if (shared_[At(edge)] > edge) {
        AddLine(edge, FoldKind(edge, shared_[At(edge)]));
      }
    }
    if (settings_.faceNumbers) AddFaceNumbers();
    return std::move(pattern_);
  }

 private:
  static std::size_t At(int number) { return static_cast<std::size_t>(number); }
  const Piece& PieceOf(int edge) const { return pieces_.all[At(flat_[At(edge)].owner)]; }
  PatternPlace OnPaper(const Vec3& place) const {
    return {place.X * settings_.mmPerUnit, place.Y * settings_.mmPerUnit};
  }

  static double GrainOf(const PlacedEdge& edge) {
    return kSamePlace + std::min(kUnfoldingGrain * Length(Minus(edge.to, edge.from)), kMostGrain);
  }

  // Of an odd face the edge c-a lies on b-c of the next face, and b-c on a-b of the next pair's second one.
  void ShareWhatUnfoldingLays() {
    for (int p = 0; p < static_cast<int>(pieces_.all.size()); ++p) {
      if (pieces_.all[At(p)].face % 2 == 0) continue;
      ShareIfNear(p, 2, 1, 1);
      ShareIfNear(p, 1, 3, 0);
    }
  }

  // The side of piece `p` with the other side of the piece whose face is `further` on.
  void ShareIfNear(int p, int side, int further, int otherSide) {
    const int face = pieces_.all[At(p)].face + further;
    int q = p + 1;
    while (q < static_cast<int>(pieces_.all.size()) && pieces_.all[At(q)].face < face) ++q;
    if (q == static_cast<int>(pieces_.all.size()) || pieces_.all[At(q)].face != face) return;
    const int edge = kCorners * p + side, other = kCorners * q + otherSide;
    if (shared_[At(edge)] != kNoMatch || shared_[At(other)] != kNoMatch) return;
    const PlacedEdge &e = flat_[At(edge)], &f = flat_[At(other)];
    if (!AreOnePlace(e.from, f.to, GrainOf(e)) || !AreOnePlace(e.to, f.from, GrainOf(e))) return;
    shared_[At(edge)] = other;
    shared_[At(other)] = edge;
  }

  // On which side of each face's plane the other one lay, seen from the printed side.
  PatternLineKind FoldKind(int edge, int other) const {
    if (!pieces_.areFolded) return PatternLineKind::Fold;
    const Places &p = PieceOf(edge).folded, &q = PieceOf(other).folded;
    const Vec3 between = Minus(CentreOf(q), CentreOf(p));
    const auto normal = [](const Places& at) {
      const Vec3 n = Cross(Minus(at[1], at[0]), Minus(at[2], at[0]));
      const double length = Length(n);
      return length > 0 ? Vec3{n.X / length, n.Y / length, n.Z / length} : Vec3{};
    };
    const double rise = Dot(between, normal(p)) - Dot(between, normal(q));
    if (!(std::abs(rise) > kFlatFold * Length(between))) return PatternLineKind::Fold;
    return rise < 0 ? PatternLineKind::Mountain : PatternLineKind::Valley;
  }

  void AddLine(int edge, PatternLineKind kind) {
    pattern_.lines.push_back({OnPaper(flat_[At(edge)].from), OnPaper(flat_[At(edge)].to), kind});
  }

  // The edge that this one is glued to, if that one is cut as well.
  int GluedTo(int edge) const {
    const int other = pieces_.areFolded ? glued_[At(edge)] : kNoMatch;
    return other != kNoMatch && shared_[At(other)] == kNoMatch ? other : kNoMatch;
  }

  void AddOuterEdge(int edge) {
    const int other = GluedTo(edge);
    if (other > edge) {
      ++gluedEdges_;
      AddEdgeNumber(edge);
      AddEdgeNumber(other);
    }
    const bool hasTab = settings_.tabWidth && !(other != kNoMatch && hasTab_[At(other)]) && AddTab(edge);
    AddLine(edge, hasTab ? PatternLineKind::Fold : PatternLineKind::Cut);
  }

  void AddEdgeNumber(int edge) {
    const PatternPlace from = OnPaper(flat_[At(edge)].from), to = OnPaper(flat_[At(edge)].to);
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    const double height = std::min(kTextHeight, kTextOfEdge * length);
    const double inX = -(to.y - from.y) / length * height, inY = (to.x - from.x) / length * height;
    pattern_.texts.push_back(
        {{(from.x + to.x) / 2 + inX, (from.y + to.y) / 2 + inY}, height, std::to_string(gluedEdges_)});
  }

  void TakeRoomOfFaces() {
    hasTab_.assign(flat_.size(), false);
    double sum = 0;
    for (const PlacedEdge& edge : flat_) sum += Length(Minus(edge.to, edge.from)) * settings_.mmPerUnit;
    const double mean = sum / static_cast<double>(std::max<std::size_t>(1, flat_.size()));
    room_.emplace(std::max(mean, kSamePlace),
                  std::max(kSamePlace * settings_.mmPerUnit, kUnfoldingGrain * mean));
    for (const Piece& piece : pieces_.all) {
      room_->Take({OnPaper(piece.flat[0]), OnPaper(piece.flat[1]), OnPaper(piece.flat[2])});
    }
  }

  bool AddTab(int edge) {
    const PatternShape tab =
        TabOn(OnPaper(flat_[At(edge)].from), OnPaper(flat_[At(edge)].to), *settings_.tabWidth);
    if (!room_->IsFree(tab)) return false;
    room_->Take(tab);
    hasTab_[At(edge)] = true;
    for (std::size_t i = 0; i + 1 < tab.size(); ++i) {
      pattern_.lines.push_back({tab[i], tab[i + 1], PatternLineKind::Cut});
    }
    return true;
  }

  void AddFaceNumbers() {
    for (const Piece& piece : pieces_.all) {
      double perimeter = 0;
      for (std::size_t i = 0; i < kCorners; ++i) {
        perimeter += Length(Minus(piece.flat[(i + 1) % kCorners], piece.flat[i]));
      }
      const double twiceArea =
          Cross(Minus(piece.flat[1], piece.flat[0]), Minus(piece.flat[2], piece.flat[0])).Z;
      const double innerCircle = twiceArea / perimeter * settings_.mmPerUnit;
      pattern_.texts.push_back({OnPaper(CentreOf(piece.flat)),
                                std::min(kTextHeight, kTextOfFace * innerCircle), std::to_string(piece.face),
                                true});
    }
  }

  const PatternSettings& settings_;
  Pieces pieces_;
  std::vector<PlacedEdge> flat_;
  EdgeMatches shared_, glued_;  // the edge that lies on this one; that lay on it
  std::optional<TakenRoom> room_;
  std::vector<bool> hasTab_;
  int gluedEdges_ = 0;
  FlatPattern pattern_;
};

}  // namespace

FlatPattern MakeFlatPattern(const ModelStore& model, const PatternSettings& settings) {
  if (!(settings.mmPerUnit > 0)) {
    throw Fault(FaultKind::InvalidValue, GeneralForm(settings.mmPerUnit) + " mm per unit");
  }
  if (settings.tabWidth && !(*settings.tabWidth > 0)) {
    throw Fault(FaultKind::InvalidValue, "tabs of " + GeneralForm(*settings.tabWidth) + " mm");
  }
  return PatternMaker(model, settings).Make();
}

}  // namespace pelorium
