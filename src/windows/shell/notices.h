// One-line notices for the person: what a file command did, and every fault that was trapped. A desktop shows
// them in its own line, a script prints them on request; no message box comes with them.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace pelorium {

enum class NoticeKind { Result, Fault };

// Keeps the latest notices until they are asked for.
class Notices {
 public:
  static constexpr std::size_t kCapacity = 1000;

  void Give(const std::string& text, NoticeKind kind);

  // Those since the last call, oldest first.
  std::vector<std::string> TakeAll();

  // Hears of each as it is given.
  std::function<void(const std::string& text, NoticeKind kind)> onNotice;

 private:
  std::deque<std::string> lines_;
};

}  // namespace pelorium
