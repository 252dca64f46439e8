// The images of the modules: what the descriptions fill, and how an image stands in its file. Used
// by the description of every module and by the program.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "demo_house/action.h"
#include "virtual_module/memory.h"

namespace demo_house {

using virtual_module::Memory;
using virtual_module::TableName;
using Cells = std::vector<int>;

// Puts a value into a cell. Throws std::out_of_range for a cell that the table does not have.
void Put(Cells& cells, int cell, int value);
void PutRange(Cells& cells, int first, int last, int value);

// Three cells from `first` on.
void PutAction(Cells& cells, int first, Action action);

// One character code of Windows-1252 a cell, filled up with blanks to `width`. `text` is UTF-8.
// Throws std::invalid_argument for a text that is too long or has characters beyond U+00FF.
void PutText(Cells& cells, int first, int width, std::string_view text);

// What a push-button does on a short press, and on a long one.
struct Button {
  int number;  // 1 to 20
  Action first;
  Action second = nothing;
};

// The part that all modules with push-buttons share. A press counts as long after `halfSeconds`.
void PutButtons(Cells& cells, int halfSeconds, std::initializer_list<Button> buttons);

// The letter of a module, and its version 10 to 99, each in the cell where the kind keeps it.
void PutAddressAndVersion(Memory& memory, int letter, int version);

// Light and time under which a detector or the simulation acts.
struct Period {
  int from = 0;  // hour, 0 to 23
  int to = 25;   // hour, 1 to 24; 25 is no period
};
enum class Joining { Or = 0, And = 1 };
struct Condition {
  int darkerThan = 60;  // level, 1 to 50; 60 is whatever the light
  Period first = {};
  Period second = {};
  Joining joining = Joining::And;
};

// Five cells from `first` on; the joining stands elsewhere.
void PutCondition(Cells& cells, int first, const Condition& condition);

// The bytes of a ".BK1" file: the kind, then a line for each cell of the tables that a file holds,
// and an empty line for a cell that a module never tells. Every line ends in CR LF.
std::string FileText(const Memory& memory);

}  // namespace demo_house
