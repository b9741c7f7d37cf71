#pragma once
// A new league from a player database and the default files of the home folder:
// named, aligned in the default conferences and divisions, with no teams yet.
#include <optional>
#include <string>

#include "league/league_state.h"

namespace kvl {

// Gives the team just added at index `team` its default fields and files: a
// blank roster and prospect list, its 54 draft picks and the last waiver place.
// Name, Conf and Div, set by whoever adds the team, are kept.
void TeamDefaultFiles(LeagueState& s, int team);

// A new team's abbreviation: the name's first three letters in capitals, or,
// when another team has them, the first letter with two later ones, then the
// first two with a digit.
std::string UniqueAbbrev(const LeagueState& s, int team, const std::string& name);
// True when a team other than `team` has `abbrev`, in any case.
bool AbbrevTaken(const LeagueState& s, int team, const std::string& abbrev);

// Puts a new team in the last slot, in division `div` of conference `conf`,
// and gives it its default files. Returns its index. The caller checks room:
// at most kMaxTeams teams and 10 a division.
int AddTeam(LeagueState& s, const std::string& name, int conf, int div);

// Fills the swap files of a new league: priority, reset, the coach pool, the
// picks file, an empty old-form schedule, and empty team files so that the
// league can be saved and loaded before it has teams.
void LeagueDefaults(LeagueState& s);

// What the command would otherwise ask for; a given value skips its question.
struct NewLeagueChoice {
  std::optional<fs::path> database;
  std::optional<std::string> name;
};

// The command "New". False when the user ended it before anything changed.
// A database that is empty or not whole 88-byte records is told and thrown as
// a KvlError naming the file, before the open league is touched.
bool CreateLeague(LeagueState& s, const NewLeagueChoice& choice = {});

// Throws KvlError naming `db` when it is missing, empty or not whole records.
void CheckDatabaseFile(const fs::path& db);
// The new league itself, without questions: checks `db`, then replaces the
// open league by the unnamed league `name` made from it.
void MakeNewLeague(LeagueState& s, const fs::path& db, const std::string& name);
// With unsaved work, asks "Save Current League?" and saves on yes.
void OfferToSave(LeagueState& s);

}  // namespace kvl
