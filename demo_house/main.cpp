// The demo house: the images of a whole installation, for tests, figures and whoever tries the tool
// without a bus.
//
//   demo_house DIRECTORY    writes the eleven ".BK1" files into DIRECTORY, which must exist
//
// A detached house of two floors with a garden. Ground floor: hall, toilet, store, garage, office,
// living room with a dining table, kitchen. Upstairs: landing, bedroom, two rooms for children,
// bathroom. A terrace with an awning, a drive and a garden with a sprinkler.
//
//   Master         contexts, what the clock and the daylight start, push-buttons in the hall
//   A relays       lights of hall, toilet, store, garage, office, landing, children, bathroom; fan,
//                  television, pump of the heating
//   B motors       DC relays: shutters of living room, kitchen and bedroom, awning, lock of the
//                  front door, garage door, sprinkler, siren
//   C dimmers      spots, dining table, reading lamp; the bedroom
//   D Lumenza      kitchen, bathroom mirror and television wall dimmed; terrace, drive and garden;
//                  the bathroom's radiator, which the heating switches
//   E heating      six rooms, valves on the module itself but for the bathroom
//   F displays     living room and bedroom
//   G alarm        nine detectors: movement, doors, a window, smoke, wind
//   H audio        four rooms, three sources
//   I simulation   twelve lights that play people at home during holidays
//   J infrared     the remote control of the living room
//
// house.h names all that there is; a source file for each module says what it does. Files are as
// the tool would save a module right after reading it.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

struct File {
  std::string_view name;  // as the tool proposes it in Dutch
  Memory (*module)();
};

constexpr File files[] = {
    {"Relais A.BK1", RelayModule},         {"Relais_DC B.BK1", MotorModule},
    {"Dimmer C.BK1", DimmerModule},        {"Dimmer D.BK1", LumenzaModule},
    {"Temp E.BK1", TemperatureModule},     {"LCD F.BK1", DisplayModule},
    {"Alarm G.BK1", AlarmModule},          {"Audio H.BK1", AudioModule},
    {"Simulatie I.BK1", SimulationModule}, {"I.R. J.BK1", InfraredModule},
    {"Master.BK1", MasterModule},
};

void WriteHouse(const std::filesystem::path& directory) {
  for (const File& each : files) {
    const std::filesystem::path path = directory / each.name;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << FileText(each.module());
    file.close();
    if (!file) {
      throw std::runtime_error(path.string() + ": cannot be written");
    }
  }
}

}  // namespace
}  // namespace demo_house

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: demo_house DIRECTORY\n";
    return 2;
  }
  try {
    demo_house::WriteHouse(arguments[1]);
  } catch (const std::exception& error) {
    std::cerr << "demo_house: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
