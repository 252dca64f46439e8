#include "end_to_end/battery_stage.h"

#include <algorithm>
#include <map>

#include "end_to_end/deadline.h"
#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

// A display stores for more than a minute, and nobody knows how busy the machine is.
constexpr std::chrono::minutes longestWrite(4);

const std::vector<std::string> nothing;

// A module has a number in every cell. In a file there is none where a module sends none.
std::vector<std::string> AsStored(std::vector<std::string> lines) {
  for (std::string& line : lines) {
    if (line == "\r\n") line = " 0 \r\n";
  }
  return lines;
}

}  // namespace

std::vector<BatteryCase> InBothLanguages(const std::vector<const BatteryModule*>& modules) {
  std::vector<BatteryCase> cases;
  for (const BatteryModule* module : modules) {
    for (const Captions* captions : {&dutch, &french}) cases.push_back({module, captions});
  }
  return cases;
}

std::string BatteryName(const ::testing::TestParamInfo<BatteryCase>& each) {
  return std::string(each.param.module->name) + "In" + each.param.captions->languageName;
}

void BatteryStage::Run() {
  StartWithDemoHouse();
  ConnectAndRead();
  const std::vector<Way> ways = Ways();
  ExpectButtons(ways);
  for (const Way& way : ways) {
    SCOPED_TRACE(way.button);
    way.visit();
    wanted_ = WithCells(wanted_, way.cells);
  }
  wanted_ = WithCells(wanted_, FurtherCells());
  SendAll();
  CloseTool();

  StartTool();
  ReadAgain(ways);
  ExpectContent(SaveAs("Read"));
  CloseTool();

  StartTool();
  OpenFile("Read.BK1");
  ExpectContent(SaveAs("Opened"));
  CloseTool();
}

void BatteryStage::StartWithDemoHouse() {
  const auto& [module, captions] = GetParam();
  const auto language = static_cast<std::size_t>(captions->language);
  module_ = {captions, module->kind, module->name, module->demoFile,
             module->titles.at(language - 1)};
  UseModule(module_);
  wanted_ = LinesOf(ContentOf(DemoFile(module->demoFile)));
  StartWithDemo(module->kind, module->demoFile, *captions);
}

void BatteryStage::ExpectButtons(const std::vector<Way>& ways) {
  std::map<std::string, bool> wanted;  // whether it can be pressed
  for (const Way& way : ways) wanted[way.button] = true;
  std::map<std::string, bool> shown;
  WaitFor([&] {
    shown.clear();
    for (const Widget& each : AllIn(captions().moduleData, "push button")) {
      shown[each.name] = each.enabled;
    }
    return shown == wanted;
  });
  EXPECT_EQ(shown, wanted) << "a button without a way, or a way without one";
}

void BatteryStage::Visit(std::string_view button, const std::function<void()>& work) {
  ClickOn("push button", button);
  AwaitWindow(title());
  work();
  LeaveByButton(title());
}

void BatteryStage::SendAll() {
  const std::vector<std::string> stored = AsStored(wanted_);
  ClickOn("push button", captions().send);
  WaitFor([&] { return LinesOf(ContentOf(savedImage())) == stored; }, longestWrite);
  EXPECT_EQ(Differences(LinesOf(ContentOf(savedImage())), stored), nothing);
  AwaitText("Ready");
  Await("push button", captions().send);
}

void BatteryStage::ReadAgain(const std::vector<Way>& ways) {
  const std::size_t before = Reads();
  ClickOn("push button", captions().connect);
  EXPECT_TRUE(WaitFor([&] { return Reads() > before; })) << "the module is not read again";
  AwaitRead();
  for (const Way& way : ways) {
    SCOPED_TRACE(way.button);
    const std::size_t soFar = Reads();
    if (!way.read) continue;
    way.read();
    EXPECT_TRUE(WaitFor([&] { return Reads() > soFar; })) << "nothing is read";
  }
}

void BatteryStage::ExpectContent(const std::filesystem::path& file) {
  EXPECT_EQ(Differences(LinesOf(ContentOf(file)), wanted_), nothing) << file;
}

// --- Screens of many kinds ----------------------------------------------------------------------

