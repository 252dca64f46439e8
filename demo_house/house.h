// What there is in the house, by the name that its people use: modules, outputs, rooms, detectors,
// zones, contexts. The description of every module refers to these names only.
#pragma once

namespace demo_house {

// The modules on the bus. The master, which knows them all, has no letter of its own.
inline constexpr int relays = 'A';
inline constexpr int motors = 'B';  // the relay module for direct current
inline constexpr int dimmers = 'C';
inline constexpr int lumenza = 'D';
inline constexpr int heating = 'E';
inline constexpr int display = 'F';
inline constexpr int alarm = 'G';
inline constexpr int audio = 'H';
inline constexpr int simulation = 'I';
inline constexpr int infrared = 'J';

// Something that an action or a menu line can name. `number` counts from 1, as on the module.
struct Target {
  int letter;
  int number;
};

struct Output : Target {
  constexpr Output(int module, int number_) : Target{module, number_} {}
};

struct Dimmed : Output {
  using Output::Output;
};

struct Room : Target {
  constexpr explicit Room(int number_) : Target{heating, number_} {}
};

struct Detector : Target {
  constexpr explicit Detector(int number_) : Target{alarm, number_} {}
};

struct Zone : Target {
  constexpr explicit Zone(int number_) : Target{audio, number_} {}
};

struct Context : Target {
  constexpr explicit Context(int number_) : Target{'S', number_} {}
};

// A motor turns one way or the other, each on an output of its own.
struct Motor {
  Output up;
  Output down;
};

// --- Ground floor -------------------------------------------------------------------------------
inline constexpr Output hallLight{relays, 1};
inline constexpr Output toiletLight{relays, 2};
inline constexpr Output storeLight{relays, 3};
inline constexpr Output garageLight{relays, 4};
inline constexpr Output officeLight{relays, 5};
inline constexpr Output tvSocket{relays, 11};
inline constexpr Dimmed livingSpots{dimmers, 1};
inline constexpr Dimmed diningTable{dimmers, 2};
inline constexpr Dimmed readingLamp{dimmers, 4};
inline constexpr Dimmed kitchenSpots{lumenza, 1};
inline constexpr Dimmed worktop{lumenza, 2};
inline constexpr Dimmed tvWall{lumenza, 4};
inline constexpr Motor livingShutter{{motors, 1}, {motors, 2}};
inline constexpr Motor kitchenShutter{{motors, 3}, {motors, 4}};
inline constexpr Output frontDoorLock{motors, 9};
inline constexpr Output garageDoor{motors, 10};

// --- Upstairs -----------------------------------------------------------------------------------
inline constexpr Output landingLight{relays, 6};
inline constexpr Output childLight1{relays, 7};
inline constexpr Output childLight2{relays, 8};
inline constexpr Output bathLight{relays, 9};
inline constexpr Output bathFan{relays, 10};
inline constexpr Dimmed bedroomLight{dimmers, 3};
inline constexpr Dimmed bathMirror{lumenza, 3};
inline constexpr Output towelRadiator{lumenza, 8};
inline constexpr Motor bedroomShutter{{motors, 5}, {motors, 6}};

// --- Outside and cellar -------------------------------------------------------------------------
inline constexpr Output terraceLight{lumenza, 5};
inline constexpr Output driveLight{lumenza, 6};
inline constexpr Output gardenLight{lumenza, 7};
inline constexpr Motor awning{{motors, 7}, {motors, 8}};  // up is in, down is out
inline constexpr Output sprinkler{motors, 11};
inline constexpr Output siren{motors, 12};
inline constexpr Output heatingPump{relays, 12};

// All that "everything off" means. The timed relays are in it, fan and pump look after themselves.
inline constexpr Output allLights[] = {
    hallLight,   toiletLight, storeLight,  garageLight,  officeLight,  landingLight, childLight1,
    childLight2, bathLight,   livingSpots, diningTable,  bedroomLight, readingLamp,  kitchenSpots,
    worktop,     bathMirror,  tvWall,      terraceLight, driveLight,   gardenLight,
};
inline constexpr Motor allShutters[] = {livingShutter, kitchenShutter, bedroomShutter};

// --- Rooms with a temperature of their own ------------------------------------------------------
inline constexpr Room livingRoom{1};
inline constexpr Room kitchen{2};
inline constexpr Room office{3};
inline constexpr Room bedroom{4};
inline constexpr Room childRooms{5};
inline constexpr Room bathroom{6};
inline constexpr int roomsInUse = 6;

// --- Detectors ----------------------------------------------------------------------------------
inline constexpr Detector hallMotion{1};
inline constexpr Detector driveMotion{2};
inline constexpr Detector frontDoorContact{3};
inline constexpr Detector garageDoorContact{4};
inline constexpr Detector kitchenWindow{5};
inline constexpr Detector smoke{6};
inline constexpr Detector gardenMotion{7};
inline constexpr Detector wind{8};
inline constexpr Detector livingMotion{9};
inline constexpr int detectorsInUse = 9;

// --- Music --------------------------------------------------------------------------------------
inline constexpr Zone livingMusic{1};
inline constexpr Zone kitchenMusic{2};
inline constexpr Zone bathMusic{3};
inline constexpr Zone bedroomMusic{4};
inline constexpr Zone allMusic[] = {livingMusic, kitchenMusic, bathMusic, bedroomMusic};
inline constexpr int zonesInUse = 4;
inline constexpr int radio = 1;
inline constexpr int discPlayer = 2;
inline constexpr int television = 3;
inline constexpr int sourcesInUse = 3;

// --- Contexts, by the number that the screens show ----------------------------------------------
inline constexpr Context everythingOff{1};
inline constexpr Context evening{2};
inline constexpr Context cinema{3};
inline constexpr Context dinner{4};
inline constexpr Context morning{5};
inline constexpr Context sleep{6};
inline constexpr Context away{10};
inline constexpr Context home{11};
inline constexpr Context holiday{12};
inline constexpr Context shuttersUp{20};
inline constexpr Context shuttersDown{21};
inline constexpr Context party{30};
inline constexpr Context panic{50};

}  // namespace demo_house
