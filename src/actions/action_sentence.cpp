#include "actions/action_sentence.h"

#include <algorithm>
#include <array>
#include <span>

#include "actions/action_code.h"
#include "image/module_directory.h"
#include "session/language.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

/// The parts of a code.
struct Code {
  char letter;
  std::string number;  ///< two digits, as they stand
  std::string value;

  int Number() const { return LenientNumber(number); }
  int Value() const { return LenientNumber(value); }
};

struct Word {
  int value;
  TextId text;
};

constexpr auto SwitchWords =
    std::to_array<Word>({{0, TextId::WordOff}, {1, TextId::WordOn}, {2, TextId::WordToggle}});
constexpr auto DetectorWords = std::to_array<Word>({{0, TextId::WordOff}, {1, TextId::WordOn}});

/// A module with numbered outputs: 'A':  Output 01 on.
struct OutputSentence {
  int kind;
  TextId module;
  TextId output;
  std::span<const Word> words;
  bool percentages;  ///< values above those of the words
};

constexpr auto OutputSentences = std::to_array<OutputSentence>({
    {0, TextId::RelaySentence, TextId::OutputSentence, SwitchWords, false},
    {4, TextId::RelayDcSentence, TextId::OutputSentence, SwitchWords, false},
    {1, TextId::DimSentence, TextId::OutputSentence, SwitchWords, true},
    {11, TextId::LumenzaSentence, TextId::OutputSentence, SwitchWords, true},
    {5, TextId::AlarmSentence, TextId::DetectorSentence, DetectorWords, false},
});

enum class Zone { Main, Secondary };

struct ZoneWord {
  int value;
  Zone zone;
  TextId text;
};

constexpr auto ZoneWords = std::to_array<ZoneWord>({
    {0, Zone::Main, TextId::WordOff},
    {16, Zone::Secondary, TextId::WordOff},
    {1, Zone::Main, TextId::WordOn},
    {17, Zone::Secondary, TextId::WordOn},
    {2, Zone::Main, TextId::WordToggle},
    {18, Zone::Secondary, TextId::WordToggle},
    {3, Zone::Main, TextId::WordVolumeUp},
    {19, Zone::Secondary, TextId::WordVolumeUp},
    {4, Zone::Main, TextId::WordVolumeDown},
    {20, Zone::Secondary, TextId::WordVolumeDown},
    {5, Zone::Main, TextId::WordSourceUp},
    {6, Zone::Main, TextId::WordTrebleUp},
    {7, Zone::Main, TextId::WordTrebleDown},
    {8, Zone::Main, TextId::WordBassUp},
    {9, Zone::Main, TextId::WordBassDown},
});

/// Above 16 the number tells what is set, and the zone behind it.
struct ValueBlock {
  int base;        ///< zones 1 to 16 follow
  bool bothZones;  ///< a value above 16 is one of the secondary zone
  TextId text;
};

constexpr int ZonesInBlock = 16;
constexpr auto ValueBlocks = std::to_array<ValueBlock>({
    {16, false, TextId::WordToSource},
    {32, true, TextId::WordToVolume},
    {48, false, TextId::WordToTreble},
    {64, false, TextId::WordToBass},
    {80, true, TextId::WordToBalance},
});

/// "Relaismodule 'A':  ", the module in front of what it is to do.
std::string Prefix(TextId module, const Code& code) {
  return Say(module) + code.letter + "':  ";
}

template <typename Words>
const auto* FindWord(const Words& words, int value) {
  const auto word = std::find_if(words.begin(), words.end(),
                                 [value](const auto& each) { return each.value == value; });
  return word == words.end() ? nullptr : &*word;
}

std::string SayOutput(const OutputSentence& row, const Code& code) {
  std::string word;
  if (const Word* found = FindWord(row.words, code.Value())) {
    word = Say(found->text);
  } else if (row.percentages) {
    word = Say(TextId::WordToPercent) + code.value + "%";
  } else {
    return {};
  }
  return Prefix(row.module, code) + Say(row.output) + code.number + word;
}

std::string SayTemperature(const Code& code) {
  constexpr int allRooms = 9;
  constexpr int base = 99;
  const bool all = code.Number() == allRooms;
  const std::string what = code.Value() == base ? Say(TextId::BaseTemperature) : code.value + "°C";
  const std::string where = all ? Say(TextId::InAllRooms) : Say(TextId::InRoom) + code.number;
  return Prefix(TextId::TemperatureSentence, code) + what + where;
}

std::string SaySimulation(const Code& code) {
  if (code.Value() > 1) return {};
  return Prefix(TextId::SimulationSentence, code) +
         Say(code.Value() == 1 ? TextId::SimulationRuns : TextId::SimulationStops);
}

std::string ZonePrefix(Zone zone, const Code& code) {
  return Prefix(TextId::AudioSentence, code) +
         Say(zone == Zone::Main ? TextId::MainZoneSentence : TextId::SecondaryZoneSentence);
}

std::string SayZone(const Code& code) {
  const ZoneWord* word = FindWord(ZoneWords, code.Value());
  if (word == nullptr) return {};
  return ZonePrefix(word->zone, code) + code.number + Say(word->text);
}

/// In the main zone the value keeps its leading zero, in the secondary zone it has none.
std::string SayAudioValue(const Code& code) {
  for (const ValueBlock& block : ValueBlocks) {
    const int zone = code.Number() - block.base;
    if (zone < 1 || zone > ZonesInBlock) continue;
    const bool secondary = block.bothZones && code.Value() > ZonesInBlock;
    const std::string value = secondary ? std::to_string(code.Value() - ZonesInBlock) : code.value;
    return ZonePrefix(secondary ? Zone::Secondary : Zone::Main, code) + std::to_string(zone) +
           Say(block.text) + value;
  }
  return {};
}

std::string SayModule(int kind, const Code& code) {
  if (code.Number() > ZonesInBlock) return kind == AudioKind ? SayAudioValue(code) : std::string();
  for (const OutputSentence& row : OutputSentences) {
    if (row.kind == kind) return SayOutput(row, code);
  }
  switch (kind) {
    case TemperatureKind:
      return SayTemperature(code);
    case AudioKind:
      return SayZone(code);
    case SimulationKind:
      return SaySimulation(code);
    default:
      return {};
  }
}

bool IsModuleLetter(char letter) {
  return letter >= 'A' && letter < ContextLetter;
}

}  // namespace

std::string ActionSentence(std::string_view text, const SentenceVariant& variant,
                           std::optional<int> kind) {
  constexpr std::size_t size = 5;
  if (text.size() != size) return {};
  const Code code{text[0], std::string(text.substr(1, 2)), std::string(text.substr(3, 2))};
  if (code.letter == ContextLetter && variant.contexts) {
    return Say(TextId::ContextSentence) + code.number;
  }
  if (code.letter == CorvelaLetter) {
    return Say(TextId::CorvelaSentence) + std::string(text.substr(1));
  }
  if (!IsModuleLetter(code.letter) || !kind || !variant.modules.Contains(*kind)) return {};
  return SayModule(*kind, code);
}

std::string MasterActionSentence(std::string_view code, const SentenceVariant& variant) {
  if (code.empty()) return {};
  return ActionSentence(code, variant, DirectoryTypeOf(code.front()));
}

std::string OwnActionSentence(std::string_view code) {
  const bool own = !code.empty() && OwnLetter() == code.substr(0, 1);
  return ActionSentence(code, OwnSentences, own ? std::optional(ActiveCode()) : std::nullopt);
}

}  // namespace bkconf
