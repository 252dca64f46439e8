// Which device a port number means on this machine. The serial port and the port menu ask.
#pragma once

#include <QElapsedTimer>
#include <QSerialPortInfo>
#include <QString>

namespace bkconf {

/// What the port numbers mean: on Windows number N is COMN. Elsewhere it is the link "comN" in the
/// settings directory where there is one, else the N-th serial port of the machine.
class SerialDevices {
 public:
  static constexpr int Count = 8;

  /// What to open for a number from 1 to 8; empty if there is nothing.
  QString Location(int number) const;
  /// The short name of the device for a user; empty if there is none. Names that are asked for one
  /// after the other come from one look at the machine, which takes 10 ms.
  QString Name(int number) const;

 private:
  mutable QList<QSerialPortInfo> ports_;
  mutable QElapsedTimer sinceLook_;
};

/// In the order in which they are numbered: adapters and boards that tell what they are, then other
/// ports, then the bare ports of the board, of which a machine may list many that it has no socket
/// for.
QList<QSerialPortInfo> NumberedPorts(QList<QSerialPortInfo> ports);

}  // namespace bkconf
