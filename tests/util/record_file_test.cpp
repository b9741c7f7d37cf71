// Fixed-record files numbered from 1, and the whole-file helpers.
#include <gmock/gmock.h>

#include "support/kvl_test.h"

namespace kvl {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

Bytes Rec(std::uint8_t fill, std::size_t n = 4) { return Bytes(n, fill); }

TEST(RecordFile, RecordsCountFromOneGapsReadAsZeroAndWritesFitTheLength) {
  test::TempDir dir;
  fs::path p = dir.path() / "f.dat";
  RecordFile f(p, 4);
  EXPECT_TRUE(fs::exists(p)) << "opening creates the file";
  EXPECT_EQ(f.count(), 0u);
  f.put(3, Bytes{7, 7});  // padded
  EXPECT_EQ(ReadFileBytes(p), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 7, 7, 0, 0}));
  f.put(1, Bytes{1, 1, 1, 1, 5, 6});  // cut
  EXPECT_EQ(f.count(), 3u);
  EXPECT_EQ(f.get(1), Rec(1));
  EXPECT_EQ(f.get(2), Rec(0));
  EXPECT_EQ(f.get(9), Rec(0)) << "past the end reads zero";
  EXPECT_EQ(f.count(), 3u) << "reading never extends";
  EXPECT_THROW(f.get(0), KvlError);
  EXPECT_THROW(f.put(0, Rec(1)), KvlError);
  WriteFileAtomic(p, Bytes{1, 1, 1, 1, 2, 2});
  RecordFile g(p, 4);
  EXPECT_EQ(g.count(), 1u);
  EXPECT_EQ(g.get(2), (Bytes{2, 2, 0, 0})) << "a partial last record reads padded";
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
  EXPECT_THAT([&] { ReadFileBytes(missing); }, ThrowsMessage<KvlError>(HasSubstr(missing.string())));
  EXPECT_THAT([&] { WriteFileAtomic(missing, Bytes{1}); }, ThrowsMessage<KvlError>(HasSubstr(missing.string())));
}

}  // namespace
}  // namespace kvl
