#include "output/output_screen.h"

#include <gtest/gtest.h>

#include "support/session_test.h"

namespace bkconf {
namespace {

std::vector<std::string> Numbers(int first, int last) {
  std::vector<std::string> items;
  for (int number = first; number <= last; ++number) items.push_back(std::to_string(number));
  return items;
}

/// What the outputs of a relay module, or a DC relay module, do by themselves.
class OutputFunctionsTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  void Open(int language = 1) {
    StartWithImage(GetParam(), language);
    OpenAgain();
    MainWindow.send.enabled = false;
  }
  static void OpenAgain() { ShownAction(Action::OutputFunctions).Click(); }

  static void PutOutput(int output, const Cell& function, const Cell& time, const Cell& linked) {
    ButtonImage[122 + output] = function;
    ButtonImage[134 + output] = time;
    ButtonImage[146 + output] = linked;
  }
  static void ExpectRow(int output, const std::string& function, const std::string& time) {
    EXPECT_EQ(OutputScreen.functions.At(output, 0), std::to_string(output));
    EXPECT_EQ(OutputScreen.functions.At(output, 1), function) << output;
    EXPECT_EQ(OutputScreen.functions.At(output, 2), time) << output;
  }
  static void Choose(int output, int function) {
    OutputScreen.output.Pick(output - 1);
    OutputScreen.function.Pick(function);
  }
  /// Confirms, and expects that no cell changes and that there is nothing to send.
  static void ExpectRefused() {
    const Snapshot before = TakeSnapshot();
    OutputScreen.confirm.Click();
    ExpectOnlyChanged(before, {});
    EXPECT_FALSE(MainWindow.send.enabled);
  }
};

TEST_P(OutputFunctionsTest, CaptionsAreDutchOrFrench) {
  struct Row {
    const Field* field;
    std::string dutch;
    std::string french;
  };
  const std::vector<Row> rows = {
      {&OutputScreen.functionsGroup, "Functie van de uitgangen:", "Fonction des sorties:"},
      {&OutputScreen.editGroup,
       "Functie van uitgang wijzigen:", "Editer la fonction de la sortie:"},
      {&OutputScreen.outputLabel, "Uitgang:", "Sortie:"},
      {&OutputScreen.functionLabel, "Functie:", "Fonction:"},
      {&OutputScreen.linkedLabel, "Uitgang:", "Sortie:"},
      {&OutputScreen.timeLabel, "Tijd:", "Temps:"},
      {&OutputScreen.confirm, "Bevestigen", "Confirmer"},
      {&OutputScreen.leave, "Verlaten", "Quitter"},
  };
  Open(1);
  for (const Row& row : rows) EXPECT_EQ(row.field->caption, row.dutch);
  EXPECT_EQ(OutputScreen.functions.columns[0].caption, "Uitgang nr:");
  EXPECT_EQ(OutputScreen.functions.columns[1].caption, "Functie");
  EXPECT_EQ(OutputScreen.functions.columns[2].caption, "Actieve tijd");
  Open(2);
  for (const Row& row : rows) EXPECT_EQ(row.field->caption, row.french);
  EXPECT_EQ(OutputScreen.functions.columns[0].caption, "Sortie nr:");
  EXPECT_EQ(OutputScreen.functions.columns[1].caption, "Fonction");
  EXPECT_EQ(OutputScreen.functions.columns[2].caption, "Temps actif");
}

TEST_P(OutputFunctionsTest, TheListsOfferOutputsFunctionsAndTimes) {
  Open(1);
  EXPECT_EQ(OutputScreen.output.items, Numbers(1, 12));
  EXPECT_EQ(OutputScreen.linked.items, Numbers(1, 12));
  EXPECT_EQ(OutputScreen.time.items, Numbers(1, 15));
  EXPECT_EQ(
      OutputScreen.function.items,
      (std::vector<std::string>{"AAN/UIT", "AAN/UIT + tijdsfunctie", "AAN + tijdsfunctie", "Puls",
                                "Actief bij doven van", "Vergrendeling met uitgang"}));
  Open(2);
  EXPECT_EQ(OutputScreen.function.items,
            (std::vector<std::string>{"ON/OFF", "ON/OFF + fonction temps", "ON + fonction temps",
                                      "Impulsion", "Actif si extinction de la sortie",
                                      "Protection de la sortie"}));
}

TEST_P(OutputFunctionsTest, OpensWithTheFunctionsAndEmptyFields) {
  Open();
  EXPECT_TRUE(OutputScreen.shown);
  EXPECT_TRUE(OutputScreen.functionsGroup.visible && OutputScreen.editGroup.visible);
  EXPECT_FALSE(OutputScreen.startGroup.visible || OutputScreen.startEditGroup.visible);
  EXPECT_EQ(OutputScreen.functions.Rows(), 12);
  EXPECT_EQ(OutputScreen.enter, &OutputScreen.confirm);
  Choose(3, 4);
  OutputScreen.time.Pick(3);
  OutputScreen.linked.Pick(3);
  OpenAgain();
  for (const ListField* list :
       {&OutputScreen.output, &OutputScreen.function, &OutputScreen.time, &OutputScreen.linked}) {
    EXPECT_EQ(list->Text(), "");
  }
  EXPECT_FALSE(OutputScreen.time.visible || OutputScreen.linked.visible);
}

TEST_P(OutputFunctionsTest, DrawsEveryFunctionOnOpening) {
  const auto put = [] {
    for (int function = 0; function <= 5; ++function) PutOutput(function + 1, function, 15, 12);
    PutOutput(12, 4, "7", "3");
  };
  StartWithImage(GetParam(), 1);
  put();
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  ExpectRow(1, "AAN/UIT", "");
  ExpectRow(2, "AAN/UIT+ tijdsfunctie", "15 min.");
  ExpectRow(3, "AAN + tijdsfunctie", "15 min.");
  ExpectRow(4, "Puls", "15 sec.");
  ExpectRow(5, "Actief bij doven van uitgang 12 voor ", "15 min.");
  ExpectRow(6, "Vergrendeling met uitgang 12 voor ", "15 min.");
  ExpectRow(12, "Actief bij doven van uitgang 3 voor ", "7 min.");
  ExpectOnlyChanged(before, {});
  StartWithImage(GetParam(), 2);
  put();
  OpenAgain();
  ExpectRow(1, "ON/OFF", "");
  ExpectRow(2, "ON/OFF + fonction temps", "15 min.");
  ExpectRow(3, "ON + fonction temps", "15 min.");
  ExpectRow(4, "Impulsion", "15 sec.");
  ExpectRow(5, "Actif si extinction de la sortie 12 pour ", "15 min.");
  ExpectRow(6, "Protection de la sortie 12 pour ", "15 min.");
}

TEST_P(OutputFunctionsTest, AnUnknownFunctionHasAnEmptyRowAndStays) {
  StartWithImage(GetParam());
  const std::vector<Cell> cells = {Cell(42), Cell(), Cell(6), Cell(-1), Cell(0.5), Cell(255)};
  for (std::size_t i = 0; i < cells.size(); ++i) PutOutput(static_cast<int>(i) + 1, cells[i], 5, 5);
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  for (std::size_t i = 0; i < cells.size(); ++i) ExpectRow(static_cast<int>(i) + 1, "", "");
  ExpectOnlyChanged(before, {});
}

TEST_P(OutputFunctionsTest, TheFirstDrawingHasNoBlankBeforeThePlusUntilAConfirm) {
  StartWithImage(GetParam());
  PutOutput(1, 1, 5, 5);
  OpenAgain();
  OutputScreen.confirm.Click();  // refused: it draws nothing
  ExpectRow(1, "AAN/UIT+ tijdsfunctie", "5 min.");
  Choose(7, 0);
  OutputScreen.confirm.Click();
  ExpectRow(1, "AAN/UIT + tijdsfunctie", "5 min.");
  OpenAgain();
  ExpectRow(1, "AAN/UIT+ tijdsfunctie", "5 min.");
}

TEST_P(OutputFunctionsTest, TheFieldsFollowTheFunction) {
  Open();
  EXPECT_EQ(OutputScreen.unit.caption, "");
  for (int function = 0; function <= 5; ++function) {
    Choose(1, function);
    EXPECT_EQ(OutputScreen.time.visible, function > 0) << function;
    EXPECT_EQ(OutputScreen.timeLabel.visible, function > 0);
    EXPECT_EQ(OutputScreen.linked.visible, function >= 4);
    EXPECT_EQ(OutputScreen.linkedLabel.visible, function >= 4);
    if (function > 0) {
      EXPECT_EQ(OutputScreen.unit.caption, function == 3 ? "Sec." : "Min.");
      EXPECT_TRUE(OutputScreen.unit.visible);
    } else {
      EXPECT_TRUE(OutputScreen.unit.caption.empty() || !OutputScreen.unit.visible);
    }
  }
}

TEST_P(OutputFunctionsTest, OnOffStoresTheFunctionAlone) {
  Open();
  PutOutput(7, 1, 5, 3);
  const Snapshot before = TakeSnapshot();
  Choose(7, 0);
  OutputScreen.confirm.Click();
  EXPECT_EQ(ButtonImage[129], Cell(0));
  ExpectRow(7, "AAN/UIT", "");
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {"ButtonImage[129]"});
}

