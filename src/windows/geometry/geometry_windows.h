// The windows of geometry: the generators and the edits of points.
#pragma once

namespace pelorium {

class App;

struct GeometryWindows {
  explicit GeometryWindows(App& app);

  class RevolveProf& revolveprof;
  class Form55& form55;
  class SpecialEffects1& specialeffects1;
  class SpecialEffects5& specialeffects5;
  class SpecialEffects6& specialeffects6;
};

}  // namespace pelorium
