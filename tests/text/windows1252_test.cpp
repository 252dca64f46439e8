#include "text/windows1252.h"

#include <gtest/gtest.h>

namespace bkconf {
namespace {

struct CodeRow {
  int code;
  const char* character;
};

/// The characters that differ from those of Unicode's first page.
constexpr CodeRow UpperCharacters[] = {
    {0x80, "€"}, {0x82, "‚"}, {0x83, "ƒ"}, {0x84, "„"}, {0x85, "…"}, {0x86, "†"}, {0x87, "‡"},
    {0x88, "ˆ"}, {0x89, "‰"}, {0x8A, "Š"}, {0x8B, "‹"}, {0x8C, "Œ"}, {0x8E, "Ž"}, {0x91, "‘"},
    {0x92, "’"}, {0x93, "“"}, {0x94, "”"}, {0x95, "•"}, {0x96, "–"}, {0x97, "—"}, {0x98, "˜"},
    {0x99, "™"}, {0x9A, "š"}, {0x9B, "›"}, {0x9C, "œ"}, {0x9E, "ž"}, {0x9F, "Ÿ"},
};

constexpr CodeRow AccentedCharacters[] = {
    {0xA0, "\u00A0"}, {0xB0, "°"}, {0xC0, "À"}, {0xC8, "È"}, {0xD7, "×"}, {0xDF, "ß"}, {0xE0, "à"},
    {0xE7, "ç"},      {0xE8, "è"}, {0xE9, "é"}, {0xEA, "ê"}, {0xEB, "ë"}, {0xEF, "ï"}, {0xFF, "ÿ"},
};

std::string Byte(int code) {
  return std::string(1, static_cast<char>(code));
}

TEST(Windows1252Test, EveryByteSurvivesTheWayThereAndBack) {
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(ToWindows1252(FromWindows1252(Byte(code))), Byte(code)) << code;
  }
}

TEST(Windows1252Test, AStringOfAllBytesSurvivesTheWayThereAndBack) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += Byte(code);
  EXPECT_EQ(ToWindows1252(FromWindows1252(all)), all);
}

TEST(Windows1252Test, AsciiStaysAsItIs) {
  for (int code = 0; code < 128; ++code) EXPECT_EQ(FromWindows1252(Byte(code)), Byte(code)) << code;
}

TEST(Windows1252Test, TheCharactersFrom128To159AreThoseOfTheSet) {
  for (const CodeRow& row : UpperCharacters) {
    EXPECT_EQ(FromWindows1252(Byte(row.code)), row.character) << row.code;
    EXPECT_EQ(ToWindows1252(row.character), Byte(row.code)) << row.code;
  }
}

TEST(Windows1252Test, TheAccentsOfBothLanguagesAndTheDegreeSignAreOneByteEach) {
  for (const CodeRow& row : AccentedCharacters) {
    EXPECT_EQ(FromWindows1252(Byte(row.code)), row.character) << row.code;
    EXPECT_EQ(ToWindows1252(row.character), Byte(row.code)) << row.code;
  }
}

TEST(Windows1252Test, TheFiveOpenCodesAreTheControlCharactersOfTheSameNumber) {
  EXPECT_EQ(FromWindows1252("\x81"), "\u0081");
  EXPECT_EQ(FromWindows1252("\x8D"), "\u008D");
  EXPECT_EQ(FromWindows1252("\x8F"), "\u008F");
  EXPECT_EQ(FromWindows1252("\x90"), "\u0090");
  EXPECT_EQ(FromWindows1252("\x9D"), "\u009D");
}

TEST(Windows1252Test, ACharacterThatTheSetDoesNotHaveBecomesAQuestionMark) {
  EXPECT_EQ(ToWindows1252("a→b"), "a?b");
  EXPECT_EQ(ToWindows1252("ā"), "?");
  EXPECT_EQ(ToWindows1252("\u0080"), "?");
  EXPECT_EQ(ToWindows1252("\uFFFD"), "?");
  EXPECT_EQ(ToWindows1252("1😀2"), "1?2");
}

TEST(Windows1252Test, AByteThatStartsNoCharacterBecomesAQuestionMark) {
  EXPECT_EQ(ToWindows1252("a\x80z"), "a?z");
  EXPECT_EQ(ToWindows1252("\xBF"), "?");
}

TEST(Windows1252Test, ACharacterThatIsCutShortSwallowsNothingOfWhatFollows) {
  EXPECT_EQ(ToWindows1252("a\xC3z"), "a?z");
  EXPECT_EQ(ToWindows1252("\xC3\xC3\xA9"), "?\xE9");
  EXPECT_EQ(ToWindows1252("\xC3"), "?");
  for (const char* cut : {"a\xE2\x82z", "a\xF0\x9F\x98z"}) {
    const std::string bytes = ToWindows1252(cut);
    EXPECT_EQ(bytes.front(), 'a');
    EXPECT_EQ(bytes.back(), 'z');
    EXPECT_EQ(bytes.substr(1, bytes.size() - 2).find_first_not_of('?'), std::string::npos);
    EXPECT_GT(bytes.size(), 2U);
  }
}

TEST(Windows1252Test, ALongerFormOfACharacterThanNeededIsNoCharacter) {
  for (const char* broken : {"\xC1\x81", "\xE0\x81\x81", "\xF0\x80\x81\x81"}) {
    const std::string bytes = ToWindows1252(broken);
    EXPECT_EQ(bytes, std::string(bytes.size(), '?'));
    EXPECT_FALSE(bytes.empty());
  }
}

TEST(Windows1252Test, AByteThatNoCharacterBeginsWithBecomesAQuestionMark) {
  for (const char* broken : {"\xFF", "\xF8\x80\x81\x81", "\xFF\x80\x81\x81"}) {
    const std::string bytes = ToWindows1252(broken);
    EXPECT_EQ(bytes, std::string(bytes.size(), '?'));
    EXPECT_FALSE(bytes.empty());
  }
}

TEST(Windows1252Test, AnEmptyTextIsEmptyInBothSets) {
  EXPECT_EQ(ToWindows1252(""), "");
  EXPECT_EQ(FromWindows1252(""), "");
}

TEST(CharacterOfTest, GivesTheCharacterOfACode) {
  EXPECT_EQ(CharacterOf(65), "A");
  EXPECT_EQ(CharacterOf(82), "R");
  EXPECT_EQ(CharacterOf(42), "*");
  EXPECT_EQ(CharacterOf(32), " ");
  EXPECT_EQ(CharacterOf(1), "\x01");
  EXPECT_EQ(CharacterOf(128), "€");
  EXPECT_EQ(CharacterOf(233), "é");
  EXPECT_EQ(CharacterOf(255), "ÿ");
}

TEST(CharacterOfTest, ZeroAndCodesThatNoCellHoldsShowAsNothing) {
  EXPECT_EQ(CharacterOf(0), "");
  EXPECT_EQ(CharacterOf(-1), "");
  EXPECT_EQ(CharacterOf(256), "");
  EXPECT_EQ(CharacterOf(999), "");
}

}  // namespace
}  // namespace bkconf
