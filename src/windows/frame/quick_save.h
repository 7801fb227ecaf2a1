// "Q save" and "Q get": the whole project to one fixed file and back, with no dialog.
#pragma once

namespace pelorium {

class App;

void QuickSave(App& app);

// A file that is missing leaves the model untouched. The profile's sections are raised to 4 when they are
// below.
void QuickGet(App& app);

}  // namespace pelorium