TEST_P(OutputFunctionsTest, AFunctionWithATimeStoresItAsText) {
  for (const int function : {1, 2, 3}) {
    Open();
    const Snapshot before = TakeSnapshot();
    Choose(1, function);
    OutputScreen.time.Pick(14);
    OutputScreen.confirm.Click();
    EXPECT_EQ(ButtonImage[123], Cell(function));
    EXPECT_EQ(ButtonImage[135], Cell("15"));
    EXPECT_EQ(OutputScreen.functions.At(1, 2), function == 3 ? "15 sec." : "15 min.");
    EXPECT_TRUE(MainWindow.send.enabled);
    ExpectOnlyChanged(before, {"ButtonImage[123]", "ButtonImage[135]"});
  }
}

TEST_P(OutputFunctionsTest, ALinkedFunctionStoresTheOtherOutputAsText) {
  for (const int function : {4, 5}) {
    Open();
    const Snapshot before = TakeSnapshot();
    Choose(12, function);
    OutputScreen.time.Pick(0);
    OutputScreen.linked.Pick(8);
    OutputScreen.confirm.Click();
    EXPECT_EQ(ButtonImage[134], Cell(function));
    EXPECT_EQ(ButtonImage[146], Cell("1"));
    EXPECT_EQ(ButtonImage[158], Cell("9"));
    ExpectRow(12,
              function == 4 ? "Actief bij doven van uitgang 9 voor "
                            : "Vergrendeling met uitgang 9 voor ",
              "1 min.");
    ExpectOnlyChanged(before, {"ButtonImage[134]", "ButtonImage[146]", "ButtonImage[158]"});
  }
}

