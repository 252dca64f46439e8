// The serial line on the machine's own ports. The program puts it behind `Port`.
#pragma once

#include <QSerialPort>

#include "platform/machine.h"
#include "shell/qt/serial_devices.h"

namespace bkconf {

/// Works without the event loop as well as in it: routines of the link spin on it and hold the
/// window. Holds at most 1024 characters that nobody has read. Those on top of them stay with the
/// system until there is room, and are lost when its buffer is full as well.
class QtSerialPort : public SerialPort {
 public:
  QtSerialPort();

  void SetNumber(int number) override { number_ = number; }
  std::string DeviceOf(int number) const override;
  /// A refusal is told on standard error.
  bool Open() override;
  void Close() override;
  bool IsOpen() const override { return serial_.isOpen(); }
  /// A call that finds nothing takes about 20 microseconds: the wait for a poll counts such calls,
  /// and its bar should climb for a good part of a second.
  int BytesWaiting() override;
  void FlushInput() override;
  std::optional<char> Read() override;
  void Write(std::string_view characters) override;

 private:
  bool Configure();
  /// Takes over what the device has, without waiting. Throws when the device has gone.
  void Collect();
  void Notice(QSerialPort::SerialPortError error);
  void CheckDevice();
  [[noreturn]] void ThrowFailed();

  QSerialPort serial_;
  SerialDevices devices_;
  int number_ = 0;
  bool failed_ = false;
  std::string device_;  ///< of the last opening
};

}  // namespace bkconf
