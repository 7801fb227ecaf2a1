// One set of tables tells which fields of a profile stand on which line; the writer and both readers walk it.
#include "core/profile_file.h"

#include <algorithm>
#include <vector>

#include "core/record_lines.h"

namespace pelorium {

namespace {

using H = ProfileHeader;
using P = ProfilePointRec;
using HeaderLines = std::vector<RecordLine<H>>;
using PointLines = std::vector<RecordLine<P>>;

constexpr int kHeaderPoint = 1;  // the point of a profile whose record carries the header's counts

// Stands first in each point's record. Behind it two whole numbers follow: `first` and `count` in the record
// that carries the header, in the others they mean nothing and are kept.
const RecordLine<P> kPosition = Fractions<P>({&P::X, &P::Y, &P::Z}, ItemForm::Rounded);
const RecordLine<H> kCounts = {{&H::first}, {&H::count, ItemForm::Exact, 0, kMaxLayer}};

const RecordLine<P> kSpares = WholeNumbers<P>({&P::spareFirst, &P::spareCount});

const HeaderLines kHeader = {
    Fractions<H>({&H::genRotateX, &H::genTurnY, &H::genSpinZ}),
    Fractions<H>({&H::genMoveX, &H::genMoveY, &H::genMoveZ}),
    Fractions<H>({&H::genMultX, &H::genMultY, &H::genMultZ}),
    WholeNumbers<H>({&H::bottomCap, &H::topCap, &H::layerCount, &H::originPathProfile, &H::sectionCount}),
    WholeNumbers<H>({&H::pathProfileX, &H::pathProfileY, &H::pathProfileZ}) +
        Fractions<H>({&H::layerSpacing}),
    WholeNumbers<H>({&H::addProfile1X, &H::addProfile1Y, &H::addProfile1Z}),
};
const HeaderLines kSecondOfHeader = {WholeNumbers<H>({&H::addProfile2X, &H::addProfile2Y, &H::addProfile2Z})};

const RecordLine<P> kLayerSettings = Fractions<P>(
    {&P::rotateX, &P::turnY, &P::spinZ, &P::multX, &P::multY, &P::multZ, &P::moveX, &P::moveY, &P::moveZ});
const RecordLine<P> kFirstAmounts = Fractions<P>({&P::addXAmt1, &P::addYAmt1, &P::addZAmt1});
const RecordLine<P> kSecondAmounts = Fractions<P>({&P::addXAmt2, &P::addYAmt2, &P::addZAmt2});
const RecordLine<P> kLayerScale = Fractions<P>({&P::multZb});
const RecordLine<P> kSectionSettings = Fractions<P>({&P::secRotateX, &P::secTurnY, &P::secSpinZ, &P::secMoveX,
                                                     &P::secMoveY, &P::secMoveZ, &P::secMultX, &P::secMultY});

const PointLines kPoint = {kLayerSettings, kFirstAmounts, kSecondAmounts + kLayerScale, kSectionSettings};
const PointLines kPointWithoutSecond = {kLayerSettings, kFirstAmounts, kLayerScale, kSectionSettings};

}  // namespace

void WriteProfiles(const ModelStore& model, TextWriter& out) {
  for (int a = 0; a <= kMaxProfile; ++a) {
    WriteLines<H>(out, model.Profile(a), kHeader);
    WriteLines<H>(out, model.Profile(a), kSecondOfHeader);
    for (int b = 0; b <= kMaxProfile; ++b) {
      const ProfilePointRec& point = model.ProfilePts(a, b);
      WriteItems(out, point, kPosition);
      out.Text(" ");
      if (a == kHeaderPoint) {
        WriteItems(out, model.Profile(b), kCounts);
      } else {
        WriteItems(out, point, kSpares);
      }
      out.EndLine();
      WriteLines<P>(out, point, kPoint);
    }
  }
}

void ReadProfiles(ModelStore& model, ItemReader& in, ProfileItems items) {
  const bool all = items == ProfileItems::All;
  for (int a = 0; a <= kMaxProfile; ++a) {
    ReadLines<H>(in, model.Profile(a), kHeader);
    if (all) ReadLines<H>(in, model.Profile(a), kSecondOfHeader);
    for (int b = 0; b <= kMaxProfile; ++b) {
      ProfilePointRec& point = model.ProfilePts(a, b);
      ReadItems(in, point, kPosition);
      if (a == kHeaderPoint) {
        ReadItems(in, model.Profile(b), kCounts);
      } else {
        ReadItems(in, point, kSpares);
      }
      ReadLines<P>(in, point, all ? kPoint : kPointWithoutSecond);
    }
  }
}

void ReadProfileFile(ModelStore& model, std::string_view text) {
  ItemReader in(text);
  ReadProfiles(model, in, ProfileItems::WithoutSecond);
}

}  // namespace pelorium
