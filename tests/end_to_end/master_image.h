// What a master holds, worked out from the lines of its file: nothing of the tool takes part in it.
// Used by the tests of the master's screens.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "end_to_end/action_code.h"

namespace end_to_end {

// In the order in which a module keeps and a send takes them.
enum class MasterTable { Base, Contexts, TimePrograms, LightPrograms };

// The actions of the contexts that have some, by number from 1.
using Contexts = std::map<int, std::vector<Action>>;

struct TimeProgram {
  int hour = 0;
  int minute = 0;
  int day = 0;                // 1 Sunday to 7 Saturday, 8 on a date, 9 every day
  std::array<int, 3> date{};  // day, month and the last two digits of the year
  Action action;
};

struct LightProgram {
  int direction = 0;  // 0 as it gets dark
  int level = 0;
  Action action;
};

inline constexpr int timeSlots = 110;
inline constexpr int lightSlots = 200;

class MasterImage {
 public:
  // `content` is that of a file, of the tool or of a module; whether a number stands there as a
  // number or as a text makes no difference.
  explicit MasterImage(const std::string& content);

  Contexts ReadContexts() const;
  // How many actions fit in beside these.
  int FreeActions() const;
  // The slots up to the first that is empty.
  std::vector<TimeProgram> ReadTimePrograms() const;
  std::vector<LightProgram> ReadLightPrograms() const;

  // Each puts a whole table: what is behind is empty.
  void Put(const Contexts& contexts);
  void Put(const std::vector<TimeProgram>& programs);
  void Put(const std::vector<LightProgram>& programs);

  // The file that a module keeps.
  std::string Content() const;
  // What a send of the table puts on the line, as the log shows it.
  std::vector<std::string> FramesOf(MasterTable table) const;

  friend bool operator==(const MasterImage& one, const MasterImage& other) = default;

 private:
  int& At(MasterTable table, int cell);
  int At(MasterTable table, int cell) const;
  Action ActionAt(MasterTable table, int cell) const;
  void PutAction(MasterTable table, int cell, const Action& action);

  std::vector<int> cells_;  // of all tables, one behind the other
};

// The table of the actions of a context: twenty rows of five.
std::vector<std::string> ContextRows(const std::vector<Action>& actions,
                                     Values values = Values::InBlocks);

}  // namespace end_to_end
