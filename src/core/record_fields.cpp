// The tables of the records' fields.
#include "core/record_fields.h"

#include <type_traits>

#include "base/numbers.h"
#include "core/model_store.h"

namespace pelorium {

namespace {

constexpr RecordField<PointRec> kPointFields[] = {
    {"X", &PointRec::X}, {"Y", &PointRec::Y}, {"Z", &PointRec::Z},
    {"u", &PointRec::u}, {"v", &PointRec::v}, {"onoff", &PointRec::onoff},
};

constexpr RecordField<ProfilePointRec> kProfilePointFields[] = {
    {"X", &ProfilePointRec::X},
    {"Y", &ProfilePointRec::Y},
    {"Z", &ProfilePointRec::Z},
    {"first", &ProfilePointRec::spareFirst},
    {"count", &ProfilePointRec::spareCount},
    {"rotateX", &ProfilePointRec::rotateX},
    {"turnY", &ProfilePointRec::turnY},
    {"spinZ", &ProfilePointRec::spinZ},
    {"multX", &ProfilePointRec::multX},
    {"multY", &ProfilePointRec::multY},
    {"multZ", &ProfilePointRec::multZ},
    {"multZb", &ProfilePointRec::multZb},
    {"moveX", &ProfilePointRec::moveX},
    {"moveY", &ProfilePointRec::moveY},
    {"moveZ", &ProfilePointRec::moveZ},
    {"secMoveX", &ProfilePointRec::secMoveX},
    {"secMoveY", &ProfilePointRec::secMoveY},
    {"secMoveZ", &ProfilePointRec::secMoveZ},
    {"secRotateX", &ProfilePointRec::secRotateX},
    {"secTurnY", &ProfilePointRec::secTurnY},
    {"secSpinZ", &ProfilePointRec::secSpinZ},
    {"secMultX", &ProfilePointRec::secMultX},
    {"secMultY", &ProfilePointRec::secMultY},
    {"addXAmt1", &ProfilePointRec::addXAmt1},
    {"addYAmt1", &ProfilePointRec::addYAmt1},
    {"addZAmt1", &ProfilePointRec::addZAmt1},
    {"addXAmt2", &ProfilePointRec::addXAmt2},
    {"addYAmt2", &ProfilePointRec::addYAmt2},
    {"addZAmt2", &ProfilePointRec::addZAmt2},
    // The tables' names of the same fields.
    {"AngleX", &ProfilePointRec::rotateX},
    {"AngleY", &ProfilePointRec::turnY},
    {"AngleZ", &ProfilePointRec::spinZ},
    {"MultX", &ProfilePointRec::multX},
    {"MultY", &ProfilePointRec::multY},
    {"MultZ", &ProfilePointRec::multZ},
    {"LayerScale", &ProfilePointRec::multZb},
    {"MoveX", &ProfilePointRec::moveX},
    {"MoveY", &ProfilePointRec::moveY},
    {"MoveZ", &ProfilePointRec::moveZ},
    {"Bend1", &ProfilePointRec::secMoveX},
    {"Bend2", &ProfilePointRec::secMoveY},
    {"Bend3", &ProfilePointRec::secMoveZ},
    {"Bend4", &ProfilePointRec::secRotateX},
    {"Bend5", &ProfilePointRec::secTurnY},
    {"Bend6", &ProfilePointRec::secSpinZ},
    {"Bend7", &ProfilePointRec::secMultX},
    {"Bend8", &ProfilePointRec::secMultY},
    {"AddMult1X", &ProfilePointRec::addXAmt1},
    {"AddMult1Y", &ProfilePointRec::addYAmt1},
    {"AddMult1Z", &ProfilePointRec::addZAmt1},
    {"AddMult2X", &ProfilePointRec::addXAmt2},
    {"AddMult2Y", &ProfilePointRec::addYAmt2},
    {"AddMult2Z", &ProfilePointRec::addZAmt2},
};

constexpr RecordField<ProfileHeader> kProfileHeaderFields[] = {
    {"first", &ProfileHeader::first},
    {"count", &ProfileHeader::count},
    {"genRotateX", &ProfileHeader::genRotateX},
    {"genTurnY", &ProfileHeader::genTurnY},
    {"genSpinZ", &ProfileHeader::genSpinZ},
    {"genMoveX", &ProfileHeader::genMoveX},
    {"genMoveY", &ProfileHeader::genMoveY},
    {"genMoveZ", &ProfileHeader::genMoveZ},
    {"genMultX", &ProfileHeader::genMultX},
    {"genMultY", &ProfileHeader::genMultY},
    {"genMultZ", &ProfileHeader::genMultZ},
    {"layerSpacing", &ProfileHeader::layerSpacing},
    {"layerCount", &ProfileHeader::layerCount},
    {"originPathProfile", &ProfileHeader::originPathProfile},
    {"pathProfileX", &ProfileHeader::pathProfileX},
    {"pathProfileY", &ProfileHeader::pathProfileY},
    {"pathProfileZ", &ProfileHeader::pathProfileZ},
    {"topCap", &ProfileHeader::topCap},
    {"bottomCap", &ProfileHeader::bottomCap},
    {"sectionCount", &ProfileHeader::sectionCount},
    {"addProfile1X", &ProfileHeader::addProfile1X},
    {"addProfile1Y", &ProfileHeader::addProfile1Y},
    {"addProfile1Z", &ProfileHeader::addProfile1Z},
    {"addProfile2X", &ProfileHeader::addProfile2X},
    {"addProfile2Y", &ProfileHeader::addProfile2Y},
    {"addProfile2Z", &ProfileHeader::addProfile2Z},
    // The tables' names of the same fields.
    {"GenAngleX", &ProfileHeader::genRotateX},
    {"GenAngleY", &ProfileHeader::genTurnY},
    {"GenAngleZ", &ProfileHeader::genSpinZ},
    {"GenMoveX", &ProfileHeader::genMoveX},
    {"GenMoveY", &ProfileHeader::genMoveY},
    {"GenMoveZ", &ProfileHeader::genMoveZ},
    {"GenMultX", &ProfileHeader::genMultX},
    {"GenMultY", &ProfileHeader::genMultY},
    {"GenMultZ", &ProfileHeader::genMultZ},
    {"LayerSpacing", &ProfileHeader::layerSpacing},
    {"NumLayers", &ProfileHeader::layerCount},
    {"OriginPathProf", &ProfileHeader::originPathProfile},
    {"AddProfX", &ProfileHeader::pathProfileX},
    {"AddProfY", &ProfileHeader::pathProfileY},
    {"AddProfZ", &ProfileHeader::pathProfileZ},
    {"TopCap", &ProfileHeader::topCap},
    {"BotCap", &ProfileHeader::bottomCap},
    {"Sections", &ProfileHeader::sectionCount},
    {"MultProf1X", &ProfileHeader::addProfile1X},
    {"MultProf1Y", &ProfileHeader::addProfile1Y},
    {"MultProf1Z", &ProfileHeader::addProfile1Z},
    {"MultProf2X", &ProfileHeader::addProfile2X},
    {"MultProf2Y", &ProfileHeader::addProfile2Y},
    {"MultProf2Z", &ProfileHeader::addProfile2Z},
};

constexpr RecordField<FaceRec> kFaceFields[] = {
    {"corner1pt", &FaceRec::corner1pt},
    {"corner2pt", &FaceRec::corner2pt},
    {"corner3pt", &FaceRec::corner3pt},
    {"onoff", &FaceRec::onoff},
    {"group", &FaceRec::group},
    {"c1X", &FaceRec::c1X},
    {"c1Y", &FaceRec::c1Y},
    {"c1Z", &FaceRec::c1Z},
    {"c2X", &FaceRec::c2X},
    {"c2Y", &FaceRec::c2Y},
    {"c2Z", &FaceRec::c2Z},
    {"c3X", &FaceRec::c3X},
    {"c3Y", &FaceRec::c3Y},
    {"c3Z", &FaceRec::c3Z},
    {"vt1", &FaceRec::vt1},
    {"vt2", &FaceRec::vt2},
    {"vt3", &FaceRec::vt3},
};

constexpr RecordField<PartHeader> kPartFields[] = {
    {"maxpoints", &PartHeader::maxpoints},
    {"minpoints", &PartHeader::minpoints},
    {"maxfaces", &PartHeader::maxfaces},
    {"minfaces", &PartHeader::minfaces},
    {"PartName", &PartHeader::PartName},
    {"vtcount", &PartHeader::vtcount},
    {"vtfacecount", &PartHeader::vtfacecount},
    {"Sections", &PartHeader::Sections},
    {"count", &PartHeader::count},
};

constexpr RecordField<MaterialRec> kMaterialFields[] = {
    {"illum", &MaterialRec::illum},
    {"KaR", &MaterialRec::KaR},
    {"KaG", &MaterialRec::KaG},
    {"KaB", &MaterialRec::KaB},
    {"KsR", &MaterialRec::KsR},
    {"KsG", &MaterialRec::KsG},
    {"KsB", &MaterialRec::KsB},
    {"KdR", &MaterialRec::KdR},
    {"KdG", &MaterialRec::KdG},
    {"KdB", &MaterialRec::KdB},
    {"d", &MaterialRec::d},
    {"TfR", &MaterialRec::TfR},
    {"TfG", &MaterialRec::TfG},
    {"TfB", &MaterialRec::TfB},
    {"Ns", &MaterialRec::Ns},
    {"bump_amt", &MaterialRec::bump_amt},
    {"spec_amt", &MaterialRec::spec_amt},
    {"refl_amt", &MaterialRec::refl_amt},
    {"amb_amt", &MaterialRec::amb_amt},
    {"dif_amt", &MaterialRec::dif_amt},
    {"usebump", &MaterialRec::usebump},
    {"useamb", &MaterialRec::useamb},
    {"usedif", &MaterialRec::usedif},
    {"usespec", &MaterialRec::usespec},
    {"GroupName", &MaterialRec::GroupName},
};

double NumberIn(const FieldValue& value) {
  if (const double* number = std::get_if<double>(&value)) return *number;
  return WholeNumber(std::get<std::string>(value));
}

std::string TextIn(const FieldValue& value) {
  if (const double* number = std::get_if<double>(&value)) return ShortestForm(*number);
  return std::get<std::string>(value);
}

void Store(double& field, const FieldValue& value) { field = NumberIn(value); }
void Store(std::int16_t& field, const FieldValue& value) { field = ToInteger<std::int16_t>(NumberIn(value)); }
void Store(std::int32_t& field, const FieldValue& value) { field = ToInteger<std::int32_t>(NumberIn(value)); }
void Store(std::string& field, const FieldValue& value) { field = TextIn(value); }

}  // namespace

template <>
std::span<const RecordField<PointRec>> FieldsOf() {
  return kPointFields;
}

template <>
std::span<const RecordField<ProfilePointRec>> FieldsOf() {
  return kProfilePointFields;
}

template <>
std::span<const RecordField<ProfileHeader>> FieldsOf() {
  return kProfileHeaderFields;
}

template <>
std::span<const RecordField<FaceRec>> FieldsOf() {
  return kFaceFields;
}

template <>
std::span<const RecordField<PartHeader>> FieldsOf() {
  return kPartFields;
}

template <>
std::span<const RecordField<MaterialRec>> FieldsOf() {
  return kMaterialFields;
}

template <typename Rec>
const RecordField<Rec>* FindField(std::string_view name) {
  for (const RecordField<Rec>& field : FieldsOf<Rec>()) {
    if (field.name == name) return &field;
  }
  return nullptr;
}

template <typename Rec>
std::optional<FieldValue> GetField(const Rec& record, std::string_view name) {
  const RecordField<Rec>* field = FindField<Rec>(name);
  if (field == nullptr) return std::nullopt;
  return std::visit(
      [&record](auto member) -> FieldValue {
        if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(record.*member)>>) {
          return static_cast<double>(record.*member);
        } else {
          return record.*member;
        }
      },
      field->member);
}

