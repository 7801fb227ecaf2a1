// "Add Noise".
#include "windows/imaging/frm_add_noise.h"

#include "base/numbers.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

FrmAddNoise::FrmAddNoise(App& app) : ToolWindow(app, "frmAddNoise", "Add Noise") {
  cmdOK.onClick = [this](const Click&) {
    Cancelled = false;
    Hide();
  };
  cmdCancel.onClick = [this](const Click&) { Hide(); };
  SetLayout(Column(
      {Labelled("Percent:", txtAmount), Flow({&randomType, &uniformType}), Flow({&cmdOK, &cmdCancel})}));
}

std::optional<NoiseSettings> FrmAddNoise::Ask() {
  Cancelled = true;
  app_.platform.RunModal(*this);
  if (Cancelled) return std::nullopt;
  return NoiseSettings{ToInteger<std::int32_t>(txtAmount.Number()), uniformType.value()};
}

}  // namespace pelorium
