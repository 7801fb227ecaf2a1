// The journal's lines stand in the order in which a player needs them.
#include "desktop/journal.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "controls/user_event.h"
#include "controls/window.h"

namespace pelorium {
namespace {

UserEvent PressOf(const char* control) {
  UserEvent event;
  event.window = "Form31";
  event.control = control;
  return event;
}

class JournalTest : public testing::Test {
 protected:
  void TearDown() override { std::filesystem::remove(file_); }

  std::string Written() const {
    std::ifstream file(file_);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::filesystem::path file_ = testing::TempDir() + "journal_test.txt";
  Journal journal_{file_};
};

TEST_F(JournalTest, AnswersStandBeforeTheEventThatAskedOnceItIsOver) {
  journal_.BeginDelivery();
  journal_.NoteEvent(PressOf("Command15"));
  journal_.NoteAnswer("/home/a b/vase.prj");
  EXPECT_EQ(Written(), "");
  journal_.NoteAnswer("");
  journal_.EndDelivery();
  journal_.BeginDelivery();  // an event that nobody takes leaves no line
  journal_.EndDelivery();
  EXPECT_EQ(Written(), "answer \"/home/a b/vase.prj\"\ncancel\npress Form31.Command15\n");
}

TEST_F(JournalTest, WhatHappensInAModalWindowStandsInItsBlock) {
  ControlHost host;
  Window about(host, "frmAbout", "About");
  journal_.BeginDelivery();
  journal_.NoteEvent(PressOf("Command1"));
  journal_.BeginModal(about);
  journal_.BeginDelivery();
  journal_.NoteEvent(PressOf("cmdOK"));
  journal_.NoteAnswer("");
  journal_.EndDelivery();
  journal_.EndModal();
  journal_.EndDelivery();
  EXPECT_EQ(Written(), "modal frmAbout\ncancel\npress Form31.cmdOK\nend\npress Form31.Command1\n");
}

}  // namespace
}  // namespace pelorium
