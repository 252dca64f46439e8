// The character set of modules and configuration files. Inside the program texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace bkconf {

/// One byte for each character; a character that the set does not have, or a broken UTF-8 sequence,
/// becomes '?'.
std::string ToWindows1252(std::string_view utf8);

/// One character for each byte. The five codes that the set leaves open become the control
/// characters of the same number, so that every byte survives the way there and back.
std::string FromWindows1252(std::string_view bytes);

/// The character of a character cell's code, as UTF-8. 0 shows as nothing; so does a code outside
/// 0 to 255, which no cell of a module holds.
std::string CharacterOf(int code);

}  // namespace bkconf
