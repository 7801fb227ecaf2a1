// The windows of single faces.
#pragma once

namespace pelorium {

class App;

struct FacetoolWindows {
  explicit FacetoolWindows(App& app);

  class EditByFace& editbyface;
  class FreeFace& freeface;
  class Unfold& unfold;
};

}  // namespace pelorium
