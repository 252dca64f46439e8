// Every action that can be chosen, and every three cells that a file can hold.
#include <gtest/gtest.h>

#include <functional>

#include "actions/action_sentence.h"
#include "actions/picker_test.h"
#include "image/module_directory.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

/// What an action means, as plain numbers.
struct Record {
  int letter;
  int index;
  int value;
  auto operator<=>(const Record&) const = default;
};

/// What a code says, read back without the code that wrote it.
Record Decoded(const std::string& code) {
  const int number = std::stoi(code.substr(1, 2));
  const int value = std::stoi(code.substr(3, 2));
  const bool fromOne = code[0] == 'Z' || (code[0] != 'S' && number > 16);
  return {code[0], number - 1, fromOne ? value - 1 : value};
}

class EveryRecordTest : public PickerTest {
 protected:
  /// Stores what is chosen as a screen does, and reads it back from the code.
  void ExpectFound(const Record& record) {
    const auto cells = picker.Compose();
    if (!cells) {
      ADD_FAILURE() << Code(record) << " is refused";
      return;
    }
    for (int i = 0; i < 3; ++i) table[i] = (*cells)[static_cast<std::size_t>(i)];
    const std::string code = NormalisedActionCode(table, 0);
    if (Decoded(code) != record) ADD_FAILURE() << code << " is not " << Code(record);
    for (int i = 0; i < 3; ++i) {
      if (table[i] != (*cells)[static_cast<std::size_t>(i)]) ADD_FAILURE() << code << " changed";
    }
    if (!codes.insert(code).second) ADD_FAILURE() << code << " stands for two actions";
  }
  static std::string Code(const Record& record) {
    return std::string(1, static_cast<char>(record.letter)) + " " + std::to_string(record.index) +
           " " + std::to_string(record.value);
  }

  static void ForEachModuleLetter(const std::function<void(char)>& visit) {
    for (char letter = 'A'; letter <= 'R'; ++letter) visit(letter);
  }
  /// Outputs 1 to `outputs`, each with all its actions.
  void ExpectOutputs(char letter, int outputs, const std::vector<int>& values) {
    for (int output = 0; output < outputs; ++output) {
      picker.output.list.Pick(output);
      ASSERT_EQ(picker.action.list.items.size(), values.size());
      for (std::size_t place = 0; place < values.size(); ++place) {
        picker.action.list.Pick(static_cast<int>(place));
        ExpectFound({letter, output, values[place]});
      }
    }
  }
  void ExpectZone(char letter, int zone, int firstValue, int added,
                  const std::vector<int>& blocks) {
    picker.output.list.Pick(zone);
    for (int place = 0; place < firstValue; ++place) {
      picker.action.list.Pick(place);
      ExpectFound({letter, zone, place + added});
    }
    for (std::size_t block = 0; block < blocks.size(); ++block) {
      picker.action.list.Pick(firstValue + static_cast<int>(block));
      for (int value = 0; value < 16; ++value) {
        picker.value.list.Pick(value);
        ExpectFound({letter, blocks[block] + zone, value + added});
      }
    }
  }

  const std::vector<int> switching = {0, 1, 2};
  const std::vector<int> dimming = {0, 1, 2, 10, 20, 30, 40, 50, 60, 70, 80, 90};
  Table table{"Some", 3};
  std::set<std::string> codes;
};

TEST_F(EveryRecordTest, OfRelaysIsFoundInItsCode) {
  for (const int type : {Relay, RelayDc}) {
    codes.clear();
    ForEachModuleLetter([&](char letter) {
      Begin(1, 8, 'A');
      PickTarget(letter, type);
      ExpectOutputs(letter, 12, switching);
    });
    EXPECT_EQ(codes.size(), 18U * 12 * 3);
  }
}

TEST_F(EveryRecordTest, OfDimmersIsFoundInItsCode) {
  Begin(1, 8, 'A');
  ForEachModuleLetter([&](char letter) {
    PickTarget(letter, Dimmer);
    ExpectOutputs(letter, 4, dimming);
  });
  EXPECT_EQ(codes.size(), 18U * 4 * 12);
}

