#include "actions/action_sentence.h"

#include <gtest/gtest.h>

#include "support/session_test.h"

namespace bkconf {
namespace {

/// Written down apart from the text table, letter for letter.
struct Sentence {
  std::string code;
  std::string dutch;
  std::string french;
};

class ActionSentenceTest : public SessionTest {
 protected:
  /// What the screens of plain modules say of an action of a module of that kind.
  static void Expect(int kind, const std::vector<Sentence>& rows) {
    for (const Sentence& row : rows) {
      Language = 1;
      EXPECT_EQ(ActionSentence(row.code, OwnSentences, kind), row.dutch) << row.code;
      Language = 2;
      EXPECT_EQ(ActionSentence(row.code, OwnSentences, kind), row.french) << row.code;
    }
  }
  static void ExpectNothing(int kind, const std::vector<std::string>& codes) {
    for (const std::string& code : codes) Expect(kind, {{code, "", ""}});
  }
};

TEST_F(ActionSentenceTest, ARelayModuleSwitches) {
  Expect(0, {
                {"A0100", "Relaismodule 'A':  Uitgang 01 uit", "Module relais 'A':  Sortie 01 Off"},
                {"B0501", "Relaismodule 'B':  Uitgang 05 aan", "Module relais 'B':  Sortie 05 On"},
                {"R1202", "Relaismodule 'R':  Uitgang 12 toggle",
                 "Module relais 'R':  Sortie 12 toggle"},
            });
  ExpectNothing(0, {"A0103", "A0110", "A0199"});
}

TEST_F(ActionSentenceTest, ADcRelayModuleSwitches) {
  Expect(
      4,
      {
          {"A0100", "Relaismodule DC 'A':  Uitgang 01 uit", "Module relais DC 'A':  Sortie 01 Off"},
          {"A0601", "Relaismodule DC 'A':  Uitgang 06 aan", "Module relais DC 'A':  Sortie 06 On"},
          {"A1202", "Relaismodule DC 'A':  Uitgang 12 toggle",
           "Module relais DC 'A':  Sortie 12 toggle"},
      });
  ExpectNothing(4, {"A0103", "A0150"});
}

TEST_F(ActionSentenceTest, ADimmerSwitchesAndDims) {
  Expect(1,
         {
             {"D0100", "Dimmodule 'D':  Uitgang 01 uit", "Module dim 'D':  Sortie 01 Off"},
             {"D0201", "Dimmodule 'D':  Uitgang 02 aan", "Module dim 'D':  Sortie 02 On"},
             {"D0302", "Dimmodule 'D':  Uitgang 03 toggle", "Module dim 'D':  Sortie 03 toggle"},
             {"D0410", "Dimmodule 'D':  Uitgang 04 op 10%", "Module dim 'D':  Sortie 04 sur 10%"},
             {"D0490", "Dimmodule 'D':  Uitgang 04 op 90%", "Module dim 'D':  Sortie 04 sur 90%"},
             {"D0403", "Dimmodule 'D':  Uitgang 04 op 03%", "Module dim 'D':  Sortie 04 sur 03%"},
         });
}

TEST_F(ActionSentenceTest, ALumenzaModuleSwitchesAndDims) {
  Expect(11,
         {
             {"L0100", "Lumenza module 'L':  Uitgang 01 uit", "Module Lumenza 'L':  Sortie 01 Off"},
             {"L0801", "Lumenza module 'L':  Uitgang 08 aan", "Module Lumenza 'L':  Sortie 08 On"},
             {"L0502", "Lumenza module 'L':  Uitgang 05 toggle",
              "Module Lumenza 'L':  Sortie 05 toggle"},
             {"L0450", "Lumenza module 'L':  Uitgang 04 op 50%",
              "Module Lumenza 'L':  Sortie 04 sur 50%"},
             {"L0550", "Lumenza module 'L':  Uitgang 05 op 50%",
              "Module Lumenza 'L':  Sortie 05 sur 50%"},
         });
}

TEST_F(ActionSentenceTest, AnAlarmModuleTurnsDetectorsOffAndOn) {
  Expect(5,
         {
             {"G0100", "Alarmmodule 'G':  Detector 01 uit", "Module alarme 'G':  Détecteur 01 Off"},
             {"G1201", "Alarmmodule 'G':  Detector 12 aan", "Module alarme 'G':  Détecteur 12 On"},
         });
  ExpectNothing(5, {"G0102", "G0103"});
}

TEST_F(ActionSentenceTest, ATemperatureModuleSetsRooms) {
  Expect(
      2,
      {
          {"E0999", "Temp. module 'E':  Basistemperatuur in alle ruimtes",
           "Module temp 'E':  Température de base dans tous les pièces"},
          {"E0921", "Temp. module 'E':  21°C in alle ruimtes",
           "Module temp 'E':  21°C dans tous les pièces"},
          {"E0900", "Temp. module 'E':  00°C in alle ruimtes",
           "Module temp 'E':  00°C dans tous les pièces"},
          {"E0399", "Temp. module 'E':  Basistemperatuur in ruimte 03",
           "Module temp 'E':  Température de base dans pièce 03"},
          {"E0821", "Temp. module 'E':  21°C in ruimte 08", "Module temp 'E':  21°C dans pièce 08"},
          {"E0105", "Temp. module 'E':  05°C in ruimte 01", "Module temp 'E':  05°C dans pièce 01"},
          {"E1640", "Temp. module 'E':  40°C in ruimte 16", "Module temp 'E':  40°C dans pièce 16"},
      });
}

TEST_F(ActionSentenceTest, ASimulationRunsOrNot) {
  Expect(7, {
                {"I0100", "Simulatiemodule 'I':  Simulatie uit",
                 "Module simulation 'I':  Simulation Off"},
                {"I0101", "Simulatiemodule 'I':  Simulatie aan",
                 "Module simulation 'I':  Simulation On"},
            });
  ExpectNothing(7, {"I0102", "I0199"});
}

TEST_F(ActionSentenceTest, TheMainZoneOfAnAudioInterfaceTakesTenActions) {
  const std::string dutch = "Audio interface 'H':  Hoofdzone 01";
  const std::string french = "Interface audio 'H':  Zone principale 01";
  Expect(6, {
                {"H0100", dutch + " uit", french + " Off"},
                {"H0101", dutch + " aan", french + " On"},
                {"H0102", dutch + " toggle", french + " toggle"},
                {"H0103", dutch + " volume +", french + " volume +"},
                {"H0104", dutch + " volume -", french + " volume -"},
                {"H0105", dutch + " bron +", french + " source +"},
                {"H0106", dutch + " treble +", french + " treble +"},
                {"H0107", dutch + " treble -", french + " treble -"},
                {"H0108", dutch + " bass +", french + " bass +"},
                {"H0109", dutch + " bass -", french + " bass -"},
            });
}

TEST_F(ActionSentenceTest, TheSecondaryZoneOfAnAudioInterfaceTakesFiveActions) {
  const std::string dutch = "Audio interface 'H':  Nevenzone 16";
  const std::string french = "Interface audio 'H':  Zone secondaire 16";
  Expect(6, {
                {"H1616", dutch + " uit", french + " Off"},
                {"H1617", dutch + " aan", french + " On"},
                {"H1618", dutch + " toggle", french + " toggle"},
                {"H1619", dutch + " volume +", french + " volume +"},
                {"H1620", dutch + " volume -", french + " volume -"},
            });
  for (int value = 0; value <= 99; ++value) {
    const bool known = value <= 9 || (value >= 16 && value <= 20);
    const std::string code = "H01" + std::string(value < 10 ? "0" : "") + std::to_string(value);
    EXPECT_EQ(ActionSentence(code, OwnSentences, 6).empty(), !known) << code;
  }
}

TEST_F(ActionSentenceTest, TheMainZoneIsSetToAValueThatKeepsItsLeadingZero) {
  const std::string dutch = "Audio interface 'H':  Hoofdzone ";
  const std::string french = "Interface audio 'H':  Zone principale ";
  Expect(6, {
                {"H1706", dutch + "1 op bron 06", french + "1 sur source 06"},
                {"H3216", dutch + "16 op bron 16", french + "16 sur source 16"},
                {"H3301", dutch + "1 volume op 01", french + "1 volume sur 01"},
                {"H4816", dutch + "16 volume op 16", french + "16 volume sur 16"},
                {"H4902", dutch + "1 trebble op 02", french + "1 trebble sur 02"},
                {"H6410", dutch + "16 trebble op 10", french + "16 trebble sur 10"},
                {"H6503", dutch + "1 bass op 03", french + "1 bass sur 03"},
                {"H8011", dutch + "16 bass op 11", french + "16 bass sur 11"},
                {"H8104", dutch + "1 balance op 04", french + "1 balance sur 04"},
                {"H9616", dutch + "16 balance op 16", french + "16 balance sur 16"},
                {"H8300", dutch + "3 balance op 00", french + "3 balance sur 00"},
            });
}

TEST_F(ActionSentenceTest, TheSecondaryZoneIsSetToAValueWithoutLeadingZero) {
  const std::string dutch = "Audio interface 'H':  Nevenzone ";
  const std::string french = "Interface audio 'H':  Zone secondaire ";
  Expect(6, {
                {"H3419", dutch + "2 volume op 3", french + "2 volume sur 3"},
                {"H3317", dutch + "1 volume op 1", french + "1 volume sur 1"},
                {"H4832", dutch + "16 volume op 16", french + "16 volume sur 16"},
                {"H8117", dutch + "1 balance op 1", french + "1 balance sur 1"},
                {"H9632", dutch + "16 balance op 16", french + "16 balance sur 16"},
            });
}

TEST_F(ActionSentenceTest, SourceTrebleAndBassHaveNoSecondaryZone) {
  Expect(6, {
                {"H1720", "Audio interface 'H':  Hoofdzone 1 op bron 20",
                 "Interface audio 'H':  Zone principale 1 sur source 20"},
                {"H5017", "Audio interface 'H':  Hoofdzone 2 trebble op 17",
                 "Interface audio 'H':  Zone principale 2 trebble sur 17"},
                {"H7032", "Audio interface 'H':  Hoofdzone 6 bass op 32",
                 "Interface audio 'H':  Zone principale 6 bass sur 32"},
            });
}

TEST_F(ActionSentenceTest, BehindTheAudioBlocksThereIsNothing) {
  ExpectNothing(6, {"H9701", "H9801", "H9932"});
}

TEST_F(ActionSentenceTest, OnlyAudioKnowsNumbersAbove16) {
  for (const int kind : {0, 1, 2, 4, 5, 7, 11}) ExpectNothing(kind, {"A1701", "A3300", "A9999"});
}

TEST_F(ActionSentenceTest, AContextIsSaidByItsNumberWhateverItsValue) {
  for (const int kind : AllKinds) {
    Expect(kind, {
                     {"S1202", "Sfeer 12", "Contexte 12"},
                     {"S1277", "Sfeer 12", "Contexte 12"},
                     {"S5002", "Sfeer 50", "Contexte 50"},
                     {"S0102", "Sfeer 01", "Contexte 01"},
                 });
  }
}

TEST_F(ActionSentenceTest, ACorvelaCodeIsSaidByItsFourDigits) {
  for (const int kind : AllKinds) {
    Expect(kind, {{"Z0512", "Corvela code: Z0512", "Corvela code: Z0512"},
                  {"Z9999", "Corvela code: Z9999", "Corvela code: Z9999"}});
  }
}

TEST_F(ActionSentenceTest, NoCodeAndNoLetterGiveNothing) {
  for (const int kind : AllKinds) {
    ExpectNothing(kind, {"", " ", "     ", "***", "T0101", "Y0101", "a0101", "*0101", "@0101",
                         "A01", "A010", "A01010"});
  }
}

}  // namespace
}  // namespace bkconf
