#include "ui/terminal_ui.h"

#include <fmt/format.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

#include "ui/scripted_ui.h"
#include "util/cp1252.h"
#include "util/error.h"

namespace kvl {

namespace {
// Set by SIGINT; a signal handler can reach nothing else. A second Ctrl-C
// ends the program at once, saving nothing: the league's files stay as they were.
volatile std::sig_atomic_t gStop = 0;
void OnInterrupt(int) {
  if (gStop) ::_exit(130);
  gStop = 1;
}

// True when `s` is well-formed UTF-8 (plain ASCII included).
bool IsUtf8(const std::string& s) {
  std::size_t i = 0;
  while (i < s.size()) {
    auto b = static_cast<unsigned char>(s[i++]);
    int follow = b < 0x80 ? 0 : (b & 0xE0) == 0xC0 ? 1 : (b & 0xF0) == 0xE0 ? 2 : (b & 0xF8) == 0xF0 ? 3 : -1;
    if (follow < 0) return false;
    for (; follow > 0; --follow, ++i)
      if (i >= s.size() || (static_cast<unsigned char>(s[i]) & 0xC0) != 0x80) return false;
  }
  return true;
}

// Records hold Windows-1252 and the terminal speaks UTF-8. A text that already
// reads as UTF-8 (a file name in a message) is shown as it is: accented letters
// of Windows-1252 stand alone in names and so never read as UTF-8.
std::string Show(const std::string& s) { return IsUtf8(s) ? s : Cp1252ToUtf8(s); }
}  // namespace

std::string ShowText(const std::string& s) { return Show(s); }

namespace {
// "[title] text", as every message, question and prompt begins.
std::string Framed(const std::string& title, const std::string& text) {
  return fmt::format("[{}] {}", Show(title), Show(text));
}
}  // namespace

TerminalUi::TerminalUi(std::istream& in, std::ostream& out, std::ostream& err)
    : in_(in), out_(out), err_(err), interactive_(::isatty(STDERR_FILENO) != 0) {}

void TerminalUi::InstallStopHandler() { std::signal(SIGINT, OnInterrupt); }
void TerminalUi::ClearStop() { gStop = 0; }

void TerminalUi::tell(const std::string& text, const std::string& title) {
  progressDone();
  out_ << Framed(title, text) << "\n";
}

std::optional<std::string> TerminalUi::readLine(const std::string& shown, const std::string& asked,
                                                const std::string& answeredBy) {
  progressDone();
  if (!answers_.empty()) {
    std::string a = answers_.front();
    answers_.pop_front();
    out_ << shown << a << "\n";
    return a == "<cancel>" ? std::nullopt : std::optional<std::string>(a);
  }
  if (typingRefused_)
    throw KvlError(fmt::format("{} was asked, and a script's next line is not its answer: give {}", Show(asked),
                               answeredBy));
  out_ << shown << std::flush;
  std::string line;
  if (!std::getline(in_, line)) {
    out_ << "\n";
    return std::nullopt;
  }
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

Answer TerminalUi::ask(const std::string& text, const std::string& title, Buttons buttons) {
  std::string choices = buttons == Buttons::YesNoCancel ? " (yes/no/cancel) " : " (yes/no) ";
  std::string shown = fmt::format("{}{}", Framed(title, text), choices);
  if (text == kOverwriteQuestion && answers_.empty() && (overwrite_ || answerAll_)) {
    out_ << shown << (overwrite_ ? "yes (--overwrite)" : "no (only --overwrite answers this)") << "\n";
    return overwrite_ ? Answer::Yes : Answer::No;
  }
  if (answers_.empty() && answerAll_) {
    out_ << shown << (*answerAll_ == Answer::Yes ? "yes" : "no") << "\n";
    return *answerAll_;
  }
  const std::string asked = fmt::format("the question \"{}\" ({})", text, title);
  for (;;) {
    auto line = readLine(shown, asked, "--yes, --no or --answers FILE");
    if (!line) return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    if (auto a = ParseAnswer(*line)) return *a;
  }
}

std::optional<std::string> TerminalUi::prompt(const std::string& text, const std::string& title,
                                              const std::string& defaultValue) {
  std::string shown = Framed(title, text);
  if (!defaultValue.empty()) shown += fmt::format(" [{}]", Show(defaultValue));
  // Typed text goes into records, which hold Windows-1252; file names stay as typed.
  auto line = readLine(shown + ": ", fmt::format("the prompt \"{}\" ({})", text, title), "--answers FILE");
  if (line && line->empty()) return defaultValue;
  if (line) return Utf8ToCp1252(*line);
  return line;
}

std::optional<std::filesystem::path> TerminalUi::chooseFile(const std::string& title, const std::string&,
                                                            const std::filesystem::path& suggested, bool) {
  std::string shown = Framed(title, "file");
  if (!suggested.empty()) shown += fmt::format(" [{}]", suggested.string());
  auto line = readLine(shown + ": ", fmt::format("the file choice \"{}\"", title), "--answers FILE");
  if (!line) return std::nullopt;
  if (line->empty()) return suggested.empty() ? std::nullopt : std::optional<std::filesystem::path>(suggested);
  return std::filesystem::path(*line);
}

void TerminalUi::progress(const std::string&, const std::string& label, long value, long max) {
  if (!interactive_) return;
  err_ << "\r" << Show(label);
  if (max > 0) err_ << " " << value << "/" << max;
  err_ << "\x1b[K" << std::flush;
  progressShown_ = true;
}

void TerminalUi::progressDone() {
  if (!progressShown_) return;
  err_ << "\r\x1b[K" << std::flush;
  progressShown_ = false;
}

bool TerminalUi::stopRequested() { return gStop != 0; }

void TerminalUi::print(const std::string& text) {
  progressDone();
  out_ << Show(text);
  if (text.empty() || text.back() != '\n') out_ << "\n";
}

}  // namespace kvl
