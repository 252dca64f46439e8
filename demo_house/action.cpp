#include "demo_house/action.h"

namespace demo_house {
namespace {

// A record whose number is that of the target, which the cells count from 0.
Action Tell(Target target, int value) {
  return {target.letter, target.number - 1, value};
}

constexpr int allRooms = 8;
constexpr int asProgrammed = 99;

// Settings of the music lie in blocks of sixteen zones; the zone tells its place in the block. In
// the secondary zone every value is 16 higher.
constexpr int sourceBlock = 16;
constexpr int volumeBlock = 32;
constexpr int trebleBlock = 48;
constexpr int bassBlock = 64;
constexpr int balanceBlock = 80;
constexpr int secondary = 16;

Action Set(Zone zone, int block, int value) {
  return {zone.letter, block + zone.number - 1, value - 1};
}

}  // namespace

Action Off(Output output) {
  return Tell(output, 0);
}

Action On(Output output) {
  return Tell(output, 1);
}

Action Toggle(Output output) {
  return Tell(output, 2);
}

Action Dim(Dimmed output, int percent) {
  return Tell(output, percent);
}

Action Heat(Room room, int degrees) {
  return Tell(room, degrees);
}

Action HeatAsProgrammed(Room room) {
  return Tell(room, asProgrammed);
}

Action HeatAllRooms(int degrees) {
  return {heating, allRooms, degrees};
}

Action HeatAllRoomsAsProgrammed() {
  return {heating, allRooms, asProgrammed};
}

Action Watch(Detector detector) {
  return Tell(detector, 1);
}

Action Ignore(Detector detector) {
  return Tell(detector, 0);
}

Action SilenceMusic(Zone zone) {
  return Tell(zone, 0);
}

Action PlayMusic(Zone zone) {
  return Tell(zone, 1);
}

Action ToggleMusic(Zone zone) {
  return Tell(zone, 2);
}

Action Louder(Zone zone) {
  return Tell(zone, 3);
}

Action Softer(Zone zone) {
  return Tell(zone, 4);
}

Action NextSource(Zone zone) {
  return Tell(zone, 5);
}

Action SetSource(Zone zone, int source) {
  return Set(zone, sourceBlock, source);
}

Action SetVolume(Zone zone, int volume) {
  return Set(zone, volumeBlock, volume);
}

Action SetTreble(Zone zone, int treble) {
  return Set(zone, trebleBlock, treble);
}

Action SetBass(Zone zone, int bass) {
  return Set(zone, bassBlock, bass);
}

Action SetBalance(Zone zone, int balance) {
  return Set(zone, balanceBlock, balance);
}

Action PlaySecondary(Zone zone) {
  return Tell(zone, secondary + 1);
}

Action ToggleSecondary(Zone zone) {
  return Tell(zone, secondary + 2);
}

Action SetSecondaryVolume(Zone zone, int volume) {
  return Set(zone, volumeBlock, secondary + volume);
}

Action Run(Context context) {
  return Tell(context, 2);
}

Action SimulatePresence(bool on) {
  return {simulation, 0, on ? 1 : 0};
}

Action Corvela(int code, int subcode) {
  return {'Z', code - 1, subcode - 1};
}

}  // namespace demo_house
