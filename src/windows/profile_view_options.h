// The view options that the profile windows share: from which side profiles are seen and drawn.
#pragma once

#include <vector>

#include "controls/buttons.h"
#include "profiles/draw_point.h"
#include "views/view_settings.h"

namespace pelorium {

class App;

class ProfileViewOptions {
 public:
  ProfileViewOptions(Window& owner, App& app);

  // The side that is switched on.
  Projection Chosen() const;
  OptionButton& Of(Projection projection);
  // The plane that points are drawn in; the leaning view draws in that of the front.
  ProfilePlane Plane() const;
  std::vector<Control*> All() { return {&Option4, &Option5, &Option6, &Option7, &Option8}; }

  OptionButton Option4, Option5, Option6, Option7, Option8;
};

}  // namespace pelorium
