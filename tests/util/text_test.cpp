// Text in the records: Windows-1252 bytes and fixed-width fields.
#include <gtest/gtest.h>

#include "util/cp1252.h"
#include "util/fixed_text.h"

namespace kvl {
namespace {

// The five bytes the code page leaves undefined map to the control points of
// the same number.
TEST(Cp1252, KnownCharactersAndEveryByteRoundTrips) {
  struct Case { unsigned char byte; const char* utf8; };
  for (Case c : {Case{0x41, "A"}, {0x80, "\u20AC"}, {0x8A, "\u0160"}, {0x92, "\u2019"}, {0x9F, "\u0178"},
                 {0x81, "\u0081"}, {0xA0, "\u00A0"}, {0xFF, "\u00FF"}}) {
    EXPECT_EQ(Cp1252ToUtf8(std::string(1, static_cast<char>(c.byte))), c.utf8) << int(c.byte);
  }
  for (int b = 0; b < 256; ++b) {
    std::string byte(1, static_cast<char>(b));
    EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(byte)), byte) << b;
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

}  // namespace
}  // namespace kvl
