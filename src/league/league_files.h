#pragma once
// The league file set: the league's files, their swap copies in the home folder,
// and the routines that move a league between them.
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

struct LeagueFileKind {
  const char* ext;        // ".tms"
  const char* swap;       // "swp.t"; empty when the file has no swap copy
  std::size_t recordLen;  // 0 for text or opaque files
};

// Every file of a league in the order LoadLg handles it.
const std::vector<LeagueFileKind>& LeagueFileKinds();
const LeagueFileKind& FileKind(const std::string& ext);

// Swap file names, as constants so callers don't spell them.
namespace swp {
inline constexpr const char* Teams = "swp.t";
inline constexpr const char* Roster = "swp.r";
inline constexpr const char* Prospects = "swp.p";
inline constexpr const char* League = "swp.l";
inline constexpr const char* Database = "swp.dr";
inline constexpr const char* Picks = "swp.d";
inline constexpr const char* Coaches = "swp.c";
inline constexpr const char* Futures = "swp.f";
inline constexpr const char* DraftList = "swp.df";
inline constexpr const char* Email = "swp.e";
inline constexpr const char* Rec = "swp.rc";
inline constexpr const char* Career = "swp.cm";
inline constexpr const char* Transactions = "swp.tr";
inline constexpr const char* History = "swp.th";
inline constexpr const char* Waivers = "swp.wv";
inline constexpr const char* OldSchedule = "swp.sc";
inline constexpr const char* Schedule = "swp.scx";
inline constexpr const char* Priority = "swp.pr";
inline constexpr const char* Farm = "swp.fm";
inline constexpr const char* Playoff = "swp.pf";
}  // namespace swp

// The league path without its extension (".lge" matched in any case).
std::string StripLeagueExtension(const std::string& path);
// The last element of a path.
std::string ExtractLast(const std::string& path);
// The league file with `ext`, found in any case of the extension; the lower-case
// name when none exists.
fs::path FindLeagueFile(const std::string& leaguePath, const std::string& ext);

// The journal of a save in progress, beside the league's files; one found at
// load means a save was stopped half way, and it is completed first.
fs::path LeagueJournal(const std::string& leaguePath);

// Loads the league at `path` (no extension) into the swap files and memory,
// taking its lock (Refused when another copy holds it) and completing an
// interrupted save first. A missing required file is told, kvl.def removed, and FatalStop thrown; a
// damaged file throws KvlError naming it. Either way the league's files are untouched.
void LoadLg(LeagueState& s, const std::string& path);
void SaveLg(LeagueState& s);
// Asks for a name (unless `chosen` gives it) and saves there; false when the
// user cancels.
bool SaveLeagueAs(LeagueState& s, const std::string& defaultName, std::optional<fs::path> chosen = std::nullopt);

void loadteam(LeagueState& s, int team, int side);
void SaveTeam(LeagueState& s, int team, int side);

// Writes the league path as the one line of kvl.def in the home folder.
void WriteKvlDef(const LeagueState& s);

}  // namespace kvl
