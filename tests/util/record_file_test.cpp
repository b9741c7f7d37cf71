// Fixed-record files numbered from 1, and the whole-file helpers.
#include <gtest/gtest.h>

#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

Bytes Rec(std::uint8_t fill, std::size_t n = 4) { return Bytes(n, fill); }

TEST(RecordFile, RecordsCountFromOneAndGapsReadAsZero) {
  test::TempDir dir;
  fs::path p = dir.path() / "f.dat";
  RecordFile f(p, 4);
  EXPECT_TRUE(fs::exists(p)) << "opening creates the file";
  EXPECT_EQ(f.count(), 0u);
  f.put(3, Rec(7));
  EXPECT_EQ(ReadFileBytes(p), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 7, 7, 7, 7}));
  f.put(1, Rec(1));
  EXPECT_EQ(f.count(), 3u);
  EXPECT_EQ(f.get(1), Rec(1));
  EXPECT_EQ(f.get(2), Rec(0));
  EXPECT_EQ(f.get(9), Rec(0)) << "past the end reads zero";
  EXPECT_EQ(f.count(), 3u) << "reading never extends";
  EXPECT_THROW(f.get(0), KvlError);
  EXPECT_THROW(f.put(0, Rec(1)), KvlError);
}

TEST(RecordFile, WritesFitTheRecordLengthAndAPartialLastRecordReadsPadded) {
  test::TempDir dir;
  RecordFile f(dir.path() / "f.dat", 4);
  f.put(1, Bytes{9, 9});
  f.put(2, Bytes{1, 2, 3, 4, 5, 6});
  EXPECT_EQ(ReadFileBytes(dir.path() / "f.dat"), (Bytes{9, 9, 0, 0, 1, 2, 3, 4}));
  WriteFileAtomic(dir.path() / "g.dat", Bytes{1, 1, 1, 1, 2, 2});
  RecordFile g(dir.path() / "g.dat", 4);
  EXPECT_EQ(g.count(), 1u);
  EXPECT_EQ(g.get(2), (Bytes{2, 2, 0, 0}));
  RecordFile c(dir.path() / "c.coa", Coach::kSize);
  c.put(2, Bytes(Coach::kSize, 0));
  EXPECT_EQ(c.getRecord<Coach>(1).Team, 0) << "an unwritten record is all zero, not the default";
}

TEST(WholeFiles, AtomicWritesLeaveNoTemporaryAndFailuresNameTheFile) {
  test::TempDir dir;
  fs::path p = dir.path() / "league.tms";
  WriteFileAtomic(p, Bytes{1, 2, 3});
  WriteFileAtomic(p, Bytes{4});
  EXPECT_EQ(ReadFileBytes(p), Bytes{4});
  CopyFileAtomic(p, dir.path() / "swp.t");
  EXPECT_EQ(ReadFileBytes(dir.path() / "swp.t"), Bytes{4});
  EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator{}), 2);
  RemoveIfExists(p);
  EXPECT_FALSE(fs::exists(p));
  fs::path missing = dir.path() / "nowhere" / "x.lge";
  EXPECT_NO_THROW(RemoveIfExists(missing));
  for (auto f : {std::function<void()>([&] { ReadFileBytes(missing); }),
                 std::function<void()>([&] { WriteFileAtomic(missing, Bytes{1}); })}) {
    try {
      f();
      ADD_FAILURE() << "no error";
    } catch (const KvlError& e) {
      EXPECT_NE(std::string(e.what()).find(missing.string()), std::string::npos) << e.what();
    }
  }
}

}  // namespace
}  // namespace kvl
