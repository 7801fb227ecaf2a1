// The whole view in a small picture.
#include "windows/geometry/view_miniature.h"

#include <algorithm>

#include "base/numbers.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

void FollowWholeView(const App& app, Picture& area, int width) {
  const Picture& view = app.view->form36.Picture1.measures();
  const double like = static_cast<double>(width) * view.PixelHeight() / view.PixelWidth();
  const int height = std::clamp(static_cast<int>(RoundHalfEven(like)), 1, 4 * width);
  if (area.PixelHeight() != height) area.Resize(width, height);
  area.SetScale(view.ScaleWidth(), view.ScaleHeight());
}

}  // namespace pelorium
