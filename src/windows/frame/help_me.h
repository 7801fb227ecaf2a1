// The help window: a small editor for the help text and for notes.
#pragma once

#include <filesystem>
#include <string_view>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/rich_text_box.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class HelpMe : public ToolWindow {
 public:
  explicit HelpMe(App& app);

  // Shows the text of "help.rtf" in the program's folder; FileError if it cannot be read.
  void LoadHelp();
  // Puts the cursor before the heading that is a window's caption; no such heading leaves it.
  void ShowSection(std::string_view caption);

  RichTextBox RichTextBox1{*this, "RichTextBox1", "help and notes"};
  PushButton Command1{*this, "Command1", "Paste", "puts the clipboard's text in place of the selection"};
  PushButton Command2{*this, "Command2", "copy", "copies the selection to the clipboard"};
  PushButton Command3{*this, "Command3", "Print", "prints the selection, or all when nothing is selected"};
  PushButton Command4{*this, "Command4", "Size>>", "gives the selection the size of the bar"};
  PushButton Command5{*this, "Command5", " Color", "gives the selection the colour of the bars"};
  PushButton Command6{*this, "Command6", "Bold", "makes the selection bold, or no longer bold"};
  PushButton Command7{*this, "Command7", "Bullet", "puts a bullet before the paragraphs, or takes it away"};
  PushButton Command8{*this, "Command8", "Italic", "makes the selection slanted, or upright again"};
  PushButton Command9{*this, "Command9", "Under", "underlines the selection, or no longer"};
  PushButton Command10{*this, "Command10", "Open", "opens a text from the notes"};
  PushButton Command11{*this, "Command11", "Save", "saves the text: as rich text if its name ends in .rtf"};

  BoxedBar HScroll1{*this, {"HScroll1", "Text1", {6, 72, 12}, "Size", "size in points"}};
  BoxedBar HScroll2{*this, {"HScroll2", "Text2", {0, 255, 0}, "Red"}};
  BoxedBar HScroll3{*this, {"HScroll3", "Text3", {0, 255, 0}, "Green"}};
  BoxedBar HScroll4{*this, {"HScroll4", "Text4", {0, 255, 0}, "Blue"}};
  PictureBox Picture1{*this, "Picture1", 48, 24, "the colour of the bars"};

 private:
  void WireButtons();
  Colour ChosenColour() const;
  void ShowChosenColour();  // of HScroll2, HScroll3, HScroll4

  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click() { RichTextBox1.SetSize(HScroll1.value()); }
  void Command5_Click() { RichTextBox1.SetColour(ChosenColour()); }
  void Command6_Click() { RichTextBox1.ToggleBold(); }
  void Command7_Click() { RichTextBox1.ToggleBullet(); }
  void Command8_Click() { RichTextBox1.ToggleItalic(); }
  void Command9_Click() { RichTextBox1.ToggleUnderline(); }
  void Command10_Click();
  void Command11_Click();

  void OpenText(const std::filesystem::path& path);
  void Save(const std::filesystem::path& path);
};

}  // namespace pelorium
