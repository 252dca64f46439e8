// The look of the screen of the audio interface: how many zones and sources there are, and below
// them what the chosen zone starts with. The table of screens names it.
#pragma once

#include "shell/qt/layout.h"

namespace bkconf {

inline Part AudioScreenLayout() {
  const Part general = Frame(
      "generalGroup", Row({Item("zonesLabel"), Labelled("zonesLabel", "zones"),
                           Item("sourcesLabel"), Labelled("sourcesLabel", "sources"), Space()}));
  // The one is of the first zone, the other of those behind it.
  const Part surround = Pile({Item("surround", Look::Tall), Item("surroundHint", Look::Tall)});
  const Part main = Frame(
      "mainGroup", Column({Form({Line("sourceLabel", "source"),
                                 Line("mainVolumeLabel", "mainVolume"), Line("gainLabel", "gain")}),
                           Space()}));
  const Part secondary =
      Frame("secondaryGroup", Column({Form({Line("secondaryVolumeLabel", "secondaryVolume")}),
                                      Item("loudness", Look::Tall), Space()}));
  const Part settings =
      Frame("settingsGroup",
            Column({Row({Item("zoneLabel"), Labelled("zoneLabel", "zone"), surround, Space()}),
                    Row({Share(1, main), Share(1, secondary)})}));
  return Column({Frame("frame", Column({general, settings})), Space(), Rule(),
                 Row({Space(), Item("leave")})});
}

}  // namespace bkconf
