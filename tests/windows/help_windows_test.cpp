// The help, about and splash windows, by pressing their controls.
#include <string>

#include "platform/headless_platform.h"
#include "support/harness.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/frm_splash.h"
#include "windows/frame/help_me.h"
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
