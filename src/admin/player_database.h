#pragma once
// The player database form (frmPlayerDB) over one .drs file: 88-byte records
// (a used mark and a player), browsed, edited, deleted through temp.drs in the
// home folder, merged into the league and printed as "Players.html".
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// The records of a database file; KvlError naming the file when it is missing
// or its length is not a whole number of records.
std::vector<DbRecord> ReadPlayerDatabase(const std::filesystem::path& file);
// A league player takes a database player's ratings and vitals (Height,
// Weight, Pos, Age, Birthplace, Hand, Num), with `newSalaries` also Salary and Contract.
void TakeDatabaseValues(Player& p, const Player& db, bool newSalaries);
// The first record of `name` (all 22 characters) not yet used; -1 for none.
int FindUnusedByName(const std::vector<DbRecord>& db, const std::vector<bool>& used, const FixedText<22>& name);

class frmPlayerDB {
 public:
  // Opens `file`; the league's own database when none is given.
  frmPlayerDB(LeagueState& s, std::optional<std::filesystem::path> file = std::nullopt);

  const std::filesystem::path& file() const { return file_; }
  const std::vector<DbRecord>& records() const { return db_; }
  // lstPlayers: one line per record.
  std::string LineText(int index) const;

  // Selecting a record (from 0) fills the fields from it.
  void Select(int index);
  std::optional<int> selected() const { return Selected; }
  const Player& fields() const { return Fields; }
  // The fields as shown: txtName .. txtSalary, the ratings and txtOverall.
  std::string FieldsText() const;
  // Leaving a field: "Name", "Pos", "Number", "Hand", "Age", "Height",
  // "Weight", "Birthplace", "Contract", "Salary" or a rating ("Spd"). False
  // when the value does not fit the field, which then keeps its value.
  bool SetField(const std::string& field, const std::string& text);

  void cmdAdd();
  // Writes the fields to the selected record.
  void cmdUpdate();
  // Asks first; every other record is kept byte for byte.
  bool cmdDelete(int index);
  bool cmdClear();
  // Writes Transfer/<league>Players.html; its path.
  std::filesystem::path cmdOutput();
  // Takes the database's values into the league's players of the same name,
  // and gives the league the players left over as free agents.
  void cmdMerge();

 private:
  void Replace(const std::vector<DbRecord>& keep);
  void WriteAll();
  int MergeTeam(int team, std::vector<bool>& used, bool newSalaries);

  LeagueState& s_;
  std::filesystem::path file_;
  std::vector<DbRecord> db_;
  std::optional<int> Selected;
  Player Fields;
};

}  // namespace kvl
