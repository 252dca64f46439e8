#include "end_to_end/diagnostics_stage.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

#include "end_to_end/deadline.h"
#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

constexpr const char* startButton = "Start";
constexpr const char* stopButton = "Stop";

bool OpensConversation(const LogUnit& unit) {
  const bool command = unit.fromTool && unit.text.size() == 8 && unit.text.ends_with("00\\r");
  return command || unit.text.starts_with("DISPL") || (unit.fromTool && unit.text[0] == 'D');
}

}  // namespace

void DiagnosticsStage::OpenDiagnostics(const ButtonModule& module, const std::map<int, int>& cells,
                                       const std::vector<std::string>& options) {
  UseModule(module);
  LayOutDirectory(*module.captions);
  const std::filesystem::path image = scratch() / "start.BK1";
  std::ofstream(image, std::ios::binary)
      << Text(WithCells(LinesOf(ContentOf(DemoFile(module.demoFile))), cells));
  std::vector<std::string> words = {"--image", image.string()};
  words.insert(words.end(), options.begin(), options.end());
  StartModule(module.kind, words);
  StartTool();
  ConnectAndRead();
  OpenTests();
}

void DiagnosticsStage::OpenTests() {
  ClickOn("push button", captions().diagnostics);
  AwaitWindow(title());
}

const DiagnosticsCaptions& DiagnosticsStage::texts() const {
  return captions().language == dutch.language ? dutchDiagnostics : frenchDiagnostics;
}

std::vector<Widget> DiagnosticsStage::AllIn(std::string_view group, std::string_view role) const {
  std::vector<Widget> found;
  for (const Widget& each : desktop().Widgets()) {
    if (each.role == role && each.group == group) found.push_back(each);
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const Widget& one, const Widget& other) { return one.y < other.y; });
  return found;
}

Widget DiagnosticsStage::AwaitIn(std::string_view group, std::string_view role,
                                 std::string_view name, bool enabled) {
  std::optional<Widget> found;
  const bool came = WaitFor([&] {
    for (const Widget& each : AllIn(group, role)) {
      if (each.name != name || (enabled && !each.enabled)) continue;
      const bool still = found && found->x == each.x && found->y == each.y;
      found = each;
      return still;
    }
    found.reset();
    return !tool().Running();
  });
  const std::string widget =
      std::string(role) + " \"" + std::string(name) + "\" in \"" + std::string(group) + "\"";
  if (!tool().Running()) throw std::runtime_error("the tool has ended; awaited was " + widget);
  if (!came || !found) throw std::runtime_error("there is no " + widget + ", or it is disabled");
  return *found;
}

void DiagnosticsStage::ClickIn(std::string_view group, std::string_view role,
                               std::string_view name) {
  desktop().Click(AwaitIn(group, role, name));
}

void DiagnosticsStage::Choose(const char* choice) {
  ClickIn(texts().choice, "push button", choice);
  Await("panel", Panel(choice));
}

void DiagnosticsStage::Start(const char* choice) {
  const Widget start = AwaitIn(Panel(choice), "push button", startButton);
  Mark();
  desktop().Click(start);
}

void DiagnosticsStage::AwaitRunning(const char* choice, std::string_view status) {
  AwaitIn(Panel(choice), "push button", stopButton);
  AwaitStatus(status);
  EXPECT_FALSE(AwaitIn(Panel(choice), "push button", startButton, false).enabled);
  EXPECT_FALSE(AwaitIn(title(), "push button", captions().leave, false).enabled);
}

void DiagnosticsStage::Stop(const char* choice, const std::string& frame, int count) {
  std::vector<std::string> wanted = Heard(true);
  wanted.insert(wanted.end(), static_cast<std::size_t>(count), frame);
  ClickIn(Panel(choice), "push button", stopButton);
  ExpectHeard(true, wanted);
  const std::vector<LogUnit> units = Units(true);
  const auto first = std::find_if(units.begin(), units.end(),
                                  [&](const LogUnit& each) { return each.text == frame; });
  ASSERT_NE(first, units.end());
  EXPECT_EQ(first->meaning, "the test ends");
  ExpectReady(choice);
}

void DiagnosticsStage::ExpectReady(const char* choice) {
  AwaitStatus("Ready");
  AwaitIn(Panel(choice), "push button", startButton);
  AwaitIn(title(), "push button", captions().leave);
  for (const Widget& each : AllIn(Panel(choice), "push button")) {
    if (each.name == stopButton) {
      EXPECT_FALSE(each.enabled) << "nothing runs";
    }
  }
}

std::vector<LogUnit> DiagnosticsStage::Units(bool fromTool) const {
  const std::vector<LogUnit> log = Log();
  std::vector<LogUnit> units;
  std::copy_if(log.begin() + static_cast<std::ptrdiff_t>(std::min(mark_, log.size())), log.end(),
               std::back_inserter(units), [fromTool](const LogUnit& each) {
                 return each.fromTool == fromTool && !OpensConversation(each);
               });
  return units;
}

std::vector<std::string> DiagnosticsStage::Heard(bool fromTool) const {
  std::vector<std::string> texts;
  for (const LogUnit& unit : Units(fromTool)) texts.push_back(unit.text);
  return texts;
}

void DiagnosticsStage::ExpectHeard(bool fromTool, const std::vector<std::string>& wanted) {
  std::vector<std::string> heard;
  WaitFor([&] {
    heard = Heard(fromTool);
    return heard.size() >= wanted.size();
  });
  EXPECT_EQ(heard, wanted);
}

std::vector<std::string> DiagnosticsStage::AwaitAnswer(std::size_t lines) {
  std::vector<std::string> answer;
  WaitFor([&] {
    answer = Heard(false);
    return !answer.empty() && answer.back() == "STOP\\r";
  });
  if (answer.size() != lines + 2) {
    throw std::runtime_error("the module has sent " + std::to_string(answer.size()) + " lines");
  }
  EXPECT_EQ(answer.front(), "M80000\\r");
  return {answer.begin() + 1, answer.end() - 1};
}

}  // namespace end_to_end
