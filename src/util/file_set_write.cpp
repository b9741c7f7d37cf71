#include "util/file_set_write.h"

#include <fmt/format.h>

#include <fstream>
#include <set>

#include "util/error.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr const char* kJournalHead = "KVL file set";

fs::path TempName(const fs::path& target) {
  fs::path t = target;
  t += ".kvlnew";
  return t;
}

fs::path FolderOf(const fs::path& p) { return p.has_parent_path() ? p.parent_path() : fs::path("."); }

// The journal's lines cannot hold a tab or a line break.
void CheckPath(const fs::path& p) {
  if (p.string().find_first_of("\t\r\n") != std::string::npos)
    throw KvlError(fmt::format("cannot save to \"{}\": the name holds a tab or a line break", p.string()));
}

std::string JournalText(const std::vector<fs::path>& from, const std::vector<fs::path>& to) {
  std::string text = std::string(kJournalHead) + "\n";
  for (std::size_t i = 0; i < to.size(); ++i)
    text += from[i].empty() ? fmt::format("remove\t{}\n", to[i].string())
                            : fmt::format("rename\t{}\t{}\n", from[i].string(), to[i].string());
  return text;
}

void RunStep(FileSystem& files, const fs::path& from, const fs::path& to) {
  if (from.empty()) files.remove(to);
  else if (fs::exists(from)) files.rename(from, to);  // gone already: done before the stop
}

void SyncFolders(FileSystem& files, const std::vector<fs::path>& paths) {
  std::set<fs::path> folders;
  for (const auto& p : paths) folders.insert(FolderOf(p));
  for (const auto& f : folders) files.syncFolder(f);
}

}  // namespace

FileSetWrite::~FileSetWrite() {
  if (journaled_) return;  // the temporary files are the set now; RollForward needs them
  std::error_code ec;
  for (const auto& step : steps_)
    if (!step.from.empty()) fs::remove(step.from, ec);
  fs::remove(TempName(journal_), ec);
}

void FileSetWrite::write(const fs::path& target, std::span<const std::uint8_t> bytes) {
  CheckPath(target);
  steps_.push_back({TempName(target), target});
  files_.writeFile(steps_.back().from, bytes);
}

void FileSetWrite::copy(const fs::path& from, const fs::path& target) { write(target, ReadFileBytes(from)); }

void FileSetWrite::remove(const fs::path& target) {
  CheckPath(target);
  if (fs::exists(target)) steps_.push_back({fs::path(), target});
}

void FileSetWrite::commit() {
  CheckPath(journal_);
  std::vector<fs::path> from, to;
  for (const auto& step : steps_) {
    from.push_back(step.from);
    to.push_back(step.to);
  }
  std::string text = JournalText(from, to);
  fs::path tmp = TempName(journal_);
  files_.writeFile(tmp, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
  to.push_back(journal_);
  SyncFolders(files_, to);  // the new files' names reach the disk before the journal that needs them
  files_.rename(tmp, journal_);
  journaled_ = true;
  files_.syncFolder(FolderOf(journal_));
  for (const auto& step : steps_) RunStep(files_, step.from, step.to);
  SyncFolders(files_, to);
  files_.remove(journal_);
}

bool RollForward(FileSystem& files, const fs::path& journal) {
  if (!fs::exists(journal)) return false;
  std::ifstream in(journal);
  std::string line;
  if (!std::getline(in, line) || line != kJournalHead)
    throw KvlError(fmt::format("{}: not a KVL save journal (first line \"{}\")", journal.string(), line));
  std::vector<fs::path> touched{journal};
  for (int n = 2; std::getline(in, line); ++n) {
    auto tab = line.find('\t');
    std::string verb = line.substr(0, tab);
    std::string rest = tab == std::string::npos ? "" : line.substr(tab + 1);
    auto tab2 = rest.find('\t');
    if (verb == "remove" && !rest.empty()) RunStep(files, fs::path(), rest);
    else if (verb == "rename" && tab2 != std::string::npos) RunStep(files, rest.substr(0, tab2), rest.substr(tab2 + 1));
    else throw KvlError(fmt::format("{}: line {} is not a step of a save: \"{}\"", journal.string(), n, line));
    touched.push_back(verb == "remove" ? fs::path(rest) : fs::path(rest.substr(tab2 + 1)));
  }
  SyncFolders(files, touched);
  files.remove(journal);
  return true;
}

}  // namespace kvl
