// Whatever the house refers to is in the house.
#include "demo_house/references.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo_house/house_files.h"

namespace demo_house_test {
namespace {

using testing::UnorderedElementsAre;

std::string FaultOfRecord(Place place, int target, int index, std::optional<int> value) {
  return FaultOf({place, "", target, index, value});
}

TEST(DemoHouseReferences, AreAllToSomethingThatExists) {
  for (const Reference& reference : AllReferences()) {
    EXPECT_EQ(FaultOf(reference), "") << testing::PrintToString(reference);
  }
}

TEST(DemoHouseReferences, StandInEveryPlace) {
  std::set<Place> places;
  for (const Reference& reference : AllReferences()) {
    places.insert(reference.place);
  }
  EXPECT_THAT(places, UnorderedElementsAre(Place::Button, Place::MasterButton, Place::Context,
                                           Place::TimeProgramme, Place::LightProgramme,
                                           Place::Detector, Place::RemoteKey, Place::Participant,
                                           Place::MenuLine, Place::Valve));
}

TEST(DemoHouseReferences, ReachEveryKindOfTarget) {
  std::set<int> letters;
  for (const Reference& reference : AllReferences()) {
    letters.insert(reference.target);
  }
  std::set<int> expected = {'S', 'Z'};
  for (const int kind : {0, 1, 2, 4, 5, 6, 7, 11}) {
    expected.insert(FileOfKind(kind).At(AddressCell(kind)));
  }
  EXPECT_EQ(letters, expected);
}

TEST(DemoHouseReferences, RunEveryContextFromSomewhere) {
  std::set<int> run;
  for (const Reference& reference : AllReferences()) {
    if (reference.target == 'S') {
      run.insert(reference.index);
    }
  }
  for (const PlacedContext& context : PlacedContexts()) {
    EXPECT_TRUE(run.contains(context.number)) << "context " << context.number + 1;
  }
}

// The check itself finds what it has to find; the letters are those of the files.
TEST(DemoHouseReferences, WouldBeFoundWrongOtherwise) {
  const int relay = FileOfKind(0).At(121);
  const int lumenza = FileOfKind(11).At(121);
  const int heating = FileOfKind(2).At(0);
  const int alarm = FileOfKind(5).At(121);
  const int audio = FileOfKind(6).At(121);
  EXPECT_EQ(FaultOfRecord(Place::Button, 'R', 0, 0), "no such module");
  EXPECT_EQ(FaultOfRecord(Place::Button, relay, 12, 0), "no such output");
  EXPECT_EQ(FaultOfRecord(Place::Button, relay, 0, 10), "no such action of an output");
  EXPECT_EQ(FaultOfRecord(Place::Button, lumenza, 3, 10), "");
  EXPECT_EQ(FaultOfRecord(Place::Button, lumenza, 4, 10), "no such action of an output");
  EXPECT_EQ(FaultOfRecord(Place::Button, heating, 6, 20), "no such room");
  EXPECT_EQ(FaultOfRecord(Place::Button, heating, 8, 41), "no such temperature");
  EXPECT_EQ(FaultOfRecord(Place::Button, alarm, 9, 0), "no such detector");
  EXPECT_EQ(FaultOfRecord(Place::Button, audio, 4, 0), "no such zone");
  EXPECT_EQ(FaultOfRecord(Place::Button, audio, 16, 3), "no such source");
  EXPECT_EQ(FaultOfRecord(Place::Button, 'S', 6, 2), "no such context");
  EXPECT_EQ(FaultOfRecord(Place::Context, 'S', 0, 2), "cannot call a context");
  EXPECT_EQ(FaultOfRecord(Place::LightProgramme, heating, 0, 20), "cannot name a module of kind 2");
}

}  // namespace
}  // namespace demo_house_test
