// One session with all that a kind of module has: every screen is opened, what it edits is edited,
// sent, read again, kept in a file and opened. The base of the batteries of the kinds.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/diagnostics_stage.h"
#include "end_to_end/table_stage.h"

namespace end_to_end {

// A module of the demo house.
struct BatteryModule {
  int kind;
  const char* name;
  const char* demoFile;
  std::array<const char*, 2> titles;  // of its screens, in Dutch and in French
};

struct BatteryCase {
  const BatteryModule* module;
  const Captions* captions;
};

inline void PrintTo(const BatteryCase& each, std::ostream* out) {
  *out << each.module->name << ", " << each.captions->languageName;
}

// Each of the modules in both languages.
std::vector<BatteryCase> InBothLanguages(const std::vector<const BatteryModule*>& modules);
std::string BatteryName(const ::testing::TestParamInfo<BatteryCase>& each);

// What a button of the main window leads to.
struct Way {
  std::string button;  // its caption after a read
  // Presses the button, works through what it opens, and leaves it.
  std::function<void()> visit;
  // What the visit changes.
  std::map<int, int> cells = {};
  // Presses the button for what has to be read before a file can be kept, and leaves it. None where
  // the base read brings all.
  std::function<void()> read = {};
};

class BatteryStage : public DiagnosticsStage,
                     public virtual TableStage,
                     public ::testing::WithParamInterface<BatteryCase> {
 protected:
  // Every button of the module's frame in the main window, in the order in which to press them.
  virtual std::vector<Way> Ways() = 0;
  // What the visits have changed of lists, which are no cells of a known place.
  virtual std::map<int, int> FurtherCells() const { return {}; }
  // The whole session. The module, what is read of it and the file must be the demo house's with
  // nothing but the cells of the ways changed.
  void Run();

  // The screens that many kinds have.
  Way ButtonsWay();
  Way SecondTimeWay();
  enum class LiveTest { Line, Buttons, Outputs, Detectors, Light, Clock };
  Way DiagnosticsWay(const std::vector<LiveTest>& tests);

  // Opens a screen, does that there, and leaves it.
  void Visit(std::string_view button, const std::function<void()>& work);

 private:
  void StartWithDemoHouse();
  void ExpectButtons(const std::vector<Way>& ways);
  void SendAll();
  void ReadAgain(const std::vector<Way>& ways);
  void ExpectContent(const std::filesystem::path& file);
  std::size_t Reads() const { return TimesOnLine(false, "STOP\\r"); }

  void RunTest(LiveTest test);
  void TestLine();
  void TestButtons();
  void TestOutputs();
  void TestDetectors();
  void TestLight();
  void TestClock();

  ButtonModule module_ = {};
  std::vector<std::string> wanted_;  // the lines of the image that the tool is to hold
};

}  // namespace end_to_end
