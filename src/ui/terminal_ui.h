#pragma once
// The Ui of a terminal. Questions can be answered in advance (--yes, --no,
// --answers FILE); otherwise they are read from standard input.
#include <deque>
#include <iosfwd>
#include <optional>
#include <string>

#include "ui/ui.h"

namespace kvl {

// Record text (Windows-1252) as a terminal shows it; UTF-8 stays as it is.
std::string ShowText(const std::string& s);

class TerminalUi : public Ui {
 public:
  TerminalUi(std::istream& in, std::ostream& out, std::ostream& err);

  void answerAll(Answer a) { answerAll_ = a; }
  // --overwrite: the one question --yes leaves alone is answered yes.
  void allowOverwrite() { overwrite_ = true; }
  // True when the overwrite question would be answered no without asking:
  // --yes or --no given, no --overwrite and no answer queued.
  bool refusesOverwrite() const { return answerAll_ && !overwrite_ && answers_.empty(); }
  bool interactive() const { return interactive_; }
  void addAnswer(std::string a) { answers_.push_back(std::move(a)); }
  // A script: standard input holds commands, never answers. A question or
  // prompt that nothing given in advance answers fails, naming it.
  void refuseTyping() { typingRefused_ = true; }

  void tell(const std::string& text, const std::string& title) override;
  Answer ask(const std::string& text, const std::string& title, Buttons buttons) override;
  std::optional<std::string> prompt(const std::string& text, const std::string& title,
                                    const std::string& defaultValue) override;
  std::optional<std::filesystem::path> chooseFile(const std::string& title, const std::string& filter,
                                                  const std::filesystem::path& suggested, bool forSave) override;
  void progress(const std::string& caption, const std::string& label, long value, long max) override;
  void progressDone() override;
  bool stopRequested() override;
  void print(const std::string& text) override;

  // Ctrl-C during a long job asks it to stop between game days.
  static void InstallStopHandler();
  // Forgets an earlier Ctrl-C, before the shell runs its next command.
  static void ClearStop();

 private:
  // `asked` and `answeredBy` name the question when a script cannot answer it.
  std::optional<std::string> readLine(const std::string& shown, const std::string& asked,
                                      const std::string& answeredBy);
  std::istream& in_;
  std::ostream& out_;
  std::ostream& err_;
  std::optional<Answer> answerAll_;
  bool overwrite_ = false;
  std::deque<std::string> answers_;
  bool progressShown_ = false;
  bool typingRefused_ = false;
  bool interactive_;
};

}  // namespace kvl
