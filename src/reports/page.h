#pragma once
// The frame every page shares: the title, the generator comment, the header
// file or the page's own heading, the date line, the body, the footer file and
// the closing tags. A header or footer file is the commissioner's own HTML and
// is copied as it stands.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// What one run of page writers shares.
struct PageRun {
  LeagueState& s;
  // The tree page goes with the standings on demand, and only in the playoffs
  // when the pages are written after game days.
  bool treeAlways = true;
  int pages = 0;
};

struct PageInfo {
  const char* file;     // behind the league prefix: "Standings.html"
  const char* title;    // behind the league prefix in TITLE
  int header = -1;      // .hdN, -1 for none
  int footer = -1;      // .ftN, -1 for none
  const char* heading;  // printed when there is no header file
  bool headingAlways = false;  // printed after the header file too
  const char* dateEnd = ")</P>";  // nullptr: no date line
  bool body = false;    // the page opened a BODY: closes "</BODY></HTML>"
  const char* afterTitle = "";
};

class Page {
 public:
  Page(PageRun& run, const PageInfo& info);
  // The file name can differ from the usual one (the playoff schedule).
  Page(PageRun& run, const PageInfo& info, std::string file);

  void add(std::string line) { lines_.push_back(std::move(line)); }
  // Footer file, closing tags; the page is written and counted.
  void write();

 private:
  PageRun& run_;
  const PageInfo& info_;
  std::string file_;
  std::vector<std::string> lines_;
};

// "<P>(As of <today>" without the ending.
std::string AsOfLine(const LeagueState& s);

}  // namespace kvl
