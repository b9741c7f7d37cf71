#pragma once
// What nearly every test uses: GoogleTest, fmt, the league fixture, the league's
// files and records, and the program's errors.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/league_fixture.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl::test {

// Every record of a written league file, in order.
template <class R>
std::vector<R> ReadRecords(const std::filesystem::path& file) {
  RecordFile f(file, R::kSize);
  std::vector<R> out;
  for (std::size_t n = 1; n <= f.count(); ++n) out.push_back(f.getRecord<R>(n));
  return out;
}

// Changes record `n` (from 1) of a written league file.
template <class R, class F>
void EditRecord(const std::filesystem::path& file, std::size_t n, F change) {
  RecordFile f(file, R::kSize);
  R r = f.getRecord<R>(n);
  change(r);
  f.putRecord(n, r);
}

}  // namespace kvl::test
