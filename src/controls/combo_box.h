// A list that drops down from one line of text.
#pragma once

#include "controls/lists.h"

namespace pelorium {

// The value is the chosen entry, as of every list. The text is that entry's, or what was typed instead.
class ComboBox : public ListBox {
 public:
  enum class Typing { Allowed, OnlyEntries };

  ComboBox(Window& owner, std::string name, std::string text, Typing typing, std::string toolTip = {});

  std::string text() const { return index() >= 0 ? chosen() : text_; }
  bool canBeTyped() const { return typing_ == Typing::Allowed; }

  // As a person types: the text of an entry, letter by letter, chooses that entry; another one chooses none.
  void Type(const std::string& text);

 private:
  std::string text_;
  Typing typing_;
};

}  // namespace pelorium
