#include "special/alarm_screen.h"

#include <array>
#include <string>

#include "actions/action_code.h"
#include "actions/action_sentence.h"
#include "image/tables.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "session/module_title.h"

namespace bkconf {

AlarmScreenFields::AlarmScreenFields()
    : Screen("AlarmScreen"),
      listLabel(*this, "listLabel"),
      detector(*this, "detector"),
      inService(*this, "inService"),
      settingsGroup(*this, "settingsGroup"),
      triggerGroup(*this, "triggerGroup"),
      triggerAction(*this, "triggerAction"),
      endGroup(*this, "endGroup"),
      endAction(*this, "endAction"),
      note(*this, "note"),
      conditions(*this),
      atOnce(*this, "atOnce"),
      delayLabel(*this, "delayLabel"),
      delay(*this, "delay"),
      delayUnit(*this, "delayUnit"),
      editGroup(*this, "editGroup"),
      noAction(*this, "noAction"),
      picker(*this, "picker", AlarmPicker),
      editConfirm(*this, "editConfirm"),
      editLeave(*this, "editLeave"),
      leave(*this, "leave") {}

namespace {

constexpr int LongestDelay = 120;

/// Cells of AlarmImage, of the first detector.
constexpr int DelayCell = 124;
constexpr int ServiceCell = 136;
constexpr int ActionsCell = 149;
constexpr int ConditionsCell = 221;
constexpr int JoiningCell = 281;
/// Cells from one detector to the next.
constexpr int ActionsSize = 2 * ActionSize;
constexpr int ConditionsSize = 5;

/// One of the two actions of a detector.
struct Edge {
  GridField& field;
  int offset;  ///< of its cells among those of the actions
};
const std::array<Edge, 2> Edges = {
    {{AlarmScreen.triggerAction, 0}, {AlarmScreen.endAction, ActionSize}}};

/// The one that the editor works on.
const Edge* edited = nullptr;

int Detector() {
  return AlarmScreen.detector.Index();
}

int ActionCell(const Edge& edge) {
  return ActionsCell + ActionsSize * Detector() + edge.offset;
}

Cell& DelayOf() {
  return AlarmImage[DelayCell + Detector()];
}

void BlankNote() {
  AlarmNote.Disable();
  AlarmScreen.note.caption.clear();
}

void ShowEditor(bool shown) {
  AlarmScreen.editGroup.visible = shown;
  AlarmScreen.enter = shown ? &AlarmScreen.editConfirm : nullptr;
  AlarmScreen.escape = shown ? &AlarmScreen.editLeave : nullptr;
}

// --- One detector -------------------------------------------------------------------------------

/// An empty action is shown as one and its cells stay what they are.
void ShowAction(const Edge& edge) {
  const int cell = ActionCell(edge);
  const bool holds = HoldsAction(AlarmImage[cell]);
  edge.field.Put(1, 0,
                 holds ? ProgramActionCode(AlarmImage, cell, ValueForm::OneBasedInBlocks)
                       : std::string(ActionEmptyText));
}

void ShowService() {
  const bool active = AlarmImage[ServiceCell + Detector()].Number() == 1;
  AlarmScreen.inService.checked = active;
  Show(AlarmScreen.inService.caption, active ? TextId::InService : TextId::OutOfService);
}

void EnableDelay() {
  const bool waits = Detector() >= 0 && !AlarmScreen.atOnce.checked;
  AlarmScreen.delay.enabled = AlarmScreen.delayLabel.enabled = AlarmScreen.delayUnit.enabled =
      waits;
}

void ShowDelay() {
  AlarmScreen.atOnce.checked = DelayOf().Number() == 0;
  AlarmScreen.delay.Clear();
  if (!AlarmScreen.atOnce.checked) AlarmScreen.delay.Show(PlainText(DelayOf().Number()));
}

void EnableDetector(bool enabled) {
  for (Field* field : std::initializer_list<Field*>{
           &AlarmScreen.settingsGroup, &AlarmScreen.triggerGroup, &AlarmScreen.triggerAction,
           &AlarmScreen.endGroup, &AlarmScreen.endAction, &AlarmScreen.inService,
           &AlarmScreen.atOnce}) {
    field->enabled = enabled;
  }
  AlarmScreen.inService.visible = enabled;
}

void ShowNoDetector() {
  EnableDetector(false);
  AlarmScreen.inService.checked = false;
  for (const Edge& edge : Edges) edge.field.Put(1, 0, "");
  AlarmScreen.conditions.Close();
  AlarmScreen.atOnce.checked = false;
  AlarmScreen.delay.Clear();
  EnableDelay();
}

void PickDetector() {
  BlankNote();
  ShowEditor(false);
  for (const Edge& edge : Edges) edge.field.ClearSelection();
  EnableDetector(true);
  ShowService();
  for (const Edge& edge : Edges) ShowAction(edge);
  AlarmScreen.conditions.Fill(
      {&AlarmImage, ConditionsCell + ConditionsSize * Detector(), JoiningCell + Detector()});
  ShowDelay();
  EnableDelay();
}

void ChangeService() {
  AlarmImage[ServiceCell + Detector()] = AlarmScreen.inService.checked ? 1 : 0;
  ShowService();
  SignalChange();
}

/// Without the switch there is nothing to store until a delay is picked.
void ChangeAtOnce() {
  AlarmScreen.delay.Clear();
  if (AlarmScreen.atOnce.checked) {
    DelayOf() = 0;
    SignalChange();
  }
  EnableDelay();
}

void PickDelay() {
  DelayOf() = AlarmScreen.delay.Text();
  SignalChange();
}

// --- The actions --------------------------------------------------------------------------------

void DescribeAction(const Edge& edge) {
  AlarmScreen.note.caption = OwnActionSentence(edge.field.At(1, 0));
  AlarmNote.Enable();
}

void OpenEditor(const Edge& edge) {
  edited = &edge;
  AlarmScreen.noAction.checked = false;
  AlarmScreen.picker.Reset();
  ShowEditor(true);
}

void ChangeNoAction() {
  if (AlarmScreen.noAction.checked) {
    AlarmScreen.picker.Disable();
  } else {
    AlarmScreen.picker.Reset();
  }
}

/// What is not complete is not stored, and nothing is said.
void Store() {
  if (!AlarmScreen.editGroup.visible) return;
  const auto cells = AlarmScreen.picker.Compose();
  if (!AlarmScreen.noAction.checked && !cells) return;
  const int cell = ActionCell(*edited);
  if (AlarmScreen.noAction.checked) {
    EraseAction(AlarmImage, cell);
  } else {
    PutAction(AlarmImage, cell, *cells);
  }
  ShowAction(*edited);
  ShowEditor(false);
  SignalChange();
}

// --- Opening ------------------------------------------------------------------------------------

void ShowCaptions() {
  ShowAll({
      {AlarmScreen.listLabel.caption, TextId::DetectorsTitle},
      {AlarmScreen.settingsGroup.caption, TextId::DetectorSettings},
      {AlarmScreen.triggerGroup.caption, TextId::TriggerAction},
      {AlarmScreen.endGroup.caption, TextId::EndAction},
      {AlarmScreen.atOnce.caption, TextId::AtOnce},
      {AlarmScreen.delayLabel.caption, TextId::AfterDelay},
      {AlarmScreen.delayUnit.caption, TextId::DelayMinutes},
      {AlarmScreen.editGroup.caption, TextId::EditTitle},
      {AlarmScreen.noAction.caption, TextId::NoAction},
      {AlarmScreen.editConfirm.caption, TextId::Confirm},
      {AlarmScreen.editLeave.caption, TextId::Leave},
      {AlarmScreen.leave.caption, TextId::Leave},
  });
}

void FillLists() {
  AlarmScreen.detector.items.clear();
  for (int detector = 1; detector <= MostDetectors; ++detector) {
    AlarmScreen.detector.items.push_back(std::string(Text(TextId::DetectorSentence)) +
                                         std::to_string(detector));
  }
  AlarmScreen.delay.items = NumberItems(1, LongestDelay);
  for (const Edge& edge : Edges) {
    edge.field.columns = {{std::string(Text(TextId::ActionColumn)), 1}};
    edge.field.Resize(1);
    edge.field.toolTip = Text(TextId::EditHint);
  }
}

}  // namespace

Tick AlarmNote{"AlarmNote", 5000, BlankNote};

void LoadAlarmScreen() {
  ShowCaptions();
  FillLists();
  AlarmScreen.conditions.Load(TextId::DarkerThan);
  AlarmScreen.picker.Load();
  AlarmScreen.detector.onPick = PickDetector;
  AlarmScreen.inService.onChange = ChangeService;
  AlarmScreen.atOnce.onChange = ChangeAtOnce;
  AlarmScreen.delay.onPick = PickDelay;
  for (const Edge& edge : Edges) {
    edge.field.onSelect = [&edge](int, int) { DescribeAction(edge); };
    edge.field.onDoubleClick = [&edge](int row, int) {
      if (row > 0) OpenEditor(edge);
    };
  }
  AlarmScreen.noAction.onChange = ChangeNoAction;
  AlarmScreen.editConfirm.onClick = Store;
  AlarmScreen.editLeave.onClick = [] { ShowEditor(false); };
  AlarmScreen.leave.onClick = [] { AlarmScreen.Close(); };
  ShowNoDetector();
}

void OpenAlarmScreen() {
  ShowActiveModel();
  AlarmScreen.title = ModuleTitle();
  AlarmScreen.detector.Show(Text(TextId::DetectorPrompt));
  BlankNote();
  AlarmScreen.picker.Close();
  ShowEditor(false);
  ShowNoDetector();
  AlarmScreen.shown = true;
}

}  // namespace bkconf