TEST_F(EveryRecordTest, OfLumenzaModulesIsFoundInItsCode) {
  Begin(1, 8, 'A');
  ForEachModuleLetter([&](char letter) {
    PickTarget(letter, Lumenza);
    ExpectOutputs(letter, 4, dimming);
    for (int output = 4; output < 8; ++output) {
      picker.output.list.Pick(output);
      ASSERT_EQ(picker.action.list.items.size(), 3U);
      for (int place = 0; place < 3; ++place) {
        picker.action.list.Pick(place);
        ExpectFound({letter, output, place});
      }
    }
  });
  EXPECT_EQ(codes.size(), 18U * (4 * 12 + 4 * 3));
}

TEST_F(EveryRecordTest, OfDetectorsIsFoundInItsCode) {
  Begin(1, 8, 'A');
  ForEachModuleLetter([&](char letter) {
    PickTarget(letter, Alarm);
    ExpectOutputs(letter, 12, {0, 1});
  });
  EXPECT_EQ(codes.size(), 18U * 12 * 2);
}

TEST_F(EveryRecordTest, OfTemperaturesIsFoundInItsCode) {
  Begin(1, 8, 'A');
  ForEachModuleLetter([&](char letter) {
    PickTarget(letter, Temperature);
    auto& [roomDegrees, roomBase, allDegrees, allBase] = picker.temperatures;
    for (int room = 0; room < 8; ++room) {
      roomDegrees.option.Choose();
      roomDegrees.room.Pick(room);
      for (int degrees = 0; degrees <= 40; ++degrees) {
        roomDegrees.temperature.Pick(degrees);
        ExpectFound({letter, room, degrees});
      }
      roomBase.option.Choose();
      roomBase.room.Pick(room);
      ExpectFound({letter, room, 99});
    }
    allDegrees.option.Choose();
    for (int degrees = 0; degrees <= 40; ++degrees) {
      allDegrees.temperature.Pick(degrees);
      ExpectFound({letter, 8, degrees});
    }
    allBase.option.Choose();
    ExpectFound({letter, 8, 99});
  });
  EXPECT_EQ(codes.size(), 18U * 9 * 42);
}

TEST_F(EveryRecordTest, OfAudioIsFoundInItsCode) {
  Begin(1, 8, 'A');
  ForEachModuleLetter([&](char letter) {
    for (int zone = 0; zone < 16; ++zone) {
      PickTarget(letter, Audio);
      picker.mainZone.Choose();
      ExpectZone(letter, zone, 10, 0, {16, 32, 48, 64, 80});
      picker.secondaryZone.Choose();
      ExpectZone(letter, zone, 5, 16, {32, 80});
    }
  });
  EXPECT_EQ(codes.size(), 18U * 16 * (10 + 5 * 16 + 5 + 2 * 16));
}

TEST_F(EveryRecordTest, OfSimulationsIsFoundInItsCode) {
  Begin(1, 8, 'A');
  ForEachModuleLetter([&](char letter) {
    PickTarget(letter, Simulation);
    picker.simulationOff.Choose();
    ExpectFound({letter, 0, 0});
    picker.simulationOn.Choose();
    ExpectFound({letter, 0, 1});
  });
  EXPECT_EQ(codes.size(), 18U * 2);
}

TEST_F(EveryRecordTest, OfContextsAndCorvelaCodesIsFoundInItsCode) {
  PickLetter('S');
  for (int context = 0; context < 50; ++context) {
    picker.output.list.Pick(context);
    ExpectFound({'S', context, 2});
  }
  PickLetter('Z');
  for (int first = 0; first < 99; ++first) {
    picker.output.list.Pick(first);
    for (int second = 0; second < 99; ++second) {
      picker.action.list.Pick(second);
      ExpectFound({'Z', first, second});
    }
  }
  EXPECT_EQ(codes.size(), 50U + 99 * 99);
}

