#include "demo_house/references.h"

#include <algorithm>
#include <map>

#include "demo_house/house_files.h"

namespace demo_house_test {
namespace {

constexpr int contextLetter = 'S';
constexpr int codeLetter = 'Z';

// Lines of a display have a mark of their own.
bool IsEmpty(Place place, int target) {
  return target == (place == Place::MenuLine ? '#' : 42);
}

// Collects records of two or three cells.
class Collector {
 public:
  void Record(Place place, const ImageFile& file, int cell) { Add(place, file, cell, true); }
  void Pair(Place place, const ImageFile& file, int cell) { Add(place, file, cell, false); }

  std::vector<Reference> found;

 private:
  void Add(Place place, const ImageFile& file, int cell, bool hasValue) {
    if (IsEmpty(place, file.At(cell))) {
      return;
    }
    found.push_back({place, file.name + ", cell " + std::to_string(cell), file.At(cell),
                     file.At(cell + 1),
                     hasValue ? std::optional(file.At(cell + 2)) : std::nullopt});
  }
};

void CollectButtons(Collector& collector) {
  for (const ImageFile& file : House()) {
    if (file.Kind() == 2 || file.Kind() == 3) {
      continue;
    }
    for (int cell = 0; cell < 120; cell += 3) {
      collector.Record(file.Kind() == 9 ? Place::MasterButton : Place::Button, file, cell);
    }
  }
}

void CollectMaster(Collector& collector) {
  const ImageFile& file = FileOfKind(9);
  for (const PlacedContext& context : PlacedContexts()) {
    for (int cell = context.cell; file.At(master::contexts + cell) != 42; cell += 3) {
      collector.Record(Place::Context, file, master::contexts + cell);
    }
  }
  for (int slot = 0; slot < 110; ++slot) {
    collector.Record(Place::TimeProgramme, file, master::times + 9 * slot + 6);
  }
  for (int slot = 0; slot < 200; ++slot) {
    collector.Record(Place::LightProgramme, file, master::lights + 5 * slot + 2);
  }
}

void CollectDisplay(Collector& collector) {
  const ImageFile& file = FileOfKind(3);
  for (const int screen : display::screens) {
    for (int cell = 780; cell < 1020; cell += 2) {
      collector.Pair(Place::MenuLine, file, screen + cell);
    }
  }
}

void CollectSpecial(Collector& collector) {
  for (int cell = 149; cell < 221; cell += 3) {
    collector.Record(Place::Detector, FileOfKind(5), cell);
  }
  for (int cell = 135; cell < 185; cell += 2) {
    collector.Pair(Place::Participant, FileOfKind(7), cell);
  }
  for (int cell = 125; cell < 509; cell += 3) {
    collector.Record(Place::RemoteKey, FileOfKind(8), cell);
  }
  for (int cell = 64; cell < 82; cell += 2) {
    collector.Pair(Place::Valve, FileOfKind(2), temperature::tail + cell);
  }
}

bool IsPercentage(int value) {
  return value >= 10 && value <= 90 && value % 10 == 0;
}

std::string OutputFault(int index, std::optional<int> value, int outputs, int dimmed) {
  if (index >= outputs) {
    return "no such output";
  }
  const bool possible =
      !value || (*value >= 0 && *value <= 2) || (index < dimmed && IsPercentage(*value));
  return possible ? "" : "no such action of an output";
}

// A room in use, or 8 for all of them. The module's own valves are eight and a pump.
std::string HeatingFault(const Reference& reference) {
  if (reference.place == Place::Valve) {
    return reference.index <= 8 ? "" : "no such valve";
  }
  const int rooms = FileOfKind(2).At(temperature::header + 1);
  const bool allRooms = reference.index == 8 && reference.place != Place::MenuLine;
  if (reference.index >= rooms && !allRooms) {
    return "no such room";
  }
  const bool possible = !reference.value || *reference.value == 99 || *reference.value <= 40;
  return possible ? "" : "no such temperature";
}

std::string AlarmFault(int index, std::optional<int> value) {
  if (index >= FileOfKind(5).At(123)) {
    return "no such detector";
  }
  return value && *value > 1 ? "no such action of a detector" : "";
}

std::string AudioFault(int index, int value) {
  const ImageFile& file = FileOfKind(6);
  if (index % 16 > file.At(131)) {
    return "no such zone";
  }
  switch (index / 16) {
    case 0:
      return value <= 9 || (value >= 16 && value <= 20) ? "" : "no such action of a zone";
    case 1:
      return value <= file.At(130) ? "" : "no such source";
    case 2:
    case 5:
      return value <= 31 ? "" : "beyond 16";
    case 3:
    case 4:
      return value <= 15 ? "" : "beyond 16";
    default:
      return "no such setting of a zone";
  }
}

std::string ContextFault(const Reference& reference) {
  const std::vector<PlacedContext> contexts = PlacedContexts();
  const bool exists = std::any_of(
      contexts.begin(), contexts.end(),
      [&reference](const PlacedContext& each) { return each.number == reference.index; });
  if (!exists) {
    return "no such context";
  }
  return reference.value && *reference.value != 2 ? "a context only runs" : "";
}

std::string ModuleFault(int kind, const Reference& reference) {
  switch (kind) {
    case 0:
    case 4:
      return OutputFault(reference.index, reference.value, 12, 0);
    case 1:
      return OutputFault(reference.index, reference.value, 4, 4);
    case 11:
      return OutputFault(reference.index, reference.value, 8, 4);
    case 2:
      return HeatingFault(reference);
    case 5:
      return AlarmFault(reference.index, reference.value);
    case 6:
      return AudioFault(reference.index, reference.value.value_or(0));
    case 7:
      return reference.index == 0 && reference.value.value_or(0) <= 1 ? "" : "only on or off";
    default:
      return "a module that does nothing for others";
  }
}

// Kinds of module that a place can name; contexts and codes apart.
const std::set<int>& KindsAt(Place place) {
  static const std::set<int> all = {0, 1, 2, 4, 5, 6, 7, 11};
  static const std::set<int> outputs = {0, 1, 4, 11};
  static const std::map<Place, std::set<int>> some = {
      {Place::MasterButton, {0, 1, 2, 4, 5, 6}},
      {Place::TimeProgramme, {0, 1, 2, 4, 5, 6, 11}},
      {Place::LightProgramme, outputs},
      {Place::Detector, {0, 1, 2, 4, 6, 11}},
      {Place::Participant, outputs},
      {Place::MenuLine, {0, 1, 2, 4, 11}},
      {Place::Valve, {0, 1, 2, 4, 11}},
  };
  const auto row = some.find(place);
  return row == some.end() ? all : row->second;
}

}  // namespace

void PrintTo(const Reference& reference, std::ostream* out) {
  *out << reference.where << ": " << static_cast<char>(reference.target) << " " << reference.index;
  if (reference.value) {
    *out << " " << *reference.value;
  }
}

std::vector<PlacedContext> PlacedContexts() {
  const ImageFile& file = FileOfKind(9);
  std::vector<PlacedContext> contexts;
  for (int number = 0; number < 50; ++number) {
    const int header = master::contexts + 2 * number;
    const int cell = 100 * file.At(header) + file.At(header + 1);
    if (cell != 0) {
      contexts.push_back({number, cell});
    }
  }
  return contexts;
}

std::vector<Reference> AllReferences() {
  Collector collector;
  CollectButtons(collector);
  CollectMaster(collector);
  CollectDisplay(collector);
  CollectSpecial(collector);
  return collector.found;
}

std::optional<int> KindOfLetter(int letter) {
  for (const ImageFile& file : House()) {
    const int cell = AddressCell(file.Kind());
    if (cell >= 0 && file.At(cell) == letter) {
      return file.Kind();
    }
  }
  return std::nullopt;
}

std::string FaultOf(const Reference& reference) {
  if (reference.index < 0 || reference.value.value_or(0) < 0) {
    return "below nothing";
  }
  if (reference.target == contextLetter) {
    const bool callable = reference.place != Place::Context && reference.place != Place::Valve;
    return callable ? ContextFault(reference) : "cannot call a context";
  }
  if (reference.target == codeLetter) {
    const bool sent = reference.place != Place::MenuLine && reference.place != Place::Valve;
    const bool possible = reference.index <= 98 && reference.value.value_or(0) <= 98;
    return sent && possible ? "" : "no such code";
  }
  const std::optional<int> kind = KindOfLetter(reference.target);
  if (!kind) {
    return "no such module";
  }
  if (!KindsAt(reference.place).contains(*kind)) {
    return "cannot name a module of kind " + std::to_string(*kind);
  }
  return ModuleFault(*kind, reference);
}

}  // namespace demo_house_test
