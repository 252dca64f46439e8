// What the logic needs of the machine it runs on: serial port, message boxes, files, other
// programs. The window and the tests put their own behind these before the session starts.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bkconf {

/// One serial line: 9600 baud, 8 data bits, no parity, 1 stop bit, raw, no handshake.
/// Reading, writing and flushing throw RuntimeError (PortFailed) when the device has failed.
class SerialPort {
 public:
  virtual ~SerialPort() = default;
  /// 1 to 8, only while the port is closed. Another number makes `Open` fail.
  virtual void SetNumber(int number) = 0;
  /// The device that a port number means on this machine, as a user knows it; empty if none.
  virtual std::string DeviceOf(int number) const = 0;
  /// False when the device cannot be opened; nothing is shown then.
  virtual bool Open() = 0;
  virtual void Close() = 0;
  virtual bool IsOpen() const = 0;
  /// Characters received and not read yet.
  virtual int BytesWaiting() = 0;
  /// Drops everything received so far.
  virtual void FlushInput() = 0;
  /// The next character, or none if none is there; never waits.
  virtual std::optional<char> Read() = 0;
  /// Hands the characters to the line at once and does not wait for them to leave.
  virtual void Write(std::string_view characters) = 0;
};

/// Message boxes: modal to the program, shown without waiting for the answer, so that a tick that
/// shows one comes to its end.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  /// A message with one button.
  virtual void Tell(const std::string& text) = 0;
  /// A message with a title and the buttons OK and Cancel. The answer comes later, as an event of
  /// its own: true for OK.
  virtual void Ask(const std::string& title, const std::string& text,
                   std::function<void(bool)> answer) = 0;
};

/// Files in the settings directory and the user's own.
class Files {
 public:
  virtual ~Files() = default;
  /// The whole content, or none where the file is missing or cannot be read.
  virtual std::optional<std::string> Read(const std::string& path) const = 0;
  /// The same for a file that has to be there. Throws RuntimeError (FileNotRead).
  virtual std::string Load(const std::string& path) const = 0;
  /// Replaces the file whole or not at all. Throws RuntimeError (FileNotWritten).
  virtual void Write(const std::string& path, std::string_view content) = 0;
};

/// What stands between the names of a path.
#ifdef _WIN32
inline constexpr char PathSeparator = '\\';
#else
inline constexpr char PathSeparator = '/';
#endif

/// Drives and directories, for the file screens. Names come in alphabetical order.
class Directories {
 public:
  virtual ~Directories() = default;
  /// The directories that a walk can start from, as paths.
  virtual std::vector<std::string> Drives() const = 0;
  /// The names of the directories in a directory, without hidden ones.
  /// Throws RuntimeError (DirectoryNotRead), as does the next.
  virtual std::vector<std::string> FoldersIn(const std::string& path) const = 0;
  /// The names of the files whose names end in `ending`, in capitals or not.
  virtual std::vector<std::string> FilesIn(const std::string& path,
                                           std::string_view ending) const = 0;
  /// False when the directory cannot be made, also when there is something of that name.
  virtual bool Make(const std::string& path) = 0;
};

/// Other programs, and the end of this one.
class Programs {
 public:
  virtual ~Programs() = default;
  /// Starts a program of the settings directory, minimised. False when it cannot be started.
  virtual bool Start(const std::string& fileName) = 0;
  /// Starts a new copy of this program, minimised. False when it cannot be started.
  virtual bool StartThisProgram() = 0;
  /// Shows a page in the web browser of the machine. Nothing is told when there is none.
  virtual void ShowWebPage(const std::string& address) = 0;
  /// Ends this process when the event at hand is over, without asking anything.
  virtual void End() = 0;
};

inline SerialPort* Port = nullptr;
inline MessageBoxes* Messages = nullptr;
inline Files* FileSystem = nullptr;
inline Directories* DirectorySystem = nullptr;
inline Programs* OtherPrograms = nullptr;

/// Holds the thread for the turns of an empty loop that counts from 0 to `last`, inclusive: one
/// turn for 0, none below. How long a turn takes depends on the computer.
void RunBusyLoop(std::int64_t last);

/// The busy loop in use. Tests put a virtual clock's in its place.
inline std::function<void(std::int64_t)> BusyLoop = RunBusyLoop;

}  // namespace bkconf
