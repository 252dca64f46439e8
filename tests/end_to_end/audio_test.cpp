// The screen of the audio interface: zones with what they start with, and surround, which takes
// three of them. Changed, sent, and kept in a file.
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/special_captions.h"
#include "end_to_end/special_stage.h"

namespace end_to_end {
namespace {

constexpr int audioKind = 6;
constexpr const char* demoFile = "Audio H.BK1";

const Writing allBlocks = {.command = "T70000",
                           .runs = {{0, 122, 3}, {124, 180, 3}, {181, 196, 3}, {197, 212, 3}},
                           .tick = std::chrono::milliseconds(20),
                           .pause = std::chrono::seconds(1)};

// What the screen shows of a zone.
struct Zone {
  const char* source;
  const char* mainVolume;
  const char* gain;
  const char* secondaryVolume;
  bool loudness;
};

class Audio : public SpecialStage {
 protected:
  explicit Audio(const AudioCaptions& texts) : texts_(texts) {}
  const AudioCaptions& texts() const { return texts_; }

  ListPlace Zones() const { return {texts_.zones, texts_.general}; }
  ListPlace Sources() const { return {texts_.sources, texts_.general}; }
  ListPlace Chooser() const { return {"Zone", texts_.settings}; }
  ListPlace Source() const { return {texts_.source, texts_.main}; }
  ListPlace MainVolume() const { return {texts_.volume, texts_.main}; }
  ListPlace Gain() const { return {"Gain", texts_.main}; }
  ListPlace SecondaryVolume() const { return {texts_.volume, texts_.secondary}; }

  void PickZone(int zone) { PickItem(Chooser(), zone - 1, std::to_string(zone)); }
  void ExpectZone(const Zone& zone) {
    AwaitListText(Source(), zone.source);
    AwaitListText(MainVolume(), zone.mainVolume);
    AwaitListText(Gain(), zone.gain);
    AwaitListText(SecondaryVolume(), zone.secondaryVolume);
    AwaitChecked("check box", "Loudness", zone.loudness);
  }
  void ExpectEnabled(const ListPlace& place, bool enabled) {
    EXPECT_TRUE(WaitFor([&] {
      const std::optional<Widget> list = desktop().FindList(place);
      return list && list->enabled == enabled;
    })) << place.label;
  }
  // Of the source and the volumes, not of the gain.
  void ExpectFree(bool source, bool others) {
    ExpectEnabled(Source(), source);
    ExpectEnabled(MainVolume(), others);
    ExpectEnabled(SecondaryVolume(), others);
    EXPECT_EQ(IsEnabled("check box", "Loudness"), others);
  }

 private:
  const AudioCaptions& texts_;
};

class AudioInDutch : public Audio {
 protected:
  AudioInDutch() : Audio(dutchAudio) {}

  void OpenAudio() { OpenScreen("Audio instellingen", texts().title); }
  // The second zone is heard beside the first.
  void ExpectFollower(int zone, const Zone& shown) {
    PickZone(zone);
    AwaitText("Used for surround");
    AwaitGone("check box", "Surround");
    ExpectZone(shown);
    ExpectFree(false, false);
    ExpectEnabled(Gain(), true);
  }
  void SetSurround() {
    ExpectEnabled(Source(), false);
    PickZone(1);
    ExpectZone({"2", "6", "8", "4", true});
    ExpectFree(true, true);
    ClickOn("check box", "Surround");
    AwaitListText(Source(), "1");
    ExpectFree(false, true);
    ExpectFollower(2, {"2", "6", "8", "3", false});
    PickItem(Gain(), 10, "11");
    PickZone(1);
    PickItem(MainVolume(), 8, "9");
    ClickOn("check box", "Loudness");
    ExpectFollower(3, {"2", "9", "10", "3", false});
    PickZone(4);
    AwaitGone("label", "Used for surround");
    ExpectZone({"2", "3", "8", "2", true});
    ExpectFree(true, true);
    PickItem(SecondaryVolume(), 11, "12");
  }
  void AddZonesAndASource() {
    PickItem(Sources(), 3, "4");
    PickItem(Zones(), 5, "6");
    AwaitListText(Chooser(), "");
    ExpectZone({"", "", "", "", false});
    ExpectFree(false, false);
    PickZone(6);
    PickItem(Source(), 3, "4");
    PickItem(Gain(), 0, "1");
    ClickOn("check box", "Loudness");
    ExpectZone({"4", "", "1", "", true});
  }
  void PutSetCells() {
    PutCells(6, {'A', 4, 1});     // button 3
    PutCells(129, {1, 3, 5});     // surround, four sources, six zones
    PutCells(133, {0, 1, 1, 1});  // sources of zones 1 to 4
    PutCells(138, {3});           // and of zone 6
    PutCells(149, {0, 0, 0, 1});  // loudness
    PutCells(154, {1});
    PutCells(165, {7, 10, 9, 7});  // gains
    PutCells(170, {0});
    PutCells(181, {8, 8, 8, 2});  // volumes
    PutCells(200, {11});
  }
};

TEST_F(AudioInDutch, SurroundTakesThreeZonesInTheModuleAndInTheFile) {
  ConnectTo(audioKind, demoFile, dutch);
  EXPECT_TRUE(IsEnabled("push button", captions().diagnostics));
  OpenAudio();
  AwaitListText(Zones(), "4");
  AwaitListText(Sources(), "3");
  SetSurround();
  AddZonesAndASource();
  LeaveByButton(texts().title);
  SetButtonByMouse(texts().title, 3);
  PutSetCells();
  SendAndExpectWritten({allBlocks});
  // By place among the frames: of each block the first and the last that was changed.
  ExpectFrames("T70000", {{6, "T006065"},
                          {8, "T008001"},
                          {128, "T005001"},
                          {169, "T046000"},
                          {180, "T000008"},
                          {182, "T002008"},
                          {199, "T003011"}});
  const std::filesystem::path file = SaveAs("Muziek");
  ExpectLines(file);
  CloseTool();

  StartTool();
  OpenFile("Muziek.BK1");
  OpenAudio();
  AwaitListText(Zones(), "6");
  AwaitListText(Sources(), "4");
  PickZone(1);
  AwaitChecked("check box", "Surround");
  ExpectZone({"1", "9", "8", "4", false});
  ExpectFree(false, true);
  ExpectFollower(2, {"2", "9", "11", "3", false});
  PickZone(6);
  ExpectZone({"4", "", "1", "", true});
  LeaveByButton(texts().title, TitleOf(file));
  ExpectButton(texts().title, 3, "A0501", TitleOf(file));
  CloseTool();
}

class AudioInFrench : public Audio {
 protected:
  AudioInFrench() : Audio(frenchAudio) {}

