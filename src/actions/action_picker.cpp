#include "actions/action_picker.h"

#include <algorithm>
#include <utility>

#include "image/kind_set.h"
#include "image/module_directory.h"
#include "image/tables.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

/// Images that know no more of the installation than their own letter.
constexpr KindSet PlainImages{0, 1, 2, 4, 5, 6, 7, 11};
/// Kinds that the master's list of modules tells of.
constexpr KindSet ListedKinds{0, 1, 2, 3, 4, 5, 6, 7, 11};

/// What an output does, by its place in the action list.
enum class Switching {
  OnOff,
  Toggle,
  Percentages,       ///< toggle, and 10 % to 90 %
  FirstFourOfEight,  ///< outputs 1 to 4 have percentages; the list waits for the output
};

struct Target {
  int kind;
  bool detectors;
  int outputs;
  Switching switching;
};

constexpr auto Targets = std::to_array<Target>({
    {RelayKind, false, 12, Switching::Toggle},
    {RelayDcKind, false, 12, Switching::Toggle},
    {DimKind, false, 4, Switching::Percentages},
    {AlarmKind, true, MostDetectors, Switching::OnOff},
    {LumenzaKind, false, 8, Switching::FirstFourOfEight},
});

const Target* FindTarget(int kind) {
  const auto target = std::find_if(Targets.begin(), Targets.end(),
                                   [kind](const Target& each) { return each.kind == kind; });
  return target == Targets.end() ? nullptr : &*target;
}

/// Outputs of a module of eight that dim.
constexpr int DimmingOutputs = 4;
/// Places in the action list in front of the percentages.
constexpr int SwitchActions = 3;

constexpr auto MainZoneActions = std::to_array<TextId>(
    {TextId::ZoneOff, TextId::ZoneOn, TextId::Toggle, TextId::VolumeUp, TextId::VolumeDown,
     TextId::SourceUp, TextId::TrebleUp, TextId::TrebleDown, TextId::BassUp, TextId::BassDown,
     TextId::SetSource, TextId::SetVolume, TextId::SetTreble, TextId::SetBass, TextId::SetBalance});
constexpr auto SecondaryZoneActions =
    std::to_array<TextId>({TextId::ZoneOff, TextId::ZoneOn, TextId::Toggle, TextId::VolumeUp,
                           TextId::VolumeDown, TextId::SetVolume, TextId::SetBalance});

/// The first place whose action needs a value.
constexpr int FirstMainValue = 10;
constexpr int FirstSecondaryValue = 5;
/// Numbers of zones, and of values: each block of numbers has so many.
constexpr int Zones = 16;
/// The blocks of volume and balance, by place behind the secondary zone's first value.
constexpr auto SecondaryBlocks = std::to_array<int>({32, 80});

constexpr int HighestTemperature = 40;
constexpr char LastModuleLetter = 'R';

/// What the first row of the master's list tells that has the letter and one of these kinds. Rows
/// of other modules, and rows without a kind, are passed over.
std::optional<int> ListedKindOf(char letter) {
  for (int row = 0; row < DirectoryRows; ++row) {
    const auto kind = DirectoryType(row).WholeNumber();
    if (DirectoryLetter(row).Number() == letter && kind && ListedKinds.Contains(*kind)) return kind;
  }
  return std::nullopt;
}

template <typename Ids>
std::vector<std::string> SayEach(const Ids& ids) {
  std::vector<std::string> items;
  for (const TextId id : ids) items.push_back(Say(id));
  return items;
}

std::vector<std::string> SwitchItems(Switching switching) {
  std::vector<std::string> items = {Say(TextId::SwitchOff), Say(TextId::SwitchOn)};
  if (switching == Switching::OnOff) return items;
  items.push_back(Say(TextId::Toggle));
  if (switching != Switching::Percentages) return items;
  for (int percent = 10; percent <= 90; percent += 10) {
    items.push_back(std::to_string(percent) + "%");
  }
  return items;
}

void HideList(ListField& list) {
  list.visible = false;
  list.Clear();
}

void HideOptions(OptionField& first) {
  first.ClearGroup();
  for (OptionField* option : first.Group()) option->visible = false;
}

void OfferList(ListField& list, std::vector<std::string> items) {
  list.items = std::move(items);
  list.Clear();
  list.visible = true;
}

}  // namespace

void LabelledList::Offer(std::string_view caption, std::vector<std::string> items) {
  label.caption = caption;
  label.visible = true;
  OfferList(list, std::move(items));
}

void LabelledList::Hide() {
  label.visible = false;
  HideList(list);
}

