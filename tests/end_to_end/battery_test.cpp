// The batteries of the kinds whose memory is one table: relays and dimmers, and those with a screen
// of their own.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "end_to_end/battery_stage.h"
#include "end_to_end/special_captions.h"

namespace end_to_end {
namespace {

constexpr int contextLetter = 18;  // place in the list of letters
constexpr int context = 7;         // to run
const std::string contextItem = std::to_string(context);
const std::string contextCode = "S0702";

bool IsDutch(const Captions& captions) {
  return captions.language == dutch.language;
}

// --- Relays and dimmers -------------------------------------------------------------------------

constexpr BatteryModule relay = {
    0,
    "Relay",
    "Relais A.BK1",
    {"Relaismodule KR7021 <adres = A>", "Module relais KR7021 <adresse = A>"}};
constexpr BatteryModule dimmer = {
    1,
    "Dimmer",
    "Dimmer C.BK1",
    {"Dimmodule KR73XX <adres = C>", "Module dim KR73XX <adresse = C>"}};
constexpr BatteryModule relayDc = {
    4,
    "RelayOnDirectCurrent",
    "Relais_DC B.BK1",
    {"Relaismodule DC KR7023 <adres = B>", "Module relais DC KR7023 <adresse = B>"}};
constexpr BatteryModule lumenza = {
    11,
    "DimmerWithSwitchedOutputs",
    "Dimmer D.BK1",
    {"Lumenza module KR7061 <adres = D>", "Module Lumenza KR7061 <adresse = D>"}};

class OutputBattery : public BatteryStage {
 protected:
  std::vector<Way> Ways() override {
    return {ButtonsWay(), SecondTimeWay(), OutputsWay(),
            DiagnosticsWay({LiveTest::Line, LiveTest::Buttons, LiveTest::Outputs})};
  }

