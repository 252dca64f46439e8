// The screen of the outputs, with what a relay module and a dimmer each have there.
#include <gtest/gtest.h>

#include <string>

#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

class Outputs : public Stage {
 protected:
  void StartWith(int kind, const Captions& language, const std::string& demoFile) {
    LayOutDirectory(language);
    StartModule(kind, {"--image", DemoFile(demoFile).string(), "--save", savedImage().string()});
    StartTool();
    ConnectAndRead();
  }
  void OpenScreen(const std::string& action, const std::string& title) {
    ClickOn("push button", action);
    AwaitWindow(title);
  }
};

TEST_F(Outputs, FunctionOfAnOutputOfARelayModuleIsChangedAndSent) {
  const std::string title = "Relaismodule KR7021 <adres = A>";
  const std::string edit = "Functie van uitgang wijzigen:";
  const ListPlace output = {"Uitgang:", edit};
  const ListPlace function = {"Functie:", edit};
  const ListPlace linked = {"Uitgang:", edit, 2};
  const ListPlace time = {"Tijd:", edit};
  StartWith(0, dutch, "Relais A.BK1");
  OpenScreen("Functie van de uitgangen", title);
  AwaitCell("2", "Functie", "AAN/UIT+ tijdsfunctie");
  AwaitCell("5", "Functie", "AAN/UIT");
  PickItem(output, 4, "5");
  EXPECT_FALSE(desktop().FindList(linked)) << "no function is chosen that needs it";
  EXPECT_FALSE(desktop().FindList(time));
  PickItem(function, 5, "Vergrendeling met uitgang");
  PickItem(linked, 7, "8");
  PickItem(time, 8, "9");
  ClickOn("push button", captions().confirm);
  AwaitCell("5", "Functie", "Vergrendeling met uitgang 8 voor ");
  AwaitCell("5", "Actieve tijd", "9 min.");
  AwaitCell("2", "Functie", "AAN/UIT + tijdsfunctie");
  LeaveByButton(title);
  SendAndExpect("Relais A.BK1", {{127, 5}, {139, 9}, {151, 8}});
  CloseTool();
}

TEST_F(Outputs, StartValueOfAChannelOfADimmerIsChangedAndSent) {
  const std::string title = "Module dim KR73XX <adresse = C>";
  const std::string edit = "Editer la valeur début:";
  StartWith(1, french, "Dimmer C.BK1");
  OpenScreen("Valeur début des sorties", title);
  AwaitRows({"1|50 %", "2|60 %", "3|20 %", "4|40 %"});
  PickItem({"Canal dim:", edit}, 2, "3");
  PickItem({"Valeur début:", edit}, 6, "70%");
  ClickOn("push button", captions().confirm);
  AwaitRows({"1|50 %", "2|60 %", "3|70 %", "4|40 %"});
  LeaveByButton(title);
  SendAndExpect("Dimmer C.BK1", {{125, 7}});
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
