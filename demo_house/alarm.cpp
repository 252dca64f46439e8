// The alarm module: nine detectors, of which those that only matter to burglars are out of service
// until the people leave.
#include <initializer_list>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

constexpr int detectorCount = 12;

struct Rule {
  Detector detector;
  Action atTrigger;
  Action atEnd = nothing;
  int delayMinutes = 0;  // 0 to 120
  Condition condition = {};
  bool inService = true;
};

void PutRule(Cells& cells, const Rule& rule) {
  const int d = rule.detector.number - 1;
  Put(cells, 124 + d, rule.delayMinutes);
  Put(cells, 136 + d, rule.inService ? 1 : 0);
  PutAction(cells, 149 + 6 * d, rule.atTrigger);
  PutAction(cells, 152 + 6 * d, rule.atEnd);
  PutCondition(cells, 221 + 5 * d, rule.condition);
  Put(cells, 281 + d, static_cast<int>(rule.condition.joining));
}

void PutRules(Cells& cells, std::initializer_list<Rule> rules) {
  for (int number = 1; number <= detectorCount; ++number) {
    PutRule(cells, {.detector = Detector(number), .atTrigger = nothing, .inService = false});
  }
  for (const Rule& rule : rules) {
    PutRule(cells, rule);
  }
}

}  // namespace

Memory AlarmModule() {
  Memory memory(5);
  Cells& cells = memory.Cells(TableName::AlarmImage);
  PutAddressAndVersion(memory, alarm, 67);
  PutButtons(cells, 4,
             {
                 {1, Watch(gardenMotion), Ignore(gardenMotion)},
                 {2, Watch(livingMotion), Ignore(livingMotion)},
                 {3, Off(siren)},
                 {4, Run(away), Run(panic)},
             });
  Put(cells, 123, detectorsInUse);
  PutRules(cells,
           {
               {hallMotion, On(hallLight), Off(hallLight), 2, {.darkerThan = 15}},
               {driveMotion, On(driveLight), Off(driveLight), 5, {.darkerThan = 12}},
               {frontDoorContact, On(hallLight), nothing, 0, {.first = {17, 24}, .second = {0, 7}}},
               {garageDoorContact, On(garageLight), Off(garageLight), 10},
               // No heating for an open window.
               {kitchenWindow, Heat(kitchen, 10), HeatAsProgrammed(kitchen), 3},
               {smoke, Run(panic)},
               {gardenMotion,
                On(siren),
                Off(siren),
                0,
                {.darkerThan = 10, .first = {22, 24}, .second = {0, 6}, .joining = Joining::Or},
                false},
               {wind, On(awning.up)},
               {livingMotion, On(siren), Off(siren), 1, {}, false},
           });
  return memory;
}

}  // namespace demo_house
