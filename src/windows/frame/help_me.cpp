// The help window's buttons.
#include "windows/frame/help_me.h"

#include <utility>

#include "base/files.h"
#include "controls/lists.h"
#include "controls/rich_text_format.h"
#include "controls/utf8.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"

namespace pelorium {

namespace {

constexpr const char* kNotesFolder = "notes";
constexpr const char* kNotesEnding = "*.rtf";
constexpr const char* kOpenFilter = "All Files (*.txt;*rtf;*.obj)|*.txt*;*rtf;*.obj";
constexpr const char* kSaveFilter = "All Files (*.txt;*.rtf;*.obj)|*.txt*;*.rtf;*.obj";

}  // namespace

HelpMe::HelpMe(App& app) : ToolWindow(app, "helpme", "Help/ Notes") {
  SetRole(WindowRole::Page);
  for (ScrollBar* bar : {&HScroll2, &HScroll3, &HScroll4}) bar->onChange = [this] { ShowChosenColour(); };
  ShowChosenColour();
  WireButtons();
  SetLayout(Column({
      Stretching(Single(RichTextBox1)),
      Flow({&Command1, &Command2, &Command3, &Command6, &Command8, &Command9, &Command7, &Command4, &Command5,
            &Command10, &Command11}),
      Row({Column({BarRow(HScroll1), Single(Picture1)}),
           Column({BarRow(HScroll2), BarRow(HScroll3), BarRow(HScroll4)})}),
  }));
}

void HelpMe::WireButtons() {
  const std::initializer_list<std::pair<PushButton*, void (HelpMe::*)()>> handlers = {
      {&Command1, &HelpMe::Command1_Click}, {&Command2, &HelpMe::Command2_Click},
      {&Command3, &HelpMe::Command3_Click}, {&Command4, &HelpMe::Command4_Click},
      {&Command5, &HelpMe::Command5_Click}, {&Command6, &HelpMe::Command6_Click},
      {&Command7, &HelpMe::Command7_Click}, {&Command8, &HelpMe::Command8_Click},
      {&Command9, &HelpMe::Command9_Click},
  };
  for (const auto& [button, handler] : handlers) {
    button->onClick = [this, run = handler](const Click&) { (this->*run)(); };
  }
  OnFile(Command10, [this] { Command10_Click(); });
  OnFile(Command11, [this] { Command11_Click(); });
}

void HelpMe::LoadHelp() { OpenText(app_.applicationPath / "help.rtf"); }

void HelpMe::ShowSection(std::string_view caption) {
  int start = 0;
  for (const TextParagraph& paragraph : RichTextBox1.text().Paragraphs()) {
    std::string line;
    for (const TextRun& run : paragraph.runs) line += run.text;
    if (line == caption) return RichTextBox1.SetSelection(start, 0);
    start += static_cast<int>(FromUtf8(line).size()) + 1;
  }
}

void HelpMe::OpenText(const std::filesystem::path& path) {
  RichTextBox1.SetText(ReadTextFile(ReadFile(path)));
}

void HelpMe::Save(const std::filesystem::path& path) {
  const bool isRich = MatchesPattern(path.filename().string(), "*.rtf");
  const std::string bytes = isRich ? RichTextFile(RichTextBox1.text()) : PlainTextFile(RichTextBox1.text());
  SaveFile(app_, path, [&bytes](TextWriter& writer) { writer.Text(bytes); });
}

Colour HelpMe::ChosenColour() const { return Rgb(HScroll2.value(), HScroll3.value(), HScroll4.value()); }

void HelpMe::ShowChosenColour() {
  Picture1.picture().backColour = ChosenColour();
  Picture1.picture().Clear();
  Picture1.NotifyChanged();
}

void HelpMe::Command1_Click() {
  const std::string text = app_.platform.ClipboardText();
  if (!text.empty()) RichTextBox1.ReplaceSelection(text);
}

void HelpMe::Command2_Click() {
  if (RichTextBox1.selectionLength() > 0) app_.platform.SetClipboardText(RichTextBox1.SelectedText());
}

void HelpMe::Command3_Click() {
  const bool all = RichTextBox1.selectionLength() == 0;
  app_.platform.Print(all ? RichTextBox1.text().Plain() : RichTextBox1.SelectedText());
}

void HelpMe::Command10_Click() {
  const auto path = AskFileName(app_, {false, "Open notes", kNotesFolder, kOpenFilter, kNotesEnding});
  if (path.empty()) return;
  OpenText(FileNamed(app_, path));
  app_.notices.Give("opened " + path.filename().string(), NoticeKind::Result);
}

void HelpMe::Command11_Click() {
  const auto path = AskFileName(app_, {true, "Save notes", kNotesFolder, kSaveFilter, kNotesEnding});
  if (!path.empty()) Save(path);
}

}  // namespace pelorium
