// Characters that go out with a pause after each. Commands, paced frames and the live tests use it.
#pragma once

#include <cstddef>
#include <string_view>

namespace bkconf {

/// How many characters of a command or paced frame are followed by the character pause: all but the
/// last of seven.
inline constexpr std::size_t PacedCharacters = 6;

/// Writes the characters one by one, with the character pause after each of the first six. The
/// pause holds the thread, so that nothing else of the program runs between two characters.
void SendPaced(std::string_view characters);

}  // namespace bkconf
