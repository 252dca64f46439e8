#include "text/text.h"

#include <array>

namespace bkconf {
namespace {

constexpr auto Texts = std::to_array<TextRow>({
#define PAIR(name, dutch, french) {dutch, french, false},
#define SAME(name, text) {text, text, true},
#include "text/texts.inc"
#undef PAIR
#undef SAME
});

}  // namespace

std::size_t TextCount() {
  return Texts.size();
}

const TextRow& TextOf(TextId id) {
  return Texts[static_cast<std::size_t>(id)];
}

}  // namespace bkconf
