#include "season/schedule_allot_log.h"

#include <fstream>

#include "util/dates.h"
#include "util/error.h"

namespace kvl {

namespace {

void WriteLine(const std::filesystem::path& path, const std::string& line, std::ios::openmode mode) {
  std::ofstream out(path, std::ios::binary | mode);
  if (!out) throw KvlError(path.string() + ": cannot write the allotment log");
  out << line << "\r\n";
}

}  // namespace

AllotGameLog::AllotGameLog(const std::filesystem::path& home, double now) : path_(home / kFileName) {
  WriteLine(path_, FormatDate(now, "dddd, mmmm d, yyyy"), std::ios::trunc);
}

void AllotGameLog::Display(const std::string& line) { WriteLine(path_, line, std::ios::app); }

}  // namespace kvl
