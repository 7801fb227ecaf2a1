// The windows of models and maps to and from other programs.
#pragma once

namespace pelorium {

class App;

struct InterchangeWindows {
  explicit InterchangeWindows(App& app);

  class Form12& form12;
  class Form14& form14;
  class UvImportExport& uvimportexport;
  class Convert& convert;
  class Material& material;
  class Shapes& shapes;
  class Shapes2& shapes2;
  class Dialog& dialog;
};

}  // namespace pelorium
