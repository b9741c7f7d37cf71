#include "ui/scripted_ui.h"

#include <algorithm>
#include <cctype>

namespace kvl {

std::optional<Answer> ParseAnswer(const std::string& word) {
  std::string w;
  for (char c : word) w += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (w == "yes" || w == "y") return Answer::Yes;
  if (w == "no" || w == "n") return Answer::No;
  if (w == "cancel" || w == "c") return Answer::Cancel;
  return std::nullopt;
}

std::optional<std::string> ScriptedUi::next() {
  if (answers_.empty()) return std::nullopt;
  std::string a = answers_.front();
  answers_.pop_front();
  return a;
}

void ScriptedUi::tell(const std::string& text, const std::string& title) {
  calls_.push_back({"tell", text, title});
}

Answer ScriptedUi::ask(const std::string& text, const std::string& title, Buttons) {
  calls_.push_back({"ask", text, title});
  if (auto a = next()) return ParseAnswer(*a).value_or(Answer::Cancel);
  return fallback_.value_or(Answer::Cancel);
}

std::optional<std::string> ScriptedUi::prompt(const std::string& text, const std::string& title,
                                              const std::string&) {
  calls_.push_back({"prompt", text, title});
  auto a = next();
  if (!a || *a == "<cancel>") return std::nullopt;
  return a;
}

std::optional<std::filesystem::path> ScriptedUi::chooseFile(const std::string& title, const std::string& filter,
                                                            const std::filesystem::path&, bool) {
  calls_.push_back({"chooseFile", filter, title});
  auto a = next();
  if (!a || *a == "<cancel>") return std::nullopt;
  return std::filesystem::path(*a);
}

void ScriptedUi::progress(const std::string& caption, const std::string& label, long, long) {
  if (calls_.empty() || calls_.back().kind != "progress" || calls_.back().text != label)
    calls_.push_back({"progress", label, caption});
}

void ScriptedUi::print(const std::string& text) { calls_.push_back({"print", text, ""}); }

std::vector<ScriptedUi::Call> ScriptedUi::callsOf(const std::string& kind) const {
  std::vector<Call> out;
  std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(out), [&](const Call& c) { return c.kind == kind; });
  return out;
}

bool ScriptedUi::told(const std::string& text, const std::string& title) const {
  return std::any_of(calls_.begin(), calls_.end(),
                     [&](const Call& c) { return c.kind == "tell" && c.text == text && c.title == title; });
}

}  // namespace kvl
