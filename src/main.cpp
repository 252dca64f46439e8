// The desktop tool: puts the machine behind the logic and starts the session.
#include <QApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>
#include <cstdio>
#include <memory>

#include "session/settings.h"
#include "shell/main_window.h"
#include "shell/module_file.h"
#include "shell/qt/arguments.h"
#include "shell/qt/desktop_machine.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screens.h"
#include "shell/qt/serial_port.h"
#include "shell/qt/style.h"

namespace bkconf {
namespace {

constexpr int WrongUsage = 2;

/// A directory that does not exist at all gets what an installation puts there.
bool LayOutDirectory() {
  const QString directory = ToQt(SettingsDirectory);
  if (QFileInfo::exists(directory)) return true;
  const QString setup = QCoreApplication::applicationDirPath() + QStringLiteral("/bkconf_setup");
  if (QProcess::execute(setup, {ToQt(DirectoryOption), directory}) == 0) return true;
  std::fprintf(stderr, "bkconf: %s could not be laid out by %s\n", qUtf8Printable(directory),
               qUtf8Printable(setup));
  return false;
}

/// Loads the screens and shows the main window, with the file of the command line in it: that is
/// opened once the window stands, since it may be refused.
std::unique_ptr<ScreenWindow> Begin(const Arguments& arguments) {
  std::unique_ptr<ScreenWindow> window = MakeWindows();
  if (arguments.minimised) window->StartMinimised();
  LoadMainWindow();
  if (!arguments.file.empty()) {
    QTimer::singleShot(
        0, [path = Absolute(arguments.file)] { RunEvent([&path] { OpenModule(path); }); });
  }
  return window;
}

int RunProgram(QApplication& application, const Arguments& arguments) {
  SettingsDirectory = ChooseDirectory(
      arguments, [](const char* name) { return qEnvironmentVariable(name).toStdString(); });
  if (!LayOutDirectory()) return EXIT_FAILURE;
  QtSerialPort port;
  const DesktopMachine machine(port);
  std::unique_ptr<ScreenWindow> window;
  RunEvent([&] {
    StartSession([&] { window = Begin(arguments); },
                 [](const std::string& path) {
                   std::fprintf(stderr, "bkconf: waiting for %s\n", path.c_str());
                 });
  });
  return application.exec();
}

/// Help and version work without a display.
bool AnswerQuestion(const Arguments& arguments) {
  if (arguments.help) std::fputs(HelpText().c_str(), stdout);
  if (arguments.version) std::puts("bkconf " BKCONF_VERSION);
  return arguments.help || arguments.version;
}

Arguments ReadArguments(const QStringList& words) {
  std::vector<std::string> plain;
  for (const QString& word : words.mid(1)) plain.push_back(word.toStdString());
  return ParseArguments(plain);
}

bool AsksOnly(int count, char** words) {
  const std::vector<std::string> all(words + 1, words + count);
  try {
    return AnswerQuestion(ParseArguments(all));
  } catch (const ArgumentError&) {
    // May be one that Qt knows; what is left after Qt took its own is looked at again.
    return false;
  }
}

}  // namespace
}  // namespace bkconf

int main(int count, char** words) {
  using namespace bkconf;
  if (AsksOnly(count, words)) return EXIT_SUCCESS;
  QApplication application(count, words);
  QApplication::setApplicationName(QStringLiteral("bkconf"));
  QApplication::setApplicationVersion(QStringLiteral(BKCONF_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("bkconf"));
  // A box that stands before the window does not end the program when it is closed.
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyStyle(application);
  try {
    return RunProgram(application, ReadArguments(QCoreApplication::arguments()));
  } catch (const ArgumentError& error) {
    std::fprintf(stderr, "bkconf: %s\n", error.what());
    return WrongUsage;
  }
}
