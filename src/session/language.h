// Texts in the language of the session. All code that shows a text comes here.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "session/state.h"
#include "text/text.h"

namespace bkconf {

/// The values of `Language`.
inline constexpr int Dutch = 1;
inline constexpr int French = 2;

/// Between what something is called and what stands behind it, in titles and entries.
inline constexpr std::string_view TitleSeparator = "  -  ";

/// The text in the language of this moment; empty while `Language` is neither 1 nor 2.
inline std::string_view Text(TextId id) {
  if (Language.Number() == Dutch) return TextOf(id).dutch;
  if (Language.Number() == French) return TextOf(id).french;
  return {};
}

/// The same as a string of its own, to put together with others.
inline std::string Say(TextId id) {
  return std::string(Text(id));
}

/// Puts the text into a caption or status. While `Language` is neither 1 nor 2 what stands there
/// stays, except that a text which is the same in both languages needs no language.
inline void Show(std::string& caption, TextId id) {
  if (TextOf(id).sameOnPurpose) {
    caption = TextOf(id).dutch;
  } else if (Language.Number() == Dutch || Language.Number() == French) {
    caption = Text(id);
  }
}

/// A caption, tool tip or title, and the text that it shows.
struct CaptionRow {
  std::string& text;
  TextId id;
};

/// Shows each of them.
inline void ShowAll(std::initializer_list<CaptionRow> captions) {
  for (const CaptionRow& row : captions) Show(row.text, row.id);
}

}  // namespace bkconf
