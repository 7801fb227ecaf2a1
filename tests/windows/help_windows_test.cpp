// The help, about and splash windows, by pressing their controls.
#include <algorithm>
#include <string>
#include <vector>

#include "platform/headless_platform.h"
#include "support/harness.h"
#include "windows/frame/command_table.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/frm_splash.h"
#include "windows/frame/help_me.h"
#include "windows/frame/mdi_form1.h"
#include "windows/shell/app_shell.h"

namespace pelorium {
namespace {

namespace fs = std::filesystem;

class HelpWindows : public FolderTest {
 protected:
  std::string HelpText() const { return AsText(app.frame->helpme.RichTextBox1.Value()); }
  TextFormat FirstLook() const {
    return app.frame->helpme.RichTextBox1.text().Paragraphs()[0].runs.at(0).format;
  }
  void SetHelpText(const std::string& text, int start, int length) {
    app.frame->helpme.RichTextBox1.SetOwnValue(text);
    app.frame->helpme.RichTextBox1.SetSelection(start, length);
  }
  // Presses Open or Save and answers the file dialog.
  void PressAndAnswer(PushButton& button, const fs::path& file) {
    platform.QueueAnswer(file.string());
    button.Press();
  }

  HeadlessPlatform platform;
  App app{platform, folder()};
};

TEST_F(HelpWindows, AClickOnTheSplashStartsOnce) {
  app.frame->frmSplash.Show();
  app.frame->frmSplash.Label2.Press({});
  EXPECT_FALSE(app.frame->frmSplash.visible());
  EXPECT_TRUE(app.started);
  app.model.Points(0, 5).X = 77;
  app.frame->frmSplash.Label1.Press({});
  app.frame->frmSplash.Picture1.Key(' ');
  EXPECT_EQ(app.model.Points(0, 5).X, 77);
}

TEST_F(HelpWindows, HelpIsLoadedFromTheProgramsFolder) {
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { app.frame->helpme.LoadHelp(); }));
  app.Start();
  EXPECT_TRUE(app.started) << "help that is missing does not stop the start";
  WriteBytes(folder() / "help.rtf", "{\\rtf1\\b Help\\b0\\par text}");
  app.frame->helpme.LoadHelp();
  EXPECT_EQ(HelpText(), "Help\ntext");
  EXPECT_TRUE(FirstLook().bold);
}

std::string HeadingOf(const TextParagraph& paragraph) {
  if (paragraph.runs.empty() || !paragraph.runs[0].format.bold || paragraph.runs[0].format.points < 13)
    return {};
  return paragraph.runs[0].text;
}

// The program itself, then the windows as the menus show them; what opens from the image maker behind it.
std::vector<std::string> CaptionsInMenuOrder(const App& app) {
  std::vector<std::string> names = {"MDIForm1"};
  const auto add = [&names](std::string_view target) {
    const std::string name(target.substr(0, target.find('.')));
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    if (name == "texture") {
      names.insert(names.end(), {"Form15", "Plasmathree", "frmCustomFilter", "frmAddNoise", "Form45"});
    }
  };
  for (const MenuCommand& command : MenuCommands()) {
    const CommandKind kind = command.action.kind;
    const bool shows =
        kind == CommandKind::Show || kind == CommandKind::Edit || kind == CommandKind::EditAndOn;
    const bool isOnlyPressed = command.name == "openprof";  // no item shows its window
    if (shows || isOnlyPressed || command.name == "openproj") add(command.action.target);
  }
  std::vector<std::string> captions;
  for (const std::string& name : names) captions.push_back(app.FindWindow(name)->caption());
  return captions;
}

TEST_F(HelpWindows, EveryWindowHasASectionWithAnExampleThatIsPlayed) {
  fs::copy_file(PELORIUM_TESTS_DIR "/../data/help.rtf", folder() / "help.rtf");
  app.frame->helpme.LoadHelp();
  const std::string played = BytesOf(PELORIUM_TESTS_DIR "/script/transcripts/help.txt");
  std::vector<std::string> headings;
  std::size_t examples = 0;
  for (const TextParagraph& paragraph : app.frame->helpme.RichTextBox1.text().Paragraphs()) {
    const std::string heading = HeadingOf(paragraph);
    if (heading.empty()) {
      examples += !paragraph.runs.empty() && paragraph.runs[0].text == "Example:";
      continue;
    }
    EXPECT_EQ(examples, headings.size()) << "before " << heading;
    headings.push_back(heading);
    const std::size_t first = heading.find_first_not_of(' '), last = heading.find_last_not_of(' ');
    EXPECT_NE(played.find("\n--- " + heading.substr(first, last - first + 1) + "\n"), std::string::npos)
        << heading;
  }
  EXPECT_EQ(examples, headings.size());
  EXPECT_EQ(headings, CaptionsInMenuOrder(app));
  EXPECT_EQ(headings.size() + 1, app.windows().size()) << "all but the splash window";
  app.frame->helpme.ShowSection("Materials");
  const int cursor = app.frame->helpme.RichTextBox1.selectionStart();
  EXPECT_EQ(app.frame->helpme.RichTextBox1.text().Plain(cursor - 1, 17), "\nMaterials\nEvery ");
}

