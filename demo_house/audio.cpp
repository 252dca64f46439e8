// Music in four rooms, from three sources.
#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

// Sources, volumes and gains count from 1, as on the screen.
struct ZoneSettings {
  Zone zone;
  int source;
  int volume;
  int secondaryVolume;
  int gain;
  bool loudness;
};

constexpr ZoneSettings settings[] = {
    {livingMusic, discPlayer, 6, 4, 8, true},
    {kitchenMusic, radio, 5, 3, 8, false},
    {bathMusic, radio, 4, 3, 10, false},
    {bedroomMusic, discPlayer, 3, 2, 8, true},
};

void PutZone(Cells& cells, const ZoneSettings& each) {
  const int z = each.zone.number - 1;
  Put(cells, 133 + z, each.source - 1);
  Put(cells, 149 + z, each.loudness ? 1 : 0);
  Put(cells, 165 + z, each.gain - 1);
  Put(cells, 181 + z, each.volume - 1);
  Put(cells, 197 + z, each.secondaryVolume - 1);
}

}  // namespace

Memory AudioModule() {
  Memory memory(6);
  Cells& cells = memory.Cells(TableName::AudioImage);
  PutAddressAndVersion(memory, audio, 15);
  PutButtons(cells, 2,
             {
                 {1, ToggleMusic(livingMusic), NextSource(livingMusic)},
                 {2, Louder(livingMusic), SetVolume(livingMusic, 6)},
                 {3, Softer(livingMusic), SetVolume(livingMusic, 2)},
                 {4, SetSource(livingMusic, television), SetBalance(livingMusic, 8)},
                 {5, ToggleMusic(bathMusic), NextSource(bathMusic)},
                 {6, ToggleMusic(bedroomMusic), SetVolume(bedroomMusic, 2)},
                 {7, ToggleSecondary(livingMusic), SetSecondaryVolume(livingMusic, 4)},
             });
  Put(cells, 129, 0);  // no surround sound
  Put(cells, 130, sourcesInUse - 1);
  Put(cells, 131, zonesInUse - 1);
  PutRange(cells, 133, 212, emptyCell);  // zones that nobody has set
  for (const ZoneSettings& each : settings) {
    PutZone(cells, each);
  }
  return memory;
}

}  // namespace demo_house
