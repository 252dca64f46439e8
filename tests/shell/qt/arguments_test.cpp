#include "shell/qt/arguments.h"

#include <QDir>
#include <QTest>
#include <map>

using namespace bkconf;

namespace {

using Variables = std::map<std::string, std::string>;

std::string Choose(const Arguments& arguments, const Variables& variables) {
  return ChooseDirectory(arguments, [&](const char* name) {
    const auto variable = variables.find(name);
    return variable == variables.end() ? std::string() : variable->second;
  });
}

}  // namespace

class ArgumentsTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void DirectoryIsTakenInBothSpellings() {
    QCOMPARE(ParseArguments({"--directory", "/a b"}).directory, std::string("/a b"));
    QCOMPARE(ParseArguments({"--directory=/c"}).directory, std::string("/c"));
  }

  void UnknownWordsAndAMissingDirectoryAreRefused() {
    QVERIFY_EXCEPTION_THROWN(ParseArguments({"--directory"}), ArgumentError);
    QVERIFY_EXCEPTION_THROWN(ParseArguments({"--fast"}), ArgumentError);
    QVERIFY_EXCEPTION_THROWN(ParseArguments({"-x"}), ArgumentError);
    QVERIFY_EXCEPTION_THROWN(ParseArguments({""}), ArgumentError);
  }

  void OneFileIsOpenedAndASecondOneRefused() {
    QCOMPARE(ParseArguments({"a b.BK1"}).file, std::string("a b.BK1"));
    const Arguments both = ParseArguments({"--directory", "/d", "house/Relais A.BK1"});
    QCOMPARE(both.file, std::string("house/Relais A.BK1"));
    QCOMPARE(both.directory, std::string("/d"));
    QVERIFY(ParseArguments({"--directory", "/d"}).file.empty());
    QVERIFY_EXCEPTION_THROWN(ParseArguments({"a.BK1", "b.BK1"}), ArgumentError);
  }

  void AFileIsSeenFromWhereTheProgramWasStarted() {
    QCOMPARE(Absolute("a.BK1"), (QDir::currentPath() + QStringLiteral("/a.BK1")).toStdString());
    QCOMPARE(Absolute("/x/../a.BK1"), std::string("/a.BK1"));
  }

  void AMinimisedStartAndTheQuestionsAreKnown() {
    QVERIFY(ParseArguments({"--minimised"}).minimised);
    QVERIFY(ParseArguments({"--help"}).help);
    QVERIFY(ParseArguments({"--version"}).version);
    QVERIFY(!ParseArguments({}).minimised);
  }

  void TheCommandLineGoesBeforeTheEnvironment() {
    const Variables both = {{"BKCONF_DIRECTORY", "/env"}, {"XDG_DATA_HOME", "/data"}};
    QCOMPARE(Choose({.directory = "/given/"}, both), std::string("/given"));
    QCOMPARE(Choose({}, both), std::string("/env"));
  }

  void ARelativeDirectoryBecomesAbsolute() {
    QCOMPARE(Choose({.directory = "here"}, {}),
             (QDir::currentPath() + QStringLiteral("/here")).toStdString());
  }

#ifndef Q_OS_WIN
  void WithoutEitherTheDataDirectoryOfTheUserIsTaken() {
    const std::string home = QDir::homePath().toStdString() + "/.local/share/bkconf";
    QCOMPARE(Choose({}, {{"XDG_DATA_HOME", "/data"}}), std::string("/data/bkconf"));
    QCOMPARE(Choose({}, {{"XDG_DATA_HOME", "relative"}}), home);
    QCOMPARE(Choose({}, {}), home);
  }
#endif
};

QTEST_APPLESS_MAIN(ArgumentsTest)
#include "arguments_test.moc"
