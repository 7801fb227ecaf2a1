// The shaded picture.
#include "windows/shaded_view.h"

#include "windows/app.h"

namespace pelorium {

void ShadedView::InitShadedContext() {}

void ShadedView::DrawShaded() {}

void ShadedView::DragPose(const MouseEvent&, double, double) {}

}  // namespace pelorium
