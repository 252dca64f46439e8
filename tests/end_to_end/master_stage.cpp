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

void MasterStage::OpenContext(int number, const std::vector<Action>& actions) {
  OpenScreen(texts().contexts);
  PickItem({texts().contextChooser}, number - 1, texts().context + std::to_string(number));
  AwaitRows(ContextRows(actions));
}

void MasterStage::ExpectFirstRows(std::vector<std::string> rows) {
  constexpr std::size_t inSight = 10;
  if (rows.size() > inSight) rows.resize(inSight);
  AwaitRows(rows);
}

void MasterStage::AddToContext(MasterImage& image, int number) {
  Contexts contexts = image.ReadContexts();
  std::vector<Action>& actions = contexts[number];
  OpenContext(number, actions);
  desktop().DoubleClick(AwaitPlace(actions.size() / 5, actions.size() % 5, ""));
  Await("panel", texts().edit);
  PickItem(Editor("Module:"), 18, "Z");
  PickItem(Editor("Code"), 6, "07");
  PickItem({"Code", texts().edit, 2}, 98, "99");
  ConfirmEdit();
  actions.push_back({'Z', 6, 98});
  AwaitRows(ContextRows(actions));
  LeaveMasterScreen();
  image.Put(contexts);
}

void MasterStage::AddTimeProgram(MasterImage& image) {
  std::vector<TimeProgram> programs = image.ReadTimePrograms();
  OpenScreen(texts().timePrograms);
  EnlargeScreen();
  desktop().DoubleClick(AwaitCell(std::to_string(programs.size() + 1), texts().actionColumn, ""));
  Await("panel", texts().edit);
  PickItem(Editor("Module:"), 19, "Z");
  PickItem(Editor("Code"), 2, "03");
  PickItem({"Code", texts().edit, 2}, 3, "04");
  PickInList(Editor(texts().time), {"End", "Return"}, "23:50");
  constexpr std::size_t everyDay = 9;
  PickItem(Editor(texts().day), everyDay - 1, texts().days[everyDay - 1]);
  ConfirmEdit();
  programs.push_back({23, 50, everyDay, {}, {'Z', 2, 3}});
  ExpectFirstRows(TimeRows(programs, false));
  AwaitFree(timeSlots - static_cast<int>(programs.size()));
  LeaveMasterScreen();
  image.Put(programs);
}

void MasterStage::AddLightProgram(MasterImage& image) {
  std::vector<LightProgram> programs = image.ReadLightPrograms();
  OpenScreen(texts().lightPrograms);
  desktop().DoubleClick(AwaitCell(std::to_string(programs.size() + 1), texts().actionColumn, ""));
  Await("panel", texts().edit);
  PickItem(Editor("Module:"), 19, "Z");
  PickItem(Editor("Code"), 0, "01");
  PickItem({"Code", texts().edit, 2}, 1, "02");
  ClickOn("radio button", texts().directions[0]);
  PickItem(ListPlace{texts().level}, 24, "25");
  ConfirmEdit();
  programs.push_back({0, 25, {'Z', 0, 1}});
  ExpectFirstRows(LightRows(programs, texts().directions));
  AwaitFree(lightSlots - static_cast<int>(programs.size()));
  LeaveMasterScreen();
  image.Put(programs);
}

// At the top of the display. The window manager does what it is asked for a while later.
void MasterStage::PlaceWindow(std::string_view title, int x, int height) {
  constexpr int top = 30;
  constexpr int width = 1000;
  const auto stands = [&] {
    const auto window = desktop().Find("frame", title);
    return window && window->height == height;
  };
  EXPECT_TRUE(WaitFor([&] {
    desktop().MoveActiveWindow(x, top);
    desktop().ResizeActiveWindow(width, height);
    return WaitFor(stands, nextTry);
  })) << "the window \""
      << title << "\" does not get its size";
  AwaitWindow(title);
}

void MasterStage::EnlargeScreen() {
  constexpr int height = 940;
  PlaceWindow(texts().title, 60, height);
}

void MasterStage::OpenPage() {
  ClickOn("push button", texts().configuration);
  Await("panel", texts().page);
  constexpr int height = 950;
  PlaceWindow(programName, 100, height);
}

void MasterStage::ScanModules() {
  const std::size_t before = TimesOnLine(false, "STOP\\r");
  ClickOn("push button", texts().scan);
  AwaitOnLine(true, "T80400\\r");
  EXPECT_TRUE(WaitFor([&] { return TimesOnLine(false, "STOP\\r") > before; }))
      << "the master tells no list";
  Await("push button", texts().scan);
}

void MasterStage::AddModule(char letter, int typeIndex, std::string_view type) {
  desktop().DoubleClick(AwaitCell("", texts().address, ""));
  Await("panel", texts().add);
  PickItem({"Module:", texts().add}, 0, std::string(1, letter));
  PickItem({"Type:", texts().add}, typeIndex, type);
  ClickOn("push button", captions().confirm);
  AwaitGone("panel", texts().add);
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
