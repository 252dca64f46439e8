#include "output/output_screen.h"

#include <array>

#include "image/kind_set.h"
#include "image/tables.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "session/module_title.h"

namespace bkconf {

OutputScreenFields::OutputScreenFields()
    : Screen("OutputScreen"),
      functionsGroup(*this, "functionsGroup"),
      functions(*this, "functions"),
      editGroup(*this, "editGroup"),
      outputLabel(*this, "outputLabel"),
      output(*this, "output"),
      functionLabel(*this, "functionLabel"),
      function(*this, "function"),
      linkedLabel(*this, "linkedLabel"),
      linked(*this, "linked"),
      timeLabel(*this, "timeLabel"),
      time(*this, "time"),
      unit(*this, "unit"),
      confirm(*this, "confirm"),
      startGroup(*this, "startGroup"),
      startValues(*this, "startValues"),
      startEditGroup(*this, "startEditGroup"),
      channelLabel(*this, "channelLabel"),
      channel(*this, "channel"),
      startLabel(*this, "startLabel"),
      start(*this, "start"),
      confirmStart(*this, "confirmStart"),
      leave(*this, "leave") {}

namespace {

constexpr int Outputs = 12;
constexpr int Channels = 4;
constexpr int LumenzaOutputs = 8;
constexpr KindSet Dimmers{DimKind, LumenzaKind};

/// Cells of ButtonImage, of the first output.
constexpr int FunctionCell = 123;
constexpr int TimeCell = 135;
constexpr int LinkedCell = 147;
constexpr int StartCell = 123;

struct OutputFunction {
  TextId name;
  bool seconds;  ///< the time counts seconds, not minutes
  bool timed;
  std::optional<TextId> linkedName;  ///< in the grid, before the number of the linked output
};

/// By function code. The linked ones have a longer name in the grid.
constexpr auto Functions = std::to_array<OutputFunction>({
    {TextId::OnOff, false, false, std::nullopt},
    {TextId::OnOffTimed, false, true, std::nullopt},
    {TextId::OnTimed, false, true, std::nullopt},
    {TextId::Pulse, true, true, std::nullopt},
    {TextId::ActiveAfter, false, true, TextId::ActiveAfterOutput},
    {TextId::LockedWith, false, true, TextId::LockedWithOutput},
});

const OutputFunction* FindFunction(const Cell& code) {
  const int place = code.WholeNumber().value_or(-1);
  const bool known = place >= 0 && place < static_cast<int>(Functions.size());
  return known ? &Functions[static_cast<std::size_t>(place)] : nullptr;
}

// --- Functions of outputs -----------------------------------------------------------------------

std::string FunctionText(const OutputFunction& function, int output, TextId timedName) {
  if (function.linkedName) {
    return Say(*function.linkedName) + ButtonImage[LinkedCell + output].Text() +
           Say(TextId::LinkedFor);
  }
  return Say(function.name == TextId::OnOffTimed ? timedName : function.name);
}

std::string TimeText(const OutputFunction& function, int output) {
  if (!function.timed) return {};
  return ButtonImage[TimeCell + output].Text() + (function.seconds ? " sec." : " min.");
}

/// A code that is none of the known ones leaves its row empty.
void DrawFunctions(TextId timedName) {
  for (int output = 0; output < Outputs; ++output) {
    const OutputFunction* function = FindFunction(ButtonImage[FunctionCell + output]);
    OutputScreen.functions.Put(output + 1, 0, std::to_string(output + 1));
    OutputScreen.functions.Put(
        output + 1, 1, function == nullptr ? "" : FunctionText(*function, output, timedName));
    OutputScreen.functions.Put(output + 1, 2,
                               function == nullptr ? "" : TimeText(*function, output));
  }
}

void ShowField(LabelField& label, ListField& list, bool shown) {
  label.visible = list.visible = shown;
}

/// Time and linked output appear as the function needs them.
void PickFunction() {
  const int place = OutputScreen.function.Index();
  const OutputFunction* function =
      place < 0 ? nullptr : &Functions[static_cast<std::size_t>(place)];
  const bool timed = function != nullptr && function->timed;
  ShowField(OutputScreen.timeLabel, OutputScreen.time, timed);
  OutputScreen.unit.visible = timed;
  OutputScreen.unit.caption =
      timed ? Say(function->seconds ? TextId::SecondsUnit : TextId::MinutesUnit) : "";
  ShowField(OutputScreen.linkedLabel, OutputScreen.linked, timed && function->linkedName);
}

/// Incomplete fields store nothing, and nothing is said. What another function needs stays in its
/// cell: it is just not shown.
void ConfirmFunction() {
  if (!OutputScreen.editGroup.visible) return;
  const int output = OutputScreen.output.Index();
  const int place = OutputScreen.function.Index();
  if (output < 0 || place < 0) return;
  const OutputFunction& function = Functions[static_cast<std::size_t>(place)];
  if (function.timed && OutputScreen.time.Index() < 0) return;
  if (function.linkedName && OutputScreen.linked.Index() < 0) return;
  ButtonImage[FunctionCell + output] = place;
  if (function.timed) ButtonImage[TimeCell + output] = OutputScreen.time.Text();
  if (function.linkedName) ButtonImage[LinkedCell + output] = OutputScreen.linked.Text();
  SignalChange();
  DrawFunctions(TextId::OnOffTimed);
}

// --- Start values -------------------------------------------------------------------------------

void DrawStartValues() {
  for (int channel = 0; channel < Channels; ++channel) {
    const double tens = ButtonImage[StartCell + channel].Number();
    OutputScreen.startValues.Put(channel + 1, 0, std::to_string(channel + 1));
    OutputScreen.startValues.Put(channel + 1, 1, PlainText(tens * 10) + " %");
  }
}

void ConfirmStart() {
  if (!OutputScreen.startEditGroup.visible) return;
  const int channel = OutputScreen.channel.Index();
  if (channel < 0 || OutputScreen.start.Index() < 0) return;
  ButtonImage[StartCell + channel] = OutputScreen.start.Index() + 1;
  SignalChange();
  // From here on the French caption is another one; both are kept.
  OutputScreen.startValues.columns[0].caption = Text(TextId::ChannelColumnAfterConfirm);
  DrawStartValues();
}

/// Channels 5 to 8 of a Lumenza module are plain outputs. Their rows are written once.
void DrawPlainOutputs() {
  if (ActiveCode() != LumenzaKind) return;
  for (int output = Channels + 1; output <= LumenzaOutputs; ++output) {
    OutputScreen.startValues.Put(output, 0, std::to_string(output));
    OutputScreen.startValues.Put(output, 1, Text(TextId::OnOff));
  }
}

// --- Opening ------------------------------------------------------------------------------------

void ShowCaptions() {
  ShowAll({
      {OutputScreen.functionsGroup.caption, TextId::OutputFunctions},
      {OutputScreen.editGroup.caption, TextId::EditOutput},
      {OutputScreen.outputLabel.caption, TextId::OutputCaption},
      {OutputScreen.functionLabel.caption, TextId::FunctionCaption},
      {OutputScreen.linkedLabel.caption, TextId::OutputCaption},
      {OutputScreen.timeLabel.caption, TextId::TimeCaption},
      {OutputScreen.confirm.caption, TextId::Confirm},
      {OutputScreen.startGroup.caption, TextId::StartValues},
      {OutputScreen.startEditGroup.caption, TextId::EditStartValue},
      {OutputScreen.channelLabel.caption, TextId::ChannelCaption},
      {OutputScreen.startLabel.caption, TextId::StartValueCaption},
      {OutputScreen.confirmStart.caption, TextId::Confirm},
      {OutputScreen.leave.caption, TextId::Leave},
  });
}

void FillLists() {
  constexpr int longestTime = 15;
  constexpr int startSteps = 9;
  OutputScreen.output.items = OutputScreen.linked.items = NumberItems(1, Outputs);
  OutputScreen.time.items = NumberItems(1, longestTime);
  OutputScreen.channel.items = NumberItems(1, Channels);
  OutputScreen.start.items = NumberItems(1, startSteps);
  for (std::string& tens : OutputScreen.start.items) tens += "0%";
  OutputScreen.function.items.clear();
  for (const OutputFunction& row : Functions) OutputScreen.function.items.push_back(Say(row.name));
}

void OpenFunctions() {
  OutputScreen.functions.columns = {
      {Say(TextId::OutputColumn), 2}, {Say(TextId::FunctionName), 5}, {Say(TextId::TimeColumn), 2}};
  OutputScreen.functions.Resize(Outputs);
  OutputScreen.output.Clear();
  OutputScreen.function.Clear();
  OutputScreen.time.Clear();
  OutputScreen.linked.Clear();
  PickFunction();
  // The name with no blank before the plus: it is so until the first confirm.
  DrawFunctions(TextId::OnOffTimedOnOpening);
  OutputScreen.enter = &OutputScreen.confirm;
}

void OpenStartValues() {
  OutputScreen.startValues.columns = {{Say(TextId::ChannelColumn), 1200},
                                      {Say(TextId::ValueName), 800}};
  OutputScreen.startValues.Resize(ActiveCode() == LumenzaKind ? LumenzaOutputs : Channels);
  OutputScreen.channel.Clear();
  OutputScreen.start.Clear();
  DrawStartValues();
  DrawPlainOutputs();
  OutputScreen.enter = &OutputScreen.confirmStart;
}

}  // namespace

void LoadOutputScreen() {
  ShowCaptions();
  FillLists();
  OutputScreen.function.onPick = PickFunction;
  OutputScreen.confirm.onClick = ConfirmFunction;
  OutputScreen.confirmStart.onClick = ConfirmStart;
  OutputScreen.leave.onClick = [] { OutputScreen.Close(); };
  OutputScreen.functionsGroup.visible = OutputScreen.editGroup.visible = false;
  OutputScreen.startGroup.visible = OutputScreen.startEditGroup.visible = false;
}

void OpenOutputScreen() {
  const bool dimmer = Dimmers.Contains(ActiveCode());
  OutputScreen.title = ModuleTitle();
  OutputScreen.functionsGroup.visible = OutputScreen.editGroup.visible = !dimmer;
  OutputScreen.startGroup.visible = OutputScreen.startEditGroup.visible = dimmer;
  if (dimmer) {
    OpenStartValues();
  } else {
    OpenFunctions();
  }
  OutputScreen.shown = true;
}

}  // namespace bkconf
