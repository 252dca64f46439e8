// The look of the main window: selection and picture on the left, the module on the right, the
// state of a transfer at the bottom; a manual lies over all of it. The table of screens names it.
#pragma once

#include "shell/action_buttons.h"
#include "shell/qt/layout.h"

namespace bkconf {

inline std::vector<Part> ActionButtonsOf(DataGroup group) {
  std::vector<Part> parts;
  for (const ActionButtonRow& row : ActionButtons) {
    if (row.group == group) parts.push_back(Item(row.name));
  }
  return parts;
}

/// One of the four groups of module data: address and version, what only some kinds have, and the
/// buttons of its editors.
inline Part DataGroupPart(DataGroup group, const std::string& prefix,
                          std::vector<Part> further = {}) {
  std::vector<Part> lines = {
      Line(prefix + "AddressLabel", prefix + "Address", {Item(prefix + "Version")})};
  for (Part& line : further) lines.push_back(std::move(line));
  // That of the general data has the most buttons, and shorter captions than the others.
  const int columns = group == DataGroup::General ? 3 : 2;
  return Frame(prefix + "Group",
               Column({Form(std::move(lines)), Tiles(columns, ActionButtonsOf(group)), Space()}));
}

/// The configuration page of a master: the list of modules with its scan, beside it the clock, and
/// at the right what adds or deletes a module.
inline Part ModulePagePart() {
  const Part list = Tight(
      {Row({Item("modulesLabel"), Space(), Item("scan")}), Labelled("modulesLabel", "modules")});
  const Part clock =
      Frame("clockGroup", Tight({Wide(56, Item("clockText", Look::Wrapped)),
                                 Row({Labelled("downLabel", "down"), Item("downLabel"), Space()}),
                                 Row({Labelled("upLabel", "up"), Item("upLabel"), Space()})}));
  const Part add =
      Frame("addGroup", Tight({Item("addHeading"), Item("addLetterLabel"), Item("addTypeLabel"),
                               Row({Labelled("addLetterLabel", "addLetter"),
                                    Share(1, Labelled("addTypeLabel", "addType"))}),
                               Row({Space(), Item("addConfirm"), Item("addLeave")})}));
  const Part remove =
      Frame("deleteGroup",
            Column({Item("deleteQuestion"), Row({Space(), Item("deleteYes"), Item("deleteNo")})}));
  return Frame("modulePage", Row({Share(3, list), Share(4, Column({clock, Space()})),
                                  Share(3, Pile({Kept(Entered(add)), Entered(remove)}))}));
}

inline Part MainWindowLayout() {
  const Part selection =
      Column({Row({Item("moduleListLabel"),
                   Share(1, Wide(22, Labelled("moduleListLabel", "moduleList"))), Item("upgrade")}),
              Frame("pictureGroup",
                    Column({Labelled("moduleCaption", "picture"),
                            Item("moduleCaption", Look::Heading), Item("moreInfo"),
                            Item("infoInductive"), Item("infoCapacitive"), Item("infoAnalogue")})),
              Space()});
  const Part module = Column(
      {Frame("actionGroup",
             Row({Item("connect", Look::Primary), Item("send", Look::Primary), Space()})),
       DataGroupPart(DataGroup::General, "general"),
       DataGroupPart(DataGroup::DisplayTemperature, "displayTemperature",
                     {Line("roomCountLabel", "roomCount"), Line("toleranceLabel", "tolerance")}),
       DataGroupPart(DataGroup::Alarm, "alarm", {Line("detectorCountLabel", "detectorCount")}),
       DataGroupPart(DataGroup::Special, "special")});
  const Part window =
      Column({Row({Share(1, selection), Share(2, module)}), ModulePagePart(), Rule(),
              Row({Share(2, Item("status")), Share(1, Labelled("status", "transferBar"))})});
  const Part manual = Column({Row({Space(), Item("closeManual")}), Item("manual")});
  return Cover("manual", window, manual);
}

}  // namespace bkconf
