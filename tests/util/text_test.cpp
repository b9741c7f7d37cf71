// Text in the records: Windows-1252 bytes, fixed-width fields, and little-endian numbers.
#include <gtest/gtest.h>

#include "util/bytes.h"
#include "util/cp1252.h"
#include "util/fixed_text.h"

namespace kvl {
namespace {

TEST(Cp1252, KnownCharacters) {
  struct Case { unsigned char byte; const char* utf8; };
  for (Case c : {Case{0x41, "A"}, {0x80, "\u20AC"}, {0x85, "\u2026"}, {0x8A, "\u0160"}, {0x8C, "\u0152"},
                 {0x92, "\u2019"}, {0x96, "\u2013"}, {0x99, "\u2122"}, {0x9F, "\u0178"}, {0x81, "\u0081"},
                 {0x9D, "\u009D"}, {0xA0, "\u00A0"}, {0xE9, "\u00E9"}, {0xFF, "\u00FF"}}) {
    std::string byte(1, static_cast<char>(c.byte));
    EXPECT_EQ(Cp1252ToUtf8(byte), c.utf8) << int(c.byte);
    EXPECT_EQ(Utf8ToCp1252(c.utf8), byte) << int(c.byte);
  }
}

TEST(Cp1252, EveryByteRoundTrips) {
  const std::string undefined = "\x81\x8D\x8F\x90\x9D";
  for (int b = 0; b < 256; ++b) {
    std::string byte(1, static_cast<char>(b));
    std::string utf8 = Cp1252ToUtf8(byte);
    if (undefined.find(byte) == std::string::npos)
      EXPECT_EQ(Utf8ToCp1252(utf8), byte) << b;
    else
      EXPECT_EQ(Cp1252ToUtf8(Utf8ToCp1252(utf8)), utf8) << b;
  }
}

TEST(Cp1252, UnmappableAndBrokenTextBecomesQuestionMarks) {
  struct Case { const char* utf8; const char* out; };
  for (Case c : {Case{"Jos\u00E9", "Jos\xE9"}, {"\u65E5\u672C", "??"}, {"a\U0001F600b", "a?b"},
                 {"\u0080", "?"}, {"\xC3", "?"}, {"\xE2\x82" "A", "?A"}, {"\xFF", "?"},
                 {"\xC0\xAF", "??"}, {"\xED\xA0\x80", "???"}, {"\x80x", "?x"}}) {
    EXPECT_EQ(Utf8ToCp1252(c.utf8), c.out) << c.utf8;
  }
}


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
