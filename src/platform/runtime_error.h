// The one exception of the program: something that the design has no handler for.
// Thrown by tables, progress bars and ports; caught by the window's one handler.
#pragma once

#include <stdexcept>
#include <string>

namespace bkconf {

/// What went wrong. The window has a text pair for each.
enum class ErrorKind {
  IndexOutsideTable,  ///< a cell was asked for that its table does not have
  BarPastMaximum,     ///< a progress bar was moved past its end
  PortFailed,         ///< the serial device reported an error or has gone away
  NoTableToWrite,     ///< the module asks for cells under a command that writes none
  FileNotRead,        ///< a file could not be read; `where` holds path and reason
  FileTooShort,       ///< a file ends before its last value; `where` holds path and line
  DirectoryNotRead,   ///< a directory could not be read; `where` holds path and reason
  FileNotWritten,     ///< a file could not be written; `where` holds path and reason
  ProgramNotStarted,  ///< another program could not be started
};

/// Leaves the event it happened in. Everything done before it stands, nothing is undone.
class RuntimeError : public std::runtime_error {
 public:
  /// `where` names the place in terms a user can report: table and index, device, path.
  RuntimeError(ErrorKind errorKind, const std::string& where)
      : std::runtime_error(where), kind(errorKind) {}

  const ErrorKind kind;
};

}  // namespace bkconf
