// The fixture of the tests of a master's lists over the line, with the master of the demo house at
// its other end.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "image/tables.h"
#include "link/transfer.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "platform/disk_files.h"
#include "shell/module_file.h"
#include "support/session_test.h"

namespace bkconf {

using virtual_module::Fault;
using virtual_module::FrameRecord;
using virtual_module::UnitKind;
using Names = std::vector<std::string>;

inline const std::string DemoMaster = BKCONF_DEMO_HOUSE "/Master.BK1";

/// One of the lists: its button, its screen and how it is read.
struct MasterList {
  const char* name;
  Action action;
  Screen* screen;
  Table* table;
  Cell* loaded;
  const char* loadedName;
  const char* command;
  const char* dutch;
  const char* french;
};

/// The name of a test that failed.
inline void PrintTo(const MasterList& entry, std::ostream* out) {
  *out << entry.name;
}

inline const MasterList MasterLists[] = {
    {"contexts", Action::Contexts, &ContextScreen, &ContextTable, &MasterContextsLoaded,
     "MasterContextsLoaded", "T81000", "Inladen van sferen...", "Chargement des contextes..."},
    {"time", Action::TimePrograms, &TimeProgramScreen, &TimeProgramTable, &MasterTimeLoaded,
     "MasterTimeLoaded", "T82000", "Inladen tijprogrammaties...", "Chargement prog. temps..."},
    {"light", Action::LightPrograms, &LightProgramScreen, &LightProgramTable, &MasterLightLoaded,
     "MasterLightLoaded", "T83000", "Inladen lichtprogrammaties...",
     "Chargement prog. luminosité..."},
};

class MasterLineTest : public SessionTest {
 protected:
  virtual_module::Module& PlugMaster(std::optional<Fault> fault = std::nullopt) {
    return Plug({9, virtual_module::LoadImage(DemoMaster), fault, 1});
  }
  /// The master of the demo house on the line, its base table read.
  virtual_module::Module& ReadMaster(int language = 1) {
    Start(language);
    virtual_module::Module& module = PlugMaster();
    ReadModule();
    return module;
  }
  void OpenFile() {
    files.content["/house/Master.BK1"] = DiskFiles().Load(DemoMaster);
    OpenModule("/house/Master.BK1");
  }
  static void Press(const MasterList& entry) { ShownAction(entry.action).Click(); }
  void PressAndWait(const MasterList& entry) {
    Press(entry);
    FinishTransfer();
  }
  bool RunUntilStatus(const std::string& status) {
    return clock.RunUntil([&] { return MainWindow.status.caption == status; }, 60'000);
  }
  static void ExpectUsable(bool usable) {
    EXPECT_EQ(MainWindow.bestand.enabled, usable);
    EXPECT_EQ(MainWindow.moduleList.enabled, usable);
    EXPECT_EQ(MainWindow.connect.enabled, usable);
    EXPECT_EQ(MainWindow.send.enabled, usable);
    for (const MasterList& entry : MasterLists)
      EXPECT_EQ(ShownAction(entry.action).Usable(), usable);
    EXPECT_EQ(ShownAction(Action::Configuration).Usable(), usable);
    EXPECT_EQ(MainWindow.modulePage.scan.enabled, usable);
  }
  static void ExpectEmpty(const MasterList& entry) {
    for (int cell = 0; cell < 1000; ++cell) {
      const bool header = entry.table == &ContextTable && cell < 100;
      ASSERT_EQ((*entry.table)[cell], Cell(header ? 0 : 42)) << cell;
    }
  }
  static void ExpectSameCells(const MasterList& entry, const virtual_module::Module& module) {
    const auto& cells = module.memory().Cells(entry.table->name);
    for (int cell = 0; cell < 1000; ++cell) {
      ASSERT_EQ((*entry.table)[cell], Cell(cells[static_cast<std::size_t>(cell)])) << cell;
    }
  }
  static Names Commands(const virtual_module::Module& module) {
    Names commands;
    for (const FrameRecord& record : module.received()) {
      if (record.kind == UnitKind::Command) commands.push_back(record.text.substr(0, 6));
    }
    return commands;
  }
};

}  // namespace bkconf
