// What the detectors of an alarm module see, and the levels at which they act.
#include "diagnostics/detector_panel.h"

#include <algorithm>
#include <array>
#include <string>

#include "actions/action_code.h"
#include "diagnostics/detector_level.h"
#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "diagnostics/panels.h"
#include "image/commands.h"
#include "image/tables.h"
#include "link/frames.h"
#include "link/rx_line.h"
#include "platform/machine.h"
#include "session/language.h"

namespace bkconf {
namespace {

/// Modules from this version on tell what they measure.
constexpr double FirstMeasuringVersion = 65;

constexpr std::size_t ShortLine = 4;
constexpr std::size_t LongLine = 14;
constexpr int UpdateFrames = 50;
/// The logic of a detector is the units digit of its code, the range of its level the tens digit.
constexpr int CodeBase = 10;

/// True once the fields of a detector hold what the module told: from then on they are the user's.
std::array<bool, MostDetectors> DetectorSeen;
/// The detector that the update sends next.
int DetectorCursor = 0;

/// The cells of a detector in DiagBuffer.
Cell& DetectorLevel(int detector) {
  return DiagBuffer[detector];
}
Cell& DetectorCode(int detector) {
  return DiagBuffer[MostDetectors + detector];
}

bool Measures() {
  return CellAt(FindKind(AlarmKind)->version).Number() >= FirstMeasuringVersion;
}

/// Detectors in use; only these have fields.
int Detectors() {
  return std::clamp(CellAt(DetectorsInUse).Whole(), 0, MostDetectors);
}

DetectorFields& Fields(int detector) {
  return *DiagnosticsScreen.detectors.detectors[static_cast<std::size_t>(detector)];
}

bool& Seen(int detector) {
  return DetectorSeen[static_cast<std::size_t>(detector)];
}

void EnableFields(int detector, bool enabled) {
  Fields(detector).logic.enabled = Fields(detector).level.enabled = enabled;
}

void EnableAllFields(bool enabled) {
  for (int detector = 0; detector < Detectors(); ++detector) EnableFields(detector, enabled);
}

// --- What the module tells ----------------------------------------------------------------------

void ShowContact(LabelField& contact) {
  struct Look {
    char state;
    TextId text;
    Colour colour;
  };
  constexpr auto looks = std::to_array<Look>(
      {{'0', TextId::ContactRest, RestColour}, {'1', TextId::ContactTrigger, TriggerColour}});
  for (const Look& look : looks) {
    if (look.state != RxLine[ShortLine - 1]) continue;
    Show(contact.caption, look.text);
    contact.colour = look.colour;
  }
}

/// A level that is none of the list leaves the field empty; the cell has it all the same.
void TakeValues(int detector) {
  const int logic = NumberInLine(14, 14);
  const int range = NumberInLine(13, 13);
  DetectorCode(detector) = std::string(CharactersOfLine(13, 14));
  const int level = ShownLevel(NumberInLine(10, 12), range);
  DetectorLevel(detector) = level;
  DetectorFields& fields = Fields(detector);
  const std::vector<std::string>& logics = fields.logic.items;
  const auto place = static_cast<std::size_t>(logic);
  fields.logic.Show(place < logics.size() ? logics[place] : "");
  const std::string text = std::to_string(level);
  const bool listed = std::find(fields.level.items.begin(), fields.level.items.end(), text) !=
                      fields.level.items.end();
  fields.level.Show(listed ? text : "");
  EnableFields(detector, !DetectorUpdate.Enabled());
  Seen(detector) = true;
}

/// What would be sent of a detector that told nothing yet would be made up.
void OfferUpdate() {
  const auto end = DetectorSeen.begin() + Detectors();
  if (DetectorUpdate.Enabled() || std::find(DetectorSeen.begin(), end, false) != end) return;
  DiagnosticsScreen.detectors.update.enabled = true;
}

void TakeLine() {
  // A line that was torn on the way is not one of the first detector.
  if (RxLine.size() < (Measures() ? LongLine : ShortLine) || !HasDigits(2, 3)) return;
  const int detector = NumberInLine(2, 3);
  if (detector >= Detectors()) return;
  AdvanceTestBar();
  ShowContact(Fields(detector).contact);
  if (!Measures()) return;
  Fields(detector).measured.caption = std::to_string(NumberInLine(5, 9));
  // Values that were torn on the way would go back to the module with the next update. The next
  // line of the detector has them again.
  if (Seen(detector) || !HasDigits(10, 14)) return;
  TakeValues(detector);
  OfferUpdate();
}

// --- What the user changes ----------------------------------------------------------------------

void PutCode(int detector, int logic) {
  DetectorCode(detector) = RangeOf(DetectorLevel(detector).Whole()) * CodeBase + logic;
}

void MarkEdited(int detector, ListField& field) {
  if (Seen(detector)) field.colour = EditedColour;
}

void PickLevel(int detector) {
  ListField& field = Fields(detector).level;
  DetectorLevel(detector) = Cell(field.Text()).Whole();
  PutCode(detector, DetectorCode(detector).Whole() % CodeBase);
  MarkEdited(detector, field);
}

void PickLogic(int detector) {
  ListField& field = Fields(detector).logic;
  PutCode(detector, field.Index());
  MarkEdited(detector, field);
}

// --- The update ---------------------------------------------------------------------------------

void SendUpdate() {
  const std::string frame = std::string(UpdateDetectors) + std::string(FrameEnd);
  for (int i = 0; i < UpdateFrames; ++i) Port->Write(frame);
  DiagnosticsScreen.detectors.update.enabled = false;
  Show(DiagnosticsScreen.status.caption, TextId::UpdatingDetectors);
  EnableAllFields(false);
  DiagnosticsScreen.bar.Start(std::max(1, Detectors()));
  DetectorCursor = 0;
  DetectorUpdate.Enable();
}

void FinishUpdate() {
  DetectorUpdate.Disable();
  EnableAllFields(true);
  DetectorSeen.fill(false);
  Show(DiagnosticsScreen.status.caption, TextId::TestingDetectors);
  DiagnosticsScreen.detectors.update.enabled = true;
}

/// In the range that the code tells, whatever the level would lie in.
std::string UpdateFrame(int detector) {
  const int code = DetectorCode(detector).Whole();
  return "A" + Padded(detector) + WireLevel(DetectorLevel(detector).Whole(), code / CodeBase) +
         Padded(code) + std::string(FrameEnd);
}

void SendNextDetector() {
  // A port that fails here ends the update.
  DetectorUpdate.Disable();
  Port->Write(UpdateFrame(DetectorCursor));
  DetectorUpdate.Enable();
  Fields(DetectorCursor).logic.colour = Fields(DetectorCursor).level.colour = PanelColour;
  AdvanceTestBar();
  ++DetectorCursor;
  if (DetectorCursor >= Detectors()) FinishUpdate();
}

// --- The test -----------------------------------------------------------------------------------

void Close() {
  DetectorUpdate.Disable();
  EnableAllFields(false);
  DiagnosticsScreen.detectors.update.enabled = false;
}

LiveTest Test{.command = {},
              .running = TextId::TestingDetectors,
              .steps = 0,
              .stop = &DiagnosticsScreen.detectors.stop,
              .takeLine = TakeLine,
              .sendStop = SendStop,
              .ended = Close};

void Start() {
  OpenDetectorTest();
  Test.command = Measures() ? Test4 : Test3;
  Test.steps = std::max(1, Detectors());
  StartTest(Test);
}

void ShowColumns() {
  DetectorPanel& panel = DiagnosticsScreen.detectors;
  Show(panel.numberColumn.caption, TextId::DetColumn);
  Show(panel.contactColumn.caption, TextId::ContactColumn);
  Show(panel.measuredColumn.caption, TextId::MeasuredColumn);
  Show(panel.logicColumn.caption, TextId::LogicColumn);
  Show(panel.levelColumn.caption, TextId::ReferenceColumn);
}

}  // namespace

Tick DetectorUpdate{"DetectorUpdate", 100, SendNextDetector};

void LoadDetectorTest() {
  DetectorPanel& panel = DiagnosticsScreen.detectors;
  Show(panel.group.caption, TextId::DetectorsTitle);
  Show(panel.help.caption, TextId::DetectorLegend);
  panel.help.visible = Language.Number() == Dutch;
  Show(panel.update.caption, TextId::Update);
  ShowColumns();
  std::vector<std::string> levels;
  for (const int level : DetectorLevels()) levels.push_back(std::to_string(level));
  for (int detector = 0; detector < MostDetectors; ++detector) {
    DetectorFields& fields = Fields(detector);
    fields.number.caption = std::to_string(detector + 1);
    fields.logic.items = {"<", ">"};
    fields.level.items = levels;
    fields.logic.onPick = [detector] { PickLogic(detector); };
    fields.level.onPick = [detector] { PickLevel(detector); };
  }
  panel.start.onClick = Start;
  panel.update.onClick = SendUpdate;
}

void OpenDetectorTest() {
  DetectorUpdate.Disable();
  DetectorSeen.fill(false);
  DiagnosticsScreen.detectors.update.enabled = false;
  for (int detector = 0; detector < MostDetectors; ++detector) {
    DetectorFields& fields = Fields(detector);
    const bool used = detector < Detectors();
    for (Field* field : std::initializer_list<Field*>{
             &fields.number, &fields.contact, &fields.measured, &fields.logic, &fields.level}) {
      field->visible = used;
      field->colour = PanelColour;
    }
    fields.number.colour.reset();
    fields.contact.caption.clear();
    fields.measured.caption.clear();
    fields.logic.Clear();
    fields.level.Clear();
    EnableFields(detector, false);
  }
}

}  // namespace bkconf
