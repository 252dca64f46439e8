// The identities of the sensors and LEDs of the rooms, and where their valves are connected.

#include "actions/action_code.h"
#include "image/tables.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "special/rooms.h"
#include "special/temperature_screen.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

/// Cells of TempTail: of the valve of the first room, and of the pump. The letter of the module,
/// then its output, counted from 0.
constexpr int FirstValveCell = 64;
constexpr int PumpCell = 80;
/// The output of the pump on this module; that of a room's valve is the room's index.
constexpr int OwnPumpOutput = 8;
constexpr int Outputs = 12;

RoomIdFields& Ids() {
  return TemperatureScreen.ids;
}

std::string HexOf(int byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  for (int rest = byte; rest > 0; rest /= 16) {
    text.insert(text.begin(), digits[static_cast<std::size_t>(rest % 16)]);
  }
  while (text.size() < 2) text.insert(text.begin(), '0');
  return text;
}

void SignalRoomChange() {
  TempRoomsDirty = 1;
  SignalChange();
}

void MarkChanged(ListField& list) {
  list.textColour = ChangedColour;
  SignalRoomChange();
}

// --- Identities ---------------------------------------------------------------------------------

/// Both kinds of identity lie in their table in the same way.
Cell& ByteOf(Table& table, int byte) {
  return table[IdBytes * Ids().room.Index() + byte];
}

void ShowId(IdFields& fields, Table& table) {
  for (int byte = 0; byte < IdBytes; ++byte) {
    ListField& list = *fields.bytes[static_cast<std::size_t>(byte)];
    list.textColour = QuietColour;
    list.enabled = true;
    list.Show(HexOf(ByteOf(table, byte).Whole()));
  }
}

void BlankId(IdFields& fields) {
  for (const auto& list : fields.bytes) {
    list->Clear();
    list->enabled = false;
  }
}

void LoadId(IdFields& fields, Table& table) {
  for (int byte = 0; byte < IdBytes; ++byte) {
    ListField& list = *fields.bytes[static_cast<std::size_t>(byte)];
    list.items.clear();
    for (int value = 0; value <= 255; ++value) list.items.push_back(HexOf(value));
    list.onPick = [&list, &table, byte] {
      ByteOf(table, byte) = list.Index();
      MarkChanged(list);
    };
  }
}

void BlankIds() {
  BlankId(Ids().sensor);
  BlankId(Ids().led);
}

void PickRoom() {
  ShowId(Ids().sensor, TempRoomIds);
  ShowId(Ids().led, TempTail);
}

// --- Valves -------------------------------------------------------------------------------------

/// The pump stands behind the rooms.
bool IsPump() {
  return Ids().valve.Index() + 1 == static_cast<int>(Ids().valve.items.size());
}

/// The letter's cell; that of the output stands behind it.
int ValveCell() {
  return IsPump() ? PumpCell : FirstValveCell + 2 * Ids().valve.Index();
}
Cell& LetterCell() {
  return TempTail[ValveCell()];
}
Cell& OutputCell() {
  return TempTail[ValveCell() + 1];
}

void ShowLetter() {
  Ids().letter.Show(CharacterOf(LetterCell().Whole()));
}

void ShowOutput() {
  constexpr int twoDigits = 9;
  const double place = OutputCell().Number();
  Ids().output.Show(place < twoDigits ? LastTwo(101 + place) : PlainText(place + 1));
}

/// The text tells where on this module; the fields tell where on another one.
void ShowPlace(bool here) {
  Ids().ownText.visible = here;
  Ids().letterLabel.visible = Ids().letter.visible = !here;
  Ids().outputLabel.visible = Ids().output.visible = !here;
  if (!here) {
    Ids().letter.textColour = Ids().output.textColour = QuietColour;
    ShowLetter();
    ShowOutput();
    return;
  }
  Ids().ownText.caption = Text(TextId::OwnOutput);
  Ids().ownText.caption += IsPump() ? "P" : std::to_string(Ids().valve.Index() + 1);
  Ids().ownText.caption += Text(TextId::OwnOutputEnd);
}

/// Only shows: what is stored stays, also where it is not the room's own output.
void PickValve() {
  const bool here = LetterCell().Number() == TempHeader[0].Number();
  Ids().own.enabled = Ids().other.enabled = true;
  (here ? Ids().own : Ids().other).Show();
  ShowPlace(here);
}

void ChooseOwn() {
  LetterCell() = TempHeader[0];
  OutputCell() = IsPump() ? OwnPumpOutput : Ids().valve.Index();
  ShowPlace(true);
  SignalRoomChange();
}

void PickLetter() {
  LetterCell() = static_cast<int>(Ids().letter.Text().front());
  MarkChanged(Ids().letter);
}

void PickOutput() {
  OutputCell() = Ids().output.Index();
  MarkChanged(Ids().output);
}

void BlankValve() {
  Ids().own.ClearGroup();
  Ids().own.enabled = Ids().other.enabled = false;
  Ids().ownText.visible = false;
  Ids().letterLabel.visible = Ids().letter.visible = false;
  Ids().outputLabel.visible = Ids().output.visible = false;
}

void ShowCaptions() {
  ShowAll({
      {Ids().group.caption, TextId::RoomIdsTitle},
      {Ids().idsGroup.caption, TextId::IdNumbers},
      {Ids().sensor.label.caption, TextId::SensorId},
      {Ids().led.label.caption, TextId::LedId},
      {Ids().valvesGroup.caption, TextId::ValveOutputs},
      {Ids().own.caption, TextId::ThisModuleOption},
      {Ids().other.caption, TextId::BusOption},
      {Ids().letterLabel.caption, TextId::ModuleAddress},
      {Ids().outputLabel.caption, TextId::OutputCaption},
  });
}

}  // namespace

void LoadRoomIds() {
  ShowCaptions();
  LoadRoomList(Ids().room, BlankIds);
  LoadRoomList(Ids().valve, BlankValve);
  LoadId(Ids().sensor, TempRoomIds);
  LoadId(Ids().led, TempTail);
  Ids().letter.items = LetterItems('A', 'R');
  Ids().output.items.clear();
  for (int output = 1; output <= Outputs; ++output) {
    Ids().output.items.push_back(Padded(output));
  }
  Ids().room.onPick = PickRoom;
  Ids().valve.onPick = PickValve;
  Ids().own.onChoose = ChooseOwn;
  Ids().other.onChoose = [] { ShowPlace(false); };
  Ids().letter.onPick = PickLetter;
  Ids().letter.onTyped = ShowLetter;
  Ids().output.onPick = PickOutput;
  Ids().output.onTyped = ShowOutput;
  BlankIds();
  BlankValve();
}

void FillRoomIds() {
  AskRoom(Ids().room, RoomNames());
  std::vector<std::string> valves = RoomNames();
  valves.emplace_back(Text(TextId::Pump));
  AskRoom(Ids().valve, std::move(valves));
  BlankIds();
  BlankValve();
}

void EnableRoomIds(bool enabled) {
  Ids().room.enabled = Ids().valve.enabled = enabled;
}

}  // namespace bkconf
