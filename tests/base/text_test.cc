#include "base/text.h"

#include "testutil.h"

namespace zerbal {
namespace {

TEST(TextTest, PositionsCountCharactersNotBytes) {
  const std::string name = "Ñoño Ibáñez";
  EXPECT_EQ(Len(name), 11);
  EXPECT_EQ(Mid(name, 1, 4), "Ñoño");
  EXPECT_EQ(Mid(name, 6), "Ibáñez");
  EXPECT_EQ(Mid(name, 9, 2), "ñe");
  EXPECT_EQ(Mid(name, 20, 3), "");
  EXPECT_EQ(Left(name, 2), "Ño");
  EXPECT_EQ(Abridged(name, 4), "Ñoño...");
  EXPECT_EQ(Abridged(name, 11), name) << "nothing cut, nothing added";
  EXPECT_EQ(Right(name, 3), "ñez");
  EXPECT_EQ(Right("20005", 3), "005");
  EXPECT_EQ(Right("5", 3), "5");
  EXPECT_EQ(InStr(name, "ñ"), 3);
  EXPECT_EQ(InStr(name, "ñ", 4), 9);
  EXPECT_EQ(InStr(name, "x"), 0);
  EXPECT_EQ(FirstChar("Ébano"), "É");
  EXPECT_EQ(RepeatChar("0a", 3), "000");
  EXPECT_EQ(RepeatChar("ñ", 2), "ññ");
  EXPECT_EQ(RepeatChar("", 2), "");
}

TEST(TextTest, BrokenUtf8CountsByteByByteAndLosesNothing) {
  const std::string broken = "a\xC3" "b\xE2\x82" "c\xF0";
  EXPECT_EQ(Len(broken), 7);
  EXPECT_EQ(Mid(broken, 1) , broken);
  EXPECT_EQ(Mid(broken, 2, 1), "\xC3");
  size_t size = 0;
  EXPECT_EQ(DecodeAt("\xC0\x80", 0, &size), 0xFFFDu) << "overlong form";
  EXPECT_EQ(size, 1u);
  EXPECT_EQ(DecodeAt("\xED\xA0\x80", 0, &size), 0xFFFDu) << "surrogate";
}

TEST(TextTest, Windows1252CodesOfCharacters) {
  const struct {
    char32_t c;
    int code;
  } rows[] = {
      {U'A', 65},    {U'ñ', 241},  {U'Ñ', 209},   {U'º', 186},   {0xA0, 160},
      {U'€', 128},   {U'Š', 138},  {U'Ÿ', 159},   {U'’', 146},   {0x81, 0x81},
      {U'Ω', 63},    {U'中', 63},  {0x1F600, 63}, {U'\t', 9},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Windows1252Code(row.c), row.code) << "U+" << std::hex << int(row.c);
  }
  const std::string text = "Ñandú 5€ – Ω";
  EXPECT_EQ(Utf8ToWindows1252(text), "\xD1" "and\xFA 5\x80 \x96 ?");
  EXPECT_EQ(Windows1252ToUtf8(Utf8ToWindows1252("Ñandú 5€ –")), "Ñandú 5€ –");
}

// Each pair is a letter and its capital, or a character that has none.
TEST(TextTest, CaseOfOneCharacter) {
  for (const auto& [lower, upper] :
       {std::pair{U'ñ', U'Ñ'}, {U'ł', U'Ł'}, {U'ž', U'Ž'}, {U'ß', U'ß'}, {U'÷', U'÷'}, {U'×', U'×'}}) {
    EXPECT_EQ(ToUpper(lower), upper) << std::hex << int(lower);
    EXPECT_EQ(ToLower(upper), lower) << std::hex << int(upper);
  }
}

}  // namespace
}  // namespace zerbal
