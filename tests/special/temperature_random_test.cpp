// The screen in the hands of somebody who does anything: ten thousand picks, moves and texts in
// each of its looks, with a fixed seed.
#include <gtest/gtest.h>

#include <random>

#include "image/tables.h"
#include "link/receive_dispatcher.h"
#include "link/transfer.h"
#include "special/temperature_screen_test.h"

namespace bkconf {
namespace {

constexpr int Steps = 10'000;
constexpr unsigned Seed = 20260711;

class TemperatureRandomTest : public TemperatureScreenTest {
 protected:
  /// The library's distributions differ from one system to the next.
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  std::string SomeText() {
    const std::vector<std::string> texts = {"",   "x",  "0A", "ff", "FF",   "A",       "S",
                                            "05", "12", "13", "é",  "Pomp", "Ruimte ?"};
    if (Below(4) == 0) return "Ruimte " + std::to_string(Below(10));
    if (Below(10) == 0) return std::string(static_cast<std::size_t>(Below(2000)), 'z');
    return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
  }

  void Use(ListField& list) {
    if (Below(5) == 0) {
      list.Type(SomeText());
    } else {
      list.Pick(Below(static_cast<int>(list.items.size()) + 2) - 1);
    }
  }
  void Use(ScrollField& scroll) {
    const int moves[] = {scroll.Value() + scroll.step, scroll.Value() - scroll.step,
                         scroll.Value() + Below(200) - 100, Below(6400) - 3200};
    scroll.Move(moves[Below(4)]);
  }

  void Use(Field& field) {
    if (auto* list = dynamic_cast<ListField*>(&field)) Use(*list);
    if (auto* scroll = dynamic_cast<ScrollField*>(&field)) Use(*scroll);
    if (auto* option = dynamic_cast<OptionField*>(&field)) option->Choose();
    if (auto* check = dynamic_cast<CheckField*>(&field)) check->Set(Below(2) == 0);
  }

  /// Does something where a person could.
  void UseSomeFieldOf(const GroupField& look) {
    const std::vector<Field*> fields = UsableFields(look);
    Use(*fields[static_cast<std::size_t>(Below(static_cast<int>(fields.size())))]);
  }

  static void ExpectIn(const Table& table, int first, int last, int lowest, int highest) {
    for (int cell = first; cell <= last; ++cell) {
      ASSERT_TRUE(table[cell].IsNumber()) << table.name << cell;
      ASSERT_GE(table[cell].Number(), lowest) << table.name << cell;
      ASSERT_LE(table[cell].Number(), highest) << table.name << cell;
    }
  }
  static void ExpectRanges() {
    ExpectIn(TempRoomIds, 0, 63, 0, 255);
    ExpectIn(TempTail, 0, 63, 0, 255);
    for (int cell = 64; cell < 82; cell += 2) {
      ExpectIn(TempTail, cell, cell, 'A', 'R');
      ExpectIn(TempTail, cell + 1, cell + 1, 0, 11);
    }
    for (int cell = 0; cell < 672; cell += 2) {
      // Evenings may go on past midnight, as far as the scrolls do.
      ExpectIn(TempPeriods, cell, cell, 0, 50);
      ExpectIn(TempPeriods, cell + 1, cell + 1, 0, 59);
    }
    ExpectIn(TempSetpoints, 0, 335, 0, 40);
  }

 private:
  std::mt19937 random_{Seed};
};

TEST_F(TemperatureRandomTest, IdentitiesAndValvesChangeNothingButTheirOwnCells) {
  struct {
    int rooms;
    std::vector<std::string> changed;
  } const cases[] = {
      {8, {"TempRoomIds[0..63]", "TempTail[0..81]", "TempRoomsDirty"}},
      {3,
       {"TempRoomIds[0..23]", "TempTail[0..23]", "TempTail[64..69]", "TempTail[80..81]",
        "TempRoomsDirty"}},
  };
  for (const auto& row : cases) {
    OpenIds(row.rooms);
    for (int cell = 65; cell < 82; cell += 2) TempTail[cell] = 11;
    const Snapshot before = TakeSnapshot();
    for (int step = 0; step < Steps; ++step) {
      UseSomeFieldOf(Ids().group);
      if (step % 500 == 0) {
        TemperatureScreen.leave.Click();
        Open(Action::RoomIds);
      }
      if (step % 100 == 0) {
        ASSERT_NO_FATAL_FAILURE(ExpectRanges()) << step;
      }
    }
    ASSERT_NO_FATAL_FAILURE(ExpectRanges());
    ExpectOnlyChanged(before, row.changed);
  }
}

TEST_F(TemperatureRandomTest, PeriodsAndTemperaturesChangeNothingButTheirOwnCells) {
  struct {
    int rooms;
    std::vector<std::string> changed;
  } const cases[] = {
      {8, {"TempPeriods[0..671]", "TempSetpoints[0..335]", "TempProgramDirty"}},
      {3, {"TempPeriods[0..251]", "TempSetpoints[0..125]", "TempProgramDirty"}},
  };
  for (const auto& row : cases) {
    OpenProgram(row.rooms);
    const Snapshot before = TakeSnapshot();
    for (int step = 0; step < Steps; ++step) {
      UseSomeFieldOf(Program().group);
      if (step % 500 == 0) {
        TemperatureScreen.leave.Click();
        Open(Action::RoomProgram);
      }
      if (step % 100 == 0) {
        ASSERT_NO_FATAL_FAILURE(ExpectRanges()) << step;
      }
      for (const DayBandField::Part& part : Program().band.parts) {
        ASSERT_TRUE(part.from >= 0 && part.from < 1440 && part.to >= 0 && part.to <= 1440) << step;
      }
    }
    ASSERT_NO_FATAL_FAILURE(ExpectRanges());
    ExpectOnlyChanged(before, row.changed);
  }
}

TEST_F(TemperatureRandomTest, AnyAnswerShowsSomethingInTheRoomItIsOf) {
  Read(5);
  Open(Action::LiveTemperatures);
  FinishTransfer();
  const Snapshot before = TakeSnapshot();
  PendingCommand = "T83000";
  for (int step = 0; step < Steps; ++step) {
    const int room = Below(8);
    const int value = Below(1000);
    MainWindow.transferBar.Start(8);
    RxLine = std::string("M20") + std::to_string(64 + room) +
             std::string(3 - std::to_string(value).size(), '0') + std::to_string(value);
    ReceiveDispatcher();
    const std::string& shown =
        TemperatureScreen.live.rooms[static_cast<std::size_t>(room)]->caption;
    ASSERT_TRUE(shown == "---" || shown.starts_with("Ruimte " + std::to_string(room + 1))) << shown;
    ASSERT_EQ(shown == "---", room >= 5);
    if (Below(50) == 0) {
      TemperatureScreen.leave.Click();
      TemperatureScreen.shown = true;
    }
  }
  ExpectOnlyChanged(before, {"TempRoomIds[64..71]", "RxLine"});
}

}  // namespace
}  // namespace bkconf
