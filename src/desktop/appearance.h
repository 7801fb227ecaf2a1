// Colours and style of the whole face.
#pragma once

class QApplication;

namespace pelorium {

void SetAppearance(QApplication& application);

}  // namespace pelorium
