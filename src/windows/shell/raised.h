// Sets a flag as long as it lives: handlers that set each other's controls do not run in circles.
#pragma once

namespace pelorium {

class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace pelorium
