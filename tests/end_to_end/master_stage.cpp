#include "end_to_end/master_stage.h"

#include "end_to_end/deadline.h"

namespace end_to_end {
namespace {

bool IsCommand(const LogUnit& unit) {
  return unit.fromTool && unit.text.size() == 8 && unit.text.ends_with("000\\r");
}

}  // namespace

void MasterStage::StartWithDemoMaster(const Captions& language) {
  LayOutDirectory(language);
  StartModule(9, {"--image", DemoFile("Master.BK1").string(), "--save", savedImage().string()});
  StartTool();
}

const MasterCaptions& MasterStage::texts() const {
  return captions().language == dutch.language ? dutchMaster : frenchMaster;
}

MasterImage MasterStage::DemoMaster() {
  return MasterImage(ContentOf(DemoFile("Master.BK1")));
}

void MasterStage::AwaitFree(int number) {
  AwaitText(texts().freeMemory);
  AwaitText(std::to_string(number));
}

void MasterStage::PickLetter(char letter, const std::string& type) {
  PickItem(Editor("Module:"), letter - 'A', std::string(1, letter));
  AwaitListText(Editor("Type:"), type);
}

void MasterStage::StepToLetter(char letter, const std::string& type) {
  StepInList(Editor("Module:"), letter - 'A', std::string(1, letter));
  AwaitListText(Editor("Type:"), type);
}

void MasterStage::ConfirmEdit() {
  ClickOn("push button", captions().confirm);
  AwaitGone("panel", texts().edit);
}

std::vector<std::string> MasterStage::TimeRows(const std::vector<TimeProgram>& programs,
                                               bool datesPadded) const {
  const auto number = [datesPadded](int part) {
    return datesPadded ? TwoDigits(part) : std::to_string(part);
  };
  constexpr int onDate = 8;
  std::vector<std::string> rows;
  for (const TimeProgram& each : programs) {
    const auto& [day, month, year] = each.date;
    rows.push_back(std::to_string(rows.size() + 1) + "|" + CodeOf(each.action, Values::InBlocks) +
                   "|" + TwoDigits(each.hour) + ":" + TwoDigits(each.minute) + "|" +
                   (each.day == onDate ? number(day) + "-" + number(month) + "-" + number(year)
                                       : texts().days.at(static_cast<std::size_t>(each.day) - 1)));
  }
  rows.push_back(std::to_string(rows.size() + 1) + "|||");
  return rows;
}

std::vector<std::string> MasterStage::LightRows(
    const std::vector<LightProgram>& programs, const std::array<const char*, 2>& directions) const {
  std::vector<std::string> rows;
  for (const LightProgram& each : programs) {
    rows.push_back(std::to_string(rows.size() + 1) + "|" + CodeOf(each.action, Values::OfCodes) +
                   "|" + directions.at(static_cast<std::size_t>(each.direction)) + "|" +
                   TwoDigits(each.level));
  }
  rows.push_back(std::to_string(rows.size() + 1) + "|||");
  return rows;
}

std::vector<std::string> MasterStage::Commands() const {
  std::vector<std::string> commands;
  for (const LogUnit& unit : Log()) {
    if (IsCommand(unit)) commands.push_back(unit.text.substr(0, 6));
  }
  return commands;
}

void MasterStage::ExpectSentTables(const std::vector<std::string>& before,
                                   const std::vector<MasterTable>& tables,
                                   const MasterImage& wanted) {
  std::string saved;
  const bool stored = WaitFor([&] {
    saved = ContentOf(savedImage());
    return saved == wanted.Content();
  });
  EXPECT_TRUE(stored) << "the module holds\n" << saved;
  AwaitText("Ready");
  Await("push button", captions().send);
  std::vector<std::string> commands = before;
  for (const MasterTable table : tables) {
    commands.push_back("T7" + std::to_string(static_cast<int>(table)) + "000");
    ExpectFrames(commands.back(), wanted.FramesOf(table));
  }
  EXPECT_EQ(Commands(), commands);
}

// The command, its acknowledgement, and then the frames, to which the module says nothing. The
// burst that wakes the module belongs to the next conversation.
void MasterStage::ExpectFrames(const std::string& command, const std::vector<std::string>& wanted) {
  std::vector<std::string> sent;
  std::vector<std::string> answered;
  bool inside = false;
  for (const LogUnit& unit : Log()) {
    if (IsCommand(unit)) {
      inside = unit.text.starts_with(command);
    } else if (unit.fromTool && unit.text.starts_with('D')) {
      inside = false;
    } else if (inside) {
      (unit.fromTool ? sent : answered).push_back(unit.text);
    }
  }
  EXPECT_EQ(sent, wanted) << command;
  EXPECT_EQ(answered, std::vector<std::string>{"M70000\\r"});
}

}  // namespace end_to_end
