// The live test of the detectors of an alarm module: what they see is shown, and their levels are
// changed, by modules of both versions.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "end_to_end/action_code.h"
#include "end_to_end/deadline.h"
#include "end_to_end/diagnostics_stage.h"

namespace end_to_end {
namespace {

constexpr int detectorCount = 9;  // in use in the demo house
constexpr int versionCell = 148;
constexpr int lastShortVersion = 64;
constexpr std::size_t lineSize = 16;  // of the later version in the log, with its end

// A row of the table on the screen; the lists are empty while nothing is in them.
struct ShownRow {
  std::string number;
  std::string contact;
  std::string measured;
  std::string logic;
  std::string level;
  bool enabled = false;
};

// What a module compares with, as it goes over the line.
struct Reference {
  int level = 0;
  int code = 0;
  friend bool operator==(const Reference&, const Reference&) = default;
};
using References = std::array<Reference, detectorCount>;

std::string ShownLevel(const Reference& reference) {
  const int range = reference.code / 10;
  return std::to_string(reference.level * (range == 0 ? 1 : 10 * range));
}

std::string ThreeDigits(int number) {
  return std::to_string(1000 + number).substr(1);
}

bool Holds(const Widget& outer, int y) {
  return outer.y <= y && y < outer.y + outer.height;
}

class DetectorTests : public DiagnosticsStage, public ::testing::WithParamInterface<ButtonModule> {
 protected:
  void OpenAndStart(const std::map<int, int>& cells = {}) {
    OpenDiagnostics(GetParam(), cells);
    panel_ = Panel(texts().detectors);
    Choose(texts().detectors);
    Start(texts().detectors);
    AwaitRunning(texts().detectors, texts().testingDetectors);
  }
  const std::string& panel() const { return panel_; }
  ListPlace LogicOf(int detector) const { return {texts().logic, panel_, detector}; }
  ListPlace LevelOf(int detector) const { return {texts().level, panel_, detector}; }

  std::vector<ShownRow> Table() const;
  // Waits until every row shows this contact, and what a module of the later version says.
  void ExpectTable(const References& references, const std::set<int>& open);
  void ExpectShortTable(const std::set<int>& open);

  // What the module has sent since the mark of a detector, from 0 on.
  std::vector<std::string> LinesAbout(int detector) const {
    std::vector<std::string> lines;
    for (const std::string& line : Heard(false)) {
      if (line.substr(1, 2) == TwoDigits(detector)) lines.push_back(line);
    }
    return lines;
  }
  bool HasMeasured(int detector, const std::string& measured) const {
    const std::vector<LogUnit> log = Log();
    return std::any_of(log.begin(), log.end(), [&](const LogUnit& each) {
      return !each.fromTool && each.text.size() == lineSize &&
             each.text.substr(1, 2) == TwoDigits(detector) &&
             std::to_string(std::stoi(each.text.substr(4, 5))) == measured;
    });
  }
  // Waits until each has told its reference, and gives the last of each.
  References AwaitReferences() {
    References references;
    for (int detector = 0; detector < detectorCount; ++detector) {
      WaitFor([&] { return !LinesAbout(detector).empty(); });
      const std::vector<std::string> lines = LinesAbout(detector);
      const std::string line = lines.empty() ? std::string(lineSize, '0') : lines.back();
      EXPECT_EQ(line.size(), lineSize) << line;
      references.at(static_cast<std::size_t>(detector)) = {std::stoi(line.substr(9, 3)),
                                                           std::stoi(line.substr(12, 2))};
    }
    return references;
  }
  std::vector<std::string> UpdateFrames(const References& references) const {
    constexpr int announcements = 50;
    std::vector<std::string> frames(announcements, "T88888\\n\\r");
    for (int detector = 0; detector < detectorCount; ++detector) {
      const Reference& each = references.at(static_cast<std::size_t>(detector));
      frames.push_back("A" + TwoDigits(detector) + ThreeDigits(each.level) + TwoDigits(each.code) +
                       "\\n\\r");
    }
    return frames;
  }
  void SetContact(int detector, const char* state) {
    module().Tell("detector " + std::to_string(detector) + " " + state);
  }

