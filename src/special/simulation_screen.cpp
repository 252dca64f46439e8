#include "special/simulation_screen.h"

#include <algorithm>
#include <array>

#include "actions/action_code.h"
#include "actions/action_picker.h"
#include "image/tables.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "session/module_title.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

constexpr int Switches = 12;

}  // namespace

SimulationScreenFields::SimulationScreenFields()
    : Screen("SimulationScreen"),
      frame(*this, "frame"),
      conditionsGroup(*this, "conditionsGroup"),
      conditions(*this),
      sensitivityGroup(*this, "sensitivityGroup"),
      sensitivity(*this, "sensitivity"),
      sensitivityText(*this, "sensitivityText"),
      stateGroup(*this, "stateGroup"),
      state(*this, "state"),
      participantsGroup(*this, "participantsGroup"),
      participants(*this, "participants"),
      editGroup(*this, "editGroup"),
      heading(*this, "heading"),
      letterLabel(*this, "letterLabel"),
      letter(*this, "letter"),
      typeLabel(*this, "typeLabel"),
      type(*this, "type"),
      numberLabel(*this, "numberLabel"),
      number(*this, "number"),
      editConfirm(*this, "editConfirm"),
      editLeave(*this, "editLeave"),
      leave(*this, "leave") {
  for (int each = 1; each <= Switches; ++each) {
    switches.push_back(std::make_unique<CheckField>(*this, "switch" + std::to_string(each)));
  }
  // The heading stands over both lists; these are what a screen reader calls them.
  letterLabel.visible = typeLabel.visible = false;
}

