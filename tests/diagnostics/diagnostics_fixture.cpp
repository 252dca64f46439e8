#include <algorithm>
#include <stdexcept>

#include "diagnostics/diagnostics_test.h"
#include "diagnostics/live_test.h"
#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"

namespace bkconf {

DiagnosticsTest::DiagnosticsTest() {
  Now = [this] { return now; };
}

DiagnosticsTest::~DiagnosticsTest() {
  Now = LocalNow;
}

void DiagnosticsTest::Open(int kind, int language, int version) {
  StartWithImage(kind, language);
  ShowImage(Origin::Read);
  if (kind == 5) {
    AlarmImage[148] = version;
    AlarmImage[123] = 4;
  } else {
    ModuleVersion = version;
  }
  OpenAgain();
  ASSERT_TRUE(DiagnosticsScreen.shown);
}

ButtonField& DiagnosticsTest::Choice(std::string_view name) {
  for (const auto& choice : DiagnosticsScreen.choices) {
    if (choice->name == name) return *choice;
  }
  throw std::runtime_error("no such choice");
}

void DiagnosticsTest::Begin(const ButtonField& start, std::string_view identity) {
  const std::string own = "DISPL" + std::to_string(ActiveCode());
  start.Click();
  // A module polls while the tool looks for it, and that is when the bar is drawn.
  MainWindow.transferBar.draw = [this] { line.Receive("M"); };
  ASSERT_TRUE(clock.RunUntil([] { return IdentityWait.Enabled(); }, 1000));
  MainWindow.transferBar.draw = nullptr;
  Tell(identity.empty() ? own : identity);
  ASSERT_TRUE(
      clock.RunUntil([] { return !IdentityWait.Enabled() && !CommandSend.Enabled(); }, 1000));
}

void DiagnosticsTest::Run(const ButtonField& start) {
  Begin(start);
  Tell("M80000");
}

void DiagnosticsTest::Tell(std::string_view text) {
  line.Receive(std::string(text) + "\r");
  clock.Advance(IdentityWait.Enabled() ? 10 : 2);
}

std::vector<FakeLine::Written> DiagnosticsTest::WritesSince() {
  const std::vector<FakeLine::Written> writes(
      line.written.begin() + static_cast<std::ptrdiff_t>(seen_), line.written.end());
  seen_ = line.written.size();
  return writes;
}

std::string DiagnosticsTest::WrittenSince() {
  std::string all;
  for (const FakeLine::Written& each : WritesSince()) all += each.characters;
  return all;
}

void DiagnosticsTest::ExpectFree(bool free) {
  for (const auto& choice : DiagnosticsScreen.choices) {
    if (choice->visible) {
      EXPECT_EQ(choice->enabled, free) << choice->name;
    }
  }
  for (const TestRow& row : TestRows()) {
    EXPECT_EQ(row.start->enabled, free) << row.name;
    if (free && row.stop != nullptr) {
      EXPECT_FALSE(row.stop->enabled) << row.name;
    }
  }
  EXPECT_EQ(DiagnosticsScreen.leave.enabled, free);
  EXPECT_EQ(RunningTest == nullptr, free);
  EXPECT_EQ(TransferUnderWay, !free);
  for (const MenuField* menu :
       {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info}) {
    EXPECT_EQ(menu->enabled, free) << menu->name;
  }
  EXPECT_EQ(MainWindow.moduleList.enabled, free);
  EXPECT_EQ(MainWindow.connect.enabled, free);
  EXPECT_EQ(AllVisibleActionsEnabled(), free);
  if (!free) return;
  for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
}

namespace {

/// A test of several kinds becomes a row of each.
void AddRows(std::vector<TestRow>& rows, const TestRow& row, const std::vector<int>& kinds) {
  for (const int kind : kinds) {
    rows.push_back(row);
    rows.back().name += "OfKind" + std::to_string(kind);
    rows.back().kind = kind;
  }
}

std::vector<TestRow> MakeTestRows() {
  DiagnosticsScreenFields& screen = DiagnosticsScreen;
  std::vector<TestRow> rows;
  AddRows(rows,
          {"Line", 0, 65, "lineChoice", &screen.line.start, &screen.line.stop, "T80100",
           "Scanning ingangslijn...", "Scanning ligne d'entrée...", 10, true},
          {0, 1, 4, 5, 9, 11});
  AddRows(rows,
          {"Buttons", 0, 65, "buttonsChoice", &screen.buttons.start, &screen.buttons.stop, "T80200",
           "Drukknoppen test...", "Test boutons poussoir...", 0, false},
          {0, 1, 4, 5, 9, 11});
  AddRows(rows,
          {"Outputs", 0, 65, "outputsChoice", &screen.outputs.start, &screen.outputs.stop, "T80300",
           "Uitgangen test...", "Test sorties...", 0, false},
          {0, 1, 4, 11});
  AddRows(rows,
          {"Light", 9, 65, "lightChoice", &screen.light.start, nullptr, "T80500",
           "Scanning capteur de luminosité...", "Scanning capteur de luminosité...", 10, true},
          {9});
  AddRows(rows,
          {"Clock", 9, 65, "clockChoice", &screen.clock.ask, nullptr, "T80300", "Diagnose",
           "Diagnostics", 2, true},
          {9});
  TestRow detectors = {"LongDetectors",
                       5,
                       65,
                       "detectorsChoice",
                       &screen.detectors.start,
                       &screen.detectors.stop,
                       "T80400",
                       "Detectoren test...",
                       "Test detecteurs...",
                       4,
                       false};
  AddRows(rows, detectors, {5});
  detectors.name = "ShortDetectors";
  detectors.version = 64;
  detectors.command = "T80300";
  AddRows(rows, detectors, {5});
  return rows;
}

}  // namespace

const std::vector<TestRow>& TestRows() {
  static const std::vector<TestRow> rows = MakeTestRows();
  return rows;
}

void PrintTo(const TestRow& row, std::ostream* out) {
  *out << row.name;
}

const TestRow& RowOf(std::string_view name) {
  const auto row = std::find_if(TestRows().begin(), TestRows().end(),
                                [name](const TestRow& each) { return each.name == name; });
  if (row == TestRows().end()) throw std::runtime_error("no such test");
  return *row;
}

std::string Repeated(int times, std::string_view text) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

}  // namespace bkconf
