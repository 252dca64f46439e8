// What each write command of each kind sends: tables, blocks, frames, and what the user sees.
// The setup step and the writers look their rows up here.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "image/commands.h"
#include "link/frames.h"
#include "session/state.h"

namespace bkconf {

/// The tables of a write of the temperature module, in their order, as values of TableSelector.
class Chain {
 public:
  constexpr Chain() = default;
  constexpr Chain(std::initializer_list<int> selectors) {
    for (const int selector : selectors) selectors_[static_cast<std::size_t>(size_++)] = selector;
  }
  constexpr std::span<const int> Selectors() const {
    return {selectors_.data(), static_cast<std::size_t>(size_)};
  }

 private:
  std::array<int, 5> selectors_{};
  int size_ = 0;
};

/// One write command.
struct WriteRow {
  KindSet kinds;
  std::string_view command;
  int barMaximum;
  TextId status;
  Chain tables;  ///< empty where the command alone names the table
};

inline constexpr auto WriteTable = std::to_array<WriteRow>({
    {OutputKinds, WriteBase, 163, TextId::SendingData},
    {{5}, WriteBase, 294, TextId::SendingData},
    {{6}, WriteBase, 213, TextId::SendingData},
    {{7}, WriteBase, 185, TextId::SendingData},
    {{8}, WriteBase, 509, TextId::SendingData},
    // One frame goes out, and the bar's end is 2 all the same.
    {{3}, WriteBase, 2, TextId::SendingData},
    {{3}, Write1, 1020, TextId::SendingDisplay1},
    {{3}, Write3, 1020, TextId::SendingDisplay2},
    {{3}, Write5, 21, TextId::SendingData},
    {{9}, WriteBase, 163, TextId::SendingData, {0}},
    {{9}, Write1, 1000, TextId::SendingContexts, {1}},
    {{9}, Write2, 1000, TextId::SendingTimePrograms, {2}},
    {{9}, Write3, 1000, TextId::SendingLightPrograms, {3}},
    {{2}, WriteBase, 3, TextId::SendingData, {0}},
    {{2}, Write1, 146, TextId::SendingData, {1, 4}},
    {{2}, Write2, 1008, TextId::SendingData, {2, 3}},
    {{2}, Write3, 149, TextId::SendingData, {0, 1, 4}},
    {{2}, Write4, 1011, TextId::SendingData, {0, 2, 3}},
    {{2}, Write5, 1157, TextId::SendingData, {0, 1, 2, 3, 4}},
});

/// A run of cells. The module counts the frames of a block from 0.
struct WriteBlock {
  int first;
  int last;
  int wireBase;  ///< the cell that goes out with index 0
};

/// How a table goes out. Version cells stay behind (163, 148, 123, 124, and those of the headers),
/// except that the IR module does get its own back: so it is meant.
struct TableRow {
  KindSet kinds;
  std::string_view command;  ///< empty where the selector alone decides
  int selector;              ///< -1 where the command alone decides
  Table* table;
  FrameForm form;
  std::span<const WriteBlock> blocks;
  bool endsAtEmptyCells = false;  ///< two neighbours that hold the empty mark end the table
};

namespace blocks {

inline constexpr std::array<WriteBlock, 1> Buttons = {{{0, 162, 0}}};
inline constexpr std::array<WriteBlock, 2> Alarm = {{{0, 147, 0}, {149, 293, 149}}};
inline constexpr std::array<WriteBlock, 4> Audio = {
    {{0, 122, 0}, {124, 180, 124}, {181, 196, 181}, {197, 212, 197}}};
inline constexpr std::array<WriteBlock, 2> Simulation = {{{0, 123, 0}, {125, 184, 125}}};
inline constexpr std::array<WriteBlock, 5> Ir = {
    {{0, 124, 0}, {125, 220, 125}, {221, 316, 221}, {317, 412, 317}, {413, 508, 413}}};
inline constexpr std::array<WriteBlock, 1> LcdAddress = {{{0, 0, 0}}};
inline constexpr std::array<WriteBlock, 4> LcdScreen = {
    {{0, 71, 0}, {72, 700, 72}, {701, 779, 701}, {780, 1019, 780}}};
inline constexpr std::array<WriteBlock, 1> LcdWeekdays = {{{0, 20, 0}}};
inline constexpr std::array<WriteBlock, 1> MasterRecords = {{{0, 999, 0}}};
inline constexpr std::array<WriteBlock, 1> TempHeaderCells = {{{0, 2, 0}}};
inline constexpr std::array<WriteBlock, 1> TempIds = {{{0, 63, 0}}};
inline constexpr std::array<WriteBlock, 1> TempPeriodCells = {{{0, 671, 0}}};
inline constexpr std::array<WriteBlock, 1> TempSetpointCells = {{{0, 335, 0}}};
inline constexpr std::array<WriteBlock, 1> TempTailCells = {{{0, 81, 0}}};

}  // namespace blocks

inline constexpr auto WrittenTables = std::to_array<TableRow>({
    {OutputKinds, WriteBase, -1, &ButtonImage, FrameForm::Paced, blocks::Buttons},
    {{9}, WriteBase, -1, &ButtonImage, FrameForm::Block, blocks::Buttons},
    {{9}, Write1, -1, &ContextTable, FrameForm::Block, blocks::MasterRecords, true},
    {{9}, Write2, -1, &TimeProgramTable, FrameForm::Block, blocks::MasterRecords, true},
    {{9}, Write3, -1, &LightProgramTable, FrameForm::Block, blocks::MasterRecords, true},
    {{5}, WriteBase, -1, &AlarmImage, FrameForm::Block, blocks::Alarm},
    {{6}, WriteBase, -1, &AudioImage, FrameForm::Block, blocks::Audio},
    {{7}, WriteBase, -1, &SimulationImage, FrameForm::Block, blocks::Simulation},
    {{8}, WriteBase, -1, &IrImage, FrameForm::Block, blocks::Ir},
    {{3}, WriteBase, -1, &LcdHeader, FrameForm::Block, blocks::LcdAddress},
    {{3}, Write1, -1, &LcdScreen1, FrameForm::Block, blocks::LcdScreen},
    {{3}, Write3, -1, &LcdScreen2, FrameForm::Block, blocks::LcdScreen},
    {{3}, Write5, -1, &LcdWeekdayNames, FrameForm::Block, blocks::LcdWeekdays},
    {{2}, {}, 0, &TempHeader, FrameForm::Block, blocks::TempHeaderCells},
    {{2}, {}, 1, &TempRoomIds, FrameForm::FreeNumber, blocks::TempIds},
    {{2}, {}, 2, &TempPeriods, FrameForm::ShortBlock, blocks::TempPeriodCells},
    {{2}, {}, 3, &TempSetpoints, FrameForm::ShortBlock, blocks::TempSetpointCells},
    {{2}, {}, 4, &TempTail, FrameForm::FreeText, blocks::TempTailCells},
});

/// The row of that kind and command, or null: the command writes nothing of that kind.
const WriteRow* FindWriteRow(int kind, std::string_view command);

/// The table that the command and the selector name, or null. Whether the command writes at all is
/// told by its WriteRow: tables that the selector alone names are found for any command.
const TableRow* FindWrittenTable(int kind, std::string_view command, int selector);

}  // namespace bkconf
