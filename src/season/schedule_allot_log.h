#pragma once
// The allotment's running account, AllotGameLog.txt in the home folder. Every
// line is appended with the file opened and closed again, so the log stands
// complete however the allotment ends.
#include <filesystem>
#include <string>

namespace kvl {

class AllotGameLog {
 public:
  static constexpr const char* kFileName = "AllotGameLog.txt";
  // Starts a new log under `home`, its first line the date `now` in the long form.
  AllotGameLog(const std::filesystem::path& home, double now);
  void Display(const std::string& line);
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace kvl
