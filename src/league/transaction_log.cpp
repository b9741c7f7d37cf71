#include "league/transaction_log.h"

#include <fstream>

#include "league/league_files.h"
#include "util/error.h"

namespace kvl {

namespace {

void AppendLine(const fs::path& file, const std::string& line) {
  std::ofstream out(file, std::ios::binary | std::ios::app);
  out << line << "\r\n";
  if (!out) throw KvlError("cannot write " + file.string());
}

}  // namespace

void AppendTransaction(LeagueState& s, const std::string& line) { AppendLine(s.swap(swp::Transactions), line); }

void AppendTransactionAndHistory(LeagueState& s, const std::string& line) {
  AppendTransaction(s, line);
  AppendLine(s.swap(swp::History), line);
}

}  // namespace kvl
