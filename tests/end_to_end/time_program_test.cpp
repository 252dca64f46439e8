// The screen of a master's time programmes: those of the demo house are seen, changed and sent.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/grid.h"
#include "end_to_end/master_stage.h"

namespace end_to_end {
namespace {

using Days = std::chrono::days;

constexpr int onDate = 8;
constexpr int everyDay = 9;

// So many days from now, at this place on the earth: day, month and the last two digits of the
// year.
std::array<int, 3> DateIn(int days) {
  const std::time_t now =
      std::chrono::system_clock::to_time_t(std::chrono::system_clock::now() + Days(days));
  std::tm date{};
  localtime_r(&now, &date);
  return {date.tm_mday, date.tm_mon + 1, date.tm_year % 100};
}

std::string TextOf(const std::array<int, 3>& date) {
  return TwoDigits(date[0]) + "-" + TwoDigits(date[1]) + "-" + TwoDigits(date[2]);
}

class TimePrograms : public MasterStage {
 protected:
  void Start(const Captions& language) {
    StartWithDemoMaster(language);
    programs_ = DemoMaster().ReadTimePrograms();
  }

  void ExpectList(bool datesPadded) {
    AwaitRows(TimeRows(programs_, datesPadded));
    AwaitFree(timeSlots - static_cast<int>(programs_.size()));
  }
  std::string Row(std::size_t place) const { return std::to_string(place + 1); }
  std::string CodeAt(std::size_t place) const {
    return CodeOf(programs_.at(place).action, Values::InBlocks);
  }
  void OpenEditorByMouse() {
    desktop().DoubleClick(AwaitCell(Row(programs_.size()), texts().actionColumn, ""));
    Await("panel", texts().edit);
  }
  void EraseByMouse(std::size_t place) {
    desktop().DoubleClick(AwaitCell(Row(place), texts().actionColumn, CodeAt(place)));
    AwaitText(texts().question);
    ClickOn("push button", captions().yes);
    AwaitGone("label", texts().question);
    programs_.erase(programs_.begin() + static_cast<std::ptrdiff_t>(place));
  }
  // While a date is asked for, neither button of the editor can be used.
  void ExpectDateIsAskedFor(bool asked) {
    const std::vector<Widget> widgets = desktop().Widgets();
    const auto leaves = std::count_if(widgets.begin(), widgets.end(), [this](const Widget& each) {
      return each.name == captions().leave && each.enabled;
    });
    EXPECT_EQ(leaves, asked ? 1 : 2) << "the screen's own can always be used";
    EXPECT_NE(IsEnabled("push button", captions().confirm), asked);
    EXPECT_EQ(GridOf(widgets, 2).rows.empty(), !asked) << "the calendar";
  }
  // The day of the current month.
  void ClickOnDay(int day) {
    std::optional<Widget> cell;
    EXPECT_TRUE(WaitFor([&] {
      for (const auto& week : GridOf(desktop().Widgets(), 2).rows) {
        for (const Widget& each : week) {
          const bool still = cell && cell->x == each.x && cell->y == each.y;
          if (each.name != std::to_string(day)) continue;
          cell = each;
          if (still) return true;
        }
      }
      return false;
    })) << "the calendar has no day "
        << day;
    if (cell) desktop().Click(*cell);
  }
  MasterImage Wanted() const {
    MasterImage image = DemoMaster();
    image.Put(programs_);
    return image;
  }

  std::vector<TimeProgram> programs_;  // what the tool is to hold
};

TEST_F(TimePrograms, AreAddedAndErasedByMouseAndSentAlone) {
  Start(french);
  ConnectAndRead();
  OpenScreen(texts().timePrograms);
  EnlargeScreen();
  ASSERT_EQ(programs_.size(), 25U);
  ExpectList(true);

  OpenEditorByMouse();
  PickLetter('D', "Module Lumenza");
  PickItem(Editor("Sortie:"), 5, "6");
  PickItem(Editor("Action:"), 2, "Toggle");
  PickInList(Editor(texts().time), {"End", "Return"}, "23:50");
  PickItem(Editor(texts().day), 8, "Quotidien");
  ConfirmEdit();
  programs_.push_back({23, 50, everyDay, {}, {'D', 5, 2}});
  ExpectList(false);
  desktop().Click(AwaitCell("26", texts().actionColumn, "D0602"));
  AwaitText("Module Lumenza 'D':  Sortie 06 toggle");

  OpenEditorByMouse();
  PickLetter('E', "Module temp.");
  ClickOn("radio button", "Base ds toutes les pièces");
  PickItem(Editor(texts().time), 2, "00:10");
  PickItem(Editor(texts().day), 7, "A la date du");
  Await("push button", captions().confirm, false);
  ExpectDateIsAskedFor(true);
  const auto month = DateIn(0);
  ClickOnDay(15);
  const std::array<int, 3> date = {15, month[1], month[2]};
  AwaitListText(Editor(texts().day), TextOf(date));
  ExpectDateIsAskedFor(false);
  ConfirmEdit();
  programs_.push_back({0, 10, onDate, date, {'E', 8, 99}});
  ExpectList(false);

  EraseByMouse(2);
  ExpectList(false);
  LeaveMasterScreen();
  const std::vector<std::string> before = Commands();
  EXPECT_EQ(before, (std::vector<std::string>{"T80000", "T82000"}));
  ClickOn("push button", captions().send);
  ExpectSentTables(before, {MasterTable::TimePrograms}, Wanted());
  CloseTool();
}

TEST_F(TimePrograms, AreAddedAndErasedByKeyboardAndSentAlone) {
  Start(dutch);
  PressButton(captions().connect);
  AwaitRead();
  PressButton(texts().timePrograms);
  AwaitScreen();
  EnlargeScreen();
  ExpectList(true);

  // The first key selects the cell that the cursor stands on.
  const auto isTable = [](const Widget& each) { return each.role == "table"; };
  std::vector<std::string> keys(programs_.size() + 1, "Down");
  keys.insert(keys.end(), {"Right", "Insert"});
  TabTo(isTable);
  desktop().Press(keys);
  Await("panel", texts().edit);
  StepToLetter('G', "Alarmmodule");
  StepInList(Editor("Detector:"), 11, "12");
  StepInList(Editor("Actie:"), 1, "Aan");
  StepInList(Editor(texts().time), 14, "01:10");
  StepInList(Editor(texts().day), 7, "Op datum");
  // Tomorrow: the keyboard is in the calendar, which stands on today.
  const auto tomorrow = DateIn(1);
  Await("push button", captions().confirm, false);
  TabTo(isTable);
  desktop().Press({"Right", "Return"});
  AwaitListText(Editor(texts().day), TextOf(tomorrow));
  TabTo("push button", captions().confirm);
  desktop().Press({"space"});
  AwaitGone("panel", texts().edit);
  programs_.push_back({1, 10, onDate, tomorrow, {'G', 11, 1}});
  ExpectList(false);

  TabTo(isTable);
  desktop().Press({"Up", "Up", "Up", "Delete"});
  AwaitText(texts().question);
  desktop().Press({"Return"});
  AwaitGone("label", texts().question);
  programs_.erase(programs_.end() - 4);
  ExpectList(false);
  LeaveScreen(texts().title);
  AwaitWindow(programName);
  const std::vector<std::string> before = Commands();
  PressButton(captions().send);
  ExpectSentTables(before, {MasterTable::TimePrograms}, Wanted());
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
