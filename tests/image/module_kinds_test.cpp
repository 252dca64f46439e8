#include "image/module_kinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <vector>

namespace bkconf {
namespace {

struct KindRow {
  int code;
  const char* identity;
  const char* model;
  const char* caption[2];
  const char* frame[2];
  const char* picture;
  const Table* addressTable;
  int addressCell;
  const Table* versionTable;
  int versionCell;
  DataGroup group;
};

/// In the names and messages of the tests.
void PrintTo(const KindRow& row, std::ostream* out) {
  *out << row.identity;
}

/// Written down apart from the catalogue.
const std::vector<KindRow>& Rows() {
  static const std::vector<KindRow> rows = {
      {0,
       "DISPL0",
       "KR7021/KR8021",
       {"Relaismodule", "Module relais"},
       {"Relaismodule:", "Module relais:"},
       "relais.bmp",
       &ButtonImage,
       121,
       &ButtonImage,
       163,
       DataGroup::General},
      {4,
       "DISPL4",
       "KR7023/KR8335",
       {"Relaismodule DC", "Module relais DC"},
       {"Relaismodule:", "Module relais:"},
       "relais DC.bmp",
       &ButtonImage,
       121,
       &ButtonImage,
       163,
       DataGroup::General},
      {1,
       "DISPL1",
       "KR73XX/KR8330",
       {"Dimmodule", "Module dimmer"},
       {"Dimmodule:", "Module dimmer:"},
       "dimmer.bmp",
       &ButtonImage,
       121,
       &ButtonImage,
       163,
       DataGroup::General},
      {11,
       "DISPL11",
       "KR7061",
       {"Lumenza module", "Module Lumenza"},
       {"Lumenza module:", "Module Lumenza:"},
       "lumenza.bmp",
       &ButtonImage,
       121,
       &ButtonImage,
       163,
       DataGroup::General},
      {9,
       "DISPL9",
       "KR7110",
       {"Mastermodule", "Module master"},
       {"Mastermodule:", "Module master:"},
       "master.bmp",
       nullptr,
       0,
       &ButtonImage,
       163,
       DataGroup::General},
      {2,
       "DISPL2",
       "KR7150",
       {"Temperatuurmodule", "Module température"},
       {"Temperatuurmodule:", "Module température:"},
       "temp.bmp",
       &TempHeader,
       0,
       &TempHeader,
       3,
       DataGroup::DisplayTemperature},
      {3,
       "DISPL3",
       "KR721X",
       {"LCD module", "Module LCD"},
       {"LCD controller:", "Module LCD:"},
       "lcd.bmp",
       &LcdHeader,
       0,
       &LcdHeader,
       1,
       DataGroup::DisplayTemperature},
      {5,
       "DISPL5",
       "KR7160",
       {"Alarmmodule", "Module alarme"},
       {"Alarmmodule:", "Module alarme:"},
       "alarm.bmp",
       &AlarmImage,
       121,
       &AlarmImage,
       148,
       DataGroup::Alarm},
      {6,
       "DISPL6",
       "KR7920",
       {"Audio interface", "Interface audio"},
       {"Audio interface:", "Interface audio:"},
       "audio.bmp",
       &AudioImage,
       121,
       &AudioImage,
       123,
       DataGroup::Special},
      {7,
       "DISPL7",
       "KR7170",
       {"Simulatiemodule", "Module simulation"},
       {"Simulatiemodule:", "Module simulation:"},
       "simu.bmp",
       &SimulationImage,
       121,
       &SimulationImage,
       124,
       DataGroup::Special},
      {8,
       "DISPL8",
       "KR7180",
       {"I.R. module", "Module I.R."},
       {"I.R. module:", "Module I.R.:"},
       "ir.bmp",
       &IrImage,
       121,
       &IrImage,
       124,
       DataGroup::Special},
  };
  return rows;
}

class ModuleKindTest : public testing::TestWithParam<KindRow> {};

TEST_P(ModuleKindTest, HasItsIdentityModelAndGroup) {
  const ModuleKind* kind = FindKind(GetParam().code);
  ASSERT_NE(kind, nullptr);
  EXPECT_EQ(kind->code, GetParam().code);
  EXPECT_EQ(kind->identity, GetParam().identity);
  EXPECT_EQ(kind->model, GetParam().model);
  EXPECT_EQ(kind->group, GetParam().group);
}

TEST_P(ModuleKindTest, HasItsCaptionFrameAndPicture) {
  const Model* model = FindModel(FindKind(GetParam().code)->model);
  ASSERT_NE(model, nullptr);
  EXPECT_EQ(TextOf(model->caption).dutch, GetParam().caption[0]);
  EXPECT_EQ(TextOf(model->caption).french, GetParam().caption[1]);
  EXPECT_EQ(TextOf(model->groupCaption).dutch, GetParam().frame[0]);
  EXPECT_EQ(TextOf(model->groupCaption).french, GetParam().frame[1]);
  EXPECT_EQ(model->picture, GetParam().picture);
}

TEST_P(ModuleKindTest, HasItsAddressAndVersionCell) {
  const ModuleKind* kind = FindKind(GetParam().code);
  EXPECT_EQ(kind->address.table, GetParam().addressTable);
  EXPECT_EQ(kind->address.index, GetParam().addressCell);
  EXPECT_EQ(kind->version.table, GetParam().versionTable);
  EXPECT_EQ(kind->version.index, GetParam().versionCell);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ModuleKindTest, testing::ValuesIn(Rows()),
                         [](const auto& row) { return "kind" + std::to_string(row.param.code); });

TEST(ModuleKindsTest, HoldsEachKindOnce) {
  EXPECT_EQ(ModuleKinds.size(), Rows().size());
  for (const KindRow& row : Rows()) {
    EXPECT_EQ(std::count_if(ModuleKinds.begin(), ModuleKinds.end(),
                            [&row](const ModuleKind& each) { return each.code == row.code; }),
              1)
        << row.code;
  }
}

TEST(ModuleKindsTest, AnIdentityIsTriedBeforeAnyThatItBeginsWith) {
  for (auto first = ModuleKinds.begin(); first != ModuleKinds.end(); ++first) {
    for (auto later = first + 1; later != ModuleKinds.end(); ++later) {
      EXPECT_FALSE(later->identity.starts_with(first->identity)) << later->identity;
    }
  }
}

TEST(ModuleKindsTest, OtherCodesAreNoKind) {
  for (const int code : {-1, 10, 12, 16, 42, NoModule, 100}) {
    EXPECT_EQ(FindKind(code), nullptr) << code;
  }
}

TEST(ModuleKindsTest, TheCodeOfNoModuleIs99) {
  EXPECT_EQ(NoModule, 99);
}

TEST(ModelsTest, StandInTheOrderOfTheSelectionList) {
  std::vector<std::string_view> names;
  for (const Model& model : Models) names.push_back(model.name);
  EXPECT_EQ(names,
            (std::vector<std::string_view>{"KR7021/KR8021", "KR7023/KR8335", "KR7110", "KR7150",
                                           "KR721X", "KR73XX/KR8330", "KR7160", "KR7920", "KR7170",
                                           "KR7060", "KR7061", "KR7180"}));
}

TEST(ModelsTest, TheModelWithoutAKindHasACaptionOfItsOwn) {
  const Model* model = FindModel("KR7060");
  ASSERT_NE(model, nullptr);
  EXPECT_EQ(TextOf(model->caption).dutch, "Interface Relais module");
  EXPECT_EQ(TextOf(model->caption).french, "Interface module Relais");
  EXPECT_EQ(TextOf(model->groupCaption).dutch, "Interface Relais module:");
  EXPECT_EQ(TextOf(model->groupCaption).french, "Interface module Relais:");
  EXPECT_EQ(model->picture, "modulair.bmp");
  EXPECT_TRUE(std::none_of(ModuleKinds.begin(), ModuleKinds.end(),
                           [](const ModuleKind& kind) { return kind.model == "KR7060"; }));
}

TEST(ModelsTest, OtherNamesAreNoModel) {
  for (const char* name : {"", "KR7021", "kr7110", "KR7110 ", "KR9999"}) {
    EXPECT_EQ(FindModel(name), nullptr) << name;
  }
}

struct VersionRow {
  Cell version;
  const char* text;
};

TEST(VersionTextTest, IsTheFirstAndTheLastCharacterOfTheNumber) {
  const VersionRow rows[] = {
      {21, "2.1"},     {10, "1.0"}, {99, "9.9"},   {7, "7.7"},    {0, "0.0"},      {123, "1.3"},
      {Cell(), "0.0"}, {"", "0.0"}, {"21", "2.1"}, {"07", "7.7"}, {" 65 ", "6.5"}, {"*", "0.0"},
  };
  for (const VersionRow& row : rows) {
    EXPECT_EQ(VersionText(row.version), row.text) << "'" << row.version.Text() << "'";
  }
}

}  // namespace
}  // namespace bkconf
