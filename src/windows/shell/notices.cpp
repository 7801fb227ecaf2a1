// Notices.
#include "windows/shell/notices.h"

#include <utility>

namespace pelorium {

void Notices::Give(const std::string& text, NoticeKind kind) {
  lines_.push_back(text);
  if (lines_.size() > kCapacity) lines_.pop_front();
  if (onNotice) onNotice(text, kind);
}

std::vector<std::string> Notices::TakeAll() {
  const std::deque<std::string> taken = std::exchange(lines_, {});
  return {taken.begin(), taken.end()};
}

}  // namespace pelorium
