#include "special/audio_screen.h"

#include <algorithm>
#include <array>
#include <vector>

#include "image/tables.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "session/module_title.h"

namespace bkconf {

AudioList::AudioList(Screen& screen, const std::string& name)
    : label(screen, name + "Label"), list(screen, name) {}

AudioScreenFields::AudioScreenFields()
    : Screen("AudioScreen"),
      frame(*this, "frame"),
      generalGroup(*this, "generalGroup"),
      zones(*this, "zones"),
      sources(*this, "sources"),
      settingsGroup(*this, "settingsGroup"),
      zone(*this, "zone"),
      surround(*this, "surround"),
      surroundHint(*this, "surroundHint"),
      mainGroup(*this, "mainGroup"),
      source(*this, "source"),
      mainVolume(*this, "mainVolume"),
      gain(*this, "gain"),
      secondaryGroup(*this, "secondaryGroup"),
      secondaryVolume(*this, "secondaryVolume"),
      loudness(*this, "loudness"),
      leave(*this, "leave") {}

namespace {

constexpr int MostZones = 16;
constexpr int MostSources = 4;
constexpr int Steps = 16;

/// Cells of AudioImage, of the first zone. All of them count from 0.
constexpr int SurroundCell = 129;
constexpr int SourcesCell = 130;
constexpr int ZonesCell = 131;
constexpr int SourceCell = 133;
constexpr int LoudnessCell = 149;
constexpr int GainCell = 165;
constexpr int MainVolumeCell = 181;
constexpr int LastMainVolumeCell = 196;
constexpr int SecondaryVolumeCell = 197;

/// Zones behind the first that surround makes its other channels.
constexpr int SurroundZones = 2;
/// What is shown while the number of zones or sources was never set.
constexpr std::string_view NotChosen = "#";

/// A field of a zone, and its cell in the first zone.
struct ZoneField {
  AudioList* field;
  int cell;
};
const std::array<ZoneField, 4> ZoneFields = {{{&AudioScreen.source, SourceCell},
                                              {&AudioScreen.mainVolume, MainVolumeCell},
                                              {&AudioScreen.gain, GainCell},
                                              {&AudioScreen.secondaryVolume, SecondaryVolumeCell}}};

int Zone() {
  return AudioScreen.zone.list.Index();
}

bool IsSurround() {
  return AudioImage[SurroundCell].Number() == 1;
}

/// The first zone plays in surround, and the two behind it are its other channels.
bool FollowsFirstZone() {
  return IsSurround() && Zone() >= 1 && Zone() <= SurroundZones;
}

bool IsUnset(const Cell& cell) {
  return cell.Number() == EmptyCell;
}

/// How many there are, as far as that was set.
int CountIn(const Cell& cell, int most) {
  return IsUnset(cell) ? 0 : std::clamp(cell.Whole(), -1, most - 1) + 1;
}

/// Cells count from 0. A file may hold any number, also one that is none of int with one more.
std::string ValueText(const Cell& cell) {
  return IsUnset(cell) ? std::string() : PlainText(cell.Number() + 1);
}

std::string CountText(const Cell& cell) {
  return IsUnset(cell) ? std::string(NotChosen) : ValueText(cell);
}

/// Of the main volume: of the first zone, where the shown one follows it.
const Cell& ShownCell(const ZoneField& row) {
  const bool first = row.cell == MainVolumeCell && FollowsFirstZone();
  return AudioImage[row.cell + (first ? 0 : Zone())];
}

// --- Zones --------------------------------------------------------------------------------------

void EnableList(AudioList& field, bool enabled) {
  field.label.enabled = field.list.enabled = enabled;
}

/// Of a zone that follows the first one only the gain is its own.
void EnableZoneFields() {
  const bool chosen = Zone() >= 0;
  const bool free = chosen && !FollowsFirstZone();
  AudioScreen.mainGroup.enabled = AudioScreen.secondaryGroup.enabled = chosen;
  for (const ZoneField& row : ZoneFields) EnableList(*row.field, free);
  EnableList(AudioScreen.gain, chosen);
  AudioScreen.loudness.enabled = free;
  if (IsSurround() && Zone() == 0) EnableList(AudioScreen.source, false);
}

void ShowZone() {
  for (const ZoneField& row : ZoneFields) row.field->list.Show(ValueText(ShownCell(row)));
  AudioScreen.loudness.checked = AudioImage[LoudnessCell + Zone()].Number() == 1;
}

void ShowSurround() {
  AudioScreen.surround.visible = Zone() == 0;
  AudioScreen.surround.checked = IsSurround();
  AudioScreen.surroundHint.visible = FollowsFirstZone();
}

/// In surround the first zone plays the first source.
void PickZone() {
  ShowSurround();
  if (IsSurround() && Zone() == 0) {
    const bool changes = AudioImage[SourceCell].Number() != 0;
    AudioImage[SourceCell] = 0;
    if (changes) SignalChange();
  }
  ShowZone();
  EnableZoneFields();
}

void ClearZone() {
  AudioScreen.zone.list.Clear();
  for (const ZoneField& row : ZoneFields) row.field->list.Clear();
  AudioScreen.loudness.checked = false;
  AudioScreen.surround.visible = AudioScreen.surroundHint.visible = false;
  EnableZoneFields();
}

// --- Picks --------------------------------------------------------------------------------------

void PickZones() {
  AudioImage[ZonesCell] = AudioScreen.zones.list.Index();
  AudioScreen.zone.list.items = NumberItems(1, AudioScreen.zones.list.Index() + 1);
  ClearZone();
  SignalChange();
}

void PickSources() {
  AudioImage[SourcesCell] = AudioScreen.sources.list.Index();
  AudioScreen.source.list.items = NumberItems(1, AudioScreen.sources.list.Index() + 1);
  AudioScreen.source.list.Clear();
  SignalChange();
}

void PickValue(const ZoneField& row) {
  const int value = row.field->list.Index();
  AudioImage[row.cell + Zone()] = value;
  if (row.cell == MainVolumeCell && IsSurround()) {
    // Whatever zone it is; behind the last one other cells begin.
    for (int next = 1; next <= SurroundZones; ++next) {
      const int cell = MainVolumeCell + Zone() + next;
      if (cell <= LastMainVolumeCell) AudioImage[cell] = value;
    }
  }
  SignalChange();
}

void ChangeLoudness() {
  AudioImage[LoudnessCell + Zone()] = AudioScreen.loudness.checked ? 1 : 0;
  SignalChange();
}

/// The two zones behind play the second source, at the volume of the first zone.
void ChangeSurround() {
  AudioImage[SurroundCell] = AudioScreen.surround.checked ? 1 : 0;
  if (AudioScreen.surround.checked) {
    AudioImage[SourceCell] = 0;
    for (int next = 1; next <= SurroundZones; ++next) {
      AudioImage[SourceCell + next] = 1;
      AudioImage[MainVolumeCell + next] = AudioImage[MainVolumeCell];
    }
    AudioScreen.source.list.Show(ValueText(AudioImage[SourceCell]));
  }
  EnableZoneFields();
  SignalChange();
}

// --- Opening ------------------------------------------------------------------------------------

void ShowCounts() {
  AudioScreen.zones.list.Show(CountText(AudioImage[ZonesCell]));
  AudioScreen.sources.list.Show(CountText(AudioImage[SourcesCell]));
}

void ShowCaptions() {
  ShowAll({
      {AudioScreen.frame.caption, TextId::AudioTitleFrame},
      {AudioScreen.generalGroup.caption, TextId::AudioGeneral},
      {AudioScreen.zones.label.caption, TextId::ZoneCount},
      {AudioScreen.sources.label.caption, TextId::SourceCount},
      {AudioScreen.settingsGroup.caption, TextId::AudioSettingsGroup},
      {AudioScreen.zone.label.caption, TextId::Zone},
      {AudioScreen.surround.caption, TextId::Surround},
      {AudioScreen.surroundHint.caption, TextId::UsedForSurround},
      {AudioScreen.mainGroup.caption, TextId::MainZone},
      {AudioScreen.source.label.caption, TextId::DefaultSource},
      {AudioScreen.mainVolume.label.caption, TextId::DefaultVolume},
      {AudioScreen.gain.label.caption, TextId::Gain},
      {AudioScreen.secondaryGroup.caption, TextId::SecondaryZone},
      {AudioScreen.secondaryVolume.label.caption, TextId::DefaultVolume},
      {AudioScreen.loudness.caption, TextId::Loudness},
      {AudioScreen.leave.caption, TextId::Leave},
  });
}

}  // namespace

void LoadAudioScreen() {
  ShowCaptions();
  AudioScreen.zones.list.items = NumberItems(1, MostZones);
  AudioScreen.sources.list.items = NumberItems(1, MostSources);
  for (AudioList* field :
       {&AudioScreen.mainVolume, &AudioScreen.gain, &AudioScreen.secondaryVolume}) {
    field->list.items = NumberItems(1, Steps);
  }
  for (AudioList* field : {&AudioScreen.zones, &AudioScreen.sources}) {
    field->list.onTyped = ShowCounts;
  }
  AudioScreen.zones.list.onPick = PickZones;
  AudioScreen.sources.list.onPick = PickSources;
  AudioScreen.zone.list.onPick = PickZone;
  AudioScreen.surround.onChange = ChangeSurround;
  for (const ZoneField& row : ZoneFields) {
    row.field->list.onPick = [&row] { PickValue(row); };
    row.field->list.onTyped = [&row] { row.field->list.Show(ValueText(ShownCell(row))); };
  }
  AudioScreen.loudness.onChange = ChangeLoudness;
  AudioScreen.leave.onClick = [] { AudioScreen.Close(); };
}

void OpenAudioScreen() {
  ShowActiveModel();
  AudioScreen.title = ModuleTitle();
  ShowCounts();
  AudioScreen.zone.list.items = NumberItems(1, CountIn(AudioImage[ZonesCell], MostZones));
  AudioScreen.source.list.items = NumberItems(1, CountIn(AudioImage[SourcesCell], MostSources));
  ClearZone();
  AudioScreen.shown = true;
}

}  // namespace bkconf
