#include "session/module_title.h"

#include <array>

#include "session/language.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

struct TitleRow {
  int kind;
  TextId title;  ///< up to the letter, for those that have one
};

constexpr auto Titles = std::to_array<TitleRow>({
    {0, TextId::RelayTitle},
    {4, TextId::RelayDcTitle},
    {1, TextId::DimTitle},
    {11, TextId::LumenzaTitle},
    {9, TextId::MasterTitle},
    {2, TextId::TemperatureTitle},
    {3, TextId::LcdTitle},
    {5, TextId::AlarmTitle},
    {6, TextId::AudioTitle},
    {7, TextId::SimulationTitle},
    {8, TextId::IrTitle},
});

}  // namespace

std::string ModuleTitle() {
  for (const TitleRow& row : Titles) {
    if (row.kind != ActiveCode()) continue;
    std::string title(Text(row.title));
    const bool hasLetter = ActiveKind()->address.table != nullptr;
    if (hasLetter) title += CharacterOf(OwnAddress().Whole()) + ">";
    return title;
  }
  return {};
}

}  // namespace bkconf
