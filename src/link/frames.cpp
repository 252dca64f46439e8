#include "link/frames.h"

#include <algorithm>

#include "link/bus_link.h"
#include "platform/machine.h"

namespace bkconf {
namespace {

/// The last `count` characters of the number plus `offset`, as plain text. For three digits and an
/// offset of 1000: 7 gives "007", 1234 gives "234", 1.5 gives "1.5".
std::string LastDigits(double number, int offset, std::size_t count) {
  const std::string text = PlainText(number + offset);
  return text.substr(text.size() - std::min(count, text.size()));
}

/// Paced frames take the digits from characters 2 to 4 of the text of the number plus 1000.
std::string MiddleDigits(double number) {
  const std::string text = PlainText(number + 1000);
  return text.substr(std::min<std::size_t>(1, text.size()), 3);
}

/// The cell as it stands, where it holds a number in some form.
std::string TextOrZero(const Cell& cell) {
  return ReadsAsNumber(cell.Text()) ? cell.Text() : "0";
}

}  // namespace

std::string BuildFrame(FrameForm form, int wireIndex, const Cell& cell) {
  const std::string end(FrameEnd);
  const std::string start = "T" + LastDigits(wireIndex, 1000, 3);
  switch (form) {
    case FrameForm::Paced:
      return "T" + MiddleDigits(wireIndex) + MiddleDigits(cell.Number());
    case FrameForm::Block:
      return start + LastDigits(cell.Number(), 1000, 3) + end;
    case FrameForm::ShortBlock:
      return start + LastDigits(cell.Number(), 100, 2) + end;
    case FrameForm::FreeNumber:
      return start + PlainText(cell.Number()) + end;
    case FrameForm::FreeText:
      return start + TextOrZero(cell) + end;
  }
  return {};
}

void SendFrame(FrameForm form, int wireIndex, const Cell& cell) {
  const std::string frame = BuildFrame(form, wireIndex, cell);
  if (form == FrameForm::Paced) {
    SendPaced(frame);
  } else {
    Port->Write(frame);
  }
}

}  // namespace bkconf
