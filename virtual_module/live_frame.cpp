#include "virtual_module/live_frame.h"

#include "virtual_module/digits.h"
#include "virtual_module/kinds.h"

namespace virtual_module {
namespace {

using enum LiveFrameKind;

// What a frame of one kind looks like: a text that is always the same, or a letter and numbers.
struct Form {
  LiveFrameKind kind;
  LiveTest test;           // only modules that have it know the frame
  std::string_view start;  // the whole frame where it has no numbers
  std::array<std::size_t, 3> widths = {};
};

// A text that is always the same stands before the numbers that would read it otherwise.
constexpr Form forms[] = {
    {Stop, LiveTest::Line, "T99999"},
    {StopOutputs, LiveTest::Outputs, "T99"},
    {Output, LiveTest::Outputs, "T", {2}},
    {Time, LiveTest::Clock, "T", {2, 2, 1}},
    {Date, LiveTest::Clock, "T", {2, 2, 2}},
    {AnnounceUpdate, LiveTest::LongDetectors, "T88888"},
    {Reference, LiveTest::LongDetectors, "A", {2, 3, 2}},
};

std::optional<LiveFrame> ReadAs(const Form& form, std::string_view body) {
  if (!body.starts_with(form.start)) {
    return std::nullopt;
  }
  body.remove_prefix(form.start.size());
  LiveFrame frame{form.kind};
  for (std::size_t i = 0; i < form.widths.size() && form.widths[i] > 0; ++i) {
    const std::optional<int> number = NumberOfDigits(body.substr(0, form.widths[i]));
    if (!number || body.size() < form.widths[i]) {
      return std::nullopt;
    }
    frame.numbers[i] = *number;
    body.remove_prefix(form.widths[i]);
  }
  return body.empty() ? std::optional(frame) : std::nullopt;
}

}  // namespace

std::optional<LiveFrame> LiveFrameOf(int moduleKind, std::string_view text) {
  constexpr std::string_view lineEnd = "\n\r";
  if (!text.ends_with(lineEnd)) {
    return std::nullopt;
  }
  text.remove_suffix(lineEnd.size());
  for (const Form& form : forms) {
    const std::optional<LiveFrame> frame =
        HasLiveTest(moduleKind, form.test) ? ReadAs(form, text) : std::nullopt;
    if (frame) {
      return frame;
    }
  }
  return std::nullopt;
}

}  // namespace virtual_module
