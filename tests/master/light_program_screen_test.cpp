// The light programmes. What they have like the time programmes is tested there.
#include "master/light_program_screen.h"

#include "master/program_screen_test.h"

namespace bkconf {
namespace {

class LightListTest : public LightProgramTest {
 protected:
  LightProgramScreenFields& fields = LightProgramScreen;

  void ExpectMomentShown(bool shown) const {
    EXPECT_EQ(fields.lightToDark.visible, shown);
    EXPECT_EQ(fields.darkToLight.visible, shown);
    EXPECT_EQ(fields.levelGroup.visible, shown);
    EXPECT_EQ(fields.levelLabel.visible, shown);
    EXPECT_EQ(fields.level.visible, shown);
  }
};

TEST_F(LightListTest, CaptionsOfItsOwnAreDutchOrFrench) {
  struct Row {
    const std::string* text;
    std::string dutch;
    std::string french;
  };
  const std::vector<Row> rows = {
      {&fields.listLabel.caption, "Lichtprogrammaties:", "Programmations selon luminosité:"},
      {&fields.lightToDark.caption, "Licht -> Donker", "Clair -> Sombre"},
      {&fields.darkToLight.caption, "Donker -> Licht", "Sombre -> Clair"},
      {&fields.levelGroup.caption, "Lichtsterkte", "Intensité lumineuse"},
      {&fields.levelLabel.caption, "Lichtsterkte", "Luminosité"},
      {&fields.darkEnd.caption, "Donker = 0", "Sombre = 0"},
      {&fields.lightEnd.caption, "Licht = 50", "Clair = 50"},
      {&fields.level.toolTip, "01 = Donker : 50 = Licht", "01 = Sombre : 50 = Clair"},
      {&fields.levelLabel.toolTip, "01 = Donker : 50 = Licht", "01 = Sombre : 50 = Clair"},
      {&fields.picker.heading.caption, "Module           Type", "Module           Type"},
  };
  Open({}, 1);
  for (const Row& row : rows) EXPECT_EQ(*row.text, row.dutch);
  EXPECT_EQ(screen.programs.columns[2].caption, "Licht - Donker");
  EXPECT_EQ(screen.programs.columns[3].caption, "Waarde");
  Open({}, 2);
  for (const Row& row : rows) EXPECT_EQ(*row.text, row.french);
  EXPECT_EQ(screen.programs.columns[2].caption, "Clair - Sombre");
  EXPECT_EQ(screen.programs.columns[3].caption, "Valeur");
}

TEST_F(LightListTest, LevelsFrom01To50AreOffered) {
  Open();
  ASSERT_EQ(fields.level.items.size(), 50U);
  EXPECT_EQ(fields.level.items[0], "01");
  EXPECT_EQ(fields.level.items[9], "10");
  EXPECT_EQ(fields.level.items[49], "50");
}

// --- Drawing ------------------------------------------------------------------------------------

TEST_F(LightListTest, DirectionsAreShownWithArrowsAndLevelsWithTwoDigits) {
  const std::vector<Slot> list = {{0, 1, 65, 0, 1}, {1, 50, 65, 1, 0}, {"1", "07", 65, 2, 2}};
  Open(list, 1);
  ExpectRows(
      {"A0101, Licht -> Donker, 01", "A0200, Donker -> Licht, 50", "A0302, Donker -> Licht, 07"});
  Open(list, 2);
  ExpectRows(
      {"A0101, Clair -> Sombre, 01", "A0200, Sombre -> Clair, 50", "A0302, Sombre -> Clair, 07"});
}

TEST_F(LightListTest, ADirectionThatIsNoneHasNoTextAndKeepsItsRow) {
  for (const Cell& direction : std::vector<Cell>{2, 42, 255, -1, 0.5, "word", "*"}) {
    Open({{direction, 7, 65, 0, 1}});
    EXPECT_EQ(Row(1), "A0101, , 07") << direction.Text();
    ExpectMemory(199);
  }
}

TEST_F(LightListTest, AnEmptyDirectionCountsAsNought) {
  Open({{Cell(), 7, 65, 0, 1}});
  ExpectRows({"A0101, Licht -> Donker, 07"});
}

TEST_F(LightListTest, ADirectionThatIsNoneLeavesTheTextOfTheRowBefore) {
  Open({On('A'), {2, 7, 66, 0, 1}});
  Delete(1);
  ExpectRows({"B0101, Licht -> Donker, 07"});
  OpenAgain();
  ExpectRows({"B0101, , 07"});
}

TEST_F(LightListTest, ValuesAreShownAsStoredAlsoInAudioBlocks) {
  Open({At({72, 15, 1}), At({72, 16, 1}), At({72, 33, 4})});
  ExpectRows({"H1601" + Moment(), "H1701" + Moment(), "H3404" + Moment()});
}

TEST_F(LightListTest, HasWordsForModulesWithOutputsAndForNoOthers) {
  const std::map<char, std::string> sentences = {{'A', "Relaismodule 'A':  Uitgang 01 aan"},
                                                 {'B', "Relaismodule DC 'B':  Uitgang 01 aan"},
                                                 {'C', "Dimmodule 'C':  Uitgang 01 aan"},
                                                 {'D', "Lumenza module 'D':  Uitgang 01 aan"},
                                                 {'E', ""},
                                                 {'G', ""},
                                                 {'H', ""},
                                                 {'I', ""}};
  for (const auto& [letter, sentence] : sentences) {
    Open({On(letter)});
    screen.programs.Select(1, 1);
    EXPECT_EQ(screen.programs.At(1, 1), std::string(1, letter) + "0101");
    EXPECT_EQ(screen.description.caption, sentence) << letter;
  }
}

// --- The editor ---------------------------------------------------------------------------------

TEST_F(LightListTest, DirectionAndLevelAppearWhenTheTargetIsKnown) {
  OpenEditor();
  ExpectMomentShown(false);
  for (const char letter : {'A', 'B', 'C', 'D', 'S', 'Z'}) {
    PickLetter('K');
    ExpectMomentShown(false);
    PickLetter(letter);
    ExpectMomentShown(true);
  }
  for (const char letter : {'E', 'F', 'G', 'H', 'I', 'J', 'K'}) {
    PickLetter(letter);
    ExpectMomentShown(false);
  }
  fields.picker.type.Pick(3);
  ExpectMomentShown(true);
}

TEST_F(LightListTest, NoDirectionIsTakenWheneverTheEditorOpens) {
  OpenEditor();
  EXPECT_FALSE(fields.lightToDark.Chosen() || fields.darkToLight.Chosen());
  PickLetter('A');
  fields.darkToLight.Choose();
  Pick(fields.level, "20");
  screen.editLeave.Click();
  DoubleClick(1);
  EXPECT_FALSE(fields.lightToDark.Chosen() || fields.darkToLight.Chosen());
  EXPECT_EQ(fields.level.Text(), "");
  PickLetter('A');
  fields.lightToDark.Choose();
  DoubleClick(1);
  EXPECT_FALSE(fields.lightToDark.Chosen() || fields.darkToLight.Chosen());
}

TEST_F(LightListTest, TheDirectionsExcludeEachOther) {
  OpenEditor();
  PickLetter('A');
  fields.lightToDark.Choose();
  fields.darkToLight.Choose();
  EXPECT_FALSE(fields.lightToDark.Chosen());
  EXPECT_TRUE(fields.darkToLight.Chosen());
}

TEST_F(LightListTest, DirectionAndLevelAreStoredAsANumberAndAText) {
  for (const bool gettingLight : {false, true}) {
    for (const std::string level : {"01", "07", "50"}) {
      OpenEditor();
      Choose('A', "12", "Toggle");
      (gettingLight ? fields.darkToLight : fields.lightToDark).Choose();
      Pick(fields.level, level);
      Confirm();
      ExpectSlots({{gettingLight ? 1 : 0, level, 65, 11, 2}});
      EXPECT_EQ(Row(1), std::string("A1202, ") +
                            (gettingLight ? "Donker -> Licht, " : "Licht -> Donker, ") + level);
    }
  }
}

TEST_F(LightListTest, WithoutADirectionOrALevelNothingIsStored) {
  for (const char letter : {'A', 'C', 'D', 'S', 'Z'}) {
    for (const bool hasDirection : {false, true}) {
      OpenEditor();
      PickLetter(letter);
      fields.picker.output.list.Pick(0);
      fields.picker.action.list.Pick(0);
      ASSERT_TRUE(fields.picker.Compose());
      ExpectRefused();
      if (hasDirection) fields.darkToLight.Choose();
      if (!hasDirection) Pick(fields.level, "20");
      ExpectRefused();
    }
  }
}

TEST_F(LightListTest, ModulesThatItDoesNotOfferAreRefused) {
  OpenEditor();
  PickLetter('A');
  FillMoment();
  for (const char letter : {'E', 'F', 'G', 'H', 'I'}) {
    PickLetter(letter);
    EXPECT_EQ(fields.picker.type.Text(), "---");
    ExpectRefused();
  }
}

TEST_F(LightListTest, ALevelTakesNoTyping) {
  OpenEditor();
  PickLetter('A');
  fields.level.Type("51");
  EXPECT_EQ(fields.level.Text(), "");
}

}  // namespace
}  // namespace bkconf
