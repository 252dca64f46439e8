// The look of the screen of the outputs: what they do on the left, the change of one of them on the
// right. The table of screens names it.
#pragma once

#include "shell/qt/layout.h"

namespace bkconf {

inline Part OutputScreenLayout() {
  const Part function =
      Column({Form({Line("outputLabel", "output"), Line("functionLabel", "function"),
                    Line("linkedLabel", "linked"), Line("timeLabel", "time", {Item("unit")})}),
              Space(), Row({Space(), Item("confirm", Look::Primary)})});
  const Part start = Column({Form({Line("channelLabel", "channel"), Line("startLabel", "start")}),
                             Space(), Row({Space(), Item("confirmStart", Look::Primary)})});
  return Column({Row({Share(1, Frame("functionsGroup",
                                     Column({Wide(70, Labelled("functionsGroup", "functions"))}))),
                      Frame("editGroup", function)}),
                 Row({Share(1, Frame("startGroup",
                                     Column({Wide(40, Labelled("startGroup", "startValues"))}))),
                      Frame("startEditGroup", start)}),
                 Rule(), Row({Space(), Item("leave")})});
}

}  // namespace bkconf
