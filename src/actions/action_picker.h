// The step-by-step chooser with which every editor composes one action: letter, type, output, what
// it does, and with which value. The editors' screens hold one or two of them.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "actions/action_code.h"
#include "platform/field.h"
#include "text/text.h"

namespace bkconf {

/// An entry of the type list, and the kind of module that it means.
struct PickerType {
  TextId name;
  int kind;
};

/// In what form numbers that come from the place in a list are stored.
enum class StoredForm { Numbers, TwoDigitTexts };

/// What the pickers of the editors differ in.
struct PickerVariant {
  std::span<const PickerType> types;
  /// In place of the captions of letter and type: one over both.
  std::optional<TextId> heading = std::nullopt;
  TextId prompt = TextId::TypePrompt;  ///< what the type field shows until the type is chosen
  TextId output = TextId::OutputCaption;
  TextId detector = TextId::DetectorCaption;
  TextId zone = TextId::ZoneCaption;
  TextId action = TextId::ActionCaption;
  TextId value = TextId::ValueCaption;
  TextId code = TextId::CodeName;
  bool offersContexts = true;     ///< the letter 'S'
  bool offersAllOutputs = false;  ///< a box that stands for every output of the target
  StoredForm form = StoredForm::Numbers;
};

inline constexpr auto ButtonPickerTypes = std::to_array<PickerType>({
    {TextId::RelayModule, 0},
    {TextId::DimType, 1},
    {TextId::TemperatureType, 2},
    {TextId::RelayDcModule, 4},
    {TextId::AlarmModule, 5},
    {TextId::AudioInterface, 6},
    {TextId::SimulationModule, 7},
    {TextId::LumenzaType, 11},
});

inline constexpr auto ContextPickerTypes = std::to_array<PickerType>({
    {TextId::RelayModule, 0},
    {TextId::DimType, 1},
    {TextId::TemperatureType, 2},
    {TextId::RelayDcModule, 4},
    {TextId::AlarmModule, 5},
    {TextId::AudioInterface, 6},
    {TextId::SimulationModule, 7},
    {TextId::LumenzaModule, 11},
});

inline constexpr auto TimePickerTypes = std::to_array<PickerType>({
    {TextId::RelayModule, 0},
    {TextId::DimType, 1},
    {TextId::TemperatureType, 2},
    {TextId::RelayDcModule, 4},
    {TextId::AlarmModule, 5},
    {TextId::AudioInterface, 6},
    {TextId::LumenzaModule, 11},
});

inline constexpr auto AlarmPickerTypes = std::to_array<PickerType>({
    {TextId::RelayModule, 0},
    {TextId::DimType, 1},
    {TextId::TemperatureType, 2},
    {TextId::RelayDcModule, 4},
    {TextId::AudioInterface, 6},
    {TextId::LumenzaModule, 11},
});

inline constexpr auto LightPickerTypes = std::to_array<PickerType>({
    {TextId::RelayModule, 0},
    {TextId::DimType, 1},
    {TextId::RelayDcModule, 4},
    {TextId::LumenzaModule, 11},
});

/// The push-buttons, and the keys of a remote control.
inline constexpr PickerVariant ButtonPicker{.types = ButtonPickerTypes,
                                            .code = TextId::CodeCaption};

/// The contexts of a master. One cannot call another.
inline constexpr PickerVariant ContextPicker{.types = ContextPickerTypes,
                                             .heading = TextId::ModuleTypeHeading,
                                             .prompt = TextId::ContextTypePrompt,
                                             .output = TextId::OutputName,
                                             .detector = TextId::DetectorName,
                                             .zone = TextId::Zone,
                                             .action = TextId::FunctionName,
                                             .value = TextId::ValueName,
                                             .offersContexts = false,
                                             .offersAllOutputs = true,
                                             .form = StoredForm::TwoDigitTexts};

/// The time programmes of a master.
inline constexpr PickerVariant TimePicker{.types = TimePickerTypes,
                                          .heading = TextId::ModuleTypeHeading};

/// The light programmes of a master.
inline constexpr PickerVariant LightPicker{.types = LightPickerTypes,
                                           .heading = TextId::LightModuleTypeHeading};

/// The detectors of an alarm module, which is no target of its own.
inline constexpr PickerVariant AlarmPicker{
    .types = AlarmPickerTypes, .heading = TextId::ModuleTypeHeading, .code = TextId::CodeCaption};

/// A list with its caption; both appear and disappear together.
struct LabelledList {
  LabelledList(Screen& screen, const std::string& name)
      : label(screen, name + "Label"), list(screen, name) {
    Hide();
  }

  /// Shows the list with these items, and none of them picked.
  void Offer(std::string_view caption, std::vector<std::string> items);
  void Hide();

  LabelField label;
  ListField list;
};

/// A choice of the temperature fields: what it needs beside it.
struct TemperatureChoice {
  /// `first` is the first choice of the same group. Where it is null this one becomes it.
  TemperatureChoice(Screen& screen, const std::string& name, OptionField*& first);

  OptionField option;
  ListField temperature;
  ListField room;
};

class ActionPicker {
 public:
  /// The fields' names begin with `prefix`.
  ActionPicker(Screen& screen, const std::string& prefix, const PickerVariant& variant);
  ActionPicker(const ActionPicker&) = delete;
  ActionPicker& operator=(const ActionPicker&) = delete;

  /// Captions in the language of the session, and handlers; once, before the screen is shown.
  void Load();

  /// Idle: letter and type empty, the letter to be picked, and all below hidden.
  void Reset();
  /// The same with nothing to pick.
  void Disable();
  /// The same, and the type hidden as well.
  void Close();

  /// The three cells of the action that the fields make up, or none while one of them that its type
  /// needs is empty.
  std::optional<ActionCells> Compose() const;
  /// The same for every output while they are all meant: one action each. None while a field is
  /// empty.
  std::vector<ActionCells> ComposeEach() const;

  /// The letter that is picked, or '\0'.
  char Letter() const;
  /// True once it is known what the action is done to, by whatever way.
  bool TargetKnown() const;
  /// Runs after letter or type changed, by a pick or by `Reset`.
  std::function<void()> onTarget;
  /// A letter that the editor takes for no target: nothing opens below it then.
  std::function<bool()> refusesLetter;

  LabelField heading;
  LabelField letterLabel;
  ListField letter;
  LabelField typeLabel;
  ListField type;
  OptionField mainZone, secondaryZone;
  LabelledList output;
  CheckField allOutputs;
  LabelledList action;
  LabelledList value;
  /// A temperature in a room, the base in a room, a temperature in all rooms, the base in all
  /// rooms.
  std::array<TemperatureChoice, 4> temperatures;
  OptionField simulationOn, simulationOff;

 private:
  void HideLower();
  void PickLetter();
  void PickType();
  void PickOutput();
  void PickAction();
  void ChangeAllOutputs();
  void TellTarget() const;
  void OfferContexts();
  void OfferCodes();
  void OfferType(int kind);
  void OfferTemperatures();
  void OfferZones();
  void OfferZoneActions();
  void OfferSimulation();
  void ShowKind(int kind);
  void AskType();
  int Kind() const;
  Cell Number(int number) const;
  std::optional<ActionCells> ComposeOutput(int place) const;
  std::optional<ActionCells> ComposeTemperature() const;
  std::optional<ActionCells> ComposeAudio() const;
  std::optional<ActionCells> ComposeSimulation() const;

  const PickerVariant& variant_;
  int valueFor_ = -1;  ///< the place in the action list that the values are offered for
};

}  // namespace bkconf
