// A serial line of the tests: 9600 baud in both directions on the virtual clock, with a virtual
// module, or a script of characters, at its other end.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "platform/machine.h"
#include "support/virtual_clock.h"
#include "virtual_module/module.h"

namespace bkconf {

class FakeLine : public SerialPort {
 public:
  explicit FakeLine(VirtualClock& clock) : clock_(clock) {}

  /// What the tool wrote, one entry a write, with its time in microseconds.
  struct Written {
    std::int64_t time;
    std::string characters;
  };

  /// The module at the other end; null for none.
  virtual_module::Module* module = nullptr;
  /// Characters that are received at once, without a module.
  void Receive(std::string_view characters) { received_.append(characters); }

  /// Lets the module take everything that has arrived by now.
  void Settle() { Pump(); }

  bool canOpen = true;
  bool failed = false;  ///< the device has gone: every operation but open and close throws
  std::int64_t spinLimit = 60'000'000;  ///< microseconds that a routine may wait for a character
  std::vector<Written> written;
  std::vector<std::string> calls;  ///< "number 3", "open", "close", "flush"

  std::string AllWritten() const;

  void SetNumber(int number) override;
  std::string DeviceOf(int number) const override;
  bool Open() override;
  void Close() override;
  bool IsOpen() const override { return open_; }
  int BytesWaiting() override;
  void FlushInput() override;
  std::optional<char> Read() override;
  void Write(std::string_view characters) override;

 private:
  struct Arrival {
    std::int64_t time;
    char character;
  };

  /// Lets the module do all that it does up to now, in the order of time.
  void Pump();
  void FailIfGone();
  /// A look at an empty line: the time goes on a little, as no tick runs meanwhile.
  void Poll();

  VirtualClock& clock_;
  bool open_ = false;
  std::string received_;
  std::deque<Arrival> onTheWay_;  ///< to the module
  std::int64_t transmitterFree_ = 0;
  std::int64_t spinning_ = 0;
};

}  // namespace bkconf