TemperatureChoice::TemperatureChoice(Screen& screen, const std::string& name, OptionField*& first)
    : option(screen, name, first),
      temperature(screen, name + "Degrees"),
      room(screen, name + "Room") {
  if (first == nullptr) first = &option;
}

namespace {

/// Each is made where it stays, and nothing is moved on the way: the others can point at the first.
std::array<TemperatureChoice, 4> MakeTemperatures(Screen& screen, const std::string& prefix) {
  OptionField* first = nullptr;
  return {TemperatureChoice(screen, prefix + "RoomTemperature", first),
          TemperatureChoice(screen, prefix + "RoomBase", first),
          TemperatureChoice(screen, prefix + "AllTemperature", first),
          TemperatureChoice(screen, prefix + "AllBase", first)};
}

}  // namespace

ActionPicker::ActionPicker(Screen& screen, const std::string& prefix, const PickerVariant& variant)
    : heading(screen, prefix + "Heading"),
      letterLabel(screen, prefix + "LetterLabel"),
      letter(screen, prefix + "Letter"),
      typeLabel(screen, prefix + "TypeLabel"),
      type(screen, prefix + "Type"),
      mainZone(screen, prefix + "MainZone", nullptr),
      secondaryZone(screen, prefix + "SecondaryZone", &mainZone),
      output(screen, prefix + "Output"),
      allOutputs(screen, prefix + "AllOutputs"),
      action(screen, prefix + "Action"),
      value(screen, prefix + "Value"),
      temperatures(MakeTemperatures(screen, prefix)),
      simulationOn(screen, prefix + "SimulationOn", nullptr),
      simulationOff(screen, prefix + "SimulationOff", &simulationOn),
      variant_(variant) {
  heading.visible = variant_.heading.has_value();
  letterLabel.visible = !heading.visible;
  Close();
}

void ActionPicker::Load() {
  constexpr auto choices =
      std::to_array<TextId>({TextId::DegreesInRoom, TextId::BaseInRoom, TextId::DegreesInAllRooms,
                             TextId::BaseInAllRooms});
  for (std::size_t i = 0; i < choices.size(); ++i) {
    ::bkconf::Show(temperatures[i].option.caption, choices[i]);
  }
  if (variant_.heading) ::bkconf::Show(heading.caption, *variant_.heading);
  ::bkconf::Show(letterLabel.caption, TextId::ModuleCaption);
  ::bkconf::Show(typeLabel.caption, TextId::TypeCaption);
  ::bkconf::Show(mainZone.caption, TextId::MainZone);
  ::bkconf::Show(secondaryZone.caption, TextId::SecondaryZone);
  ::bkconf::Show(simulationOn.caption, TextId::SimulationOn);
  ::bkconf::Show(simulationOff.caption, TextId::SimulationOff);
  letter.items = LetterItems('A', variant_.offersContexts ? ContextLetter : LastModuleLetter);
  letter.items.emplace_back(1, CorvelaLetter);
  type.items.clear();
  for (const PickerType& row : variant_.types) type.items.push_back(Say(row.name));
  letter.onPick = [this] { PickLetter(); };
  type.onPick = [this] { PickType(); };
  output.list.onPick = [this] { PickOutput(); };
  action.list.onPick = [this] { PickAction(); };
  allOutputs.onChange = [this] { ChangeAllOutputs(); };
  mainZone.onChoose = secondaryZone.onChoose = [this] { OfferZoneActions(); };
}

void ActionPicker::Reset() {
  HideLower();
  letter.Clear();
  letter.enabled = true;
  type.Clear();
  type.enabled = false;
  type.visible = true;
  typeLabel.visible = !heading.visible;
  TellTarget();
}

void ActionPicker::Disable() {
  Reset();
  letter.enabled = false;
}

void ActionPicker::Close() {
  Disable();
  type.visible = typeLabel.visible = false;
}

char ActionPicker::Letter() const {
  return letter.Text().empty() ? '\0' : letter.Text().front();
}

bool ActionPicker::TargetKnown() const {
  return Letter() == ContextLetter || Letter() == CorvelaLetter || Kind() != NoModule;
}

void ActionPicker::TellTarget() const {
  if (onTarget) onTarget();
}

void ActionPicker::HideLower() {
  output.Hide();
  output.list.enabled = true;
  allOutputs.visible = allOutputs.checked = false;
  action.Hide();
  value.Hide();
  HideOptions(mainZone);
  HideOptions(simulationOn);
  HideOptions(temperatures[0].option);
  for (TemperatureChoice& choice : temperatures) {
    HideList(choice.temperature);
    HideList(choice.room);
  }
}

// --- The letter ---------------------------------------------------------------------------------

