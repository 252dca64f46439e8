// The vocabulary of bus commands. Each is exactly six characters, and each is a whole name: its
// digits have no further structure. The link sends them; the tables of the engines are keyed by
// them.
#pragma once

#include <array>
#include <string_view>

#include "image/kind_set.h"

namespace bkconf {

inline constexpr std::string_view ReadBase = "T80000";
/// Contexts (9), display 1 (3), identities and tail (2).
inline constexpr std::string_view Read1 = "T81000";
/// Time programmes (9), periods and set points (2).
inline constexpr std::string_view Read2 = "T82000";
/// Light programmes (9), display 2 (3), live temperatures (2).
inline constexpr std::string_view Read3 = "T83000";
/// Weekday names (3).
inline constexpr std::string_view Read5 = "T85000";

inline constexpr std::string_view TestLine = "T80100";
inline constexpr std::string_view TestButtons = "T80200";
/// Outputs (0, 1, 4, 11), clock (9), detectors in short lines (5).
inline constexpr std::string_view Test3 = "T80300";
/// The scan of present modules (9), detectors in long lines (5).
inline constexpr std::string_view Test4 = "T80400";
inline constexpr std::string_view TestLightSensor = "T80500";
inline constexpr std::string_view UpdateDetectors = "T88888";
inline constexpr std::string_view StopTest = "T99999";

inline constexpr std::string_view WriteBase = "T70000";
inline constexpr std::string_view Write1 = "T71000";
inline constexpr std::string_view Write2 = "T72000";
inline constexpr std::string_view Write3 = "T73000";
inline constexpr std::string_view Write4 = "T74000";
inline constexpr std::string_view Write5 = "T75000";

struct CommandRow {
  std::string_view command;
  KindSet kinds;
};

/// Which kinds know which command; complete.
inline constexpr std::array<CommandRow, 18> CommandVocabulary = {{
    {ReadBase, EveryKind},
    {Read1, {2, 3, 9}},
    {Read2, {2, 9}},
    {Read3, {2, 3, 9}},
    {Read5, {3}},
    {TestLine, TestedKinds},
    {TestButtons, TestedKinds},
    {Test3, TestedKinds},
    {Test4, {5, 9}},
    {TestLightSensor, {9}},
    {UpdateDetectors, {5}},
    {StopTest, EveryKind},
    {WriteBase, EveryKind},
    {Write1, {2, 3, 9}},
    {Write2, {2, 9}},
    {Write3, {2, 3, 9}},
    {Write4, {2}},
    {Write5, {2, 3}},
}};

}  // namespace bkconf
