// Events from words, and their way back into a line.
#include "script/events.h"

#include <gtest/gtest.h>

#include "windows/shell/event_text.h"

namespace pelorium {
namespace {

UserEvent Read(const std::string& line) { return EventOf(SplitWords(line)); }

TEST(ScriptLine, LinesComeBackAsTheyWent) {
  for (const char* line :
       {"press Form5.Command1", "press Form5.Command1 right shift ctrl alt", "press Form5.Command1 ctrl",
        "drag Form5.HScroll1 0", "drag Form5.HScroll1 -2.5", "drag Form5.HScroll1 0.1",
        "type Form5.Text1 \"\"", "type Form5.Text1 \"two words\"", "type Form5.Text1 \"say \\\"so\\\" \\\\\"",
        "type Form5.Text1 \"# no comment\"", "type Form5.Text1 \xFF", "doubleclick Form5.List1",
        "key Form5.Picture1 a", "key Form5.Picture1 \" \"", "mouse Form36.Picture1 down 0.1 -2.5 right alt",
        "mouse Form36.Picture1 move 0.3333333 0 left shift", "mouse Form36.Picture1 up 3 4 left",
        "resize Form36.Picture1 1280 1"}) {
    EXPECT_EQ(ScriptLine(Read(line)), line);
  }
  EXPECT_EQ(Read("mouse Form36.Picture1 move 0.1 0").x, 0.1f);
}

}  // namespace
}  // namespace pelorium
