// The cursor over the whole program while a handler takes long.
#pragma once

#include <chrono>

namespace pelorium {

class BusyCursor {
 public:
  BusyCursor() = default;
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
  ~BusyCursor() { Restart(); }

  // The usual cursor; from now on the time counts.
  void Restart();
  // Shows that the program is busy once it has been so for a fifth of a second.
  void ShowIfLate();

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  bool isShown_ = false;
};

}  // namespace pelorium
