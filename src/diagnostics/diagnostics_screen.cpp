#include "diagnostics/diagnostics_screen.h"

#include <span>

#include "actions/action_code.h"
#include "diagnostics/clock_panel.h"
#include "diagnostics/live_test.h"
#include "diagnostics/panels.h"
#include "image/kind_set.h"
#include "link/transfer.h"
#include "session/language.h"
#include "session/module_title.h"

namespace bkconf {
namespace {

/// Output modules from this version on are tested with another tool.
constexpr double FirstZentrixVersion = 80;
constexpr int Outputs = 12;

struct TestChoice {
  std::string_view name;
  TextId caption;
  KindSet kinds;
  bool endsWithZentrix;  ///< not for output modules of the later versions
  GroupField* group;
  void (*load)();
  void (*open)();
  void (*leave)();
};

/// In the order in which they are offered.
constexpr auto TestChoices = std::to_array<TestChoice>({
    {"lineChoice", TextId::LineChoice, TestedKinds, false, &DiagnosticsScreen.line.group,
     LoadLineTest, OpenLineTest, nullptr},
    {"buttonsChoice", TextId::ButtonsAction, TestedKinds, true, &DiagnosticsScreen.buttons.group,
     LoadButtonTest, OpenButtonTest, nullptr},
    {"outputsChoice", TextId::OutputsChoice, OutputKinds, true, &DiagnosticsScreen.outputs.group,
     LoadOutputTest, OpenOutputTest, nullptr},
    {"lightChoice",
     TextId::LightChoice,
     {MasterKind},
     false,
     &DiagnosticsScreen.light.group,
     LoadLightTest,
     OpenLightTest,
     nullptr},
    {"clockChoice",
     TextId::ClockChoice,
     {MasterKind},
     false,
     &DiagnosticsScreen.clock.group,
     LoadClockTest,
     OpenClockTest,
     LeaveClockTest},
    {"detectorsChoice",
     TextId::DetectorsAction,
     {AlarmKind},
     false,
     &DiagnosticsScreen.detectors.group,
     LoadDetectorTest,
     OpenDetectorTest,
     nullptr},
});

}  // namespace

TestPanel::TestPanel(Screen& screen, const std::string& name)
    : group(screen, name + "Group"),
      help(screen, name + "Help"),
      start(screen, name + "Start"),
      stop(screen, name + "Stop") {}

LinePanel::LinePanel(Screen& screen)
    : TestPanel(screen, "line"), levelLabel(screen, "lineLevelLabel"), level(screen, "lineLevel") {}

ButtonPanel::ButtonPanel(Screen& screen)
    : TestPanel(screen, "buttons"),
      numberLabel(screen, "pressedLabel"),
      number(screen, "pressed"),
      historyLabel(screen, "historyLabel"),
      history(screen, "history") {}

DetectorFields::DetectorFields(Screen& screen, const std::string& name)
    : number(screen, name),
      contact(screen, name + "Contact"),
      measured(screen, name + "Measured"),
      logic(screen, name + "Logic"),
      level(screen, name + "Level") {}

DetectorPanel::DetectorPanel(Screen& screen)
    : TestPanel(screen, "detectors"),
      numberColumn(screen, "numberColumn"),
      contactColumn(screen, "contactColumn"),
      measuredColumn(screen, "measuredColumn"),
      logicColumn(screen, "logicColumn"),
      levelColumn(screen, "levelColumn"),
      update(screen, "update") {
  for (int detector = 1; detector <= MostDetectors; ++detector) {
    detectors.push_back(
        std::make_unique<DetectorFields>(screen, "detector" + std::to_string(detector)));
  }
}

LightPanel::LightPanel(Screen& screen) : TestPanel(screen, "light"), level(screen, "lightLevel") {}

ClockFields::ClockFields(Screen& screen, const std::string& name)
    : group(screen, name + "Group"),
      hourLabel(screen, name + "HourLabel"),
      hour(screen, name + "Hour"),
      dateLabel(screen, name + "DateLabel"),
      date(screen, name + "Date"),
      weekdayLabel(screen, name + "WeekdayLabel"),
      weekday(screen, name + "Weekday") {}

ClockPanel::ClockPanel(Screen& screen)
    : group(screen, "clockGroup"),
      master(screen, "masterClock"),
      pc(screen, "pcClock"),
      ask(screen, "ask"),
      synchronise(screen, "synchronise") {}

OutputPanel::OutputPanel(Screen& screen) : TestPanel(screen, "outputs") {
  for (int output = 1; output <= Outputs; ++output) {
    outputs.push_back(std::make_unique<ButtonField>(screen, "output" + std::to_string(output)));
  }
}

namespace {

std::vector<std::unique_ptr<ButtonField>> MakeChoices(Screen& screen) {
  std::vector<std::unique_ptr<ButtonField>> choices;
  for (const TestChoice& choice : TestChoices) {
    choices.push_back(std::make_unique<ButtonField>(screen, choice.name));
  }
  return choices;
}

}  // namespace

DiagnosticsScreenFields::DiagnosticsScreenFields()
    : Screen("DiagnosticsScreen"),
      heading(*this, "heading"),
      choiceGroup(*this, "choiceGroup"),
      choices(MakeChoices(*this)),
      notice(*this, "notice"),
      line(*this),
      buttons(*this),
      detectors(*this),
      light(*this),
      clock(*this),
      outputs(*this),
      status(*this, "status"),
      bar(*this, "bar"),
      leave(*this, "leave") {}

namespace {

/// The one whose panel is shown, or null.
const TestChoice* shownChoice = nullptr;

std::array<TestPanel*, 5> TestPanels() {
  return {&DiagnosticsScreen.line, &DiagnosticsScreen.buttons, &DiagnosticsScreen.detectors,
          &DiagnosticsScreen.light, &DiagnosticsScreen.outputs};
}

bool NeedsZentrix() {
  return OutputKinds.Contains(ActiveCode()) && ModuleVersion.Number() >= FirstZentrixVersion;
}

void EnableChoices(bool enabled) {
  for (std::size_t i = 0; i < TestChoices.size(); ++i) {
    const bool barred = TestChoices[i].endsWithZentrix && NeedsZentrix();
    DiagnosticsScreen.choices[i]->enabled = enabled && !barred;
  }
}

void ShowPanel(const TestChoice* choice) {
  if (shownChoice != nullptr && shownChoice->leave != nullptr) shownChoice->leave();
  shownChoice = choice;
  for (const TestChoice& each : TestChoices) each.group->visible = &each == choice;
  if (choice != nullptr) choice->open();
}

void Leave() {
  ShowPanel(nullptr);
  DiagnosticsScreen.shown = false;
}

/// The button to leave waits for the end of a test. Closing the window does not, or a module that
/// never answers would keep the user here.
void Close() {
  LeaveRunningTest();
  Leave();
}

void OfferChoices() {
  for (std::size_t i = 0; i < TestChoices.size(); ++i) {
    DiagnosticsScreen.choices[i]->visible = TestChoices[i].kinds.Contains(ActiveCode());
  }
  DiagnosticsScreen.notice.visible = NeedsZentrix();
}

void LoadChoices() {
  for (std::size_t i = 0; i < TestChoices.size(); ++i) {
    const TestChoice& choice = TestChoices[i];
    Show(DiagnosticsScreen.choices[i]->caption, choice.caption);
    DiagnosticsScreen.choices[i]->onClick = [&choice] {
      if (shownChoice != &choice) ShowPanel(&choice);
    };
    choice.load();
  }
}

}  // namespace

void EnableDiagnostics() {
  EnableChoices(true);
  for (TestPanel* panel : TestPanels()) {
    panel->start.enabled = true;
    panel->stop.enabled = false;
  }
  DiagnosticsScreen.clock.ask.enabled = true;
  DiagnosticsScreen.leave.enabled = true;
}

void DisableDiagnostics() {
  EnableChoices(false);
  for (TestPanel* panel : TestPanels()) panel->start.enabled = panel->stop.enabled = false;
  DiagnosticsScreen.clock.ask.enabled = DiagnosticsScreen.clock.synchronise.enabled = false;
  DiagnosticsScreen.leave.enabled = false;
}

void LoadDiagnosticsScreen() {
  Show(DiagnosticsScreen.title, TextId::DiagnosticsAction);
  Show(DiagnosticsScreen.heading.caption, TextId::DiagnosticsHeading);
  Show(DiagnosticsScreen.choiceGroup.caption, TextId::TestChoice);
  Show(DiagnosticsScreen.notice.caption, TextId::UseZentrix);
  Show(DiagnosticsScreen.leave.caption, TextId::Leave);
  DiagnosticsScreen.notice.colour = RestColour;
  for (TestPanel* panel : TestPanels()) {
    Show(panel->start.caption, TextId::Start);
    Show(panel->stop.caption, TextId::Stop);
    panel->stop.onClick = StopRunningTest;
  }
  shownChoice = nullptr;
  LoadChoices();
  LoadLiveTests();
  DiagnosticsScreen.leave.onClick = Leave;
  DiagnosticsScreen.onClose = Close;
  DiagnosticsScreen.escape = &DiagnosticsScreen.leave;
}

void OpenDiagnosticsScreen() {
  ShowActiveModel();
  DiagnosticsScreen.title = ModuleTitle();
  OfferChoices();
  ShowPanel(nullptr);
  EnableDiagnostics();
  DiagnosticsScreen.status.caption.clear();
  DiagnosticsScreen.bar.visible = false;
  DiagnosticsScreen.shown = true;
}

}  // namespace bkconf
