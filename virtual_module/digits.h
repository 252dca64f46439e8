// Numbers as the line has them. Used by the module model only.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace virtual_module {

// `number`, from 0 on, with leading zeros up to `width` characters.
std::string PaddedDigits(int number, std::size_t width);

// The number that a text of one to six digits and nothing else stands for.
std::optional<int> NumberOfDigits(std::string_view text);

}  // namespace virtual_module