 private:
  std::string panel_;
};

std::vector<ShownRow> DetectorTests::Table() const {
  std::vector<Widget> labels;
  std::vector<Widget> lists;
  for (const Widget& each : desktop().Widgets()) {
    if (each.group != panel_) continue;
    if (each.role == "label") labels.push_back(each);
    if (each.role == "combo box") lists.push_back(each);
  }
  const auto isLeft = [](const Widget& one, const Widget& other) { return one.x < other.x; };
  std::sort(labels.begin(), labels.end(), isLeft);
  const auto textOf = [](const Widget& list) {
    return list.name == list.description ? std::string() : list.name;
  };
  std::vector<ShownRow> rows;
  for (const Widget& logic : lists) {
    if (logic.description != texts().logic) continue;
    ShownRow row;
    row.logic = textOf(logic);
    row.enabled = logic.enabled;
    const int middle = logic.y + logic.height / 2;
    for (const Widget& level : lists) {
      if (level.description != texts().level || !Holds(level, middle)) continue;
      row.level = textOf(level);
      row.enabled = row.enabled && level.enabled;
    }
    std::vector<std::string*> fields = {&row.number, &row.contact, &row.measured};
    for (const Widget& label : labels) {
      if (!Holds(label, middle) || fields.empty()) continue;
      // An empty label has the name of the frame around it.
      *fields.front() = label.name == panel_ ? "" : label.name;
      fields.erase(fields.begin());
    }
    rows.push_back(row);
  }
  return rows;
}

void DetectorTests::ExpectTable(const References& references, const std::set<int>& open) {
  std::vector<std::string> wanted;
  for (int detector = 0; detector < detectorCount; ++detector) {
    const Reference& each = references.at(static_cast<std::size_t>(detector));
    const bool isOpen = open.count(detector + 1) > 0;
    wanted.push_back(std::to_string(detector + 1) + "|" +
                     (isOpen ? texts().trigger : texts().rest) + "|" +
                     (each.code % 10 == 0 ? "<" : ">") + "|" + ShownLevel(each) + "|on");
  }
  std::vector<ShownRow> rows;
  std::vector<std::string> shown;
  WaitFor([&] {
    rows = Table();
    shown.clear();
    for (const ShownRow& row : rows) {
      shown.push_back(row.number + "|" + row.contact + "|" + row.logic + "|" + row.level +
                      (row.enabled ? "|on" : "|off"));
    }
    return shown == wanted;
  });
  ASSERT_EQ(shown, wanted);
  for (int detector = 0; detector < detectorCount; ++detector) {
    const std::string& measured = rows[static_cast<std::size_t>(detector)].measured;
    EXPECT_TRUE(HasMeasured(detector, measured))
        << "detector " << detector + 1 << " never told \"" << measured << "\"";
  }
}

void DetectorTests::ExpectShortTable(const std::set<int>& open) {
  std::vector<std::string> wanted;
  for (int detector = 1; detector <= detectorCount; ++detector) {
    wanted.push_back(std::to_string(detector) + "|" +
                     (open.count(detector) > 0 ? texts().trigger : texts().rest) + "||||off");
  }
  std::vector<std::string> shown;
  WaitFor([&] {
    shown.clear();
    for (const ShownRow& row : Table()) {
      shown.push_back(row.number + "|" + row.contact + "|" + row.measured + "|" + row.logic + "|" +
                      row.level + (row.enabled ? "|on" : "|off"));
    }
    return shown == wanted;
  });
  EXPECT_EQ(shown, wanted);
}

TEST_P(DetectorTests, LevelAndLogicAreChangedInTheModule) {
  OpenAndStart();
  References references = AwaitReferences();
  ExpectTable(references, {});
  SetContact(2, "open");
  SetContact(9, "open");
  ExpectTable(references, {2, 9});
  SetContact(2, "closed");
  ExpectTable(references, {9});

  PickInList(LevelOf(1), {"End", "Return"}, "5000");
  references[0] = {250, 20 + references[0].code % 10};
  PickItem(LevelOf(4), 150, "160");
  references[3] = {16, 10 + references[3].code % 10};
  const bool below = references[1].code % 10 == 0;
  StepInList(LogicOf(2), below ? 1 : 0, below ? ">" : "<");
  references[1].code += below ? 1 : -1;
  ExpectTable(references, {9});

  const std::vector<std::string> frames = UpdateFrames(references);
  AwaitIn(panel(), "push button", "Update");
  Mark();
  ClickIn(panel(), "push button", "Update");
  ExpectHeard(true, frames);
  EXPECT_EQ(Units(true).back().meaning, "detector 9 level " + ThreeDigits(references[8].level) +
                                            " code " + TwoDigits(references[8].code));
  AwaitStatus(texts().testingDetectors);
  // What the module tells from now on.
  Mark();
  EXPECT_EQ(AwaitReferences(), references);
  ExpectTable(references, {9});
  Stop(texts().detectors);
  LeaveByButton(title());
  CloseTool();
}

TEST_P(DetectorTests, EarlierModuleTellsItsContactsAlone) {
  OpenAndStart({{versionCell, lastShortVersion}});
  ExpectShortTable({});
  SetContact(5, "open");
  ExpectShortTable({5});
  EXPECT_FALSE(AwaitIn(panel(), "push button", "Update", false).enabled);
  Stop(texts().detectors);
  LeaveByButton(title());
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, DetectorTests, ::testing::Values(alarmButtons, alarmInFrench),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace end_to_end
