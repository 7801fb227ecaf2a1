// Builds the windows of this room.
#include "windows/profiles/profiles_windows.h"

#include "windows/profiles/formulas2frm_profile_formulas.h"
#include "windows/profiles/formulas3frm_edit_profile_ranges.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/frmsaveprof_profile_files.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

ProfileWindows::ProfileWindows(App& app)
    : formulas(app.Add<Formulas>()),
      formulas2frm(app.Add<Formulas2Frm>()),
      formulas3frm(app.Add<Formulas3Frm>()),
      frmsaveprof(app.Add<FrmSaveProf>()) {
  app.links.subView = [this] { return formulas.SubView(); };
  app.links.elevation = [this] { return formulas.HScroll28.Shown(); };
}

}  // namespace pelorium
