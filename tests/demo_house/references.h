// Everything in the files of the demo house that names a module, and whether it is there. Used by
// its tests.
#pragma once

#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace demo_house_test {

/// Where a reference stands. Not every place knows every target.
enum class Place {
  Button,
  MasterButton,
  Context,
  TimeProgramme,
  LightProgramme,
  Detector,
  RemoteKey,
  Participant,  ///< of the simulation: has no value
  MenuLine,     ///< of a display: has no value
  Valve         ///< or the pump: has no value
};

struct Reference {
  Place place;
  std::string where;  ///< file and cell
  int target;         ///< character code of the letter
  int index;
  std::optional<int> value;
};

void PrintTo(const Reference& reference, std::ostream* out);

/// All records that are not empty, of all files.
std::vector<Reference> AllReferences();

/// The contexts of the master that have actions, counted from 0, with the cell of ContextTable at
/// which each begins.
struct PlacedContext {
  int number;
  int cell;
};
std::vector<PlacedContext> PlacedContexts();

/// The kind of the module with that letter by the files themselves, or none.
std::optional<int> KindOfLetter(int letter);

/// What is wrong with it: a letter, output, room, detector, zone, context or value that the house
/// does not have, or a target that its place cannot name. Empty when it is in order.
std::string FaultOf(const Reference& reference);

}  // namespace demo_house_test
