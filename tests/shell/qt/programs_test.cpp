#include "shell/qt/programs.h"

#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "session/settings.h"

using namespace bkconf;

/// A browser that notes what it is asked to show.
class Browser : public QObject {
  Q_OBJECT
 public Q_SLOTS:
  void Show(const QUrl& page) { shown.append(page); }

 public:
  QList<QUrl> shown;
};

class ProgramsTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    QVERIFY(directory_.isValid());
    SettingsDirectory = directory_.path().toStdString();
  }

  void AProgramThatIsNotThereCannotBeStarted() { QVERIFY(!QtPrograms().Start("missing.exe")); }

#ifdef Q_OS_UNIX
  void AFileThatIsNoProgramCannotBeStarted() {
    WriteFile(QStringLiteral("plain.exe"), "no program", QFile::ReadOwner | QFile::WriteOwner);
    QVERIFY(!QtPrograms().Start("plain.exe"));
  }

  void AProgramOfTheSettingsDirectoryRunsInIt() {
    WriteFile(QStringLiteral("upgrade.exe"), "#!/bin/sh\ntouch ran\n",
              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(QtPrograms().Start("upgrade.exe"));
    QTRY_VERIFY(QFile::exists(directory_.filePath(QStringLiteral("ran"))));
  }
#endif

  void AWebPageIsShownInTheBrowser() {
    Browser browser;
    QDesktopServices::setUrlHandler(QStringLiteral("http"), &browser, "Show");
    QtPrograms().ShowWebPage("http://example.org/a b");
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
    QCOMPARE(browser.shown, QList<QUrl>({QUrl(QStringLiteral("http://example.org/a%20b"))}));
  }

  void EndLeavesTheEventLoopWhenTheEventIsOver() {
    bool eventWentOn = false;
    QTimer::singleShot(0, [&] {
      QtPrograms().End();
      eventWentOn = true;
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(eventWentOn);
  }

 private:
  void WriteFile(const QString& name, const QByteArray& content, QFile::Permissions permissions) {
    QFile file(directory_.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QVERIFY(file.setPermissions(permissions));
  }

  QTemporaryDir directory_;
};

QTEST_MAIN(ProgramsTest)
#include "programs_test.moc"
