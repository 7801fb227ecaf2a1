// View options of the profile windows.
#include "windows/profiles/profile_view_options.h"

#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

constexpr const char* kGroup = "view";

}  // namespace

ProfileViewOptions::ProfileViewOptions(Window& owner, App& app)
    : Option4(owner, "Option4", "Front", kGroup, true, "draw and show profiles from the front (X, Z)"),
      Option5(owner, "Option5", "Top", kGroup, false, "draw and show profiles from above (X, Y)"),
      Option6(owner, "Option6", "Side", kGroup, false, "draw and show profiles from the side (Z, Y)"),
      Option7(owner, "Option7", "3d", kGroup, false, "show profiles from the front, Y leaning in"),
      Option8(owner, "Option8", "Shaded", kGroup, false, "show the Parts shaded") {
  for (OptionButton* option : {&Option4, &Option5, &Option6, &Option7}) {
    option->onClick = [this, &app](const Click&) { app.profiles->formulas.ChooseSubView(*Chosen()); };
  }
  Option8.onClick = [&app](const Click&) { app.profiles->formulas.ChooseShaded(); };
}

std::optional<Projection> ProfileViewOptions::Chosen() const {
  if (Option4.value()) return Projection::Front;
  if (Option5.value()) return Projection::Top;
  if (Option6.value()) return Projection::Side;
  if (Option7.value()) return Projection::Oblique;
  return std::nullopt;
}

OptionButton& ProfileViewOptions::Of(Projection projection) {
  switch (projection) {
    case Projection::Top:
      return Option5;
    case Projection::Side:
      return Option6;
    case Projection::Oblique:
      return Option7;
    default:
      return Option4;
  }
}

}  // namespace pelorium
