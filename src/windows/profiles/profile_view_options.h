// The view options that the profile windows share: from which side profiles are seen and drawn.
#pragma once

#include <optional>
#include <vector>

#include "controls/buttons.h"
#include "views/view_settings.h"

namespace pelorium {

class App;

class ProfileViewOptions {
 public:
  ProfileViewOptions(Window& owner, App& app);

  // The side that is switched on; none while "Shaded" is.
  std::optional<Projection> Chosen() const;
  OptionButton& Of(Projection projection);
  std::vector<Control*> All() { return {&Option4, &Option5, &Option6, &Option7, &Option8}; }

  OptionButton Option4, Option5, Option6, Option7, Option8;
};

}  // namespace pelorium
