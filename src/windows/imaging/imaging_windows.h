// The windows of the image maker.
#pragma once

namespace pelorium {

class App;

struct ImagingWindows {
  explicit ImagingWindows(App& app);

  class Texture& texture;
  class SpecialEffects3& specialeffects3;
  class Plasma& plasma;
  class PlasmaThree& plasmathree;
  class FrmPerlinNoise& frmPerlinNoise;
  class Form45& form45;
  class Form15& form15;
  class Form47& form47;
  class FrmCustomFilter& frmCustomFilter;
  class FrmAddNoise& frmAddNoise;
};

}  // namespace pelorium
