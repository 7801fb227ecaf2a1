// The bars of "Extrude Profile" that write a setting of the current profile, one row each.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "controls/boxed_bar.h"
#include "core/model_store.h"

namespace pelorium {

// Which record of the profile a bar writes.
enum class FieldOf {
  Layer,    // the point of the number in the layer selector
  Section,  // the point of the number in the section selector
  Profile,  // the header
};

struct ExtrudeField {
  BarSpec spec;
  FieldOf of;
  std::variant<double ProfilePointRec::*, double ProfileHeader::*, std::int16_t ProfileHeader::*> field;
  std::string_view frame;  // where the bar stands
};

// Titles of the frames.
inline constexpr std::string_view kExtrudeFrame = "Extrude Profile-Current Profile   (Front View Based)";
inline constexpr std::string_view kLayerFrame = "Layer";
inline constexpr std::string_view kSectionFrame = "Section";
inline constexpr std::string_view kEffector1Frame = "profile #1";
inline constexpr std::string_view kEffector2Frame = "profile #2";
inline constexpr std::string_view kAmount1Frame = "amount #1";
inline constexpr std::string_view kAmount2Frame = "amount #2";
inline constexpr std::string_view kPathFrame = "General Fallow Path Prof#  Effect";
inline constexpr std::string_view kPositionFrame = "General Positioning";

std::span<const ExtrudeField> ExtrudeFields();

}  // namespace pelorium
