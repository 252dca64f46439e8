// The manuals over the window, and what comes back when they are closed.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

struct InfoButton {
  const char* button;
  const char* title;
};

struct ManualCase {
  const Captions* captions;
  const char* file;
  const char* title;
  std::vector<InfoButton> dimmers;
};

void PrintTo(const ManualCase& each, std::ostream* out) {
  *out << each.captions->languageName;
}

const std::vector<ManualCase> manualCases = {
    {&dutch,
     "temnl.pdf",
     "Temperatuurmodule KR7150",
     {{"Info KR7310", "Dimmer KR7310 voor inductieve belastingen"},
      {"Info KR7320", "Dimmer KR7320 voor capacitieve belastingen"},
      {"KR7330/KR8330", "Dimmer KR7330/KR8330 voor 0-10\u00a0V"}}},
    {&french,
     "temfr.pdf",
     "Module température KR7150",
     {{"Info KR7310", "Dimmer KR7310 pour charges inductives"},
      {"Info KR7320", "Dimmer KR7320 pour charges capacitives"},
      {"KR7330/KR8330", "Dimmer KR7330/KR8330 pour 0-10\u00a0V"}}},
};

constexpr int bytesOfPixel = 3;

class Manuals : public Stage, public ::testing::WithParamInterface<ManualCase> {
 protected:
  void SetUp() override { LayOutDirectory(*GetParam().captions); }

  // The fourth and the sixth of the models.
  void PickTemperature() {
    PickInList("Module:", {"Home", "Down", "Down", "Down", "Return"}, "KR7150");
    Await("push button", captions().moreInfo);
  }
  void PickDimmer() {
    PickInList("Module:", {"Home", "Down", "Down", "Down", "Down", "Down", "Return"},
               "KR73XX/KR8330");
    Await("push button", GetParam().dimmers.front().button);
  }

  void ExpectManualAlone() {
    Await("push button", captions().closeManual);
    for (const Widget& widget : desktop().Widgets()) {
      EXPECT_NE(widget.role, "panel") << widget.name;
      EXPECT_NE(widget.role, "combo box") << widget.description;
      EXPECT_NE(widget.role, "label") << widget.name;
      EXPECT_TRUE(widget.role != "push button" || widget.name == captions().closeManual)
          << widget.name;
    }
  }
  void CloseManual() {
    ClickOn("push button", captions().closeManual);
    AwaitGone("push button", captions().closeManual);
  }

  // The manual without its frame and its scroll bar.
  Widget Pages(const std::string& name) {
    Widget pages = AwaitStill("filler", name);
    pages.x += 10;
    pages.y += 10;
    pages.width -= 40;
    pages.height -= 20;
    return pages;
  }
  static bool IsBlank(const std::string& pixels) {
    if (pixels.size() < bytesOfPixel) return false;
    const auto next = pixels.begin() + bytesOfPixel;
    return std::equal(next, pixels.end(), pixels.begin());
  }
};

TEST_P(Manuals, ManualCoversTheWindowOfAReadModuleAndGivesItBack) {
  StartModule(5, {"--image", DemoFile("Alarm G.BK1").string()});
  StartTool();
  ConnectAndRead();
  PickTemperature();
  const std::vector<std::string> before = Shown();
  ClickOn("push button", captions().moreInfo);
  ExpectManualAlone();
  const Widget pages = Pages(GetParam().title);
  EXPECT_TRUE(WaitFor([&] {
    const std::string pixels = desktop().PixelsOf(pages);
    return !pixels.empty() && !IsBlank(pixels);
  })) << "there is nothing on the pages";
  CloseManual();
  AwaitShown(before);
  CloseTool();
}

TEST_P(Manuals, DimmersHaveAButtonForEachOfTheirManuals) {
  StartTool();
  PickDimmer();
  EXPECT_FALSE(desktop().Find("push button", captions().moreInfo));
  const std::vector<std::string> before = Shown();
  for (const InfoButton& each : GetParam().dimmers) {
    ClickOn("push button", each.button);
    ExpectManualAlone();
    Await("filler", each.title);
    CloseManual();
    AwaitShown(before);
  }
  CloseTool();
}

TEST_P(Manuals, ManualThatIsMissingShowsNothingAndNoMessage) {
  fs::remove(directory() / GetParam().file);
  StartTool();
  PickTemperature();
  const std::vector<std::string> before = Shown();
  ClickOn("push button", captions().moreInfo);
  ExpectManualAlone();
  const Widget pages = Pages(GetParam().file);
  EXPECT_TRUE(WaitFor([&] { return IsBlank(desktop().PixelsOf(pages)); }));
  // No box has come over it.
  ExpectManualAlone();
  AwaitWindow("TREVAN BK-CONF");
  CloseManual();
  AwaitShown(before);
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(In, Manuals, ::testing::ValuesIn(manualCases),
                         [](const auto& each) { return each.param.captions->languageName; });

}  // namespace
}  // namespace end_to_end