TEST_P(OutputFunctionsTest, AChangeBackToOnOffKeepsTheOldTimeUnseen) {
  Open();
  Choose(2, 5);
  OutputScreen.time.Pick(4);
  OutputScreen.linked.Pick(6);
  OutputScreen.confirm.Click();
  Choose(2, 0);
  OutputScreen.confirm.Click();
  EXPECT_EQ(ButtonImage[136], Cell("5"));
  EXPECT_EQ(ButtonImage[148], Cell("7"));
  ExpectRow(2, "AAN/UIT", "");
}

TEST_P(OutputFunctionsTest, IncompleteFieldsStoreNothing) {
  Open();
  ExpectRefused();
  OutputScreen.output.Pick(0);
  ExpectRefused();
  for (int function = 0; function <= 5; ++function) {
    OpenAgain();
    OutputScreen.function.Pick(function);
    OutputScreen.time.Pick(0);
    OutputScreen.linked.Pick(0);
    ExpectRefused();  // no output
  }
  for (int function = 1; function <= 5; ++function) {
    OpenAgain();
    Choose(1, function);
    OutputScreen.linked.Pick(0);
    ExpectRefused();  // no time
  }
  for (const int function : {4, 5}) {
    OpenAgain();
    Choose(1, function);
    OutputScreen.time.Pick(0);
    ExpectRefused();  // no linked output
  }
}

TEST_P(OutputFunctionsTest, ConfirmWritesNothingWhileTheScreenOrItsAreaIsNotShown) {
  Open();
  Choose(1, 0);
  OutputScreen.leave.Click();
  ExpectRefused();
  OutputScreen.shown = true;
  OutputScreen.editGroup.visible = false;
  ExpectRefused();
  // The start values are another area, of other kinds.
  OutputScreen.editGroup.visible = true;
  OutputScreen.channel.Pick(0);
  OutputScreen.start.Pick(0);
  const Snapshot before = TakeSnapshot();
  OutputScreen.confirmStart.Click();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_P(OutputFunctionsTest, LeavingClosesTheScreen) {
  Open();
  const Snapshot before = TakeSnapshot();
  OutputScreen.leave.Click();
  EXPECT_FALSE(OutputScreen.shown);
  ExpectOnlyChanged(before, {});
}

INSTANTIATE_TEST_SUITE_P(Kinds, OutputFunctionsTest, testing::Values(0, 4),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

}  // namespace
}  // namespace bkconf