namespace {

/// Cells of SimulationImage.
constexpr int StateCell = 123;
constexpr int LightCell = 125;
constexpr int JoiningCell = 130;
constexpr int SensitivityCell = 132;
constexpr int FirstParticipant = 135;
constexpr int GridSize = 5;
constexpr int Participants = GridSize * GridSize;
/// A letter and a number: a participant is only switched by the simulation itself.
constexpr int ParticipantSize = 2;

constexpr std::string_view FreeText = "*";

constexpr auto Sensitivities = std::to_array<TextId>(
    {TextId::SensitivityHighest, TextId::SensitivityHigh, TextId::SensitivityMedium,
     TextId::SensitivityLow, TextId::SensitivityLowest});

/// What can take part, beside contexts and codes.
constexpr auto Types = std::to_array<PickerType>({
    {TextId::RelayModule, RelayKind},
    {TextId::DimType, DimKind},
    {TextId::RelayDcModule, RelayDcKind},
    {TextId::LumenzaModule, LumenzaKind},
});

Cell& TargetCell(int participant) {
  return SimulationImage[FirstParticipant + ParticipantSize * participant];
}
Cell& IndexCell(int participant) {
  return SimulationImage[FirstParticipant + ParticipantSize * participant + 1];
}

bool IsFree(int participant) {
  return !HoldsAction(TargetCell(participant));
}

// --- State and sensitivity ----------------------------------------------------------------------

void ShowState() {
  const bool on = SimulationImage[StateCell].Number() == 1;
  SimulationScreen.state.checked = on;
  Show(SimulationScreen.state.caption, on ? TextId::StateOn : TextId::StateOff);
}

void ChangeState() {
  SimulationImage[StateCell] = SimulationScreen.state.checked ? 1 : 0;
  ShowState();
  SignalChange();
}

void ShowSensitivityText() {
  const auto place = static_cast<std::size_t>(SimulationScreen.sensitivity.Value());
  Show(SimulationScreen.sensitivityText.caption, Sensitivities[place]);
}

void MoveSensitivity() {
  SimulationImage[SensitivityCell] = SimulationScreen.sensitivity.Value();
  ShowSensitivityText();
  SignalChange();
}

// --- The participants ---------------------------------------------------------------------------

void ShowParticipant(int participant) {
  std::string text(FreeText);
  if (!IsFree(participant)) {
    text = CharacterOf(TargetCell(participant).Whole()) +
           LastTwo(IndexCell(participant).Number() + 101);
  }
  SimulationScreen.participants.Put(participant / GridSize + 1, participant % GridSize, text);
}

void ShowParticipants() {
  for (int participant = 0; participant < Participants; ++participant) {
    ShowParticipant(participant);
  }
}

int FirstFree() {
  int participant = 0;
  while (participant < Participants && !IsFree(participant)) ++participant;
  return participant;
}

/// What finds no free entry is dropped. False then.
bool Add(const Cell& index) {
  const int participant = FirstFree();
  if (participant == Participants) return false;
  TargetCell(participant) = static_cast<int>(SimulationScreen.letter.Text().front());
  IndexCell(participant) = index;
  SignalChange();
  return true;
}

void Remove(int participant) {
  for (int next = participant + 1; next < Participants; ++next) {
    TargetCell(next - 1) = TargetCell(next);
    IndexCell(next - 1) = IndexCell(next);
  }
  TargetCell(Participants - 1) = IndexCell(Participants - 1) = EmptyCell;
  ShowParticipants();
  SignalChange();
}

// --- The editor ---------------------------------------------------------------------------------

void ShowEditor(bool shown) {
  SimulationScreen.editGroup.visible = shown;
  SimulationScreen.enter = shown ? &SimulationScreen.editConfirm : nullptr;
  SimulationScreen.escape = shown ? &SimulationScreen.editLeave : nullptr;
}

char Letter() {
  return SimulationScreen.letter.Text().empty() ? '\0' : SimulationScreen.letter.Text().front();
}

void HideLower() {
  for (const auto& each : SimulationScreen.switches) each->visible = each->checked = false;
  SimulationScreen.numberLabel.visible = SimulationScreen.number.visible = false;
  SimulationScreen.number.Clear();
}

void OfferSwitches() {
  for (const auto& each : SimulationScreen.switches) each->visible = true;
}

void OfferNumbers(TextId type, TextId caption, std::vector<std::string> items) {
  SimulationScreen.type.Show(Text(type));
  SimulationScreen.type.enabled = false;
  SimulationScreen.numberLabel.caption = Text(caption);
  SimulationScreen.number.items = std::move(items);
  SimulationScreen.numberLabel.visible = SimulationScreen.number.visible = true;
}

/// A module of this kind knows nothing of the installation: the type is chosen by hand. It is no
/// target of its own.
void PickLetter() {
  HideLower();
  if (Letter() == ContextLetter) {
    OfferNumbers(TextId::ContextType, TextId::ContextCaption, NumberItems(1, ContextCount));
  } else if (Letter() == CorvelaLetter) {
    OfferNumbers(TextId::CorvelaType, TextId::CodeCaption, CodeNumbers());
  } else if (OwnLetter() == SimulationScreen.letter.Text()) {
    SimulationScreen.type.Show(Text(TextId::Dashes));
    SimulationScreen.type.enabled = false;
  } else {
    SimulationScreen.type.Show(Text(TextId::TypePrompt));
    SimulationScreen.type.enabled = true;
  }
}

void PickType() {
  HideLower();
  OfferSwitches();
}

void OpenEditor() {
  HideLower();
  SimulationScreen.letter.Clear();
  SimulationScreen.type.Clear();
  SimulationScreen.type.enabled = false;
  ShowEditor(true);
}

/// From the first switch on, as many as there is room for. As text, in difference to contexts and
/// codes: so the module's files have it.
void AddSwitches() {
  for (int each = 0; each < Switches; ++each) {
    const bool on = SimulationScreen.switches[static_cast<std::size_t>(each)]->checked;
    if (on && !Add(std::to_string(each))) return;
  }
}

/// What is not complete is not stored, and nothing is said. With no switch on there is nothing to
/// store either.
void Confirm() {
  if (!SimulationScreen.editGroup.visible || Letter() == '\0') return;
  if (SimulationScreen.number.visible) {
    if (SimulationScreen.number.Index() < 0) return;
    Add(SimulationScreen.number.Index());
  } else {
    if (SimulationScreen.type.Index() < 0) return;
    AddSwitches();
  }
  ShowParticipants();
  ShowEditor(false);
}

void DoubleClick(int row, int column) {
  if (row == 0) return;
  const int participant = (row - 1) * GridSize + column;
  if (IsFree(participant)) {
    OpenEditor();
  } else {
    ShowEditor(false);
    Remove(participant);
  }
}

// --- Opening ------------------------------------------------------------------------------------

void ShowCaptions() {
  ShowAll({
      {SimulationScreen.frame.caption, TextId::SimulationSettingsFrame},
      {SimulationScreen.conditionsGroup.caption, TextId::ConditionsFrame},
      {SimulationScreen.sensitivityGroup.caption, TextId::Sensitivity},
      {SimulationScreen.stateGroup.caption, TextId::StateFrame},
      {SimulationScreen.participantsGroup.caption, TextId::Participants},
      {SimulationScreen.editGroup.caption, TextId::EditTitle},
      {SimulationScreen.heading.caption, TextId::ModuleTypeHeading},
      {SimulationScreen.letterLabel.caption, TextId::ModuleCaption},
      {SimulationScreen.typeLabel.caption, TextId::TypeCaption},
      {SimulationScreen.editConfirm.caption, TextId::Confirm},
      {SimulationScreen.editLeave.caption, TextId::Leave},
      {SimulationScreen.leave.caption, TextId::Leave},
  });
  Show(SimulationScreen.participants.toolTip, TextId::EditHint);
}

void FillLists() {
  SimulationScreen.letter.items = LetterItems('A', ContextLetter);
  SimulationScreen.letter.items.emplace_back(1, CorvelaLetter);
  SimulationScreen.type.items.clear();
  for (const PickerType& each : Types) SimulationScreen.type.items.emplace_back(Text(each.name));
  for (int each = 0; each < Switches; ++each) {
    SimulationScreen.switches[static_cast<std::size_t>(each)]->caption = Padded(each + 1);
  }
  SimulationScreen.participants.columns.assign(GridSize, {"", 1});
  SimulationScreen.participants.Resize(GridSize);
  SimulationScreen.sensitivity.lowest = 0;
  SimulationScreen.sensitivity.highest = static_cast<int>(Sensitivities.size()) - 1;
}

}  // namespace

void LoadSimulationScreen() {
  ShowCaptions();
  FillLists();
  SimulationScreen.conditions.Load(TextId::LevelHeading);
  SimulationScreen.state.onChange = ChangeState;
  SimulationScreen.sensitivity.onMove = MoveSensitivity;
  SimulationScreen.participants.onDoubleClick = DoubleClick;
  SimulationScreen.letter.onPick = PickLetter;
  SimulationScreen.type.onPick = PickType;
  SimulationScreen.editConfirm.onClick = Confirm;
  SimulationScreen.editLeave.onClick = [] { ShowEditor(false); };
  SimulationScreen.leave.onClick = [] { SimulationScreen.Close(); };
}

void OpenSimulationScreen() {
  ShowActiveModel();
  SimulationScreen.title = ModuleTitle();
  SimulationScreen.conditions.Fill({&SimulationImage, LightCell, JoiningCell});
  SimulationScreen.sensitivity.Show(SimulationImage[SensitivityCell].Whole());
  ShowSensitivityText();
  ShowState();
  ShowParticipants();
  SimulationScreen.participants.ClearSelection();
  ShowEditor(false);
  SimulationScreen.shown = true;
}

}  // namespace bkconf
