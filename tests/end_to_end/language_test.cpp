// The change of the language: the tool ends and a copy of it comes up in the other one.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "end_to_end/deadline.h"
#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

const std::string title = "TREVAN BK-CONF";

struct LanguageCase {
  const Captions* from;
  const Captions* to;
  const char* entry;
};

void PrintTo(const LanguageCase& each, std::ostream* out) {
  *out << each.from->languageName << " to " << each.to->languageName;
}

class LanguageOfTool : public Stage, public ::testing::WithParamInterface<LanguageCase> {
 protected:
  // The number of the settings, as the tool has stored it.
  std::string Stored() const { return ContentOf(directory() / "country.vdm"); }

  void TakeWindow() {
    EXPECT_TRUE(WaitFor([&] { return desktop().IsMinimised(title); }))
        << "the copy does not start minimised";
    EXPECT_TRUE(WaitFor([&] {
      desktop().BringToFront(title);
      return desktop().ActiveWindow() == title;
    })) << "the copy has no window";
    AwaitWindow(title);
  }
};

TEST_P(LanguageOfTool, ChosenLanguageIsThatOfACopyThatTakesOver) {
  const Captions& from = *GetParam().from;
  const Captions& to = *GetParam().to;
  LayOutDirectory(from);
  StartModule(0, {"--image", DemoFile("Relais A.BK1").string()});
  StartTool();
  ConnectAndRead();
  ClickOnEntry("Taal/langue", GetParam().entry);
  FollowTool();
  EXPECT_EQ(Stored(), " " + std::to_string(to.language) + " \r\n");
  TakeWindow();
  Await("push button", to.connect);
  EXPECT_TRUE(desktop().Find("menu item", to.fileMenu));
  EXPECT_TRUE(desktop().Find("panel", to.action));
  EXPECT_FALSE(desktop().Find("push button", from.connect));
  EXPECT_FALSE(desktop().Find("menu item", from.fileMenu));
  EXPECT_FALSE(desktop().Find("label", "Edit mode")) << "the copy starts without a module";

  // The port is free again.
  ClickOn("push button", to.connect);
  AwaitText("Edit mode");
  Await("push button", to.diagnostics, false);
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(From, LanguageOfTool,
                         ::testing::Values(LanguageCase{&dutch, &french, "Francais"},
                                           LanguageCase{&french, &dutch, "Nederlands"}),
                         [](const auto& each) {
                           return std::string(each.param.from->languageName) + "To" +
                                  each.param.to->languageName;
                         });

}  // namespace
}  // namespace end_to_end
