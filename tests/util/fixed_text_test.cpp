#include <gtest/gtest.h>

#include "util/bytes.h"
#include "util/fixed_text.h"

namespace kvl {
namespace {

TEST(FixedText, PadsCutsAndCondenses) {
  FixedText<5> t;
  t.set("ab");
  EXPECT_EQ(t.raw(), "ab   ");
  EXPECT_EQ(t.str(), "ab");
  t.set("abcdefg");
  EXPECT_EQ(t.raw(), "abcde");
  t.clear();
  EXPECT_TRUE(t.empty());
  EXPECT_EQ(t.str(), "");
  EXPECT_EQ(Condense(std::string("x y \0\0", 6)), "x y");
  EXPECT_EQ(PadCut("abc", 2), "ab");
  EXPECT_EQ(PadCut("abc", 5), "abc  ");
}

TEST(LittleEndian, RoundTripsEveryWidth) {
  std::uint8_t buf[8];
  StoreLE<std::int16_t>(buf, -2);
  EXPECT_EQ(buf[0], 0xFE);
  EXPECT_EQ(buf[1], 0xFF);
  EXPECT_EQ(LoadLE<std::int16_t>(buf), -2);
  StoreLE<std::int32_t>(buf, 0x12345678);
  EXPECT_EQ(buf[0], 0x78);
  EXPECT_EQ(LoadLE<std::int32_t>(buf), 0x12345678);
  StoreLE<double>(buf, 45000.25);
  EXPECT_EQ(LoadLE<double>(buf), 45000.25);
}

}  // namespace
}  // namespace kvl
