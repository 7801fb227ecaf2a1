// The run: failures with file and line, going on after them, ends, and lines kept for modal windows.
#include "script/script_runner.h"

#include "script_fixture.h"

namespace pelorium {
namespace {

class Runner : public ScriptTest {};

TEST_F(Runner, StopsAtTheFirstFailure) {
  EXPECT_FALSE(Play("# a comment\r\n\r\nget TessCount\r\nget Nothing\r\nget TessCount\r\n"));
  EXPECT_EQ(out.str(), "1\n");
  EXPECT_EQ(err.str(), "error: test.pls:4: there is no window \"Nothing\"\n");
  EXPECT_EQ(status, 2);
  EXPECT_TRUE(ended);
}

TEST_F(Runner, KeepsGoingWhenAsked) {
  EXPECT_FALSE(Play("get Nothing\nget TessCount\ntype a \"b\nget TessCount", OnFailure::KeepGoing));
  EXPECT_EQ(out.str(), "1\n1\n");
  EXPECT_EQ(err.str(),
            "error: test.pls:1: there is no window \"Nothing\"\n"
            "error: test.pls:3: a double quote is not closed\n");
  EXPECT_EQ(status, 0);
  EXPECT_FALSE(ended);
}

TEST_F(Runner, EndsAtQuitAndTakesNoFurtherLine) {
  ScriptRunner runner(app, platform, out, err);
  std::istringstream input("quit\nget TessCount\n");
  runner.Play(input, "test.pls");
  EXPECT_TRUE(runner.ended());
  EXPECT_EQ(runner.exitStatus(), 0);
  std::string rest;
  std::getline(input, rest);
  EXPECT_EQ(rest, "get TessCount");
}

TEST_F(Runner, EndsWhenTheProgramDoes) {
  button.onClick = [this](const Click&) { app.exitRequested = true; };
  EXPECT_TRUE(Play("press frmAbout.TestButton\nget Nothing\n"));
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(ended);
}

TEST_F(Runner, FaultsOfHandlersDoNotStopIt) {
  app.faults.TakeAll();
  button.onClick = [](const Click&) { throw Fault(FaultKind::DivisionByZero, "here"); };
  EXPECT_EQ(AnswerTo("press frmAbout.TestButton\nfaults\nget TessCount"),
            "frmAbout.TestButton: division by zero: here\n1\n");
}

TEST_F(Runner, PlaysKeptLinesWhenTheirWindowOpens) {
  EXPECT_EQ(AnswerTo("modal Form5\nset TessCount 2\nend\n"
                     "modal helpme\n"
                     "  get helpme.visible\n"
                     "  set frmAbout.TestBar 9\n"
                     "end\n"
                     "get frmAbout.TestBar\n"
                     "press frmAbout.TestOpener\n"
                     "get frmAbout.TestBar\n"
                     "get helpme.visible\n"
                     "get TessCount\n"),
            "7\n1\n9\n0\n1\n");
}

TEST_F(Runner, KeptLinesOfOneWindowRunInTurn) {
  EXPECT_EQ(AnswerTo("modal helpme\nset TessCount 2\nend\n"
                     "modal helpme\nset TessCount 3\nend\n"
                     "press frmAbout.TestOpener\nget TessCount\n"
                     "press frmAbout.TestOpener\nget TessCount\n"
                     "set TessCount 4\n"
                     "press frmAbout.TestOpener\nget TessCount\n"),
            "2\n3\n4\n");
}

TEST_F(Runner, KeptLinesMayKeepLines) {
  EXPECT_EQ(AnswerTo("modal helpme\n"
                     "  modal helpme\n"
                     "    set TessCount 8\n"
                     "  end\n"
                     "  get TessCount\n"
                     "  press frmAbout.TestOpener\n"
                     "  get TessCount\n"
                     "end\n"
                     "press frmAbout.TestOpener\n"),
            "1\n8\n");
}

TEST_F(Runner, KeptLinesFailWithTheirOwnNumber) {
  EXPECT_EQ(ErrorOf("modal helpme\n\nget Nothing\nget TessCount\nend\n"
                    "press frmAbout.TestOpener\nget TessCount\n"),
            "error: test.pls:3: there is no window \"Nothing\"\n");
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(status, 2);
}

TEST_F(Runner, BlocksMustBeWhole) {
  EXPECT_EQ(ErrorOf("get TessCount\nmodal helpme\nget TessCount\n"),
            "error: test.pls:2: modal helpme has no end\n");
  EXPECT_EQ(ErrorOf("end\n"), ErrorText("end without a modal before it"));
  EXPECT_FALSE(Play("modal Form99\nget TessCount\nend\nget TessCount", OnFailure::KeepGoing));
  EXPECT_EQ(err.str(), ErrorText("there is no window \"Form99\""));
  EXPECT_EQ(out.str(), "1\n");
}

}  // namespace
}  // namespace pelorium
