#pragma once
// League folders for the file-set tests: every optional file, stored-only fields
// filled in, and snapshots of a folder to prove what a run changed.
#include <map>
#include <random>
#include <string>
#include <vector>

#include "support/league_fixture.h"
#include "util/bytes.h"

namespace kvl::test {

// Every regular file of a folder whose name starts with `prefix`, by name, with its bytes.
using Snapshot = std::map<std::string, Bytes>;
Snapshot SnapshotDir(const fs::path& dir, const std::string& prefix = "");
// What differs between two snapshots ("+name", "-name", "~name"); empty when equal.
std::vector<std::string> Differences(const Snapshot& before, const Snapshot& after);

Bytes RandomBytes(std::size_t n, std::mt19937& gen);

// Gives the fields that are only stored arbitrary values, links every team to
// its coach (both ways) and marks some teams Waived, so that a league saved
// right after its load must come back byte for byte.
void Enrich(LeaguePlan& plan, unsigned seed);

// Writes .fas .dft .eml .rec .csr .tra .htr .wvr .scx .pri beside a written league.
void WriteOptionalFiles(const std::string& path, int teams, unsigned seed);

// A written league in h's folder "league"; the path without extension.
std::string WriteLeagueIn(Harness& h, const LeaguePlan& plan, bool optionalFiles, const std::string& name = "test");

// The league folder of a harness.
inline fs::path LeagueDir(const Harness& h) { return h.dir.path() / "league"; }

}  // namespace kvl::test
