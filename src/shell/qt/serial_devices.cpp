#include "shell/qt/serial_devices.h"

#include <QFileInfo>
#include <algorithm>

#include "session/settings.h"
#include "shell/qt/field_view.h"

namespace bkconf {
namespace {

#ifndef Q_OS_WIN
/// Short enough for an adapter that was plugged before the menu is opened again.
constexpr int LookLastsMs = 500;

/// The device that the settings directory links to, also when it is not there at the moment.
QString LinkedDevice(int number) {
  const QFileInfo link(ToQt(SettingsPath("com" + std::to_string(number))));
  if (!link.isSymLink()) return link.exists() ? link.absoluteFilePath() : QString();
  const QString device = link.canonicalFilePath();
  return device.isEmpty() ? link.symLinkTarget() : device;
}

QString ShortName(const QString& location) {
  const QString folder = QStringLiteral("/dev/");
  return location.startsWith(folder) ? location.mid(folder.size()) : location;
}
#endif

}  // namespace

QList<QSerialPortInfo> NumberedPorts(QList<QSerialPortInfo> ports) {
  const auto rank = [](const QSerialPortInfo& port) {
    if (port.hasVendorIdentifier() || !port.description().isEmpty()) return 0;
    return port.portName().startsWith(QStringLiteral("ttyS")) ? 2 : 1;
  };
  std::stable_sort(ports.begin(), ports.end(),
                   [&](const auto& a, const auto& b) { return rank(a) < rank(b); });
  return ports;
}

#ifdef Q_OS_WIN

QString SerialDevices::Location(int number) const {
  return number < 1 || number > Count ? QString() : QStringLiteral("COM%1").arg(number);
}

QString SerialDevices::Name(int number) const {
  return QSerialPortInfo(Location(number)).description();
}

#else

QString SerialDevices::Location(int number) const {
  if (number < 1 || number > Count) return {};
  if (QString linked = LinkedDevice(number); !linked.isEmpty()) return linked;
  if (!sinceLook_.isValid() || sinceLook_.hasExpired(LookLastsMs)) {
    ports_ = NumberedPorts(QSerialPortInfo::availablePorts());
    sinceLook_.start();
  }
  return number <= ports_.size() ? ports_[number - 1].systemLocation() : QString();
}

QString SerialDevices::Name(int number) const {
  return ShortName(Location(number));
}

#endif

}  // namespace bkconf
