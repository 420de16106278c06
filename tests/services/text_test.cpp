#include "services/text.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "services/code_page.h"
#include "services/dates.h"

namespace zeb::test {
namespace {

using Texts = std::vector<std::string>;

TEST(TextTest, UpperCasesTheLettersOfTheCodePage) {
  EXPECT_EQ(UpperCase("az{ \xE4\xFE\xFF\x9A\x9C\x9E"), "AZ{ \xC4\xDE\x9F\x8A\x8C\x8E");
  EXPECT_EQ(UpperCase("\xF7\xD7\xDF\xB5"), "\xF7\xD7\xDF\xB5") << "signs have no upper case";
}

TEST(TextTest, CutsByCharactersFromOne) {
  const std::tuple<int, int, const char*> cases[] = {{1, 2, "ab"}, {3, 9, "c"}, {4, 1, ""},
                                                     {9, 1, ""},   {2, 0, ""},  {2, -1, ""}};
  for (const auto& [start, length, text] : cases) EXPECT_EQ(Mid("abc", start, length), text);
  EXPECT_EQ(Mid("abc", 2), "bc");
  EXPECT_EQ(Mid("abc", 5), "");
  EXPECT_EQ(Left("abc", 5), "abc");
  EXPECT_EQ(Right("abc", 2), "bc");
  EXPECT_EQ(Right("abc", -1), "");
  EXPECT_EQ(PadOrCut("abc", 5), "abc  ");
  EXPECT_EQ(PadOrCut("abc", 2), "ab");
}

TEST(TextTest, TrimsOnlyBlanks) {
  EXPECT_EQ(Trim("  a\t "), "a\t");
  EXPECT_EQ(TrimLeft("  "), "");
  EXPECT_EQ(TrimRight(" a "), " a");
}

TEST(TextTest, SplitsLinesOfEveryKind) {
  EXPECT_EQ(SplitLines("a\r\nb\rc\n\nd"), (Texts{"a", "b", "c", "", "d"}));
  EXPECT_EQ(SplitLines("a\r\n"), Texts{"a"});
  EXPECT_EQ(SplitLines("\n\r"), (Texts{"", ""}));
  EXPECT_EQ(SplitLines(""), Texts{});
  EXPECT_EQ(Split("a,,b,", ","), (Texts{"a", "", "b", ""}));
  EXPECT_EQ(Split("", ","), Texts{""});
  EXPECT_EQ(ReplaceAll("aaa", "a", "aa"), "aaaaaa");
}

TEST(TextTest, FindsWithoutCase) {
  EXPECT_TRUE(ContainsNoCase("Pipe END", "end"));
  EXPECT_TRUE(StartsWithNoCase("calc=1", "CALC="));
  EXPECT_FALSE(StartsWithNoCase("cal", "CALC="));
}

TEST(CodePageTest, MeetsUtf8AtTheBorder) {
  EXPECT_EQ(ToUtf8("\x80 \xFC"), "\xE2\x82\xAC \xC3\xBC");
  for (int code = 0; code < 256; ++code) {
    const std::string text(1, static_cast<char>(code));
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text) << code;
  }
  EXPECT_FALSE(FromUtf8("\xCE\xB1")) << "alpha is not in the code page";
  EXPECT_TRUE(IsUtf8("\xCE\xB1 \xF0\x9F\x98\x80"));
  for (const char* broken : {"\xFC", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\x80",
                             "\xE2\x82", "\xC3z"}) {
    EXPECT_FALSE(IsUtf8(broken));
    EXPECT_FALSE(FromUtf8(broken));
  }
}

TEST(DatesTest, HaveFixedForms) {
  const DateTime time{2006, 3, 5, 4, 7, 9};
  EXPECT_EQ(DateText(time), "05/03/2006");
  EXPECT_EQ(TimeText(time), "04:07:09");
  EXPECT_EQ(ShortTimeText(time), "04:07");
  EXPECT_EQ(LongDateText(time), "5-March-06");
}

}  // namespace
}  // namespace zeb::test
