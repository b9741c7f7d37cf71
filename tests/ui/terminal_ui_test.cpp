// The terminal's Ui: answers typed, given in advance, or missing at end of input.
#include "ui/terminal_ui.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kvl {
namespace {

struct Terminal {
  explicit Terminal(const std::string& typed) : in(typed), ui(in, out, err) {}
  std::istringstream in;
  std::ostringstream out, err;
  TerminalUi ui;
};

// Until it gets an answer; at end of input No, or Cancel where there is one.
TEST(TerminalUi, AsksUntilItGetsAnAnswerAndAnswersGivenInAdvanceComeFirst) {
  using Buttons::YesNo, Buttons::YesNoCancel;
  const std::tuple<std::string, Buttons, Answer> cases[] = {
      {"yes\n", YesNo, Answer::Yes}, {"maybe\nc\n", YesNoCancel, Answer::Cancel}, {"", YesNo, Answer::No},
      {"", YesNoCancel, Answer::Cancel}, {"N\r\n", YesNoCancel, Answer::No}};
  for (const auto& [typed, buttons, answer] : cases) {
    Terminal t(typed);
    EXPECT_EQ(t.ui.ask("Save League Changes?", "Keep Changes", buttons), answer) << typed;
    EXPECT_EQ(t.out.str().rfind("[Keep Changes] Save League Changes?", 0), 0u) << t.out.str();
  }
  Terminal t("no\n");
  t.ui.answerAll(Answer::Yes);
  t.ui.addAnswer("no");
  EXPECT_EQ(t.ui.ask("q", "t", Buttons::YesNo), Answer::No);
  EXPECT_EQ(t.ui.ask("q", "t", Buttons::YesNo), Answer::Yes) << "the typed line is never read";
}

// Typed text and record text are Windows-1252 inside; file names stay as typed.
TEST(TerminalUi, TextIsWindows1252InsideAndFileNamesStayAsTyped) {
  Terminal t("Québec\n\n/tmp/Québec.lge\n");
  auto prompt = [&] { return t.ui.prompt("New League Name", "Change League Name", "Old"); };
  EXPECT_EQ(prompt(), std::string("Qu\xE9") + "bec");
  EXPECT_EQ(prompt(), "Old");
  EXPECT_EQ(t.ui.chooseFile("Load League", "", "", false)->string(), "/tmp/Québec.lge");
  EXPECT_EQ(prompt(), std::nullopt) << "end of input cancels";
  t.ui.addAnswer("<cancel>");
  EXPECT_EQ(t.ui.chooseFile("Load League", "", "", false), std::nullopt);
  t.out.str("");
  t.ui.tell("Coach Andr\xE9 hired", "Hire Coach");
  t.ui.tell("Details saved in /home/jörg/InvalidRosters.txt", "Games cannot be run with invalid rosters:");
  t.ui.print(std::string("M\xFC") + "ller \xA9 \xC3");  // Windows-1252 bytes that begin no UTF-8 sequence
  EXPECT_EQ(t.out.str(),
            "[Hire Coach] Coach André hired\n"
            "[Games cannot be run with invalid rosters:] Details saved in /home/jörg/InvalidRosters.txt\n"
            "Müller © Ã\n");
}

}  // namespace
}  // namespace kvl
