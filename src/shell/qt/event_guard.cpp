#include "shell/qt/event_guard.h"

#include <QMessageBox>
#include <QPointer>
#include <algorithm>
#include <optional>
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
    case ErrorKind::FileNotRead:
      return TextId::FileNotReadError;
    case ErrorKind::FileTooShort:
      return TextId::FileTooShortError;
    case ErrorKind::DirectoryNotRead:
      return TextId::DirectoryNotReadError;
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

/// What went wrong, if anything did.
std::optional<RuntimeError> Attempt(const std::function<void()>& event) {
  try {
    event();
  } catch (const RuntimeError& error) {
    LeaveFailedTransfer();
    return error;
  }
  return std::nullopt;
}

}  // namespace

void RunEvent(const std::function<void()>& event) {
  const std::optional<RuntimeError> error = Attempt(event);
  // A copy: an event may make a window or end one.
  for (ScreenWindow* window : std::vector<ScreenWindow*>(ScreenWindows())) window->Refresh();
  // Last, so that its box lies over a window that the event has opened.
  if (error) TellError(*error);
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