TEST_F(HelpWindows, CopyPasteAndPrintTakeTheSelection) {
  SetHelpText("one two three", 4, 3);
  app.frame->helpme.Command1.Press();  // an empty clipboard takes nothing away
  EXPECT_EQ(HelpText(), "one two three");
  app.frame->helpme.Command2.Press();
  EXPECT_EQ(platform.ClipboardText(), "two");
  app.frame->helpme.Command3.Press();
  EXPECT_EQ(platform.printed(), "two");
  platform.SetClipboardText("2\r\n2");
  app.frame->helpme.Command1.Press();
  EXPECT_EQ(HelpText(), "one 2\n2 three");
  EXPECT_EQ(app.frame->helpme.RichTextBox1.selectionStart(), 7);
  app.frame->helpme.Command2.Press();  // nothing is selected now
  EXPECT_EQ(platform.ClipboardText(), "2\r\n2");
  app.frame->helpme.Command3.Press();
  EXPECT_EQ(platform.printed(), "one 2\n2 three");
}

TEST_F(HelpWindows, LooksGoOnTheSelection) {
  SetHelpText("one two", 0, 3);
  app.frame->helpme.HScroll1.box.Type("100");
  app.frame->helpme.HScroll1.box.FinishTyping();
  EXPECT_EQ(app.frame->helpme.HScroll1.value(), 72);
  EXPECT_EQ(app.frame->helpme.HScroll1.box.text(), "72");
  app.frame->helpme.HScroll1.Drag(30);
  app.frame->helpme.HScroll2.Drag(200);
  app.frame->helpme.HScroll4.Drag(1000);
  EXPECT_EQ(app.frame->helpme.Picture1.picture().PixelAt(3, 3), static_cast<int>(Rgb(200, 0, 255)));
  EXPECT_EQ(FirstLook(), TextFormat());  // the bars alone change nothing
  for (PushButton* button :
       {&app.frame->helpme.Command4, &app.frame->helpme.Command5, &app.frame->helpme.Command6,
        &app.frame->helpme.Command8, &app.frame->helpme.Command9, &app.frame->helpme.Command7}) {
    button->Press();
  }
  const TextFormat expected{true, true, true, 30, Rgb(200, 0, 255)};
  EXPECT_EQ(FirstLook(), expected);
  EXPECT_TRUE(app.frame->helpme.RichTextBox1.text().bullet(0));
  EXPECT_EQ(app.frame->helpme.RichTextBox1.text().Paragraphs()[0].runs.at(1).format, TextFormat());
}

TEST_F(HelpWindows, SaveAndOpenKeepTheLooks) {
  fs::create_directory(folder() / "notes");
  SetHelpText("one\ntwo", 0, 3);
  app.frame->helpme.Command6.Press();
  fs::create_directory(folder() / "notes");
  PressAndAnswer(app.frame->helpme.Command11, folder() / "notes" / "a");
  PressAndAnswer(app.frame->helpme.Command11, folder() / "notes" / "b.txt");
  EXPECT_EQ(BytesOf(folder() / "notes" / "b.txt"), "one\r\ntwo");
  const RichText saved = app.frame->helpme.RichTextBox1.text();
  app.frame->helpme.RichTextBox1.SetOwnValue(std::string("other"));
  PressAndAnswer(app.frame->helpme.Command10, folder() / "notes" / "a.rtf");
  EXPECT_EQ(app.frame->helpme.RichTextBox1.text(), saved);
  EXPECT_TRUE(app.faults.TakeAll().empty());

  const auto dialogs = platform.TakeDialogs();
  ASSERT_EQ(dialogs.size(), 3u);
  EXPECT_TRUE(dialogs[0].save);
  EXPECT_EQ(dialogs[0].folder, folder() / "notes");
  EXPECT_EQ(dialogs[0].filter, "All Files (*.txt;*.rtf;*.obj)|*.txt*;*.rtf;*.obj");
  EXPECT_FALSE(dialogs[2].save);
  EXPECT_EQ(dialogs[2].folder, folder() / "notes");
  EXPECT_EQ(dialogs[2].filter, "All Files (*.txt;*rtf;*.obj)|*.txt*;*rtf;*.obj");
}

TEST_F(HelpWindows, ACancelOrAFailedFileCostsNothing) {
  SetHelpText("one", 0, 0);
  app.frame->helpme.Command10.Press();
  app.frame->helpme.Command11.Press();
  EXPECT_FALSE(fs::exists(folder() / "notes"));  // no dialog makes a folder
  EXPECT_TRUE(app.faults.TakeAll().empty());
  PressAndAnswer(app.frame->helpme.Command10, folder() / "missing.rtf");
  PressAndAnswer(app.frame->helpme.Command11, folder() / "missing" / "a.rtf");
  EXPECT_EQ(HelpText(), "one");
  const auto faults = app.faults.TakeAll();
  ASSERT_EQ(faults.size(), 2u);
  EXPECT_TRUE(faults[0].starts_with("helpme.Command10: file error")) << faults[0];
  EXPECT_TRUE(faults[1].starts_with("helpme.Command11: file error")) << faults[1];
}

}  // namespace
}  // namespace pelorium
