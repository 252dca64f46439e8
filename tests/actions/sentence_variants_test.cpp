#include <gtest/gtest.h>

#include "actions/action_sentence.h"
#include "image/module_directory.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// A module of every kind in the master's list, and an action that this kind has words for.
struct Listed {
  char letter;
  int kind;
  std::string action;
  std::string dutch;
};

const std::vector<Listed>& House() {
  static const std::vector<Listed> house = {
      {'A', 0, "0101", "Relaismodule 'A':  Uitgang 01 aan"},
      {'B', 1, "0101", "Dimmodule 'B':  Uitgang 01 aan"},
      {'C', 2, "0121", "Temp. module 'C':  21°C in ruimte 01"},
      {'D', 4, "0101", "Relaismodule DC 'D':  Uitgang 01 aan"},
      {'E', 5, "0101", "Alarmmodule 'E':  Detector 01 aan"},
      {'F', 6, "0101", "Audio interface 'F':  Hoofdzone 01 aan"},
      {'G', 7, "0101", "Simulatiemodule 'G':  Simulatie aan"},
      {'H', 11, "0101", "Lumenza module 'H':  Uitgang 01 aan"},
      {'I', 3, "0101", ""},
      {'J', 8, "0101", ""},
      {'K', 9, "0101", ""},
  };
  return house;
}

struct VariantRow {
  std::string name;
  SentenceVariant variant;
  bool contexts;
  std::set<int> kinds;
};

const VariantRow VariantRows[] = {
    {"Master", MasterSentences, true, {0, 1, 2, 4, 5, 6}},
    {"Context", ContextSentences, false, {0, 1, 2, 4, 5, 6, 7, 11}},
    {"TimeProgram", TimeProgramSentences, true, {0, 1, 2, 4, 5, 6, 11}},
    {"LightProgram", LightProgramSentences, true, {0, 1, 4, 11}},
};

class SentenceVariantTest : public SessionTest, public testing::WithParamInterface<VariantRow> {
 protected:
  SentenceVariantTest() {
    Language = 1;
    ActiveModuleType = 9;
    for (int row = 0; row < DirectoryRows; ++row) {
      DirectoryLetter(row) = DirectoryType(row) = EmptyCell;
    }
  }
  static void List(int row, const Cell& letter, const Cell& kind) {
    DirectoryLetter(row) = letter;
    DirectoryType(row) = kind;
  }
  static void ListHouse() {
    int row = 0;
    for (const Listed& module : House()) List(row++, int{module.letter}, module.kind);
  }
  static std::string Say(const std::string& code) {
    return MasterActionSentence(code, GetParam().variant);
  }
};

TEST_P(SentenceVariantTest, HasWordsForItsKindsAndForNoOthers) {
  ListHouse();
  for (const Listed& module : House()) {
    EXPECT_EQ(Say(module.letter + module.action),
              GetParam().kinds.contains(module.kind) ? module.dutch : "")
        << module.kind;
  }
}

TEST_P(SentenceVariantTest, HasWordsForValuesOfAudioWhereItKnowsAudio) {
  ListHouse();
  EXPECT_EQ(Say("F3419"),
            GetParam().kinds.contains(6) ? "Audio interface 'F':  Nevenzone 2 volume op 3" : "");
  for (const Listed& module : House()) {
    if (module.kind == 6) continue;
    EXPECT_EQ(Say(std::string(1, module.letter) + "3419"), "") << module.kind;
  }
}

TEST_P(SentenceVariantTest, KnowsContextsUnlessItIsAContextItself) {
  EXPECT_EQ(Say("S0702"), GetParam().contexts ? "Sfeer 07" : "");
  List(0, 'S', 0);
  EXPECT_EQ(Say("S0702"), GetParam().contexts ? "Sfeer 07" : "");
}

TEST_P(SentenceVariantTest, KnowsCorvelaCodes) {
  EXPECT_EQ(Say("Z0512"), "Corvela code: Z0512");
}

TEST_P(SentenceVariantTest, SaysNothingOfAModuleThatIsNotListed) {
  ListHouse();
  EXPECT_EQ(Say("R0101"), "");
}

TEST_P(SentenceVariantTest, SaysNothingOfAnEmptyRecord) {
  ListHouse();
  for (const char* code : {"", "***", " "}) EXPECT_EQ(Say(code), "");
}

TEST_P(SentenceVariantTest, TheFirstRowWithTheLetterTells) {
  List(3, 'A', 1);
  List(4, 'A', 0);
  EXPECT_EQ(Say("A0101"), "Dimmodule 'A':  Uitgang 01 aan");
}

TEST_P(SentenceVariantTest, TheLastRowTellsToo) {
  List(17, "65", "0");
  EXPECT_EQ(Say("A0101"), "Relaismodule 'A':  Uitgang 01 aan");
}

TEST_P(SentenceVariantTest, TheImageOfTheSessionDoesNotMatter) {
  ListHouse();
  ActiveModuleType = 0;
  ButtonImage[121] = 'R';
  EXPECT_EQ(Say("R0101"), "");
  EXPECT_EQ(Say("A0101"), "Relaismodule 'A':  Uitgang 01 aan");
}

INSTANTIATE_TEST_SUITE_P(Screens, SentenceVariantTest, testing::ValuesIn(VariantRows),
                         [](const auto& row) { return row.param.name; });

class OwnSentenceTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  OwnSentenceTest() { StartWithImage(GetParam(), 1, 'M'); }
  static const Listed& Row() {
    for (const Listed& module : House()) {
      if (module.kind == GetParam()) return module;
    }
    throw std::logic_error("every kind has a row");
  }
};

TEST_P(OwnSentenceTest, TheModulesOwnLetterGetsTheSentenceOfItsKind) {
  std::string expected = Row().dutch;
  const auto quote = expected.find('\'');
  if (quote != std::string::npos) expected[quote + 1] = 'M';
  EXPECT_EQ(OwnActionSentence("M" + Row().action), expected);
}

TEST_P(OwnSentenceTest, AnotherLetterIsNotKnownEvenWhereItIsListed) {
  // The list of modules of a master that was read before.
  for (int row = 0; row < DirectoryRows; ++row) {
    DirectoryLetter(row) = 'A' + row;
    DirectoryType(row) = 0;
  }
  for (char letter = 'A'; letter <= 'R'; ++letter) {
    if (letter == 'M') continue;
    EXPECT_EQ(OwnActionSentence(letter + Row().action), "") << letter;
  }
}

TEST_P(OwnSentenceTest, ContextsAndCorvelaCodesAreKnown) {
  EXPECT_EQ(OwnActionSentence("S0702"), "Sfeer 07");
  EXPECT_EQ(OwnActionSentence("Z0512"), "Corvela code: Z0512");
}

TEST_P(OwnSentenceTest, AnEmptyRecordSaysNothingEvenOfAModuleWithoutALetter) {
  Cell& address = (*ActiveKind()->address.table)[ActiveKind()->address.index];
  for (const Cell& letter : {Cell(), Cell(42), Cell("*"), Cell(0)}) {
    address = letter;
    for (const char* code : {"", "***", " "}) EXPECT_EQ(OwnActionSentence(code), "");
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, OwnSentenceTest, testing::Values(0, 1, 2, 4, 5, 6, 7, 8, 11),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

}  // namespace
}  // namespace bkconf
