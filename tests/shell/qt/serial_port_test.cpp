#include "shell/qt/serial_port.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "link/transfer.h"
#include "platform/runtime_error.h"
#include "session/settings.h"
#include "shell/qt/serial_devices.h"

using namespace bkconf;

namespace {

/// The other end of the line.
class PseudoTerminal {
 public:
  PseudoTerminal() : master_(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) qFatal("No terminal");
  }
  ~PseudoTerminal() { Vanish(); }

  QString Device() const { return QString::fromLocal8Bit(ptsname(master_)); }
  int Master() const { return master_; }

  void Send(const QByteArray& characters) const {
    if (write(master_, characters.constData(), static_cast<std::size_t>(characters.size())) !=
        characters.size()) {
      qFatal("The line is full");
    }
  }
  /// What has arrived, waiting for the first of it.
  QByteArray Received() const {
    pollfd line{master_, POLLIN, 0};
    QByteArray bytes(256, 0);
    if (poll(&line, 1, 5000) <= 0) return {};
    const auto count = read(master_, bytes.data(), 256);
    bytes.truncate(std::max<qsizetype>(count, 0));
    return bytes;
  }
  void Vanish() {
    if (master_ >= 0) close(master_);
    master_ = -1;
  }

 private:
  int master_;
};

}  // namespace

class SerialPortTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    directory_ = std::make_unique<QTemporaryDir>();
    SettingsDirectory = directory_->path().toStdString();
    terminal_ = std::make_unique<PseudoTerminal>();
    QVERIFY(QFile::link(terminal_->Device(), directory_->filePath(QStringLiteral("com1"))));
    port_ = std::make_unique<QtSerialPort>();
    port_->SetNumber(1);
  }

  void ALinkInTheSettingsDirectoryNamesTheDevice() {
    const QString device = terminal_->Device();
    QCOMPARE(port_->DeviceOf(1), device.mid(5).toStdString());
    QVERIFY(device.startsWith(QStringLiteral("/dev/")));
    QVERIFY(QFile::link(QStringLiteral("/dev/gone"), directory_->filePath(QStringLiteral("com8"))));
    QCOMPARE(port_->DeviceOf(8), std::string("gone"));
    QCOMPARE(port_->DeviceOf(0), std::string());
    QCOMPARE(port_->DeviceOf(9), std::string());
  }

  void TheLineIsRawAt9600Baud() {
    QVERIFY(port_->Open());
    termios line{};
    QCOMPARE(tcgetattr(terminal_->Master(), &line), 0);
    QCOMPARE(cfgetospeed(&line), speed_t{B9600});
    QCOMPARE(line.c_cflag & CSIZE, tcflag_t{CS8});
    QCOMPARE(line.c_cflag & (PARENB | CSTOPB | CRTSCTS), tcflag_t{0});
    QCOMPARE(line.c_iflag & (ICRNL | INLCR | IGNCR | IXON | IXOFF | ISTRIP), tcflag_t{0});
    QCOMPARE(line.c_lflag & (ICANON | ECHO | ISIG), tcflag_t{0});
    QCOMPARE(line.c_oflag & OPOST, tcflag_t{0});
  }

  void CharactersAreReadOneByOneWithoutTheEventLoop() {
    QVERIFY(port_->Open());
    QCOMPARE(port_->BytesWaiting(), 0);
    QVERIFY(!port_->Read());
    terminal_->Send(QByteArray("M\0\r", 3));
    QCOMPARE(port_->BytesWaiting(), 3);
    QCOMPARE(port_->Read(), std::optional('M'));
    QCOMPARE(port_->Read(), std::optional('\0'));
    QCOMPARE(port_->Read(), std::optional('\r'));
    QVERIFY(!port_->Read());
  }

  void WhatIsWrittenLeavesAtOnce() {
    QVERIFY(port_->Open());
    port_->Write("D");
    QCOMPARE(terminal_->Received(), QByteArray("D"));
    port_->Write("T80000\r");
    QCOMPARE(terminal_->Received(), QByteArray("T80000\r"));
  }

  void AFlushDropsWhatTheProgramAndTheDeviceHold() {
    QVERIFY(port_->Open());
    terminal_->Send("old");
    QCOMPARE(port_->BytesWaiting(), 3);
    terminal_->Send("older");
    port_->FlushInput();
    QCOMPARE(port_->BytesWaiting(), 0);
    terminal_->Send("new");
    QCOMPARE(port_->BytesWaiting(), 3);
  }

  void At1024CharactersTheRestStaysWithTheSystem() {
    QVERIFY(port_->Open());
    terminal_->Send(QByteArray(1000, 'a'));
    QCOMPARE(port_->BytesWaiting(), 1000);
    terminal_->Send(QByteArray(1000, 'b'));
    QCOMPARE(port_->BytesWaiting(), 1024);
    QCOMPARE(port_->BytesWaiting(), 1024);
    QByteArray read;
    while (const auto character = port_->Read()) read.append(*character);
    QCOMPARE(read, QByteArray(1000, 'a') + QByteArray(1000, 'b'));
  }

  void AFlushDropsAlsoWhatStayedWithTheSystem() {
    QVERIFY(port_->Open());
    terminal_->Send(QByteArray(2000, 'a'));
    QCOMPARE(port_->BytesWaiting(), 1024);
    port_->FlushInput();
    QCOMPARE(port_->BytesWaiting(), 0);
  }

  void ADeviceThatVanishesIsAnErrorOfEveryOperation() {
    QVERIFY(port_->Open());
    terminal_->Vanish();
    QVERIFY_EXCEPTION_THROWN(port_->BytesWaiting(), RuntimeError);
    QVERIFY_EXCEPTION_THROWN(port_->Read(), RuntimeError);
    QVERIFY_EXCEPTION_THROWN(port_->Write("D"), RuntimeError);
    QVERIFY_EXCEPTION_THROWN(port_->FlushInput(), RuntimeError);
  }

  void AVanishedDeviceIsNoticedByASpinThatReads() {
    QVERIFY(port_->Open());
    terminal_->Vanish();
    try {
      while (!port_->Read()) {
      }
    } catch (const RuntimeError& error) {
      QCOMPARE(error.kind, ErrorKind::PortFailed);
      return;
    }
    QFAIL("A character came from nowhere");
  }

  void AVanishedDeviceIsNoticedByTheEventLoopAndClosed() {
    QVERIFY(port_->Open());
    terminal_->Vanish();
    QTRY_VERIFY(!port_->IsOpen());
    QVERIFY_EXCEPTION_THROWN(port_->BytesWaiting(), RuntimeError);
    port_->Close();
  }

  void APortWorksAgainAfterItsDeviceIsBack() {
    QVERIFY(port_->Open());
    terminal_->Vanish();
    QVERIFY_EXCEPTION_THROWN(port_->BytesWaiting(), RuntimeError);
    QVERIFY(!port_->Open());
    PseudoTerminal other;
    const QString link = directory_->filePath(QStringLiteral("com1"));
    QVERIFY(QFile::remove(link) && QFile::link(other.Device(), link));
    QVERIFY(port_->Open());
    other.Send("M");
    QCOMPARE(port_->Read(), std::optional('M'));
  }

  void WhatCannotBeOpenedIsRefusedQuietly() {
    for (const int number : {0, 9, -1}) {
      port_->SetNumber(number);
      QVERIFY(!port_->Open());
      QVERIFY(!port_->IsOpen());
    }
    QVERIFY(QFile::link(QStringLiteral("/dev/gone"), directory_->filePath(QStringLiteral("com2"))));
    port_->SetNumber(2);
    QVERIFY(!port_->Open());
  }

  void AClosedPortIsAnErrorAndClosingItAgainIsNone() {
    port_->Close();
    QVERIFY_EXCEPTION_THROWN(port_->BytesWaiting(), RuntimeError);
    QVERIFY(port_->Open());
    port_->Close();
    port_->Close();
    QVERIFY(!port_->IsOpen());
  }

  void TheWaitForAPollTakesAFairPartOfASecond() {
    QVERIFY(port_->Open());
    QElapsedTimer sweep;
    sweep.start();
    for (int query = 0; query < SearchMaximum; ++query) QCOMPARE(port_->BytesWaiting(), 0);
    const qint64 milliseconds = sweep.elapsed();
    qInfo("%d empty queries: %lld ms", SearchMaximum, milliseconds);
    QVERIFY(milliseconds >= 200);
  }

 private:
  std::unique_ptr<QTemporaryDir> directory_;
  std::unique_ptr<PseudoTerminal> terminal_;
  std::unique_ptr<QtSerialPort> port_;
};

QTEST_GUILESS_MAIN(SerialPortTest)
#include "serial_port_test.moc"
