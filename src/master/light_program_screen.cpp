#include "master/light_program_screen.h"

#include <array>
#include <string>

#include "image/commands.h"
#include "image/tables.h"
#include "session/language.h"
#include "session/state.h"

namespace bkconf {
namespace {

/// A delete loses every Corvela code below it, since the walk takes those slots as unused; and the
/// last slot is never emptied, since the walk copies it and ends. Both stay so, on purpose.
constexpr ProgramList List{
    .programs = {.table = LightProgramTable,
                 .slots = 200,
                 .slotSize = 5,
                 .action = 2,
                 .lastMoved = 199,
                 .moves = HoldsModuleOrContextAction,
                 .form = ValueForm::AsStored},
    .command = Read3,
    .read = LinkEvent::LightProgramsRead,
    .loaded = MasterLightLoaded,
    .dirty = MasterLightDirty,
    .sentences = LightProgramSentences,
    .title = TextId::LightProgramsTitle,
};

/// Cells of a slot.
enum : int { Direction, Level };
constexpr int HighestLevel = 50;

/// By direction.
constexpr auto Arrows = std::to_array<TextId>({TextId::LightToDark, TextId::DarkToLight});
constexpr auto ArrowsAfterRead =
    std::to_array<TextId>({TextId::LightToDarkAfterRead, TextId::DarkToLightAfterRead});

}  // namespace

LightProgramScreenFields::LightProgramScreenFields()
    : ProgramScreen("LightProgramScreen", List, LightPicker),
      lightToDark(*this, "lightToDark", nullptr),
      darkToLight(*this, "darkToLight", &lightToDark),
      levelGroup(*this, "levelGroup"),
      levelLabel(*this, "levelLabel"),
      level(*this, "level"),
      darkEnd(*this, "darkEnd"),
      lightEnd(*this, "lightEnd") {}

void LightProgramScreenFields::Load() {
  ShowAll({
      {lightToDark.caption, TextId::LightToDark},
      {darkToLight.caption, TextId::DarkToLight},
      {levelGroup.caption, TextId::LevelFrame},
      {levelLabel.caption, TextId::LevelHeading},
      {levelLabel.toolTip, TextId::LevelHint},
      {level.toolTip, TextId::LevelHint},
      {darkEnd.caption, TextId::DarkEnd},
      {lightEnd.caption, TextId::LightEnd},
  });
  level.items.clear();
  for (int each = 1; each <= HighestLevel; ++each) level.items.push_back(Padded(each));
  LoadList({{std::string(Text(TextId::DirectionColumn)), 1500},
            {std::string(Text(TextId::ValueName)), 1600}});
}

void LightProgramScreenFields::ClearMoment() {
  lightToDark.ClearGroup();
  level.Clear();
  ShowMoment(false);
}

void LightProgramScreenFields::ShowMoment(bool visible) {
  lightToDark.visible = darkToLight.visible = visible;
  levelGroup.visible = levelLabel.visible = level.visible = visible;
}

bool LightProgramScreenFields::IsMomentComplete() const {
  return !level.Text().empty() && (lightToDark.Chosen() || darkToLight.Chosen());
}

void LightProgramScreenFields::StoreMoment(int cell) {
  LightProgramTable[cell + Direction] = lightToDark.Chosen() ? 0 : 1;
  LightProgramTable[cell + Level] = level.Text();
}

void LightProgramScreenFields::DrawMoment(int row, int cell, Drawing drawing) {
  const Cell& held = LightProgramTable[cell + Direction];
  const int direction = held.IsEmpty() ? 0 : held.WholeNumber().value_or(-1);
  // A direction that is none leaves what stands there.
  if (direction == 0 || direction == 1) {
    const auto& names = drawing == Drawing::AfterRead ? ArrowsAfterRead : Arrows;
    PutColumn(row, 2, Text(names[static_cast<std::size_t>(direction)]));
  }
  PutColumn(row, 3, Padded(LightProgramTable[cell + Level].Number()));
}

void LoadLightProgramScreen() {
  LightProgramScreen.Load();
}

void OpenLightProgramScreen() {
  LightProgramScreen.Enter();
}

}  // namespace bkconf
