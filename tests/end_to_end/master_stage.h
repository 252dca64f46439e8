// A master with the demo house at the tool's port, and its screens. The base of their tests.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/file_stage.h"
#include "end_to_end/master_captions.h"
#include "end_to_end/master_image.h"

namespace end_to_end {

class MasterStage : public virtual FileStage {
 protected:
  // Starts the demo house's master and the tool, both of which are up then.
  void StartWithDemoMaster(const Captions& language);
  // The texts of the language of LayOutDirectory.
  const MasterCaptions& texts() const;
  // The demo house.
  static MasterImage DemoMaster();

  // Waits for the screen of one of the three tables, which may have to be read before.
  void AwaitScreen() { AwaitWindow(texts().title); }
  void OpenScreen(const std::string& button) {
    ClickOn("push button", button);
    AwaitScreen();
  }
  void LeaveMasterScreen(std::string_view mainTitle = programName) {
    LeaveByButton(texts().title, mainTitle);
  }
  // Waits until the screen tells how much room is left in its table.
  void AwaitFree(int number);

  // A list of the frame in which an action or a programme is made up.
  ListPlace Editor(std::string_view label) const { return {label, texts().edit}; }
  // The letter in that frame, 'A' to 'R', and what it tells about its module.
  void PickLetter(char letter, const std::string& type);
  void StepToLetter(char letter, const std::string& type);
  void ConfirmEdit();

  // Rows as the screens show them.
  std::vector<std::string> TimeRows(const std::vector<TimeProgram>& programs,
                                    bool datesPadded) const;
  std::vector<std::string> LightRows(const std::vector<LightProgram>& programs,
                                     const std::array<const char*, 2>& directions) const;

  void OpenContext(int number, const std::vector<Action>& actions);
  // The first rows of a list, which are in sight of any window.
  void ExpectFirstRows(std::vector<std::string> rows);
  // The screen is made so high that the demo house and a few rows more are in sight.
  void EnlargeScreen();
  // Each opens a screen, adds something to its list by mouse, to the image as well, and leaves.
  void AddToContext(MasterImage& image, int number);
  void AddTimeProgram(MasterImage& image);
  void AddLightProgram(MasterImage& image);

  // The configuration page, in a window that is so high that the whole list is in sight.
  void OpenPage();
  void ScanModules();
  // The letters that no module has are offered; this one is to be the first of them.
  void AddModule(char letter, int typeIndex, std::string_view type);

  // The commands that the tool has put on the line so far, one for each conversation.
  std::vector<std::string> Commands() const;
  // Waits until the module holds `wanted` and the tool is ready for more. The conversations that
  // came behind those `before` are one for each of these tables, with all of its frames.
  void ExpectSentTables(const std::vector<std::string>& before,
                        const std::vector<MasterTable>& tables, const MasterImage& wanted);

 private:
  void PlaceWindow(std::string_view title, int x, int height);
  void ExpectFrames(const std::string& command, const std::vector<std::string>& wanted);
};

}  // namespace end_to_end
