// Lists of texts, of the files of a folder and of folders.
#pragma once

#include <filesystem>
#include <vector>

#include "controls/control.h"

namespace pelorium {

// The value is the chosen entry, from 0; -1 when none is. onClick runs when an entry is chosen.
class ListBox : public Control {
 public:
  ListBox(Window& owner, std::string name, std::string toolTip = {});

  const std::vector<std::string>& items() const { return items_; }
  int index() const { return index_; }
  std::string chosen() const;  // the chosen entry's text, empty when none is

  void SetItems(std::vector<std::string> items);  // nothing is chosen afterwards
  // The same, but an entry of the text that was chosen is chosen again, and no handler runs.
  void ReplaceItems(std::vector<std::string> items);
  void SetIndex(int index);  // outside -1..size-1 raises InvalidValue
  // A person clicks on an entry: it is chosen, and onClick runs even when it was chosen before.
  void Pick(int index);

  PropertyValue Value() const override { return static_cast<double>(index_); }
  void SetOwnValue(const PropertyValue& value) override;

 protected:
  ListBox(Window& owner, ControlKind kind, std::string name, std::string toolTip);

 private:
  std::vector<std::string> items_;
  int index_ = -1;
};

// The files of one folder whose names match a pattern ("*.prj;*.txt"), sorted. A folder that is missing shows
// empty.
class FileList : public ListBox {
 public:
  FileList(Window& owner, std::string name, std::string pattern, std::string toolTip = {});

  const std::filesystem::path& folder() const { return folder_; }
  void SetFolder(const std::filesystem::path& folder);
  // Reads the folder again; the chosen file stays chosen while it is there, and no handler runs.
  void Reload();
  // Folder, separator and the chosen name; empty when none is chosen.
  std::filesystem::path ChosenPath() const;

 private:
  std::vector<std::string> FilesThere() const;

  std::string pattern_;
  std::filesystem::path folder_;
};

// The folders inside one folder, headed by ".." for the folder above.
class DirList : public ListBox {
 public:
  DirList(Window& owner, std::string name, std::string toolTip = {});

  const std::filesystem::path& folder() const { return folder_; }
  void SetFolder(const std::filesystem::path& folder);
  // Where a choice of the present entry leads to.
  std::filesystem::path ChosenFolder() const;

 private:
  std::filesystem::path folder_;
};

// True when `name` matches one of the patterns (separated by ";"), in which "*" stands for anything; case
// does not matter.
bool MatchesPattern(std::string_view name, std::string_view patterns);

}  // namespace pelorium