// The third push-button runs context 7.
Way BatteryStage::ButtonsWay() {
  constexpr int button = 3;
  constexpr int firstCell = 6;
  constexpr int letters = 18;  // before that of the contexts
  constexpr int context = 7;
  const auto compose = [this] {
    const auto first = [this](std::string_view label) {
      return ListPlace{label, captions().firstFunction};
    };
    PickItem({captions().buttonChooser}, button - 1, std::to_string(button));
    PickItem(first("Module:"), letters, "S");
    PickItem(first(captions().context), context - 1, std::to_string(context));
    ClickOn("push button", captions().store);
    AwaitCell(captions().buttonRow + std::to_string(button), captions().firstColumn, "S0702");
  };
  return {captions().buttons,
          [this, compose] { Visit(captions().buttons, compose); },
          {{firstCell, 'S'}, {firstCell + 1, context - 1}, {firstCell + 2, 2}}};
}

// Three and a half seconds.
Way BatteryStage::SecondTimeWay() {
  constexpr int cell = 122;
  return {captions().secondTime,
          [this] {
            Visit(captions().secondTime,
                  [this] { PickItem({captions().secondTimeLabel}, 1, "3,5"); });
          },
          {{cell, 7}}};
}

// --- Live tests ---------------------------------------------------------------------------------

Way BatteryStage::DiagnosticsWay(const std::vector<LiveTest>& tests) {
  return {captions().diagnostics, [this, tests] {
            OpenTests();
            for (const LiveTest test : tests) RunTest(test);
            EXPECT_EQ(AllIn(DiagnosticsStage::texts().choice, "push button").size(), tests.size());
            LeaveByButton(title());
          }};
}

void BatteryStage::RunTest(LiveTest test) {
  switch (test) {
    case LiveTest::Line:
      return TestLine();
    case LiveTest::Buttons:
      return TestButtons();
    case LiveTest::Outputs:
      return TestOutputs();
    case LiveTest::Detectors:
      return TestDetectors();
    case LiveTest::Light:
      return TestLight();
    case LiveTest::Clock:
      return TestClock();
  }
}

// Ten samples, of which the last stays on the screen.
void BatteryStage::TestLine() {
  constexpr std::size_t samples = 10;
  constexpr int offset = 10'000;
  const char* line = DiagnosticsStage::texts().line;
  Choose(line);
  Start(line);
  const std::string last = AwaitAnswer(samples).back();
  ExpectReady(line);
  AwaitIn(Panel(line), "label", std::to_string(std::stoi(last.substr(1, 5)) - offset));
}

void BatteryStage::TestButtons() {
  const char* buttons = captions().buttons;
  Choose(buttons);
  Start(buttons);
  AwaitRunning(buttons, DiagnosticsStage::texts().testingButtons);
  module().Tell("button 3");
  AwaitIn(Panel(buttons), "label", "3");
  Stop(buttons);
}

void BatteryStage::TestOutputs() {
  constexpr int stopFramesOfOutputs = 20;
  const char* outputs = DiagnosticsStage::texts().outputs;
  Choose(outputs);
  Start(outputs);
  AwaitRunning(outputs, DiagnosticsStage::texts().testingOutputs);
  ClickIn(Panel(outputs), "push button", "04");
  ExpectHeard(true, {"T03\\n\\r"});
  EXPECT_EQ(Units(true).back().meaning, "output 4 on");
  Stop(outputs, "T99\\n\\r", stopFramesOfOutputs);
}

void BatteryStage::TestDetectors() {
  const DiagnosticsCaptions& texts = DiagnosticsStage::texts();
  Choose(texts.detectors);
  Start(texts.detectors);
  AwaitRunning(texts.detectors, texts.testingDetectors);
  AwaitIn(Panel(texts.detectors), "label", texts.rest);
  module().Tell("detector 2 open");
  AwaitIn(Panel(texts.detectors), "label", texts.trigger);
  Stop(texts.detectors);
}

void BatteryStage::TestLight() {
  constexpr std::size_t samples = 10;
  const char* light = DiagnosticsStage::texts().light;
  Choose(light);
  Start(light);
  const std::string last = AwaitAnswer(samples).back();
  ExpectReady(light);
  AwaitIn(Panel(light), "label", last.substr(1, 2));
}

// Asked only: what is set depends on the time of the test.
void BatteryStage::TestClock() {
  const DiagnosticsCaptions& texts = DiagnosticsStage::texts();
  Choose(texts.clock);
  Mark();
  ClickIn(Panel(texts.clock), "push button", texts.ask);
  const std::string time = AwaitAnswer(2).front();
  AwaitStatus("Ready");
  AwaitIn(texts.masterClock, "label", time.substr(1, 2) + ":" + time.substr(3, 2));
}

}  // namespace end_to_end
