#pragma once
// How the core talks to its user: it tells, asks, prompts, picks files and shows
// progress. Front ends implement it; the core never touches a terminal.
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kvl {

enum class Buttons { YesNo, YesNoCancel, OkCancel };

// The one question a blanket yes must not answer: it would write over a league.
inline constexpr const char* kOverwriteQuestion = "File Exists! Overwrite?";
enum class Answer { Yes, No, Cancel };

class Ui {
 public:
  virtual ~Ui() = default;
  virtual void tell(const std::string& text, const std::string& title) = 0;
  virtual Answer ask(const std::string& text, const std::string& title, Buttons buttons) = 0;
  // nullopt when the user cancels.
  virtual std::optional<std::string> prompt(const std::string& text, const std::string& title,
                                            const std::string& defaultValue) = 0;
  virtual std::optional<std::filesystem::path> chooseFile(const std::string& title, const std::string& filter,
                                                          const std::filesystem::path& suggested, bool forSave) = 0;
  virtual void progress(const std::string& caption, const std::string& label, long value, long max) = 0;
  virtual void progressDone() = 0;
  // Polled between game days only.
  virtual bool stopRequested() = 0;
  // Plain output of a command's listing (a table, a card); not a message box.
  virtual void print(const std::string& text) = 0;
};

}  // namespace kvl
