// The windows of the image maker.
#pragma once

namespace pelorium {

class App;

struct ImagingWindows {
  explicit ImagingWindows(App& app);

  class Texture& texture;
};

}  // namespace pelorium
