// The text table: every caption and message in Dutch and French.
#pragma once

#include <cstddef>
#include <string_view>

namespace bkconf {

/// The name of a text, from the table in texts.inc.
enum class TextId {
#define PAIR(name, dutch, french) name,
#define SAME(name, text) name,
#include "text/texts.inc"
#undef PAIR
#undef SAME
};

/// UTF-8.
struct TextRow {
  std::string_view dutch;
  std::string_view french;
  bool sameOnPurpose;
};

std::size_t TextCount();
const TextRow& TextOf(TextId id);

}  // namespace bkconf
