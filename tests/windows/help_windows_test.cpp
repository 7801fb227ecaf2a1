// The help, about and splash windows, by pressing their controls.
#include <set>
#include <string>

#include "platform/headless_platform.h"
#include "support/harness.h"
#include "windows/app.h"
#include "windows/frm_about.h"
#include "windows/frm_splash.h"
#include "windows/help_me.h"

namespace pelorium {
namespace {

namespace fs = std::filesystem;

// A machine that has a system information tool.
struct InformedPlatform : HeadlessPlatform {
  bool StartSystemInformation() override { return ++starts > 0; }
  int starts = 0;
};

class HelpWindows : public FolderTest {
 protected:
  std::string HelpText() const { return AsText(app.helpme.RichTextBox1.Value()); }
  TextFormat FirstLook() const { return app.helpme.RichTextBox1.text().Paragraphs()[0].runs.at(0).format; }
  void SetHelpText(const std::string& text, int start, int length) {
    app.helpme.RichTextBox1.SetOwnValue(text);
    app.helpme.RichTextBox1.SetSelection(start, length);
  }

  HeadlessPlatform platform;
  App app{platform, folder()};
};

TEST_F(HelpWindows, AClickOnTheSplashStartsOnce) {
  app.frmSplash.Show();
  app.frmSplash.Label2.Press({});
  EXPECT_FALSE(app.frmSplash.visible());
  EXPECT_TRUE(app.started);
  app.model.Points(0, 5).X = 77;
  app.frmSplash.Label1.Press({});
  app.frmSplash.Picture1.Key(' ');
  EXPECT_EQ(app.model.Points(0, 5).X, 77);
}

TEST_F(HelpWindows, AKeyOrAClickOnThePictureStartsToo) {
  app.frmSplash.Picture1.Key(' ');
  EXPECT_TRUE(app.started);
  App other(platform, folder());
  other.frmSplash.Picture1.Press({});
  EXPECT_TRUE(other.started);
}

TEST_F(HelpWindows, TheSplashDoesNotStartWhatRuns) {
  app.Start();
  app.model.Points(0, 5).X = 77;
  app.frmSplash.Label1.Press({});
  EXPECT_EQ(app.model.Points(0, 5).X, 77);
}

TEST_F(HelpWindows, TheSplashShowsAPicture) {
  const Picture& picture = app.frmSplash.Picture1.picture;
  EXPECT_EQ(picture.PixelWidth(), 480);
  EXPECT_EQ(picture.PixelHeight(), 260);
  const auto& pixels = picture.Pixels();
  EXPECT_GT(std::set(pixels.begin(), pixels.end()).size(), 200u);
  // The sky is one colour a row at its edge; the vase stands in the middle.
  EXPECT_EQ(picture.PixelAt(0, 10), picture.PixelAt(479, 10));
  int reddish = 0;
  for (int x = 160; x < 320; ++x) {
    const auto pixel = static_cast<Colour>(picture.PixelAt(x, 130));
    reddish += Red(pixel) > Blue(pixel) + 40 ? 1 : 0;
  }
  EXPECT_GT(reddish, 20);
}

TEST_F(HelpWindows, AboutSaysWhenThereIsNoSystemInformation) {
  app.frmAbout.Show();
  app.frmAbout.cmdSysInfo.Press();
  EXPECT_EQ(platform.TakeMessages(),
            std::vector<std::string>{"System Information Is Unavailable At This Time"});
  app.frmAbout.cmdOK.Press();
  EXPECT_FALSE(app.frmAbout.visible());
  EXPECT_EQ(app.frmAbout.caption(), "About Pelorium");
}

TEST_F(HelpWindows, AboutStartsTheSystemInformation) {
  InformedPlatform informed;
  App other(informed, folder());
  other.frmAbout.cmdSysInfo.Press();
  EXPECT_EQ(informed.starts, 1);
  EXPECT_TRUE(informed.TakeMessages().empty());
}

TEST_F(HelpWindows, HelpIsLoadedFromTheProgramsFolder) {
  WriteBytes(folder() / "help.rtf", "{\\rtf1\\b Help\\b0\\par text}");
  app.helpme.LoadHelp();
  EXPECT_EQ(HelpText(), "Help\ntext");
  EXPECT_TRUE(FirstLook().bold);
}

TEST_F(HelpWindows, MissingHelpIsAFaultThatDoesNotStopTheStart) {
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { app.helpme.LoadHelp(); }));
  app.Start();
  EXPECT_TRUE(app.started);
  EXPECT_EQ(HelpText(), "");
}

TEST_F(HelpWindows, PasteReplacesTheSelection) {
  SetHelpText("one two three", 4, 3);
  app.helpme.Command1.Press();  // an empty clipboard takes nothing away
  EXPECT_EQ(HelpText(), "one two three");
  platform.SetClipboardText("2\r\n2");
  app.helpme.Command1.Press();
  EXPECT_EQ(HelpText(), "one 2\n2 three");
  EXPECT_EQ(app.helpme.RichTextBox1.selectionStart(), 7);
}

