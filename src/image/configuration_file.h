// The configuration file: one module's image as text, the type code first, then the tables of its
// kind, one cell a line. It is read back strictly by position. The file screens use it.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "image/kind_set.h"
#include "image/tables.h"

namespace bkconf {

inline constexpr std::string_view FileExtension = ".BK1";

/// The cells 0 to `last` of a table. What lies behind is never in a file and keeps what it holds.
struct FileBlock {
  Table* table;
  int last;
};

inline constexpr auto ButtonBlocks = std::to_array<FileBlock>({{&ButtonImage, 163}});
inline constexpr auto TempBlocks = std::to_array<FileBlock>({
    {&TempHeader, 3},
    {&TempRoomIds, 63},
    {&TempPeriods, 671},
    {&TempSetpoints, 335},
    {&TempTail, 81},
});
inline constexpr auto LcdBlocks = std::to_array<FileBlock>({
    {&LcdHeader, 1},
    {&LcdScreen1, 1029},
    {&LcdScreen2, 1029},
    {&LcdWeekdayNames, 20},
});
inline constexpr auto AlarmBlocks = std::to_array<FileBlock>({{&AlarmImage, 292}});
inline constexpr auto AudioBlocks = std::to_array<FileBlock>({{&AudioImage, 212}});
inline constexpr auto SimulationBlocks = std::to_array<FileBlock>({{&SimulationImage, 184}});
inline constexpr auto IrBlocks = std::to_array<FileBlock>({{&IrImage, 508}});
inline constexpr auto MasterBlocks = std::to_array<FileBlock>({
    {&ButtonImage, 163},
    {&ContextTable, 999},
    {&TimeProgramTable, 999},
    {&LightProgramTable, 999},
});

struct FileLayout {
  KindSet kinds;
  std::span<const FileBlock> blocks;  ///< in the order of the file
};

/// Reader and writer walk the same rows.
inline constexpr auto FileLayouts = std::to_array<FileLayout>({
    {OutputKinds, ButtonBlocks},
    {{2}, TempBlocks},
    {{3}, LcdBlocks},
    {{5}, AlarmBlocks},
    {{6}, AudioBlocks},
    {{7}, SimulationBlocks},
    {{8}, IrBlocks},
    {{9}, MasterBlocks},
});

/// What a file of that type holds. A type that is no kind is laid out like a relay module.
std::span<const FileBlock> BlocksOf(const Cell& type);

/// The whole file of the image in the tables: lines that end in CR LF, Windows-1252. Prints any
/// cell that there can be; a comma or a line end in a text is not marked, so that it parts two
/// values on reading.
std::string PrintConfiguration(const Cell& type);

/// Reads a whole file into the tables of its type, and gives the type. Lines end in CR LF or LF,
/// and a comma parts values like a line end. Blanks in front are skipped. What reads as a number
/// becomes a number, other text a string, and nothing an empty cell; what follows the last cell is
/// ignored. Throws RuntimeError (FileTooShort) with the number of the missing line, and has changed
/// nothing then.
Cell ReadConfiguration(std::string_view content);

}  // namespace bkconf
