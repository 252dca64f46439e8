// The live tests of the program, and what a person does to it by standard input.
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

#include "virtual_module/conversation.h"
#include "virtual_module/program.h"

namespace virtual_module {
namespace {

class LiveProgramTest : public ProgramTest {
 protected:
  // A memory file of this version with this many detectors in use.
  std::string AlarmImage(int version, int inUse) const {
    Memory memory = MemoryOfVersion(5, version);
    memory.Cells("AlarmImage")[123] = inUse;
    SaveImage(memory, Path("alarm.BK1"));
    return Path("alarm.BK1");
  }
};

std::string StartTest(const Port& port, std::string_view command) {
  port.Wake();
  port.Write(std::string(command) + "\r");
  return port.Until("\r");
}

void Stop(const Port& port) {
  for (int i = 0; i < 50; ++i) {
    port.Write(stopFrame);
  }
}

// Lines that were sent before may still be waiting.
bool WaitForLine(const Port& port, std::string_view ending) {
  constexpr int enough = 200;
  for (int i = 0; i < enough; ++i) {
    if (port.Until("\r").ends_with(ending)) {
      return true;
    }
  }
  return false;
}

TEST_F(LiveProgramTest, APersonPressesAButtonByALineOfStandardInput) {
  Program program({"--kind", "0", "--link", Path("com1")});
  program.Line();
  const Port port(Path("com1"));
  EXPECT_EQ(StartTest(port, "T80200"), "M80000\r");
  program.Type("button 3\n");
  EXPECT_EQ(port.Until("\r").substr(1), "02\r");
  EXPECT_EQ(program.Line(), "button 3 pressed\n");
  program.Type("button 1\nbut");
  EXPECT_EQ(port.Until("\r").substr(1), "00\r");
  program.Type("ton  100 \n");
  EXPECT_EQ(port.Until("\r").substr(1), "99\r");
  Stop(port);
  EXPECT_EQ(port.Until("M"), "M");
  EXPECT_EQ(port.Wake(), "DISPL0\r");
}

TEST_F(LiveProgramTest, APersonPressesAButtonOnATerminal) {
  const int person = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_GE(person, 0);
  ASSERT_EQ(grantpt(person), 0);
  ASSERT_EQ(unlockpt(person), 0);
  std::array<char, 128> name{};
  ASSERT_EQ(ptsname_r(person, name.data(), name.size()), 0);
  const int terminal = open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_GE(terminal, 0);
  {
    Program program({"--kind", "4", "--link", Path("com1")}, terminal);
    program.Line();
    const Port port(Path("com1"));
    EXPECT_EQ(StartTest(port, "T80200"), "M80000\r");
    ASSERT_EQ(write(person, "button 20\n", 10), 10);
    EXPECT_EQ(port.Until("\r").substr(1), "19\r");
    EXPECT_EQ(program.Line(), "button 20 pressed\n");
    ASSERT_EQ(write(person, "\x04", 1), 1);  // the end of input of a terminal
    Stop(port);
    EXPECT_EQ(port.Wake(), "DISPL4\r");
  }
  close(terminal);
  close(person);
}

TEST_F(LiveProgramTest, APersonOpensAndClosesAContactByALineOfStandardInput) {
  Program program({"--kind", "5", "--link", Path("com1"), "--image", AlarmImage(64, 2)});
  program.Line();
  const Port port(Path("com1"));
  program.Type("detector 2 open\n");
  EXPECT_EQ(program.Line(), "detector 2 open\n");
  EXPECT_EQ(StartTest(port, "T80300"), "M80000\r");
  EXPECT_EQ(port.Until("\r").substr(1), "000\r");
  EXPECT_EQ(port.Until("\r").substr(1), "011\r");
  program.Type("detector 2 closed\n");
  EXPECT_EQ(program.Line(), "detector 2 closed\n");
  EXPECT_TRUE(WaitForLine(port, "010\r"));
}

TEST_F(LiveProgramTest, LinesThatCannotBeObeyedAreToldAndChangeNothing) {
  Program program({"--kind", "0", "--link", Path("com1")});
  program.Line();
  const std::string known = "button N, detector N open, detector N closed";
  const std::pair<std::string, std::string> wrongs[] = {
      {"button 3", "the buttons are not being tested"},
      {"button 0", "\"0\" is not in 1..100"},
      {"button 101", "\"101\" is not in 1..100"},
      {"button -1", "\"-1\" is not in 1..100"},
      {"button 99999999999", "\"99999999999\" is not in 1..100"},
      {"button", "\"button\" is none of: " + known},
      {"detector 2 open", "a module of kind 0 has no detectors"},
      {"detector 13 open", "\"13\" is not in 1..12"},
      {"detector 2 ajar", "\"detector 2 ajar\" is none of: " + known},
      {"help", "\"help\" is none of: " + known},
  };
  for (const auto& [line, error] : wrongs) {
    program.Type("\n  \n" + line + "\n");
    EXPECT_EQ(program.ErrorLine(), "virtual_module: " + error + "\n");
  }
  program.Type(std::string(100000 / 2, 'x') + "\n");
  EXPECT_EQ(program.ErrorLine(),
            "virtual_module: \"" + std::string(200, 'x') + "\" is none of: " + known + "\n");
  const Port port(Path("com1"));
  EXPECT_EQ(port.Wake(), "DISPL0\r");
  program.Signal(SIGTERM);
  EXPECT_EQ(program.End().output, "");
}

TEST_F(LiveProgramTest, TheEndOfStandardInputIsNotTheEndOfTheProgram) {
  Program program({"--kind", "1", "--link", Path("com1")});
  program.Line();
  program.Type("button 5");  // without a line end
  program.EndInput();
  EXPECT_EQ(program.ErrorLine(), "virtual_module: the buttons are not being tested\n");
  const Port port(Path("com1"));
  EXPECT_EQ(port.Wake(), "DISPL1\r");
  program.Signal(SIGTERM);
  EXPECT_EQ(program.End().status, 0);
}

TEST_F(LiveProgramTest, ButtonsPressThemselvesWhenTold) {
  Program program({"--kind", "11", "--link", Path("com1"), "--press", "20"});
  program.Line();
  const Port port(Path("com1"));
  StartTest(port, "T80200");
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(port.Until("\r").size(), 4U);
  }
}

TEST_F(LiveProgramTest, TheClockStartsWhereItIsToldAndIsSet) {
  Program program({"--kind", "9", "--link", Path("com1"), "--clock", "2031-12-09T17:05", "--log",
                   Path("line.txt")});
  program.Line();
  const Port port(Path("com1"));
  EXPECT_EQ(StartTest(port, "T80300"), "M80000\r");
  EXPECT_EQ(port.Until("\r").substr(1), "1705\r");
  EXPECT_EQ(port.Until("\r").substr(1), "091231-3\r");
  EXPECT_EQ(port.Until("\r"), "STOP\r");
  port.Write("T09304\n\rT250226\n\r");
  EXPECT_TRUE(WaitForText(Path("line.txt"), " = date set to 2026-02-25\n"));
  StartTest(port, "T80300");
  EXPECT_EQ(port.Until("\r").substr(1), "0930\r");
  EXPECT_EQ(port.Until("\r").substr(1), "250226-4\r");
}

TEST_F(LiveProgramTest, TheLogNamesTheOutputsThatTheToolSwitches) {
  Program program({"--kind", "0", "--link", Path("com1"), "--log", Path("line.txt")});
  program.Line();
  const Port port(Path("com1"));
  StartTest(port, "T80300");
  port.Write("T00\n\rT11\n\rT00\n\r");
  EXPECT_TRUE(WaitForText(Path("line.txt"), " tool T00\\n\\r = output 1 off\n"));
  const std::string log = TextOf("line.txt");
  EXPECT_NE(log.find(" tool T00\\n\\r = output 1 on\n"), std::string::npos);
  EXPECT_NE(log.find(" tool T11\\n\\r = output 12 on\n"), std::string::npos);
  for (int i = 0; i < 20; ++i) {
    port.Write("T99\n\r");
  }
  EXPECT_EQ(port.Until("M"), "M");
}

TEST_F(LiveProgramTest, AnUpdateOfReferencesIsShownByTheNextLines) {
  Program program({"--kind", "5", "--link", Path("com1"), "--image", AlarmImage(65, 1)});
  program.Line();
  const Port port(Path("com1"));
  EXPECT_EQ(StartTest(port, "T80400"), "M80000\r");
  for (int i = 0; i < 50; ++i) {
    port.Write("T88888\n\r");
  }
  port.Write("A0012321\n\r");
  EXPECT_TRUE(WaitForLine(port, "12321\r"));
}

TEST_F(LiveProgramTest, WrongArgumentsOfTheTestsAreTold) {
  const std::pair<std::vector<std::string>, std::string> wrongs[] = {
      {{"--press", "9"}, "--press: 9 is not in 10..86400000"},
      {{"--press", "86400001"}, "--press: 86400001 is not in 10..86400000"},
      {{"--press", "often"}, "--press: \"often\" is not a number"},
      {{"--clock", "today"}, "--clock: \"today\" is not of the form 2026-03-02T08:30"},
      {{"--clock", "2026-03-02 08:30"},
       "--clock: \"2026-03-02 08:30\" is not of the form 2026-03-02T08:30"},
      {{"--clock", "2026-02-29T08:30"}, "a start of the clock that is no moment of 2000 to 2099"},
  };
  for (const auto& [words, error] : wrongs) {
    std::vector<std::string> all = {"--kind", "9", "--link", Path("p")};
    all.insert(all.end(), words.begin(), words.end());
    const Outcome outcome = Program(all).End();
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "virtual_module: " + error + "\n");
  }
}

TEST_F(LiveProgramTest, HelpListsTheLinesOfStandardInput) {
  const Outcome outcome = Program({"--help"}).End();
  EXPECT_EQ(outcome.status, 0);
  for (const char* text :
       {"--press MS", "--clock TIME", "button N ", "detector N open ", "detector N closed "}) {
    EXPECT_NE(outcome.output.find(text), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace virtual_module