  // An interface that nobody has set yet.
  static std::map<int, int> NeverSet() {
    std::map<int, int> cells = {{129, 0}};
    for (int cell = 130; cell <= 212; ++cell) cells[cell] = 42;
    return cells;
  }
  void SetTwoZones() {
    StepInList(Zones(), 1, "2");
    StepInList(Sources(), 2, "3");
    StepInList(Chooser(), 1, "2");
    ExpectZone({"", "", "", "", false});
    StepInList(Gain(), 6, "7");
    StepInList(Chooser(), 0, "1");
    StepInList(Source(), 1, "2");
    StepInList(MainVolume(), 4, "5");
    StepInList(SecondaryVolume(), 15, "16");
    PressOn("check box", "Loudness");
    ExpectZone({"2", "5", "", "16", true});
  }
  // What surround has set stays when it is taken back.
  void TurnSurroundOnAndOff() {
    PressOn("check box", "Surround");
    AwaitListText(Source(), "1");
    ExpectFree(false, true);
    desktop().Press({"space"});
    AwaitChecked("check box", "Surround", false);
    ExpectFree(true, true);
    StepInList(Chooser(), 1, "2");
    AwaitGone("check box", "Surround");
    EXPECT_FALSE(desktop().Find("label", "Used for surround"));
    ExpectZone({"2", "5", "7", "", false});
    ExpectFree(true, true);
  }
  void PutSetCells() {
    PutCells(21, {'S', 6, 2});     // button 8
    PutCells(129, {0, 2, 1, 42});  // no surround, three sources, two zones
    PutCells(133, {0, 1, 1});      // sources
    PutCells(149, {1});            // loudness
    PutCells(166, {6});            // gain of zone 2
    PutCells(181, {4, 4, 4});      // volumes
    PutCells(197, {15});
  }
};

TEST_F(AudioInFrench, InterfaceThatWasNeverSetIsSetByKeyboardKeptAndSentFromTheFile) {
  ConnectTo(audioKind, demoFile, french, NeverSet());
  PressButton("Instellen audio");
  AwaitWindow(texts().title);
  AwaitListText(Zones(), "#");
  AwaitListText(Sources(), "#");
  ExpectFree(false, false);
  SetTwoZones();
  TurnSurroundOnAndOff();
  LeaveScreen(texts().title);
  AwaitWindow(programName);
  SetButtonByKeyboard(texts().title, 8);
  PutSetCells();
  const std::filesystem::path file = SaveAs("Musique");
  ExpectLines(file, {{23, "02"}});

  ClickOnEntry(captions().fileMenu, captions().newEntry);
  AwaitWindow(programName);
  OpenFile("Musique.BK1");
  OpenScreen("Instelling audio", texts().title);
  AwaitListText(Zones(), "2");
  AwaitListText(Sources(), "3");
  PickZone(1);
  AwaitChecked("check box", "Surround", false);
  ExpectZone({"1", "5", "", "16", true});
  PickZone(2);
  ExpectZone({"2", "5", "7", "", false});
  LeaveByButton(texts().title, TitleOf(file));
  ExpectButton(texts().title, 8, "S0702", TitleOf(file));
  SendAndExpectWritten({allBlocks});
  ExpectFrames("T70000", {{23, "T023002"}, {129, "T006002"}, {180, "T000004"}, {196, "T000015"}});
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
