// The settings of the extrude.
#include "windows/geometry/extrude_fields.h"

#include <array>

namespace pelorium {

namespace {

using L = ProfilePointRec;
using H = ProfileHeader;
using enum FieldOf;

constexpr BarRange kMove = {-1200, 1200, 0, 1, 10};
constexpr BarRange kAngle = {-360, 360, 0, 1, 10};
constexpr BarRange kMult = {-1000, 1000, 100, 1, 10};
constexpr BarRange kGeneralMult = {-600, 600, 100, 1, 10};
constexpr BarRange kAmount = {-1000, 1000, 0, 1, 10};
constexpr BarRange kPicker = {0, kMaxProfile, 30, 1, 5};

constexpr const char* kEffector1 = "profile whose points are the first effector";
constexpr const char* kEffector2 = "profile whose points are the second effector";
constexpr const char* kAmount1 = "amount of the first effector at the selected section";
constexpr const char* kAmount2 = "amount of the second effector at the selected layer";
constexpr const char* kTurnLayer = "degrees that the layer turns";
constexpr const char* kTurnSection = "degrees that the section turns";
constexpr const char* kTurnAll = "degrees that the whole body turns about the origin";
constexpr const char* kMoveLayer = "units that the layer moves";
constexpr const char* kMoveSection = "units that the section moves";
constexpr const char* kMoveAll = "units that the whole body moves";
constexpr const char* kScaleLayer = "factor of the layer, once before and once after its turns";
constexpr const char* kScalePoints = "factor of the section of the selected layer's number";
constexpr const char* kScaleSection = "factor of the section";
constexpr const char* kScaleAll = "factor of the whole body";
constexpr const char* kPath = "profile whose points the layers follow";

// Four settings of a section are chosen with the layer selector, and two bars share addXAmt2: the number of
// the selector, not the name of the setting, says which record is written.
const std::array<ExtrudeField, 44> kFields = {{
    {{"HScroll23", "Text30", {-100, 100, 10, 1, 10}, "Spacing in Y dir", "units from layer to layer"},
     Profile,
     &H::layerSpacing,
     kExtrudeFrame},

    {{"HScroll29", "Text1", kMult, "Mult X", kScaleLayer, kHundredths}, Layer, &L::multX, kLayerFrame},
    {{"HScroll3", "Text13", kMult, "Mult Y", kScalePoints, kHundredths}, Layer, &L::multY, kLayerFrame},
    {{"HScroll30", "Text35", kMult, "Mult Z", kScaleLayer, kHundredths}, Layer, &L::multZ, kLayerFrame},
    {{"HScroll1", "Text8", kMult, "Mult Zb", kScalePoints, kHundredths}, Layer, &L::multZb, kLayerFrame},
    {{"HScroll31", "Text36", kMove, "Move  X", kMoveLayer}, Layer, &L::moveX, kLayerFrame},
    {{"HScroll32", "Text37", kMove, "Move  Y", kMoveLayer}, Layer, &L::moveY, kLayerFrame},
    {{"HScroll33", "Text38", kMove, "Move  Z", kMoveLayer}, Layer, &L::moveZ, kLayerFrame},
    {{"HScroll18", "Text24", kAngle, "Rotate", kTurnLayer}, Layer, &L::rotateX, kLayerFrame},
    {{"HScroll17", "Text23", kAngle, "Turn", kTurnLayer}, Layer, &L::turnY, kLayerFrame},
    {{"HScroll19", "Text25", kAngle, "Spin", kTurnLayer}, Layer, &L::spinZ, kLayerFrame},

    {{"HScroll20", "Text62", kMove, "move X", kMoveSection}, Section, &L::secMoveX, kSectionFrame},
    {{"HScroll15", "Text26", kMove, "move Y", kMoveSection}, Section, &L::secMoveY, kSectionFrame},
    {{"HScroll14", "Text21", kMove, "move Z", kMoveSection}, Section, &L::secMoveZ, kSectionFrame},
    {{"HScroll7", "Text15", kAngle, "rotate X", kTurnSection}, Section, &L::secRotateX, kSectionFrame},
    {{"HScroll8", "Text16", kAngle, "turn Y", kTurnSection}, Section, &L::secTurnY, kSectionFrame},
    {{"HScroll9", "Text17", kAngle, "spin Z", kTurnSection}, Section, &L::secSpinZ, kSectionFrame},
    {{"HScroll10", "Text18", kMult, "mult X", kScaleSection, kHundredths},
     Section,
     &L::secMultX,
     kSectionFrame},
    {{"HScroll11", "Text19", kMult, "mult Y", kScaleSection, kHundredths},
     Section,
     &L::secMultY,
     kSectionFrame},

    {{"HScroll25", "Text31", kPicker, "X >>>", kEffector1}, Profile, &H::addProfile1X, kEffector1Frame},
    {{"HScroll27", "Text33", kPicker, "Y >>>", kEffector1}, Profile, &H::addProfile1Y, kEffector1Frame},
    {{"HScroll26", "Text32", kPicker, "Z >>>", kEffector1}, Profile, &H::addProfile1Z, kEffector1Frame},
    {{"HScroll56", "Text58", kPicker, "X >>>", kEffector2}, Profile, &H::addProfile2X, kEffector2Frame},
    {{"HScroll54", "Text56", kPicker, "Y >>>", kEffector2}, Profile, &H::addProfile2Y, kEffector2Frame},
    {{"HScroll55", "Text57", kPicker, "Z >>>", kEffector2}, Profile, &H::addProfile2Z, kEffector2Frame},

    {{"HScroll48", "Text50", kAmount, "X >>>", kAmount1}, Section, &L::addXAmt1, kAmount1Frame},
    {{"HScroll49", "Text51", kAmount, "Y >>>", kAmount1}, Section, &L::addYAmt1, kAmount1Frame},
    {{"HScroll51", "Text53", kAmount, "Z >>>", kAmount1}, Section, &L::addZAmt1, kAmount1Frame},
    {{"HScroll59", "Text61", kAmount, "X >>>", kAmount2}, Layer, &L::addXAmt2, kAmount2Frame},
    {{"HScroll58", "Text60", kAmount, "Y >>>", kAmount2}, Layer, &L::addYAmt2, kAmount2Frame},
    {{"HScroll57", "Text59", kAmount, "Z", "amount X of the second effector at the selected section"},
     Section,
     &L::addXAmt2,
     kAmount2Frame},

    {{"HScroll47", "Text49", kPicker, "X Dir Path #", kPath}, Profile, &H::pathProfileX, kPathFrame},
    {{"HScroll52", "Text54", kPicker, "Y Dir Path #", kPath}, Profile, &H::pathProfileY, kPathFrame},
    {{"HScroll50", "Text52", kPicker, "Z Dir Path #", kPath}, Profile, &H::pathProfileZ, kPathFrame},
    {{"HScroll28", "Text34", kPicker, "Origin X,Y,Z Path (rotate)",
      "selects profile for xyz origin positions based on profile xyz vertex points"},
     Profile,
     &H::originPathProfile,
     kPathFrame},

    {{"HScroll37", "Text40", kMove, "Move X", kMoveAll}, Profile, &H::genMoveX, kPositionFrame},
    {{"HScroll38", "Text41", kMove, "Move Y", kMoveAll}, Profile, &H::genMoveY, kPositionFrame},
    {{"HScroll39", "Text42", kMove, "Move Z", kMoveAll}, Profile, &H::genMoveZ, kPositionFrame},
    {{"HScroll40", "Text43", kGeneralMult, "Mult X", kScaleAll, kHundredths},
     Profile,
     &H::genMultX,
     kPositionFrame},
    {{"HScroll41", "Text44", kGeneralMult, "Mult Y", kScaleAll, kHundredths},
     Profile,
     &H::genMultY,
     kPositionFrame},
    {{"HScroll42", "Text45", kGeneralMult, "Mult Z", kScaleAll, kHundredths},
     Profile,
     &H::genMultZ,
     kPositionFrame},
    {{"HScroll46", "Text48", kAngle, "Rotate", kTurnAll}, Profile, &H::genRotateX, kPositionFrame},
    {{"HScroll45", "Text47", kAngle, "Turn", kTurnAll}, Profile, &H::genTurnY, kPositionFrame},
    {{"HScroll44", "Text46", kAngle, "Spin", kTurnAll}, Profile, &H::genSpinZ, kPositionFrame},
}};

}  // namespace

std::span<const ExtrudeField> ExtrudeFields() { return kFields; }

}  // namespace pelorium
