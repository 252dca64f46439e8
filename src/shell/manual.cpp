#include "shell/manual.h"

#include <array>

#include "session/language.h"
#include "shell/main_window.h"

namespace bkconf {
namespace {

/// A group of module data, and the flag that tells that a manual has hidden it.
struct HiddenGroup {
  GroupField* frame;
  Cell* wasVisible;
};

std::array<HiddenGroup, 4> HiddenGroups() {
  return {{{&MainWindow.general.frame, &GeneralGroupWasVisible},
           {&MainWindow.displayTemperature.frame, &DisplayTemperatureGroupWasVisible},
           {&MainWindow.alarm.frame, &AlarmGroupWasVisible},
           {&MainWindow.special.frame, &SpecialGroupWasVisible}}};
}

std::string_view FileOf(const Manual& manual) {
  return Language.Number() == French ? manual.french : manual.dutch;
}

void ShowManualView(bool shown) {
  MainWindow.manual.visible = MainWindow.closeManual.visible = shown;
  MainWindow.moduleList.enabled = !shown;
}

}  // namespace

void LoadManuals() {
  MainWindow.closeManual.visible = false;
  MainWindow.closeManual.onClick = CloseManual;
  MainWindow.moreInfo.onClick = [] { ShowManual(0); };
  MainWindow.infoInductive.onClick = [] { ShowManual(0); };
  MainWindow.infoCapacitive.onClick = [] { ShowManual(1); };
  MainWindow.infoAnalogue.onClick = [] { ShowManual(2); };
}

void ShowManual(int number) {
  const Model* model = FindModel(MainWindow.moduleList.Text());
  if (model == nullptr || MainWindow.manual.visible) return;
  Show(MainWindow.closeManual.caption, TextId::CloseManual);
  MainWindow.manual.file = FileOf(model->manuals.at(static_cast<std::size_t>(number)));
  for (const HiddenGroup& group : HiddenGroups()) {
    *group.wasVisible = group.frame->visible ? 1 : 0;
    group.frame->visible = false;
  }
  MainWindow.actionGroup.visible = MainWindow.pictureGroup.visible = false;
  ShowManualView(true);
}

void CloseManual() {
  if (!MainWindow.manual.visible) return;
  ShowManualView(false);
  for (const HiddenGroup& group : HiddenGroups()) {
    if (group.wasVisible->Number() == 1) group.frame->visible = true;
    *group.wasVisible = 0;
  }
  MainWindow.actionGroup.visible = true;
  MainWindow.pictureGroup.visible = !MainWindow.moduleList.Text().empty();
}

}  // namespace bkconf
