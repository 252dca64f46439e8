// A pseudo-terminal whose far end a tool opens as its serial port, under a name of the caller's
// choice. Used by the program virtual_module only.
#pragma once

#include <csignal>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace virtual_module {

class PseudoTerminal {
 public:
  // Opens the terminal in raw mode and makes `link` a symbolic link to its far end, in place of a
  // link that was there. Throws std::runtime_error when there is no terminal to be had, or when
  // something that is not a link stands at `link`.
  explicit PseudoTerminal(std::filesystem::path link);
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  // Waits until the tool has sent something, there is something to read from `other` (-1: nothing
  // is looked at), `timeoutMicroseconds` have passed or a signal that `signals` lets through has
  // come. Says whether there is something to receive from the tool.
  bool Wait(std::int64_t timeoutMicroseconds, const sigset_t& signals, int other);

  // What the tool has sent and has not been received; empty when there is nothing.
  std::string Receive();

  // Characters for the tool. What finds the buffers full is lost, as on a line.
  void Send(std::string_view characters);

  // How many characters the tool has not read yet.
  std::size_t Unread() const;

  // Takes back the exclusive use that a tool may have asked for, so that the next one can open the
  // port: the mark outlives the tool because the far end stays open here.
  void AllowOthers();

  // Closes both ends and removes the link, as if the adapter had been pulled.
  void Close();

 private:
  std::filesystem::path link_;
  std::filesystem::path device_;
  int near_ = -1;
  int far_ = -1;  // held open, so that the buffers and modes live while no tool is there
};

}  // namespace virtual_module
