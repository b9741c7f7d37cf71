#pragma once
// A Ui that answers from a queue and records every call, for tests and for
// `--answers FILE` runs.
#include <deque>
#include <string>
#include <vector>

#include "ui/ui.h"

namespace kvl {

class ScriptedUi : public Ui {
 public:
  struct Call {
    std::string kind;  // tell, ask, prompt, chooseFile, print, progress
    std::string text;
    std::string title;
  };

  // Answers are used in order by ask ("yes"/"no"/"cancel"), prompt and chooseFile
  // (the text, or "<cancel>"). With the queue empty, `fallback` answers asks
  // (Cancel when unset) and prompts and file choices are cancelled.
  void push(std::string answer) { answers_.push_back(std::move(answer)); }
  void setFallback(std::optional<Answer> a) { fallback_ = a; }

  void tell(const std::string& text, const std::string& title) override;
  Answer ask(const std::string& text, const std::string& title, Buttons buttons) override;
  std::optional<std::string> prompt(const std::string& text, const std::string& title,
                                    const std::string& defaultValue) override;
  std::optional<std::filesystem::path> chooseFile(const std::string& title, const std::string& filter,
                                                  const std::filesystem::path& suggested, bool forSave) override;
  void progress(const std::string& caption, const std::string& label, long value, long max) override;
  void progressDone() override {}
  bool stopRequested() override { return stop_; }
  void print(const std::string& text) override;

  void requestStop() { stop_ = true; }
  const std::vector<Call>& calls() const { return calls_; }
  // Drops the record of calls, for a user that runs for long.
  void forget() { calls_.clear(); }
  // The calls of one kind, in order.
  std::vector<Call> callsOf(const std::string& kind) const;
  bool told(const std::string& text, const std::string& title) const;
  std::size_t pending() const { return answers_.size(); }

 private:
  std::optional<std::string> next();
  std::deque<std::string> answers_;
  std::optional<Answer> fallback_;
  std::vector<Call> calls_;
  bool stop_ = false;
};

// Parses "yes"/"y", "no"/"n", "cancel"/"c" (any case); nullopt otherwise.
std::optional<Answer> ParseAnswer(const std::string& word);

}  // namespace kvl
