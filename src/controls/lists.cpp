// Lists.
#include "controls/lists.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "base/fault.h"
#include "base/numbers.h"

namespace pelorium {

namespace {

char Lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

// Greedy match with one step back to the last star: linear in practice and never recursive.
bool MatchesOne(std::string_view name, std::string_view pattern) {
  std::size_t n = 0, p = 0, afterStar = std::string_view::npos, resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      afterStar = ++p;
      resume = n;
    } else if (p < pattern.size() && Lower(pattern[p]) == Lower(name[n])) {
      ++n, ++p;
    } else if (afterStar != std::string_view::npos) {
      p = afterStar;
      n = ++resume;
    } else {
      return false;
    }
  }
  return pattern.substr(p).find_first_not_of('*') == std::string_view::npos;
}

template <typename Keep>
std::vector<std::string> SortedNames(const std::filesystem::path& folder, Keep keep) {
  std::vector<std::string> names;
  std::error_code error;
  for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::error_code ignored;
    if (keep(*at, ignored)) names.push_back(at->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

ListBox::ListBox(Window& owner, std::string name, std::string toolTip)
    : ListBox(owner, ControlKind::ListBox, std::move(name), std::move(toolTip)) {}

ListBox::ListBox(Window& owner, ControlKind kind, std::string name, std::string toolTip)
    : Control(owner, kind, std::move(name), {}, std::move(toolTip)) {}

std::string ListBox::chosen() const { return index_ < 0 ? "" : items_[static_cast<std::size_t>(index_)]; }

void ListBox::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  index_ = -1;
  NotifyChanged();
}

void ListBox::ReplaceItems(std::vector<std::string> items) {
  if (items == items_) return;
  const std::string kept = chosen();
  const bool hadOne = index_ >= 0;
  SetItems(std::move(items));
  const auto found = std::find(items_.begin(), items_.end(), kept);
  if (hadOne && found != items_.end()) index_ = static_cast<int>(found - items_.begin());
}

void ListBox::SetIndex(int index) {
  if (index < -1 || index >= static_cast<int>(items_.size())) {
    throw Fault(FaultKind::InvalidValue, FullName() + " := " + std::to_string(index));
  }
  if (index == index_) return;
  index_ = index;
  NotifyChanged();
  if (onClick) onClick({});
}

void ListBox::Pick(int index) {
  if (index != index_) {
    SetIndex(index);
  } else if (onClick) {
    onClick({});
  }
}

void ListBox::SetOwnValue(const PropertyValue& value) { SetIndex(ToInteger<int>(AsNumber(value))); }

FileList::FileList(Window& owner, std::string name, std::string pattern, std::string toolTip)
    : ListBox(owner, ControlKind::FileList, std::move(name), std::move(toolTip)),
      pattern_(std::move(pattern)) {}

void FileList::SetFolder(const std::filesystem::path& folder) {
  folder_ = folder;
  SetItems(FilesThere());
}

void FileList::Reload() { ReplaceItems(FilesThere()); }

std::vector<std::string> FileList::FilesThere() const {
  return SortedNames(folder_, [this](const auto& entry, std::error_code& error) {
    return entry.is_regular_file(error) && MatchesPattern(entry.path().filename().string(), pattern_);
  });
}

std::filesystem::path FileList::ChosenPath() const {
  return index() < 0 ? std::filesystem::path() : folder_ / chosen();
}

DirList::DirList(Window& owner, std::string name, std::string toolTip)
    : ListBox(owner, ControlKind::DirList, std::move(name), std::move(toolTip)) {}

void DirList::SetFolder(const std::filesystem::path& folder) {
  folder_ = folder;
  auto names = SortedNames(
      folder, [](const auto& entry, std::error_code& error) { return entry.is_directory(error); });
  names.insert(names.begin(), "..");
  SetItems(std::move(names));
}

std::filesystem::path DirList::ChosenFolder() const {
  if (index() < 0) return folder_;
  return chosen() == ".." ? folder_.parent_path() : folder_ / chosen();
}

bool MatchesPattern(std::string_view name, std::string_view patterns) {
  while (!patterns.empty()) {
    const std::size_t end = patterns.find(';');
    if (MatchesOne(name, patterns.substr(0, end))) return true;
    patterns = end == std::string_view::npos ? std::string_view() : patterns.substr(end + 1);
  }
  return false;
}

}  // namespace pelorium