template <typename Rec>
bool SetField(Rec& record, std::string_view name, const FieldValue& value) {
  const RecordField<Rec>* field = FindField<Rec>(name);
  if (field == nullptr) return false;
  std::visit([&](auto member) { Store(record.*member, value); }, field->member);
  return true;
}

template const RecordField<PointRec>* FindField(std::string_view);
template const RecordField<ProfilePointRec>* FindField(std::string_view);
template const RecordField<ProfileHeader>* FindField(std::string_view);
template const RecordField<FaceRec>* FindField(std::string_view);
template const RecordField<PartHeader>* FindField(std::string_view);
template const RecordField<MaterialRec>* FindField(std::string_view);

template std::optional<FieldValue> GetField(const PointRec&, std::string_view);
template std::optional<FieldValue> GetField(const ProfilePointRec&, std::string_view);
template std::optional<FieldValue> GetField(const ProfileHeader&, std::string_view);
template std::optional<FieldValue> GetField(const FaceRec&, std::string_view);
template std::optional<FieldValue> GetField(const PartHeader&, std::string_view);
template std::optional<FieldValue> GetField(const MaterialRec&, std::string_view);

template bool SetField(PointRec&, std::string_view, const FieldValue&);
template bool SetField(ProfilePointRec&, std::string_view, const FieldValue&);
template bool SetField(ProfileHeader&, std::string_view, const FieldValue&);
template bool SetField(FaceRec&, std::string_view, const FieldValue&);
template bool SetField(PartHeader&, std::string_view, const FieldValue&);
template bool SetField(MaterialRec&, std::string_view, const FieldValue&);

}  // namespace pelorium
