// The windows of profiles: drawing, formulas, ranges, files.
#pragma once

namespace pelorium {

class App;

struct ProfileWindows {
  explicit ProfileWindows(App& app);

  class Formulas& formulas;
  class Formulas2Frm& formulas2frm;
  class Formulas3Frm& formulas3frm;
  class FrmSaveProf& frmsaveprof;
};

}  // namespace pelorium
