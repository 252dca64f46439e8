// Picking a model in the selection list of the main window.
#include <gtest/gtest.h>

#include "support/session_test.h"

namespace bkconf {
namespace {

struct ModelRow {
  const char* model;
  const char* caption[2];
  const char* frame[2];
  const char* picture;
};

/// Written down apart from the catalogue.
constexpr ModelRow Rows[] = {
    {"KR7021/KR8021",
     {"Relaismodule", "Module relais"},
     {"Relaismodule:", "Module relais:"},
     "relais.bmp"},
    {"KR7023/KR8335",
     {"Relaismodule DC", "Module relais DC"},
     {"Relaismodule:", "Module relais:"},
     "relais DC.bmp"},
    {"KR7110",
     {"Mastermodule", "Module master"},
     {"Mastermodule:", "Module master:"},
     "master.bmp"},
    {"KR7150",
     {"Temperatuurmodule", "Module température"},
     {"Temperatuurmodule:", "Module température:"},
     "temp.bmp"},
    {"KR721X", {"LCD module", "Module LCD"}, {"LCD controller:", "Module LCD:"}, "lcd.bmp"},
    {"KR73XX/KR8330",
     {"Dimmodule", "Module dimmer"},
     {"Dimmodule:", "Module dimmer:"},
     "dimmer.bmp"},
    {"KR7160", {"Alarmmodule", "Module alarme"}, {"Alarmmodule:", "Module alarme:"}, "alarm.bmp"},
    {"KR7920",
     {"Audio interface", "Interface audio"},
     {"Audio interface:", "Interface audio:"},
     "audio.bmp"},
    {"KR7170",
     {"Simulatiemodule", "Module simulation"},
     {"Simulatiemodule:", "Module simulation:"},
     "simu.bmp"},
    {"KR7060",
     {"Interface Relais module", "Interface module Relais"},
     {"Interface Relais module:", "Interface module Relais:"},
     "modulair.bmp"},
    {"KR7061",
     {"Lumenza module", "Module Lumenza"},
     {"Lumenza module:", "Module Lumenza:"},
     "lumenza.bmp"},
    {"KR7180", {"I.R. module", "Module I.R."}, {"I.R. module:", "Module I.R.:"}, "ir.bmp"},
};
constexpr int ModelCount = static_cast<int>(std::size(Rows));

class ModelPickTest : public SessionTest, public testing::WithParamInterface<std::tuple<int, int>> {
 protected:
  ModelPickTest() { Start(language); }

  void Pick() { MainWindow.moduleList.Pick(std::get<0>(GetParam())); }

  const ModelRow& row = Rows[std::get<0>(GetParam())];
  const int language = std::get<1>(GetParam());
};

TEST_P(ModelPickTest, ShowsPictureCaptionAndFrame) {
  Pick();
  EXPECT_EQ(MainWindow.moduleList.Text(), row.model);
  EXPECT_TRUE(MainWindow.pictureGroup.visible);
  EXPECT_EQ(MainWindow.picture.file, row.picture);
  EXPECT_EQ(MainWindow.moduleCaption.caption, row.caption[language - 1]);
  EXPECT_EQ(MainWindow.pictureGroup.caption, row.frame[language - 1]);
}

TEST_P(ModelPickTest, ShowsTheInfoButtonsOfTheModel) {
  Pick();
  const bool threeManuals = std::string(row.model) == "KR73XX/KR8330";
  EXPECT_EQ(MainWindow.moreInfo.visible, !threeManuals);
  EXPECT_EQ(MainWindow.infoInductive.visible, threeManuals);
  EXPECT_EQ(MainWindow.infoCapacitive.visible, threeManuals);
  EXPECT_EQ(MainWindow.infoAnalogue.visible, threeManuals);
}

TEST_P(ModelPickTest, TouchesNoCellAndNoFlag) {
  const Snapshot before = TakeSnapshot();
  Pick();
  ExpectOnlyChanged(before, {});
}

TEST_P(ModelPickTest, LeavesTheModuleDataOfTheImageInMemory) {
  Plug(5);
  ReadModule();
  const Snapshot before = TakeSnapshot();
  const std::string address = MainWindow.alarm.address.Text();
  const std::vector<std::string> actions = VisibleActions();
  Pick();
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(MainWindow.alarm.frame.visible);
  EXPECT_EQ(MainWindow.alarm.address.Text(), address);
  EXPECT_EQ(VisibleActions(), actions);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

INSTANTIATE_TEST_SUITE_P(Models, ModelPickTest,
                         testing::Combine(testing::Range(0, ModelCount), testing::Values(1, 2)),
                         [](const auto& test) {
                           return "model" + std::to_string(std::get<0>(test.param)) +
                                  (std::get<1>(test.param) == 1 ? "dutch" : "french");
                         });

class ModelListTest : public SessionTest {
 protected:
  ModelListTest() { Start(); }
};

TEST_F(ModelListTest, TheThreeInfoButtonsOfTheDimmerGoAgainWithAnotherModel) {
  MainWindow.moduleList.Pick(5);
  MainWindow.moduleList.Pick(0);
  EXPECT_TRUE(MainWindow.moreInfo.visible);
  EXPECT_FALSE(MainWindow.infoInductive.visible);
  EXPECT_FALSE(MainWindow.infoCapacitive.visible);
  EXPECT_FALSE(MainWindow.infoAnalogue.visible);
}

TEST_F(ModelListTest, AModelThatIsPickedDoesNotDecideWhichModuleIsRead) {
  MainWindow.moduleList.Pick(0);
  Plug(8);
  ReadModule();
  EXPECT_EQ(ActiveCode(), 8);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7180");
  EXPECT_EQ(MainWindow.moduleCaption.caption, "I.R. module");
}

TEST_F(ModelListTest, TheListIsDisabledDuringATransfer) {
  Plug(0);
  MainWindow.connect.Click();
  EXPECT_FALSE(MainWindow.moduleList.enabled);
  MainWindow.moduleList.Pick(3);
  EXPECT_EQ(MainWindow.moduleList.Text(), "");
  FinishTransfer();
  EXPECT_TRUE(MainWindow.moduleList.enabled);
}

class ModelTypingTest : public SessionTest {};

TEST_F(ModelTypingTest, TypingInTheSelectionListPutsTheModelBack) {
  Start();
  MainWindow.moduleList.Pick(2);
  MainWindow.moduleList.Type("x");
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7110");
}

}  // namespace
}  // namespace bkconf