/// The sentences of any three cells: none of them may fail, whatever a file brought.
class AnyCellsTest : public SessionTest {
 protected:
  AnyCellsTest() {
    Language = 2;
    ActiveModuleType = 0;
    for (std::size_t i = 0; i < std::size(AllKinds); ++i) {
      DirectoryLetter(static_cast<int>(i)) = static_cast<int>('A' + i);
      DirectoryType(static_cast<int>(i)) = AllKinds[i];
    }
    ButtonImage[121] = 'A';
  }

  static void ExpectSound(const std::string& sentence, const std::string& code) {
    // Nothing, or a line of characters that a label can show.
    if (sentence.size() == 1 || FromWindows1252(ToWindows1252(sentence)) != sentence) {
      ADD_FAILURE() << code << " says '" << sentence << "'";
    }
  }
  static void Say(const Cell& target, const Cell& index, const Cell& value) {
    for (const ValueForm form : {ValueForm::OneBasedInBlocks, ValueForm::AsStored}) {
      const std::string code = ActionCode(target, index, value, form);
      ExpectSound(OwnActionSentence(code), code);
      for (const SentenceVariant* variant :
           {&MasterSentences, &ContextSentences, &TimeProgramSentences, &LightProgramSentences}) {
        ExpectSound(MasterActionSentence(code, *variant), code);
      }
    }
  }
  static std::vector<Cell> Wide() {
    std::vector<Cell> cells = {Cell(), "",     "*",   "***", "A",   "word", " ",          "99",
                               "00",   "08",   " 7 ", "-5",  "1e5", ".",    "2147483648", -1,
                               -100,   -101,   -999,  0.5,   15.5,  64.5,   65.5,         83.5,
                               -0.5,   1e-300, 1e9,   1e300, -1e300};
    for (const int number : {0, 1, 2, 9, 15, 16, 17, 42, 65, 83, 90, 98, 99, 100, 199, 255, 256}) {
      cells.emplace_back(number);
    }
    return cells;
  }
};

TEST_F(AnyCellsTest, OfEveryKindOfContentHaveASentenceOrNone) {
  const std::vector<Cell> wide = Wide();
  std::vector<Cell> targets = wide;
  for (const int letter : {67, 68, 69, 70, 71, 72, 82, 84}) targets.emplace_back(letter);
  for (const Cell& target : targets) {
    for (const Cell& index : wide) {
      for (const Cell& value : wide) Say(target, index, value);
    }
  }
}

TEST_F(AnyCellsTest, OfEveryByteHaveASentenceOrNone) {
  for (int target = 0; target <= 255; ++target) {
    for (const int number : {0, 8, 15, 16, 33, 95, 99, 255}) Say(target, number, 255 - target);
  }
  for (int index = 0; index <= 255; ++index) {
    for (int value = 0; value <= 255; ++value) {
      // Each kind of the list in turn.
      Say('A' + (index + value) % 11, index, value);
    }
  }
}

/// For each letter the index runs through all bytes, and the value too, at another stride: every
/// letter meets every index and every value.
TEST_F(AnyCellsTest, OfEveryLetterWithEveryIndexAndEveryValueHaveASentenceOrNoneInBothLanguages) {
  for (const int language : {1, 2}) {
    Language = language;
    for (int target = 0; target <= 255; ++target) {
      for (int index = 0; index <= 255; ++index) Say(target, index, (7 * index + target) % 256);
    }
  }
}

TEST_F(AnyCellsTest, AreNormalisedToACodeOfFiveCharactersWhereTheyAreBytes) {
  Table table("Some", 3);
  for (int target = 0; target <= 255; ++target) {
    for (const int number : {0, 15, 16, 99, 255}) {
      table[0] = target;
      table[1] = table[2] = number;
      const std::string code = NormalisedActionCode(table, 0);
      if (HoldsAction(target)) {
        ASSERT_EQ(code.size(), 5U) << code;
      } else {
        ASSERT_EQ(code, "***");
      }
    }
  }
}

}  // namespace
}  // namespace bkconf
