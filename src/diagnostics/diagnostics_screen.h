// The screen of the live tests: it talks to one module and shows what that sees of its input line,
// push-buttons, detectors, light sensor and clock, and switches its outputs.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "platform/field.h"

namespace bkconf {

/// A panel with a test that is started and, where the user can stop it, stopped.
struct TestPanel {
  TestPanel(Screen& screen, const std::string& name);

  GroupField group;
  LabelField help;
  ButtonField start;
  ButtonField stop;
};

struct LinePanel : TestPanel {
  explicit LinePanel(Screen& screen);

  LabelField levelLabel;
  LabelField level;
};

struct ButtonPanel : TestPanel {
  explicit ButtonPanel(Screen& screen);

  LabelField numberLabel;
  LabelField number;
  LabelField historyLabel;
  ListBoxField history;
};

/// One line of the table of detectors.
struct DetectorFields {
  DetectorFields(Screen& screen, const std::string& name);

  LabelField number;
  LabelField contact;
  LabelField measured;
  ListField logic;
  ListField level;
};

struct DetectorPanel : TestPanel {
  explicit DetectorPanel(Screen& screen);

  LabelField numberColumn;
  LabelField contactColumn;
  LabelField measuredColumn;
  LabelField logicColumn;
  LabelField levelColumn;
  std::vector<std::unique_ptr<DetectorFields>> detectors;
  ButtonField update;
};

struct LightPanel : TestPanel {
  explicit LightPanel(Screen& screen);

  LabelField level;
};

/// A clock as it is shown.
struct ClockFields {
  ClockFields(Screen& screen, const std::string& name);

  GroupField group;
  LabelField hourLabel;
  LabelField hour;
  LabelField dateLabel;
  LabelField date;
  LabelField weekdayLabel;
  LabelField weekday;
};

struct ClockPanel {
  explicit ClockPanel(Screen& screen);

  GroupField group;
  ClockFields master;
  ClockFields pc;
  ButtonField ask;
  ButtonField synchronise;
};

struct OutputPanel : TestPanel {
  explicit OutputPanel(Screen& screen);

  std::vector<std::unique_ptr<ButtonField>> outputs;
};

struct DiagnosticsScreenFields : Screen {
  DiagnosticsScreenFields();

  LabelField heading;
  GroupField choiceGroup;
  std::vector<std::unique_ptr<ButtonField>> choices;  ///< one for each row of TestChoices
  LabelField notice;                                  ///< what to use instead

  LinePanel line;
  ButtonPanel buttons;
  DetectorPanel detectors;
  LightPanel light;
  ClockPanel clock;
  OutputPanel outputs;

  LabelField status;
  ProgressField bar;
  ButtonField leave;
};

inline DiagnosticsScreenFields DiagnosticsScreen;

/// Behind the text of a field that tells a state.
inline constexpr Colour RestColour{0xC0, 0xFF, 0xC0};
inline constexpr Colour TriggerColour{0xFF, 0x80, 0x80};
/// What the opening of a panel gives its fields.
inline constexpr Colour PanelColour{0xC0, 0xC0, 0xFF};
/// Edited, and not yet sent to the module.
inline constexpr Colour EditedColour{0xFF, 0xC0, 0xC0};

/// Captions and handlers, once at start-up.
void LoadDiagnosticsScreen();
/// Opens the screen with the tests of the module in memory to choose from.
void OpenDiagnosticsScreen();

/// Lets the choices, the start buttons and the way out be used, and no stop button.
void EnableDiagnostics();
/// None of them, while a test runs.
void DisableDiagnostics();

}  // namespace bkconf