 private:
  Way OutputsWay() {
    const int kind = GetParam().module->kind;
    if (kind == relay.kind || kind == relayDc.kind) return FunctionsWay();
    return StartValuesWay(kind == dimmer.kind ? captions().startValues
                                              : captions().outputFunctions);
  }
  // Output 5 gets a pulse of nine seconds.
  Way FunctionsWay() {
    const auto edit = [this] {
      const auto list = [this](std::string_view label) {
        return ListPlace{label, captions().editOutput};
      };
      PickItem(list(captions().output), 4, "5");
      PickItem(list(captions().function), 3, captions().pulse);
      PickItem(list(captions().time), 8, "9");
      ClickOn("push button", captions().confirm);
      AwaitCell("5", captions().functionColumn, captions().pulse);
    };
    return {captions().outputFunctions,
            [this, edit] { Visit(captions().outputFunctions, edit); },
            {{127, 3}, {139, 9}}};
  }
  Way StartValuesWay(const char* button) {
    const auto edit = [this] {
      const auto list = [this](std::string_view label) {
        return ListPlace{label, captions().editStart};
      };
      PickItem(list(captions().channel), 2, "3");
      PickItem(list(captions().startValue), 6, "70%");
      ClickOn("push button", captions().confirm);
      AwaitPlace(2, 1, "70 %");
    };
    return {button, [this, button, edit] { Visit(button, edit); }, {{125, 7}}};
  }
};

TEST_P(OutputBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(
    Of, OutputBattery, ::testing::ValuesIn(InBothLanguages({&relay, &dimmer, &relayDc, &lumenza})),
    BatteryName);

// --- Alarm --------------------------------------------------------------------------------------

constexpr BatteryModule alarm = {5, "Alarm", "Alarm G.BK1", {dutchAlarm.title, frenchAlarm.title}};

class AlarmBattery : public BatteryStage {
 protected:
  std::vector<Way> Ways() override {
    return {ButtonsWay(), SecondTimeWay(), DetectorsWay(),
            DiagnosticsWay({LiveTest::Line, LiveTest::Buttons, LiveTest::Detectors})};
  }

 private:
  // Detector 11, which is free, runs a context.
  void SetDetector(const AlarmCaptions& texts) {
    const std::string chooser = std::string(texts.detectors) + ":";
    PickItem({chooser}, 10, std::string(texts.detector) + "11");
    ClickOn("check box", texts.outOfService);
    AwaitChecked("check box", texts.inService);
    desktop().DoubleClick(AwaitPlace(0, 0, "***"));
    Await("panel", texts.edit);
    PickItem({"Module:", texts.edit}, contextLetter, "S");
    PickItem({texts.context, texts.edit}, context - 1, contextItem);
    ClickOn("push button", captions().confirm);
    AwaitGone("panel", texts.edit);
    AwaitPlace(0, 0, contextCode);
  }
  Way DetectorsWay() {
    const AlarmCaptions& texts = IsDutch(captions()) ? dutchAlarm : frenchAlarm;
    return {texts.detectors,
            [this, &texts] { Visit(texts.detectors, [&] { SetDetector(texts); }); },
            {{146, 1}, {209, 'S'}, {210, context - 1}, {211, 2}}};
  }
};

TEST_P(AlarmBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(Of, AlarmBattery, ::testing::ValuesIn(InBothLanguages({&alarm})),
                         BatteryName);

// --- Audio --------------------------------------------------------------------------------------

constexpr BatteryModule audio = {6, "Audio", "Audio H.BK1", {dutchAudio.title, frenchAudio.title}};

class AudioBattery : public BatteryStage {
 protected:
  std::vector<Way> Ways() override {
    const AudioCaptions& texts = IsDutch(captions()) ? dutchAudio : frenchAudio;
    // The volume that the first zone starts with.
    const auto edit = [this, &texts] {
      PickItem({"Zone", texts.settings}, 0, "1");
      PickItem({texts.volume, texts.main}, 8, "9");
    };
    return {ButtonsWay(),
            SecondTimeWay(),
            {texts.button, [this, &texts, edit] { Visit(texts.button, edit); }, {{181, 8}}},
            DiagnosticsWay({})};
  }
};

TEST_P(AudioBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(Of, AudioBattery, ::testing::ValuesIn(InBothLanguages({&audio})),
                         BatteryName);

// --- Simulation ---------------------------------------------------------------------------------

constexpr BatteryModule simulation = {
    7,
    "Simulation",
    "Simulatie I.BK1",
    {"Simulatiemodule KR7170 <adres = I>", "Module simulation KR7170 <adresse = I>"}};

class SimulationBattery : public BatteryStage {
 protected:
  std::vector<Way> Ways() override {
    const SimulationCaptions& texts = IsDutch(captions()) ? dutchSimulation : frenchSimulation;
    return {ButtonsWay(),
            SecondTimeWay(),
            {texts.settings,
             [this, &texts] { Visit(texts.settings, [&] { SetSimulation(texts); }); },
             {{123, 1}, {159, 'S'}, {160, context - 1}}}};
  }

 private:
  // It is turned on, and a context takes part behind the twelve of the house.
  void SetSimulation(const SimulationCaptions& texts) {
    ClickOn("check box", texts.off);
    AwaitChecked("check box", texts.on);
    desktop().DoubleClick(AwaitPlace(2, 2, "*"));
    Await("panel", texts.edit);
    PickItem({"Module:", texts.edit}, contextLetter, "S");
    PickItem({captions().context, texts.edit}, context - 1, contextItem);
    ClickOn("push button", captions().confirm);
    AwaitGone("panel", texts.edit);
    AwaitPlace(2, 2, "S07");
  }
};

TEST_P(SimulationBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(Of, SimulationBattery, ::testing::ValuesIn(InBothLanguages({&simulation})),
                         BatteryName);

// --- Infrared -----------------------------------------------------------------------------------

constexpr BatteryModule infrared = {
    8,
    "Infrared",
    "I.R. J.BK1",
    {"I.R. module  KR7180 <adres = J>", "Module I.R. KR7180 <adresse = J>"}};

class InfraredBattery : public BatteryStage {
 protected:
  std::vector<Way> Ways() override {
    const InfraredCaptions& texts = IsDutch(captions()) ? dutchInfrared : frenchInfrared;
    return {ButtonsWay(),
            SecondTimeWay(),
            {texts.settings,
             [this, &texts] { Visit(texts.settings, [&] { SetKey(texts); }); },
             {{236, 'S'}, {237, context - 1}, {238, 2}}}};
  }

 private:
  // The third action of key 5, which has one.
  void SetKey(const InfraredCaptions& texts) {
    ClickOn("check box", "5");
    Await("panel", std::string(texts.actions) + "5");
    PickItem({texts.row, texts.edit}, 2, "3");
    PickItem({"Module:", texts.edit}, contextLetter, "S");
    PickItem({captions().context, texts.edit}, context - 1, contextItem);
    ClickOn("push button", texts.insert);
    AwaitText(contextCode);
  }
};

TEST_P(InfraredBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(Of, InfraredBattery, ::testing::ValuesIn(InBothLanguages({&infrared})),
                         BatteryName);

}  // namespace
}  // namespace end_to_end
