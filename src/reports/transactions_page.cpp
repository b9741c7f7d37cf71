// The transaction lists: this period's and the whole season's, copied from
// the logs. The log lines are HTML already; names in them were escaped when
// the lines were written.
#include "league/league_files.h"
#include "reports/page_files.h"
#include "reports/page_groups.h"

namespace kvl {

namespace {

const PageInfo kTransact{"Transact.html", " Transactions", 15, 15, "<HTML><BODY><H1>Transactions</H1>", false,
                         ")</P>", true};
const PageInfo kTransactSeason{"TransactSeason.html", " Season Transactions", 15, 15,
                               "<HTML><BODY><H1>Season Transactions</H1>", false, ")</P>", true};

void CopyLog(PageRun& run, const PageInfo& info, const char* log) {
  Page page(run, info);
  std::vector<std::string> lines;
  ReadPageLines(run.s.swap(log), lines);
  if (lines.empty()) page.add("No transactions to report.");
  for (std::string& line : lines) page.add(std::move(line));
  page.write();
}

}  // namespace

void OutputTransactions(PageRun& run) { CopyLog(run, kTransact, swp::Transactions); }
void OutputHistoricTransactions(PageRun& run) { CopyLog(run, kTransactSeason, swp::History); }

}  // namespace kvl
