// Runs the two programs as a user does.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

namespace {

QByteArray ContentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

void Overwrite(const QString& path, const QByteArray& content) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(content);
}

QProcessEnvironment Environment(const QString& language) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove(QStringLiteral("LC_ALL"));
  environment.insert(QStringLiteral("LANG"), language);
  return environment;
}

}  // namespace

class StartTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    place_ = std::make_unique<QTemporaryDir>();
    directory_ = place_->filePath(QStringLiteral("some where/bkconf"));
  }

  void SetupLaysOutADirectoryWithAllSettings() {
    QCOMPARE(Setup({}), 0);
    QCOMPARE(Setting("country.vdm"), QByteArray(" 1 \r\n"));
    QCOMPARE(Setting("port.vdm"), QByteArray("1\r\n"));
    QCOMPARE(Setting("directory.vdm"), directory_.toLocal8Bit() + "\r\n");
    const QByteArray turns = Setting("pc.vdm");
    QVERIFY(turns.endsWith("\r\n"));
    QVERIFY(turns.trimmed().toLongLong() > 0);
    // Nothing half done is left beside it.
    QCOMPARE(QDir(place_->filePath(QStringLiteral("some where")))
                 .entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("bkconf")));
  }

  void SetupTakesLanguageAndPort() {
    QCOMPARE(Setup({QStringLiteral("--language"), QStringLiteral("2"), QStringLiteral("--port"),
                    QStringLiteral("7")}),
             0);
    QCOMPARE(Setting("country.vdm"), QByteArray(" 2 \r\n"));
    QCOMPARE(Setting("port.vdm"), QByteArray("7\r\n"));
  }

  void SetupSpeaksFrenchWhereTheEnvironmentDoes() {
    QCOMPARE(Setup({}, QStringLiteral("fr_BE.UTF-8")), 0);
    QCOMPARE(Setting("country.vdm"), QByteArray(" 2 \r\n"));
  }

  void SetupLeavesWhatIsThereAndAddsWhatIsMissing() {
    QCOMPARE(Setup({}), 0);
    Overwrite(Path("country.vdm"), " 2 \r\n");
    Overwrite(Path("pc.vdm"), "12345\r\n");
    QVERIFY(QFile::remove(Path("port.vdm")));
    QCOMPARE(Setup({QStringLiteral("--language"), QStringLiteral("1")}), 0);
    QCOMPARE(Setting("country.vdm"), QByteArray(" 2 \r\n"));
    QCOMPARE(Setting("pc.vdm"), QByteArray("12345\r\n"));
    QCOMPARE(Setting("port.vdm"), QByteArray("1\r\n"));
  }

  void SetupCopiesPicturesAndManualsFromBesideTheProgram() {
    const QString root = place_->filePath(QStringLiteral("usr"));
    const QString program = root + QStringLiteral("/bin/bkconf_setup");
    QVERIFY(QDir().mkpath(root + QStringLiteral("/bin")));
    QVERIFY(QDir().mkpath(root + QStringLiteral("/share/bkconf/pictures")));
    QVERIFY(QFile::copy(QStringLiteral(BKCONF_SETUP_PROGRAM), program));
    Overwrite(root + QStringLiteral("/share/bkconf/pictures/a b.bmp"), "picture");
    QCOMPARE(QProcess::execute(program, {QStringLiteral("--directory"), directory_}), 0);
    QCOMPARE(Setting("a b.bmp"), QByteArray("picture"));
  }

  void SetupRefusesWrongArguments_data() {
    QTest::addColumn<QStringList>("words");
    QTest::newRow("none") << QStringList();
    QTest::newRow("no value") << QStringList(QStringLiteral("--directory"));
    QTest::newRow("language") << QStringList({QStringLiteral("--directory"), QStringLiteral("/x"),
                                              QStringLiteral("--language"), QStringLiteral("3")});
    QTest::newRow("port") << QStringList({QStringLiteral("--directory"), QStringLiteral("/x"),
                                          QStringLiteral("--port"), QStringLiteral("9")});
    QTest::newRow("unknown") << QStringList(QStringLiteral("nonsense"));
  }
  void SetupRefusesWrongArguments() {
    QFETCH(QStringList, words);
    QProcess setup;
    setup.start(QStringLiteral(BKCONF_SETUP_PROGRAM), words);
    QVERIFY(setup.waitForFinished());
    QCOMPARE(setup.exitCode(), 2);
    QVERIFY(setup.readAllStandardError().startsWith("bkconf_setup: "));
  }

  void SetupTellsWhenTheDirectoryCannotBeMade() {
    const QString file = place_->filePath(QStringLiteral("file"));
    Overwrite(file, "in the way");
    directory_ = file + QStringLiteral("/bkconf");
    QCOMPARE(Setup({}), 1);
  }

  void TheToolLaysOutAMissingDirectoryAndRuns() {
    QProcess tool;
    StartTool(tool);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Path("country.vdm")), 30'000);
    QVERIFY(tool.state() == QProcess::Running);
    StopTool(tool);
    QVERIFY(!errors_.contains("waiting"));
  }

  void TheToolWaitsForASettingThatIsMissingInADirectoryThatIsThere() {
    QCOMPARE(Setup({}), 0);
    QVERIFY(QFile::remove(Path("port.vdm")));
    QProcess tool;
    StartTool(tool);
    const QByteArray awaited = "bkconf: waiting for " + Path("port.vdm").toLocal8Bit() + "\n";
    QTRY_VERIFY_WITH_TIMEOUT((errors_ += tool.readAllStandardError()).contains(awaited), 30'000);
    QVERIFY(!QFile::exists(Path("port.vdm")));
    StopTool(tool);
    QCOMPARE(errors_.count("waiting for"), 1);
  }

  void TheToolAnswersQuestionsAndRefusesNonsense() {
    QCOMPARE(QProcess::execute(Tool(), {QStringLiteral("--help")}), 0);
    QCOMPARE(QProcess::execute(Tool(), {QStringLiteral("--version")}), 0);
    QCOMPARE(QProcess::execute(Tool(), {QStringLiteral("--nonsense")}), 2);
  }

  void AnUpgradeProgramTakesOverAtTheStart() {
    QCOMPARE(Setup({}), 0);
    Overwrite(Path("upgrade.exe"), "#!/bin/sh\nexit 0\n");
    QVERIFY(QFile::setPermissions(Path("upgrade.exe"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QProcess tool;
    StartTool(tool);
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QCOMPARE(tool.exitCode(), 0);
    QCOMPARE(Setting("upgrade.vdm"), QByteArray("1\r\n"));
  }

 private:
  static QString Tool() { return QStringLiteral(BKCONF_PROGRAM); }
  QString Path(const char* file) const { return directory_ + u'/' + QString::fromLatin1(file); }
  QByteArray Setting(const char* file) const { return ContentOf(Path(file)); }

  int Setup(QStringList words, const QString& language = QStringLiteral("nl_BE.UTF-8")) {
    QProcess setup;
    setup.setProcessEnvironment(Environment(language));
    words.append({QStringLiteral("--directory"), directory_});
    setup.start(QStringLiteral(BKCONF_SETUP_PROGRAM), words);
    if (!setup.waitForFinished()) return -1;
    return setup.exitCode();
  }

  void StartTool(QProcess& tool) {
    errors_.clear();
    tool.setProcessEnvironment(Environment(QStringLiteral("nl_BE.UTF-8")));
    tool.start(Tool(), {QStringLiteral("--directory"), directory_});
    QVERIFY(tool.waitForStarted());
  }

  void StopTool(QProcess& tool) {
    tool.terminate();
    QVERIFY(tool.waitForFinished());
    errors_ += tool.readAllStandardError();
  }

  std::unique_ptr<QTemporaryDir> place_;
  QString directory_;
  QByteArray errors_;
};

QTEST_GUILESS_MAIN(StartTest)
#include "start_test.moc"