void ActionPicker::PickLetter() {
  HideLower();
  if (refusesLetter && refusesLetter()) {
    type.Clear();
    type.enabled = false;
    TellTarget();
    return;
  }
  AskType();
  if (Letter() == ContextLetter) {
    OfferContexts();
  } else if (Letter() == CorvelaLetter) {
    OfferCodes();
  } else if (!PlainImages.Contains(ActiveCode())) {
    if (const auto kind = ListedKindOf(Letter())) ShowKind(*kind);
  } else if (OwnLetter() == letter.Text()) {
    // A DC relay module shows itself as a relay module here; both are stored alike.
    ShowKind(ActiveCode() == RelayDcKind ? RelayKind : ActiveCode());
  }
  TellTarget();
}

/// A plain module does not know the installation: the installer names the type of the target.
void ActionPicker::AskType() {
  type.Show(Text(variant_.prompt));
  type.enabled = true;
}

/// The type is known, and cannot be chosen.
void ActionPicker::ShowKind(int kind) {
  const auto row = std::find_if(variant_.types.begin(), variant_.types.end(),
                                [kind](const PickerType& each) { return each.kind == kind; });
  type.enabled = false;
  if (row == variant_.types.end()) {
    // A display offers no actions, and no editor offers those of every other kind.
    type.Show(Text(TextId::Dashes));
    return;
  }
  type.Show(Text(row->name));
  OfferType(kind);
}

void ActionPicker::OfferContexts() {
  type.Show(Text(TextId::ContextType));
  type.enabled = false;
  output.Offer(Text(TextId::ContextCaption), NumberItems(1, ContextCount));
}

void ActionPicker::OfferCodes() {
  type.Show(Text(TextId::CorvelaType));
  type.enabled = false;
  output.Offer(Text(variant_.code), CodeNumbers());
  action.Offer(Text(variant_.code), CodeNumbers());
}

// --- The type -----------------------------------------------------------------------------------

int ActionPicker::Kind() const {
  if (type.Index() < 0) return NoModule;
  return variant_.types[static_cast<std::size_t>(type.Index())].kind;
}

void ActionPicker::PickType() {
  HideLower();
  OfferType(Kind());
  TellTarget();
}

void ActionPicker::OfferType(int kind) {
  if (kind == TemperatureKind) return OfferTemperatures();
  if (kind == AudioKind) return OfferZones();
  if (kind == SimulationKind) return OfferSimulation();
  const Target* target = FindTarget(kind);
  if (target == nullptr) return;
  output.Offer(Text(target->detectors ? variant_.detector : variant_.output),
               NumberItems(1, target->outputs));
  allOutputs.visible = variant_.offersAllOutputs;
  allOutputs.caption = Text(target->detectors ? TextId::AllDetectors : TextId::AllOutputs);
  const bool waits = target->switching == Switching::FirstFourOfEight;
  action.Offer(Text(variant_.action),
               waits ? std::vector<std::string>() : SwitchItems(target->switching));
}

void ActionPicker::OfferTemperatures() {
  struct Needs {
    bool temperature;
    bool room;
  };
  constexpr auto needs =
      std::to_array<Needs>({{true, true}, {false, true}, {true, false}, {false, false}});
  for (std::size_t i = 0; i < temperatures.size(); ++i) {
    TemperatureChoice& choice = temperatures[i];
    choice.option.visible = true;
    if (needs[i].temperature) OfferList(choice.temperature, NumberItems(0, HighestTemperature));
    if (needs[i].room) OfferList(choice.room, NumberItems(1, MostRooms));
  }
}

void ActionPicker::OfferZones() {
  mainZone.visible = secondaryZone.visible = true;
  output.Offer(Text(variant_.zone), NumberItems(1, Zones));
}

void ActionPicker::OfferZoneActions() {
  value.Hide();
  action.Offer(Text(variant_.action),
               mainZone.Chosen() ? SayEach(MainZoneActions) : SayEach(SecondaryZoneActions));
}

void ActionPicker::OfferSimulation() {
  simulationOn.visible = simulationOff.visible = true;
}

// --- Below --------------------------------------------------------------------------------------

/// What was picked stays where the same is offered again.
void ActionPicker::PickOutput() {
  const Target* target = FindTarget(Kind());
  if (target == nullptr || target->switching != Switching::FirstFourOfEight) return;
  const bool dims = output.list.Index() < DimmingOutputs;
  auto items = SwitchItems(dims ? Switching::Percentages : Switching::Toggle);
  if (items != action.list.items) action.Offer(Text(variant_.action), std::move(items));
}

