// A machine for fuzzers of the logic: no time, and a port on which nothing comes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "link/transfer.h"
#include "platform/machine.h"
#include "platform/tick.h"
#include "session/state.h"
#include "shell/main_window.h"

namespace bkconf {

class NoTicks : public TickDriver {
 public:
  void Arm(Tick& /*tick*/) override {}
  void Disarm(Tick& /*tick*/) override {}
};

class DeafPort : public SerialPort {
 public:
  void SetNumber(int /*number*/) override {}
  std::string DeviceOf(int /*number*/) const override { return ""; }
  bool Open() override { return open_ = true; }
  void Close() override { open_ = false; }
  bool IsOpen() const override { return open_; }
  int BytesWaiting() override { return 0; }
  void FlushInput() override {}
  std::optional<char> Read() override { return std::nullopt; }
  void Write(std::string_view /*characters*/) override {}

 private:
  bool open_ = false;
};

class NoMessages : public MessageBoxes {
 public:
  void Tell(const std::string& /*text*/) override {}
  void Ask(const std::string& /*title*/, const std::string& /*text*/,
           std::function<void(bool)> /*answer*/) override {}
};

/// Puts the logic on such a machine, at its first call.
inline void LoadOnSilentMachine() {
  static NoTicks ticks;
  static DeafPort port;
  static NoMessages messages;
  static bool loaded = false;
  if (loaded) return;
  loaded = true;
  ActiveTickDriver = &ticks;
  Port = &port;
  Messages = &messages;
  BusyLoop = [](std::int64_t) {};
  Language = 1;
  LoadMainWindow();
}

}  // namespace bkconf
