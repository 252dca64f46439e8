// The sentence that tells in words what an action code does, in the language of the session. The
// screens show it of the cell that is selected.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "image/kind_set.h"

namespace bkconf {

/// Which targets a screen has words for. The screens differ in that, and it is meant to be so.
struct SentenceVariant {
  bool contexts = true;  ///< 'S'
  KindSet modules;
};

/// The push-buttons of a master, the contexts, the time programmes and the light programmes: what
/// stands behind a letter is told by the master's list of modules.
inline constexpr SentenceVariant MasterSentences{true, {0, 1, 2, 4, 5, 6}};
inline constexpr SentenceVariant ContextSentences{false, {0, 1, 2, 4, 5, 6, 7, 11}};
inline constexpr SentenceVariant TimeProgramSentences{true, {0, 1, 2, 4, 5, 6, 11}};
inline constexpr SentenceVariant LightProgramSentences{true, OutputKinds};
/// Any other image: it knows the sentence of its own module only.
inline constexpr SentenceVariant OwnSentences{true, {0, 1, 2, 4, 5, 6, 7, 11}};

/// The sentence of a code that stands for an action of a module of that kind; of contexts and
/// Corvela codes whatever the kind. Empty for a code that it has no words for.
std::string ActionSentence(std::string_view code, const SentenceVariant& variant,
                           std::optional<int> kind);

/// The same, with the kind from the master's list of modules.
std::string MasterActionSentence(std::string_view code, const SentenceVariant& variant);

/// The same for the image of a module that is no master: the module behind a letter is known only
/// where it is the module's own.
std::string OwnActionSentence(std::string_view code);

}  // namespace bkconf
