#include "shell/qt/serial_port.h"

#include <chrono>
#include <cstdio>

#include "platform/runtime_error.h"

#ifdef Q_OS_UNIX
#include <grp.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace bkconf {
namespace {

constexpr qint64 BufferSize = 1024;
constexpr auto EmptyQueryTime = std::chrono::microseconds(20);

/// A sleep would take three times as long as asked for, so this turns on the clock.
void SpinUntil(std::chrono::steady_clock::time_point end) {
  while (std::chrono::steady_clock::now() < end) {
  }
}

/// What to do about a device that may not be opened; empty where that is not the reason.
std::string PermissionHint([[maybe_unused]] const std::string& device) {
#ifdef Q_OS_UNIX
  struct stat file {};
  if (access(device.c_str(), R_OK | W_OK) == 0 || errno != EACCES) return {};
  if (stat(device.c_str(), &file) != 0) return {};
  const group* owner = getgrgid(file.st_gid);
  const std::string name = owner == nullptr ? std::to_string(file.st_gid) : owner->gr_name;
  return "; it belongs to the group " + name + ": add the user to group " + name;
#else
  return {};
#endif
}

void TellRefusal(const std::string& device, const std::string& reason) {
  std::fprintf(stderr, "bkconf: cannot open %s: %s%s\n", device.c_str(), reason.c_str(),
               PermissionHint(device).c_str());
}

/// Hung up: the adapter was pulled, or the other side of a pseudo-terminal has gone. Qt only tells
/// this from its event loop.
bool HungUp([[maybe_unused]] const QSerialPort& serial) {
#ifdef Q_OS_UNIX
  pollfd device{serial.handle(), POLLIN, 0};
  return poll(&device, 1, 0) > 0 && (device.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
#else
  return false;
#endif
}

}  // namespace

QtSerialPort::QtSerialPort() {
  serial_.setReadBufferSize(BufferSize);
  QObject::connect(&serial_, &QSerialPort::errorOccurred, &serial_,
                   [this](QSerialPort::SerialPortError error) { Notice(error); });
}

std::string QtSerialPort::DeviceOf(int number) const {
  return devices_.Name(number).toStdString();
}

bool QtSerialPort::Open() {
  Close();
  const QString location = devices_.Location(number_);
  device_ = location.toStdString();
  if (location.isEmpty()) {
    TellRefusal("port " + std::to_string(number_), "no such port");
    return false;
  }
  serial_.setPortName(location);
  if (Configure()) return true;
  TellRefusal(device_, serial_.errorString().toStdString());
  Close();
  return false;
}

bool QtSerialPort::Configure() {
  if (!serial_.setBaudRate(QSerialPort::Baud9600) || !serial_.setDataBits(QSerialPort::Data8) ||
      !serial_.setParity(QSerialPort::NoParity) || !serial_.setStopBits(QSerialPort::OneStop) ||
      !serial_.setFlowControl(QSerialPort::NoFlowControl) ||
      !serial_.open(QIODeviceBase::ReadWrite)) {
    return false;
  }
  // Adapters that have no such lines refuse, which is no failure.
  serial_.setDataTerminalReady(true);
  serial_.setRequestToSend(true);
  failed_ = false;
  return true;
}

void QtSerialPort::Close() {
  if (serial_.isOpen()) serial_.close();
  failed_ = false;
}

int QtSerialPort::BytesWaiting() {
  const auto start = std::chrono::steady_clock::now();
  Collect();
  const int waiting = static_cast<int>(serial_.bytesAvailable());
  if (waiting == 0) SpinUntil(start + EmptyQueryTime);
  return waiting;
}

void QtSerialPort::FlushInput() {
  CheckDevice();
  serial_.clear(QSerialPort::Input);
  CheckDevice();
}

std::optional<char> QtSerialPort::Read() {
  if (serial_.bytesAvailable() == 0) Collect();
  CheckDevice();
  char character = 0;
  return serial_.getChar(&character) ? std::optional(character) : std::nullopt;
}

void QtSerialPort::Write(std::string_view characters) {
  CheckDevice();
  serial_.write(characters.data(), static_cast<qint64>(characters.size()));
  // Without this nothing leaves before the event loop has a turn.
  serial_.flush();
  CheckDevice();
}

void QtSerialPort::Collect() {
  CheckDevice();
  // Looks at the device, which otherwise only the event loop does. Whether it found something is
  // seen below.
  serial_.waitForReadyRead(0);
  if (serial_.bytesAvailable() == 0 && HungUp(serial_)) failed_ = true;
  CheckDevice();
}

void QtSerialPort::Notice(QSerialPort::SerialPortError error) {
  switch (error) {
    case QSerialPort::ResourceError:
    case QSerialPort::ReadError:
    case QSerialPort::WriteError:
    case QSerialPort::DeviceNotFoundError:
    case QSerialPort::PermissionError:
    case QSerialPort::UnknownError:
      break;
    case QSerialPort::NoError:
    case QSerialPort::OpenError:
    case QSerialPort::NotOpenError:
    case QSerialPort::UnsupportedOperationError:
    case QSerialPort::TimeoutError:
      return;
  }
  if (!serial_.isOpen() || failed_) return;
  failed_ = true;
  // A device that has gone would report on every turn of the event loop, and the program would spin
  // in the background. It cannot be closed from within its own signal.
  QMetaObject::invokeMethod(
      &serial_,
      [this] {
        if (failed_) serial_.close();
      },
      Qt::QueuedConnection);
}

void QtSerialPort::CheckDevice() {
  if (failed_ || !serial_.isOpen()) ThrowFailed();
}

void QtSerialPort::ThrowFailed() {
  throw RuntimeError(ErrorKind::PortFailed, device_);
}

}  // namespace bkconf
