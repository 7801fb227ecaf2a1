// The windows of the view and what every window shares: view, View Options, Precise Edit.
#pragma once

#include <memory>

namespace pelorium {

class App;

struct ViewWindows {
  explicit ViewWindows(App& app);
  ~ViewWindows();

  const std::unique_ptr<class ShadedView> shadedView;
  class Form51& form51;
  class Form5& form5;
  class Form36& form36;
};

}  // namespace pelorium