TEST_F(HelpWindows, CopyTakesTheSelection) {
  platform.SetClipboardText("before");
  SetHelpText("one two three", 4, 0);
  app.helpme.Command2.Press();
  EXPECT_EQ(platform.ClipboardText(), "before");
  app.helpme.RichTextBox1.SetSelection(4, 3);
  app.helpme.Command2.Press();
  EXPECT_EQ(platform.ClipboardText(), "two");
}

TEST_F(HelpWindows, PrintTakesTheSelectionOrAll) {
  SetHelpText("one two three", 4, 3);
  app.helpme.Command3.Press();
  EXPECT_EQ(platform.printed(), "two");
  app.helpme.RichTextBox1.SetSelection(0, 0);
  app.helpme.Command3.Press();
  EXPECT_EQ(platform.printed(), "one two three");
}

TEST_F(HelpWindows, LooksGoOnTheSelection) {
  SetHelpText("one two", 0, 3);
  app.helpme.HScroll1.Drag(30);
  app.helpme.HScroll2.Drag(200);
  app.helpme.HScroll4.Drag(1000);
  EXPECT_EQ(FirstLook(), TextFormat());  // the bars alone change nothing
  for (PushButton* button : {&app.helpme.Command4, &app.helpme.Command5, &app.helpme.Command6,
                             &app.helpme.Command8, &app.helpme.Command9, &app.helpme.Command7}) {
    button->Press();
  }
  const TextFormat expected{true, true, true, 30, Rgb(200, 0, 255)};
  EXPECT_EQ(FirstLook(), expected);
  EXPECT_TRUE(app.helpme.RichTextBox1.text().bullet(0));
  EXPECT_EQ(app.helpme.RichTextBox1.text().Paragraphs()[0].runs.at(1).format, TextFormat());
  app.helpme.Command6.Press();
  EXPECT_FALSE(FirstLook().bold);
}

TEST_F(HelpWindows, BarsAndBoxesGoTogether) {
  app.helpme.Text1.Type("100");
  EXPECT_EQ(app.helpme.HScroll1.value(), 72);
  EXPECT_EQ(app.helpme.Text1.text(), "72");
  app.helpme.Text3.Type("17");
  EXPECT_EQ(app.helpme.Picture1.picture.PixelAt(3, 3), static_cast<int>(Rgb(0, 17, 0)));
}

TEST_F(HelpWindows, SaveAndOpenKeepTheLooks) {
  fs::create_directory(folder() / "notes");
  SetHelpText("one two", 0, 3);
  app.helpme.Command6.Press();
  const fs::path named = folder() / "notes" / "a";
  platform.QueueAnswer(named.string());
  app.helpme.Command11.Press();
  EXPECT_TRUE(fs::exists(named.string() + ".rtf"));
  const RichText saved = app.helpme.RichTextBox1.text();
  app.helpme.RichTextBox1.SetOwnValue(std::string("other"));
  platform.QueueAnswer(named.string() + ".rtf");
  app.helpme.Command10.Press();
  EXPECT_EQ(app.helpme.RichTextBox1.text(), saved);
  EXPECT_TRUE(app.faults.TakeAll().empty());

  const auto dialogs = platform.TakeDialogs();
  ASSERT_EQ(dialogs.size(), 2u);
  EXPECT_TRUE(dialogs[0].save);
  EXPECT_EQ(dialogs[0].folder, folder() / "notes");
  EXPECT_EQ(dialogs[0].filter, "All Files (*.txt;*.rtf;*.obj)|*.txt*;*.rtf;*.obj");
  EXPECT_FALSE(dialogs[1].save);
  EXPECT_EQ(dialogs[1].folder, folder() / "notes");
  EXPECT_EQ(dialogs[1].filter, "All Files (*.txt;*rtf;*.obj)|*.txt*;*rtf;*.obj");
}

TEST_F(HelpWindows, OtherEndingsAreSavedAsPlainText) {
  SetHelpText("one\ntwo", 0, 3);
  app.helpme.Command6.Press();
  platform.QueueAnswer((folder() / "a.txt").string());
  app.helpme.Command11.Press();
  EXPECT_EQ(BytesOf(folder() / "a.txt"), "one\r\ntwo");
}

TEST_F(HelpWindows, ACancelChangesNothing) {
  SetHelpText("one", 0, 0);
  app.helpme.Command10.Press();
  app.helpme.Command11.Press();
  EXPECT_EQ(HelpText(), "one");
  EXPECT_TRUE(fs::is_empty(folder()));
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(HelpWindows, AFailedFileIsNotedAndCostsNothing) {
  SetHelpText("one", 0, 0);
  platform.QueueAnswer((folder() / "missing.rtf").string());
  app.helpme.Command10.Press();
  EXPECT_EQ(HelpText(), "one");
  platform.QueueAnswer((folder() / "missing" / "a.rtf").string());
  app.helpme.Command11.Press();
  const auto faults = app.faults.TakeAll();
  ASSERT_EQ(faults.size(), 2u);
  EXPECT_EQ(faults[0].rfind("helpme.Command10: file error", 0), 0u);
  EXPECT_EQ(faults[1].rfind("helpme.Command11: file error", 0), 0u);
}

}  // namespace
}  // namespace pelorium