/// With all outputs meant there is none to choose, and a module of which only some dim is offered
/// what those do; the others take part.
void ActionPicker::ChangeAllOutputs() {
  const bool all = allOutputs.checked;
  output.list.Clear();
  output.list.enabled = !all;
  const Target* target = FindTarget(Kind());
  if (target == nullptr || target->switching != Switching::FirstFourOfEight) return;
  action.Offer(Text(variant_.action),
               all ? SwitchItems(Switching::Percentages) : std::vector<std::string>());
}

void ActionPicker::PickAction() {
  if (Kind() != AudioKind) return;
  const int place = action.list.Index();
  if (place < (mainZone.Chosen() ? FirstMainValue : FirstSecondaryValue)) {
    value.Hide();
  } else if (!value.list.visible || place != valueFor_) {
    value.Offer(Text(variant_.value), NumberItems(1, Zones));
  }
  valueFor_ = place;
}

// --- The cells ----------------------------------------------------------------------------------

Cell ActionPicker::Number(int number) const {
  if (variant_.form == StoredForm::TwoDigitTexts) return Padded(number);
  return number;
}

std::optional<ActionCells> ActionPicker::Compose() const {
  if (Letter() == '\0') return std::nullopt;
  const int number = output.list.Index();
  if (Letter() == ContextLetter) {
    if (number < 0) return std::nullopt;
    return ActionCells{int{ContextLetter}, Number(number), "02"};
  }
  if (Letter() == CorvelaLetter) {
    if (number < 0 || action.list.Index() < 0) return std::nullopt;
    return ActionCells{int{CorvelaLetter}, Number(number), Number(action.list.Index())};
  }
  switch (Kind()) {
    case TemperatureKind:
      return ComposeTemperature();
    case AudioKind:
      return ComposeAudio();
    case SimulationKind:
      return ComposeSimulation();
    default:
      return ComposeOutput(number);
  }
}

std::vector<ActionCells> ActionPicker::ComposeEach() const {
  std::vector<ActionCells> each;
  const Target* target = FindTarget(Kind());
  const bool all = target != nullptr && allOutputs.checked;
  for (int place = 0; all && place < target->outputs; ++place) {
    if (const auto cells = ComposeOutput(place)) each.push_back(*cells);
  }
  if (all) return each;
  if (const auto cells = Compose()) each.push_back(*cells);
  return each;
}

std::optional<ActionCells> ActionPicker::ComposeOutput(int place) const {
  const int what = action.list.Index();
  if (FindTarget(Kind()) == nullptr || place < 0 || what < 0) return std::nullopt;
  // Percentages are numbers in every form.
  return ActionCells{int{Letter()}, Number(place),
                     what < SwitchActions ? Number(what) : Cell((what - 2) * 10)};
}

std::optional<ActionCells> ActionPicker::ComposeTemperature() const {
  const auto choice = std::find_if(temperatures.begin(), temperatures.end(),
                                   [](const auto& each) { return each.option.Chosen(); });
  if (choice == temperatures.end()) return std::nullopt;
  const bool needsTemperature = choice->temperature.visible;
  const bool needsRoom = choice->room.visible;
  if (needsTemperature && choice->temperature.Index() < 0) return std::nullopt;
  if (needsRoom && choice->room.Index() < 0) return std::nullopt;
  const Cell room = needsRoom ? Number(choice->room.Index()) : Cell("8");
  const Cell degrees = needsTemperature ? Cell(choice->temperature.Index()) : Cell("99");
  return ActionCells{int{Letter()}, room, degrees};
}

std::optional<ActionCells> ActionPicker::ComposeAudio() const {
  const int zone = output.list.Index();
  const int place = action.list.Index();
  if (zone < 0 || place < 0) return std::nullopt;
  const bool main = mainZone.Chosen();
  const int base = main ? 0 : Zones;
  const int firstValue = main ? FirstMainValue : FirstSecondaryValue;
  if (place < firstValue) {
    return ActionCells{int{Letter()}, Number(zone), Number(place + base)};
  }
  if (value.list.Index() < 0) return std::nullopt;
  const int block = main ? (place - FirstMainValue + 1) * Zones
                         : SecondaryBlocks[static_cast<std::size_t>(place - FirstSecondaryValue)];
  return ActionCells{int{Letter()}, Number(block + zone), Number(value.list.Index() + base)};
}

std::optional<ActionCells> ActionPicker::ComposeSimulation() const {
  if (!simulationOn.Chosen() && !simulationOff.Chosen()) return std::nullopt;
  return ActionCells{int{Letter()}, "00", simulationOn.Chosen() ? "01" : "00"};
}

}  // namespace bkconf
