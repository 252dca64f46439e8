#include "shell/qt/programs.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include "session/settings.h"
#include "shell/qt/arguments.h"
#include "shell/qt/field_view.h"

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace bkconf {
namespace {

bool StartDetached(const QString& file, const QStringList& arguments) {
  QProcess process;
  process.setProgram(file);
  process.setArguments(arguments);
  process.setWorkingDirectory(ToQt(SettingsDirectory));
#ifdef Q_OS_WIN
  process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* how) {
    how->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
    how->startupInfo->wShowWindow = SW_SHOWMINIMIZED;
  });
#endif
  return process.startDetached();
}

}  // namespace

bool QtPrograms::Start(const std::string& fileName) {
  return StartDetached(ToQt(SettingsPath(fileName)), {});
}

bool QtPrograms::StartThisProgram() {
  return StartDetached(QCoreApplication::applicationFilePath(),
                       {ToQt(DirectoryOption), ToQt(SettingsDirectory), ToQt(MinimisedOption)});
}

void QtPrograms::ShowWebPage(const std::string& address) {
  // Where there is no browser there is nothing to tell.
  QDesktopServices::openUrl(QUrl(ToQt(address)));
}

void QtPrograms::End() {
  QCoreApplication::exit(0);
}

}  // namespace bkconf
