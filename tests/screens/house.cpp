#include "screens/house.h"

#include <QApplication>
#include <algorithm>
#include <stdexcept>

#include "diagnostics/live_test.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "session/settings.h"
#include "shell/main_window.h"
#include "shell/manual.h"
#include "shell/module_file.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screens.h"

namespace bkconf {
namespace {

/// Longer than any transfer takes.
constexpr std::int64_t Patience = 120'000;

/// The virtual clock starts on an afternoon, and is not run for longer than till night.
Moment MomentOf(std::int64_t microseconds) {
  const auto seconds = static_cast<unsigned>(microseconds / 1'000'000);
  return {.date = {2024, 2, 29},
          .hour = 14 + seconds / 3600,
          .minute = seconds / 60 % 60,
          .second = seconds % 60,
          .weekday = 5};
}

}  // namespace

House::House(const std::string& settingsDirectory) {
  ActiveTickDriver = &clock_;
  Port = &line_;
  Messages = &boxes_;
  FileSystem = &files_;
  DirectorySystem = &directories_;
  OtherPrograms = &programs_;
  SettingsDirectory = settingsDirectory;
  BusyLoop = [this](std::int64_t last) {
    if (last >= 0) clock_.Hold(last + 1);
  };
  Now = [this] { return MomentOf(clock_.Now()); };
  RunEvent([this] {
    StartSession(
        [this] {
          main_ = MakeWindows();
          LoadMainWindow();
        },
        [](const std::string& path) { throw std::runtime_error("there is no " + path); });
  });
  // Turns of 1 microsecond, whatever the machine that laid out the directory needs for them.
  CharDelayCount = 2000;
}

House::~House() {
  for (Tick* tick : LinkTicks) tick->Disable();
  BusyLoop = RunBusyLoop;
  Now = LocalNow;
}

void House::Do(const std::function<void()>& event) {
  RunEvent(event);
  Finish();
}

void House::DoFor(std::int64_t milliseconds, const std::function<void()>& event) {
  RunEvent(event);
  RunEvent([&] { clock_.Advance(milliseconds); });
}

void House::Finish() {
  RunEvent([this] { clock_.RunUntil([] { return !TransferUnderWay; }, Patience); });
  if (TransferUnderWay) throw std::runtime_error("a transfer does not end");
}

void House::Plug(virtual_module::Options options) {
  line_.module = nullptr;
  module_ = std::make_unique<virtual_module::Module>(std::move(options));
  module_->Run(clock_.Now());
  line_.module = module_.get();
}

void House::Read(const std::string& demoFile) {
  virtual_module::Memory memory = virtual_module::LoadImage(DemoFile(demoFile));
  Plug({memory.kind(), memory});
  Do([] { MainWindow.connect.Click(); });
}

void House::ReadKind(int kind) {
  Plug({kind, virtual_module::DefaultMemory(kind, 1)});
  Do([] { MainWindow.connect.Click(); });
}

void House::Open(const std::string& demoFile) {
  Do([&] { OpenModule(DemoFile(demoFile)); });
}

void House::Press(Action action) {
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    if (ActionButtons[i].action != action || !button.visible) continue;
    Do([&button] { button.Click(); });
    return;
  }
  throw std::runtime_error("no such action is shown");
}

void House::Clear() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (qobject_cast<QMessageBox*>(widget) != nullptr) widget->close();
    if (widget->windowType() == Qt::Popup) widget->hide();
  }
  Do([] {
    LeaveRunningTest();
    LeaveTransfer();
    const auto rows = AllScreens();
    std::for_each(rows.rbegin(), rows.rend() - 1, [](const ScreenRow& row) {
      if (row.screen->shown) row.screen->Close();
    });
    CloseManual();
    NewModule();
  });
  line_.module = nullptr;
}

QWidget* House::Front() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return ScreenWindows().front();
}

ScreenWindow* House::WindowOf(const Screen& screen) {
  const auto window = std::find_if(
      ScreenWindows().begin(), ScreenWindows().end(),
      [&screen](const ScreenWindow* each) { return each->objectName() == ToQt(screen.name); });
  return *window;
}

std::string House::DemoFile(const std::string& name) {
  return BKCONF_DEMO_HOUSE "/" + name + ".BK1";
}

}  // namespace bkconf
