// The reports on profiles. Their wording is what users know and search for.
#include "profiles/profile_report.h"

#include <cmath>
#include <string_view>
#include <variant>
#include <vector>

namespace pelorium {

namespace {

constexpr int kDecimals = 2;
constexpr std::string_view kBlankLine = "  ";

// A value and the text before it.
template <typename Rec>
struct Entry {
  std::string_view label;
  std::variant<double Rec::*, std::int16_t Rec::*> field;
};

template <typename Rec>
using EntryLines = std::vector<std::vector<Entry<Rec>>>;

using H = ProfileHeader;
const EntryLines<H> kProfileLines = {
    {{"General Z axis Angle ", &H::genRotateX},
     {" General Y axis angle", &H::genTurnY},
     {" General Z axis angle", &H::genSpinZ}},
    {{" General move X amnt", &H::genMoveX},
     {" General move Y amnt ", &H::genMoveY},
     {" General move Z amnt ", &H::genMoveZ}},
    {{" General mult X amnt ", &H::genMultX},
     {" General mult Y amnt ", &H::genMultY},
     {" General mult Z amnt ", &H::genMultZ}},
    {{" Bot Cap 0=no 1 = yes ", &H::bottomCap},
     {" Top Cap 0=no 1 = yes ", &H::topCap},
     {" Number of Layers ", &H::layerCount},
     {" Prof# for Origin path", &H::originPathProfile}},
    {{" Profile for X add ", &H::pathProfileX},
     {" Profile for Y add ", &H::pathProfileY},
     {" Profile for Z add", &H::pathProfileZ},
     {" Layer to Layer spacing ", &H::layerSpacing}},
    {{" Profile for X mult ", &H::addProfile1X},
     {"  Profile for Y mult ", &H::addProfile1Y},
     {" Profile for Z mult ", &H::addProfile1Z}},
    {{" Profile for X mult ", &H::addProfile2X},
     {" Profile for Y mult ", &H::addProfile2Y},
     {" Profile for Z mult", &H::addProfile2Z}},
};

using P = ProfilePointRec;
const EntryLines<P> kLayerLines = {
    {{" Z Axis Angle", &P::spinZ}, {" Y Axis Angle", &P::turnY}, {" Z Axis Angle ", &P::rotateX}},
    {{" Move X amnt ", &P::moveX}, {" Move Y amnt", &P::moveY}, {" Move Z amnt ", &P::moveZ}},
    {{" Mult X amnt ", &P::multX}, {" Mult Y amnt ", &P::multY}, {" Mult Z amnt ", &P::multZ}},
    {{" Mult X amnt from additve profile #1 ", &P::addXAmt1},
     {" Mult Y amnt from additve profile #1  ", &P::addYAmt1},
     {" Mult Z amnt from additve profile #1 ", &P::addZAmt1}},
    {{" Mult X amnt from additve profile #2 ", &P::addXAmt2},
     {" Mult Y amnt from additve profile #2  ", &P::addYAmt2},
     {" Mult Z amnt from additve profile #2 ", &P::addZAmt2}},
};

template <typename Rec>
void WriteEntries(const EntryLines<Rec>& lines, const Rec& record, TextWriter& out) {
  for (const auto& line : lines) {
    for (const Entry<Rec>& entry : line) {
      out.Text(entry.label);
      std::visit([&](auto field) { out.General(record.*field); }, entry.field);
    }
    out.EndLine();
  }
}

double Distance(const P& from, const P& to) {
  const double dx = to.X - from.X, dy = to.Y - from.Y, dz = to.Z - from.Z;
  return std::sqrt(dx * dx + dy * dy + dz * dz);
}

void WritePoint(const ModelStore& model, int profile, int point, TextWriter& out) {
  const bool isLast = point == model.Profile(profile).count;
  const P& here = model.ProfilePts(point, profile);
  const P& next = model.ProfilePts(isLast ? 0 : point + 1, profile);
  out.Text("profile pt# ").Integer(point).Text(" Xloc:").Rounded(here.X, kDecimals);
  out.Text(" YLoc:").Rounded(here.Y, kDecimals).Text(" ZLoc:").Rounded(here.Z, kDecimals);
  out.Text("  Line Length to next point is: ").Rounded(Distance(here, next), kDecimals);
  out.Line(isLast ? " or N/A" : "");
}

void WriteProfile(const ModelStore& model, int profile, bool parametric, TextWriter& out) {
  out.Text("---------------------------- Profile# ").Integer(profile);
  out.Line("-------------------------------");
  if (parametric) {
    out.Line("Parametric info for extrude operation:  ");
    WriteEntries(kProfileLines, model.Profile(profile), out);
  }
  for (int point = 0; point <= model.Profile(profile).count; ++point) {
    WritePoint(model, profile, point, out);
    if (parametric) WriteEntries(kLayerLines, model.ProfilePts(point, profile), out);
  }
  out.Line(kBlankLine);
  out.Line(kBlankLine);
}

}  // namespace

void WriteProfileReport(const ModelStore& model, ProfileReport kind, TextWriter& out) {
  out.Line(kBlankLine);
  out.Line(" Exported by Pelorium   ");
  out.Line("       ");
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    WriteProfile(model, profile, kind == ProfileReport::Parametric, out);
  }
}

}  // namespace pelorium
