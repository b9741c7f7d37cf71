#include "support/found_file_set.h"

#include <fmt/format.h>

#include "util/record_file.h"

namespace kvl::test {

Snapshot SnapshotDir(const fs::path& dir, const std::string& prefix) {
  Snapshot s;
  for (const auto& e : fs::directory_iterator(dir)) {
    std::string name = e.path().filename().string();
    // The lock is held while the league is open, not league data.
    if (e.is_regular_file() && e.path().extension() != ".lock" && name.starts_with(prefix))
      s[name] = ReadFileBytes(e.path());
  }
  return s;
}

std::vector<std::string> Differences(const Snapshot& before, const Snapshot& after) {
  std::vector<std::string> out;
  for (const auto& [name, bytes] : before) {
    auto it = after.find(name);
    if (it == after.end()) out.push_back("-" + name);
    else if (it->second != bytes) out.push_back("~" + name);
  }
  for (const auto& [name, bytes] : after)
    if (!before.count(name)) out.push_back("+" + name);
  return out;
}

Bytes RandomBytes(std::size_t n, std::mt19937& gen) {
  Bytes b(n);
  for (auto& x : b) x = static_cast<std::uint8_t>(gen());
  return b;
}

namespace {

// Gives each field an arbitrary value of its type.
template <class... T>
void Fill(std::mt19937& gen, T&... fields) {
  ((fields = static_cast<T>(gen())), ...);
}

void EnrichHeader(League& lg, std::mt19937& gen) {
  Fill(gen, lg.LgByteA, lg.LgByteB, lg.LgByteC, lg.LgByteD, lg.LgWordA, lg.NextGameMark, lg.ExpansionRounds);
  for (auto& w : lg.LgWords) Fill(gen, w);
  for (std::size_t i = 16; i < lg.CheckFlags.size(); ++i) Fill(gen, lg.CheckFlags[i]);
  lg.LgTextA.set("kept as is");
  lg.RootDir.set("C:\\KVL");
  lg.Conf[0].Div[3].Name.set("DIV 4");  // a name past NumDivs is kept too
}

void EnrichTeam(Team& t, std::mt19937& gen) {
  Fill(gen, t.TeamBytesA[0], t.TeamBytesA[1], t.TeamByteA, t.TeamByteB, t.TeamByteC, t.TeamByteD, t.TeamWordA,
       t.TeamWordB, t.TeamWordC, t.W[0], t.W[1], t.W[2], t.SF, t.Revenue);
  t.Owner.set("Owner Name");
  t.Password.set("secret");
}

}  // namespace

void Enrich(LeaguePlan& plan, unsigned seed) {
  std::mt19937 gen(seed);
  EnrichHeader(plan.header, gen);
  for (std::size_t t = 0; t < plan.teams.size(); ++t) {
    Team& team = plan.teams[t];
    EnrichTeam(team, gen);
    Coach& c = plan.coaches[t];
    c.Team = static_cast<u8>(t + 1);
    team.CoachRec = static_cast<u8>(t + 1);
    team.Coach.Name = c.Name;
    team.Coach.Salary = c.Salary;
    team.Coach.Contract = 2;
    team.Waived = ToBool16(t % 3 == 1);
  }
}

void WriteOptionalFiles(const std::string& path, int teams, unsigned seed) {
  std::mt19937 gen(seed);
  auto n = static_cast<std::size_t>(teams);
  auto write = [&](const std::string& ext, const Bytes& b) { WriteFileAtomic(path + ext, b); };
  write(".fas", RandomBytes(ContractFuture::kSize * n, gen));
  write(".dft", RandomBytes(DraftListRecord::kSize * 5, gen));
  write(".csr", RandomBytes(CareerRecord::kSize * 3, gen));
  write(".rec", RandomBytes(777, gen));
  Bytes wvr = RandomBytes(WaiverRecord::kSize * 3, gen);
  for (std::size_t r = 0; r < 3; ++r) wvr[r * WaiverRecord::kSize] = static_cast<std::uint8_t>('A' + r);
  write(".wvr", wvr);
  Bytes pri, scx;
  for (std::size_t t = 0; t < n; ++t) pri.push_back(static_cast<std::uint8_t>(n - 1 - t));
  for (int g = 1; g <= 12; ++g) {
    ScheduleRecord r;
    r.HomeTeam = static_cast<u8>(g % teams);
    r.AwayTeam = static_cast<u8>((g + 1) % teams);
    r.GameNumber = static_cast<i16>(g);
    Bytes b = EncodeRecord(r);
    scx.insert(scx.end(), b.begin(), b.end());
  }
  write(".pri", pri);
  write(".scx", scx);
  auto text = [&](const std::string& ext, const std::string& body) { write(ext, Bytes(body.begin(), body.end())); };
  std::string eml, tra;
  for (int t = 0; t < teams; ++t) eml += fmt::format("{},\"gm{}@example.org\"\r\n", t, t);
  text(".eml", eml);
  text(".tra", "- Some Player (T01)<BR>\r\n");
  text(".htr", "- Some Player (T01)<BR>\r\n- Other Player (T02)<BR>\r\n");
}

std::string WriteLeagueIn(Harness& h, const LeaguePlan& plan, bool optionalFiles, const std::string& name) {
  fs::create_directories(LeagueDir(h));
  std::string path = (LeagueDir(h) / name).string();
  WriteLeague(plan, path);
  if (optionalFiles) WriteOptionalFiles(path, static_cast<int>(plan.teams.size()), 7);
  return path;
}

}  // namespace kvl::test
