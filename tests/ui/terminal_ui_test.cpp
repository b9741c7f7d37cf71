// The terminal's Ui: answers typed, given in advance, or missing at end of input.
#include <gtest/gtest.h>

#include <sstream>

#include "ui/terminal_ui.h"

namespace kvl {
namespace {

struct Terminal {
  explicit Terminal(const std::string& typed) : in(typed), ui(in, out, err) {}
  std::istringstream in;
  std::ostringstream out, err;
  TerminalUi ui;
};

TEST(TerminalUi, AsksUntilItGetsAnAnswer) {
  struct Case {
    std::string typed;
    Buttons buttons;
    Answer answer;
  };
  for (const Case& c : {Case{"yes\n", Buttons::YesNo, Answer::Yes}, Case{"N\n", Buttons::YesNo, Answer::No},
                        Case{"maybe\nc\n", Buttons::YesNoCancel, Answer::Cancel},
                        Case{"", Buttons::YesNo, Answer::No}, Case{"", Buttons::YesNoCancel, Answer::Cancel},
                        Case{"y\r\n", Buttons::YesNoCancel, Answer::Yes}}) {
    Terminal t(c.typed);
    EXPECT_EQ(t.ui.ask("Save League Changes?", "Keep Changes", c.buttons), c.answer) << c.typed;
    EXPECT_EQ(t.out.str().rfind("[Keep Changes] Save League Changes?", 0), 0u) << t.out.str();
  }
}

TEST(TerminalUi, AnswersGivenInAdvanceComeFirst) {
  Terminal t("no\n");
  t.ui.answerAll(Answer::Yes);
  t.ui.addAnswer("no");
  EXPECT_EQ(t.ui.ask("q", "t", Buttons::YesNo), Answer::No);
  EXPECT_EQ(t.ui.ask("q", "t", Buttons::YesNo), Answer::Yes);
  EXPECT_EQ(t.ui.ask("q", "t", Buttons::YesNo), Answer::Yes) << "the typed line is never read";
}

TEST(TerminalUi, PromptsTakeTerminalTextAsWindows1252) {
  Terminal t("Québec\n\n");
  EXPECT_EQ(t.ui.prompt("New League Name", "Change League Name", "Old"), std::optional<std::string>("Qu\xE9" "bec"));
  EXPECT_EQ(t.ui.prompt("New League Name", "Change League Name", "Old"), std::optional<std::string>("Old"));
  EXPECT_EQ(t.ui.prompt("New League Name", "Change League Name", "Old"), std::nullopt) << "end of input cancels";
}

TEST(TerminalUi, FileNamesStayAsTyped) {
  Terminal t("/tmp/Québec.lge\n");
  auto chosen = t.ui.chooseFile("Load League", "All Files|*.*|KVL League Files|*.lge", "", false);
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->string(), "/tmp/Québec.lge");
  t.ui.addAnswer("/tmp/Montréal.lge");
  EXPECT_EQ(t.ui.chooseFile("Load League", "", "", false)->string(), "/tmp/Montréal.lge");
  t.ui.addAnswer("<cancel>");
  EXPECT_EQ(t.ui.chooseFile("Load League", "", "", false), std::nullopt);
}

TEST(TerminalUi, ShowsRecordTextInUtf8AndFileNamesAsTheyAre) {
  Terminal t("");
  t.ui.tell("Coach Andr\xE9 hired", "Hire Coach");
  t.ui.print("Qu\xE9" "bec");
  t.ui.tell("Details saved in /home/jörg/InvalidRosters.txt", "Games cannot be run with invalid rosters:");
  t.ui.print("M\xFC" "ller \xA9 \xC3");  // Windows-1252 bytes that begin no UTF-8 sequence
  EXPECT_EQ(t.out.str(),
            "[Hire Coach] Coach André hired\nQuébec\n"
            "[Games cannot be run with invalid rosters:] Details saved in /home/jörg/InvalidRosters.txt\n"
            "Müller © Ã\n");
}

}  // namespace
}  // namespace kvl
