// Reads and writes every kind of module over a pseudo-terminal, with the real window, timers and
// serial port, and prints times beside those of the line and of the ticks. Used by dev/bench.
// Arguments: the program virtual_module, and a settings directory.
#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "image/commands.h"
#include "link/read_table.h"
#include "link/transfer.h"
#include "session/settings.h"
#include "shell/main_window.h"
#include "shell/qt/desktop_machine.h"
#include "shell/qt/screens.h"
#include "shell/qt/serial_port.h"

namespace bkconf {
namespace {

QElapsedTimer bench;

double NowMs() {
  return static_cast<double>(bench.nsecsElapsed()) / 1e6;
}

/// The real port, with the time of the first character of each frame noted.
class TimedPort : public QtSerialPort {
 public:
  void Write(std::string_view characters) override {
    if (characters.front() == 'T') frames.push_back(NowMs());
    QtSerialPort::Write(characters);
  }
  std::vector<double> frames;
};

struct Job {
  int kind;
  std::vector<std::string_view> reads;  ///< after the base table
  std::vector<Cell*> dirty;
  double tick;
};

/// The longest write of each kind whose tables go out in one conversation.
std::vector<Job> Jobs() {
  return {{0, {}, {}, 20},
          {1, {}, {}, 20},
          {4, {}, {}, 20},
          {11, {}, {}, 20},
          {5, {}, {}, 20},
          {6, {}, {}, 20},
          {7, {}, {}, 20},
          {8, {}, {}, 20},
          {9, {Read1}, {&MasterContextsDirty}, 20},
          {2, {Read1, Read2}, {&TempHeaderDirty, &TempRoomsDirty, &TempProgramDirty}, 20},
          {3, {Read1}, {&LcdScreen1Dirty}, 30}};
}

/// Moments of a read: module accepted, first and last cell stored.
struct ReadTimes {
  double identity = 0;
  double firstCell = 0;
  double lastCell = 0;
  int lines = 0;
};

ReadTimes times;

/// Looks at the bar after every turn of the event loop: it counts the cells that were stored.
void WatchBar() {
  const ProgressField& bar = *Window.bar;
  if (bar.Maximum() == SearchMaximum || bar.Value() == times.lines) return;
  times.lines = bar.Value();
  times.lastCell = NowMs();
  if (times.firstCell == 0) times.firstCell = times.lastCell;
}

void FinishTransfer() {
  while (TransferUnderWay) {
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    WatchBar();
  }
}

/// Notes when a module was accepted, without changing what happens then. A screen that opens behind
/// a read shows the model once more.
void WatchIdentities() {
  const auto showModel = Window.showModel;
  Window.showModel = [showModel](const ModuleKind& kind) {
    if (TransferUnderWay) {
      times = {};
      times.identity = NowMs();
    }
    showModel(kind);
  };
}

void PrintRead(int kind, std::string_view command) {
  constexpr double lineMs = 9 * 10 / 9.6;  // nine characters of ten bits at 9600 baud
  const double between = times.lastCell - times.firstCell;
  const double ideal = (times.lines - 1) * lineMs;
  const double whole = times.lastCell - times.identity;
  std::printf("%4d  %.*s  %5d  %9.1f  %9.1f  %6.4f  %9.1f  %6.4f\n", kind, 6, command.data(),
              times.lines, ideal, between, between / ideal, whole, whole / (times.lines * lineMs));
}

void PrintWrite(const Job& job, std::vector<double> frames) {
  // The first "T" is that of the command.
  frames.erase(frames.begin());
  double expected = 0;
  double shortestTick = 1e9;
  double shortestPause = 1e9;
  int pauses = 0;
  for (std::size_t i = 1; i < frames.size(); ++i) {
    const double gap = frames[i] - frames[i - 1];
    if (gap > 500) {
      ++pauses;
      expected += 1000;
      shortestPause = std::min(shortestPause, gap);
    } else if (job.kind == 2 && gap > 45) {
      expected += 50;  // the pause between two tables, and a tick
    } else {
      expected += job.tick;
      shortestTick = std::min(shortestTick, gap);
    }
  }
  const double whole = frames.back() - frames.front();
  std::printf("%4d  %s  %5zu  %9.1f  %9.1f  %6.4f  %9.3f  ", job.kind,
              PendingCommand.Text().c_str(), frames.size(), expected, whole, whole / expected,
              shortestTick);
  if (pauses > 0) {
    std::printf("%d x %.3f\n", pauses, shortestPause);
  } else {
    std::printf("none\n");
  }
}

class ModuleProcess {
 public:
  ModuleProcess(const QString& program, int kind) {
    process_.start(program,
                   {QStringLiteral("--kind"), QString::number(kind), QStringLiteral("--link"),
                    QString::fromStdString(SettingsPath("com1"))});
    process_.waitForReadyRead();
  }
  ~ModuleProcess() {
    process_.terminate();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

/// Reads the base table and what the job needs beside it, and tells each command when it is read.
void Read(const Job& job, const std::function<void(std::string_view)>& done) {
  ActiveModuleType = NoModule;
  MainWindow.connect.Click();
  FinishTransfer();
  done(ReadBase);
  for (const std::string_view command : job.reads) {
    StartRequest(command);
    FinishTransfer();
    done(command);
  }
}

int Run(const QString& virtualModule) {
  TimedPort port;
  const DesktopMachine machine(port);
  StartSession(LoadMainWindow, [](const std::string&) {});
  const std::unique_ptr<ScreenWindow> window = MakeWindows();
  WatchIdentities();

  std::puts(
      "\nreads, in ms: the line's time between the first and the last cell, the tool's, their");
  std::puts("ratio; then from the identity to the last cell, and that over the time of all lines");
  std::puts("kind  cmd     lines       line       tool   ratio      whole   ratio");
  for (const Job& job : Jobs()) {
    const ModuleProcess module(virtualModule, job.kind);
    Read(job, [&job](std::string_view command) { PrintRead(job.kind, command); });
  }

  std::puts(
      "\nwrites, in ms: the sum of ticks and pauses, the tool's time from the first frame to the");
  std::puts("last, their ratio; the shortest tick between two frames, the shortest block pause");
  std::puts("kind  cmd    frames        sum       tool   ratio       tick  pauses");
  for (const Job& job : Jobs()) {
    const ModuleProcess module(virtualModule, job.kind);
    Read(job, [](std::string_view) {});
    for (Cell* flag : job.dirty) *flag = 1;
    port.frames.clear();
    MainWindow.send.Click();
    FinishTransfer();
    PrintWrite(job, port.frames);
  }
  return 0;
}

}  // namespace
}  // namespace bkconf

int main(int count, char** words) {
  QApplication application(count, words);
  if (count != 3) {
    std::fputs("usage: transfer_bench VIRTUAL_MODULE SETTINGS_DIRECTORY\n", stderr);
    return 2;
  }
  bkconf::bench.start();
  bkconf::SettingsDirectory = words[2];
  return bkconf::Run(QString::fromLocal8Bit(words[1]));
}
