// The modules of the demo house, one function each; the program writes what they give.
#pragma once

#include "virtual_module/memory.h"

namespace demo_house {

virtual_module::Memory RelayModule();
virtual_module::Memory MotorModule();
virtual_module::Memory DimmerModule();
virtual_module::Memory LumenzaModule();
virtual_module::Memory TemperatureModule();
virtual_module::Memory DisplayModule();
virtual_module::Memory AlarmModule();
virtual_module::Memory AudioModule();
virtual_module::Memory SimulationModule();
virtual_module::Memory InfraredModule();
virtual_module::Memory MasterModule();

// The other tables of the master, each 1000 cells.
void PutContexts(virtual_module::Memory& master);
void PutTimeProgrammes(virtual_module::Memory& master);
void PutLightProgrammes(virtual_module::Memory& master);

}  // namespace demo_house
