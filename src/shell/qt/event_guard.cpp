#include "shell/qt/event_guard.h"

#include <QMessageBox>
#include <QPointer>
#include <algorithm>
#include <string>
#include <vector>

#include "link/transfer.h"
#include "session/language.h"
#include "shell/qt/message_boxes.h"
#include "shell/qt/screen_window.h"

namespace bkconf {
namespace {

TextId TextIdOf(ErrorKind kind) {
  switch (kind) {
    case ErrorKind::IndexOutsideTable:
      return TextId::IndexOutsideTableError;
    case ErrorKind::BarPastMaximum:
      return TextId::BarPastMaximumError;
    case ErrorKind::PortFailed:
      return TextId::PortFailedError;
    case ErrorKind::NoTableToWrite:
      return TextId::NoTableToWriteError;
    case ErrorKind::FileNotWritten:
      return TextId::FileNotWrittenError;
    case ErrorKind::ProgramNotStarted:
      return TextId::ProgramNotStartedError;
  }
  return TextId::PortFailedError;
}

/// An error is told even before the language is known: then in both.
std::string ErrorText(TextId id, std::string_view between) {
  const std::string_view text = Text(id);
  if (!text.empty()) return std::string(text);
  return std::string(TextOf(id).dutch) + std::string(between) + std::string(TextOf(id).french);
}

void Attempt(const std::function<void()>& event) {
  try {
    event();
  } catch (const RuntimeError& error) {
    LeaveFailedTransfer();
    TellError(error);
  }
}

}  // namespace

void RunEvent(const std::function<void()>& event) {
  Attempt(event);
  // A copy: an event may make a window or end one.
  for (ScreenWindow* window : std::vector<ScreenWindow*>(ScreenWindows())) window->Refresh();
}

void TellError(const RuntimeError& error) {
  static std::vector<QPointer<QMessageBox>> open;
  std::erase_if(open, [](const auto& box) { return box.isNull() || !box->isVisible(); });
  const QString what = ToQt(ErrorText(TextIdOf(error.kind), "\n"));
  const QString place = ToQt(ErrorText(TextId::ErrorPlace, "/ ") + error.what());
  const bool told = std::any_of(open.begin(), open.end(), [&](const auto& box) {
    return box->text() == what && box->informativeText() == place;
  });
  if (told) return;
  open.emplace_back(ShowBox(QMessageBox::Critical, what, place));
}

}  // namespace bkconf
