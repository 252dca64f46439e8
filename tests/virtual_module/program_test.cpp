// The program on a real pseudo-terminal, driven as the tool drives it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "virtual_module/conversation.h"
#include "virtual_module/memory.h"
#include "virtual_module/program.h"

namespace virtual_module {
namespace {

namespace fs = std::filesystem;

TEST_F(ProgramTest, ItsMemoryIsReadAndWrittenOverAPort) {
  SaveImage(DefaultMemory(2, 5), Path("start.BK1"));
  Program program({"--kind", "2", "--link", Path("com1"), "--image", Path("start.BK1"), "--save",
                   Path("end.BK1"), "--log", Path("line.txt")});
  ASSERT_EQ(program.Line(), "ready " + Path("com1") + "\n");
  Memory wanted = LoadImage(Path("start.BK1"));
  const std::vector<int>& header = wanted.Cells("TempHeader");
  {
    const Port port(Path("com1"));
    ASSERT_TRUE(port.IsOpen());
    EXPECT_EQ(port.Wake(), "DISPL2\r");
    port.Write("T80000\r");
    EXPECT_EQ(port.Until("STOP\r"), "M80000\rM1000" + Digits(header[0], 3) + "\rC1001" +
                                        Digits(header[1], 3) + "\rM1002" + Digits(header[2], 3) +
                                        "\rC1003" + Digits(header[3], 3) + "\rSTOP\r");
    EXPECT_EQ(port.Wake(), "DISPL2\r");
    port.Write("T70000\r");
    EXPECT_EQ(port.Until("\r"), "M70000\r");
    port.Write("T000066\n\rT001003\n\rT002200\n\r");
    EXPECT_EQ(port.Until("M"), "M");  // it polls again: the write has been saved
  }
  wanted.Cells("TempHeader") = {66, 3, 200, header[3]};
  EXPECT_TRUE(LoadImage(Path("end.BK1")) == wanted);

  program.Signal(SIGTERM);
  EXPECT_EQ(program.End().status, 0);
  EXPECT_FALSE(fs::is_symlink(directory_ / "com1"));
  const std::string log = TextOf("line.txt");
  for (const char* text : {" module M x ", " tool DDDDDDDDDDDDDDDDDDDDDD\n", " module DISPL2\\r\n",
                           " tool T80000\\r\n", " module STOP\\r\n", " tool T000066\\n\\r\n"}) {
    EXPECT_NE(log.find(text), std::string::npos) << text;
  }
}

TEST_F(ProgramTest, TheWholeMemoryOfARelayModuleArrivesAtThePaceOfTheLine) {
  Program program({"--kind", "0", "--link", Path("com1"), "--seed", "9"});
  program.Line();
  const Port port(Path("com1"));
  port.Wake();
  const SteadyTime start = std::chrono::steady_clock::now();
  port.Write("T80000\r");
  const std::vector<std::string> lines = LinesOf(port.Until("STOP\r"));
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_GE(taken.count(), (7 + 164 * 9 + 5) / 960.0);
  const std::vector<int> cells = DefaultMemory(0, 9).Cells("ButtonImage");
  ASSERT_EQ(lines.size(), 166U);
  for (std::size_t cell = 0; cell < 164; ++cell) {
    EXPECT_EQ(lines[cell + 1].substr(2),
              Digits(static_cast<int>(cell), 3) + Digits(cells[cell], 3));
  }
}

TEST_F(ProgramTest, AToolThatReadsLateLosesNothingOfAnAnswer) {
  Program program({"--kind", "7", "--link", Path("com1"), "--log", Path("line.txt")});
  program.Line();
  const Port port(Path("com1"));
  port.Wake();
  port.Write("T80000\r");
  // The answer fills the buffers meanwhile.
  EXPECT_TRUE(WaitForText(directory_ / "line.txt", "STOP"));
  const std::string answer = port.Until("STOP\r");
  EXPECT_EQ(answer.size(), 7U + 185U * 9U + 5U);
  EXPECT_TRUE(answer.ends_with("\rSTOP\r"));
}

TEST_F(ProgramTest, TheNextToolOpensThePortThatOneHadForItself) {
  Program program({"--kind", "7", "--link", Path("com1")});
  program.Line();
  for (int turn = 0; turn < 3; ++turn) {
    const Port port(Path("com1"));
    ASSERT_TRUE(port.IsOpen());
    EXPECT_EQ(port.Wake(), "DISPL7\r");
    int exclusive = 1;
    port.Write("T85000\r");  // not for this kind: it polls, and has been round its loop
    EXPECT_EQ(port.Until("M"), "M");
    const int other = open(Path("com1").c_str(), O_RDWR | O_NOCTTY);
    EXPECT_EQ(ioctl(other, TIOCGEXCL, &exclusive), 0);
    EXPECT_EQ(exclusive, 0);
    close(other);
  }
}

TEST_F(ProgramTest, OldPollsDoNotPileUpWhileNobodyReads) {
  Program program({"--kind", "0", "--link", Path("com1")});
  program.Line();
  const Port port(Path("com1"));
  const int descriptor = open(Path("com1").c_str(), O_RDWR | O_NOCTTY);
  pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
  EXPECT_EQ(poll(&waiting, 1, 10000), 1);
  int unread = 0;
  EXPECT_EQ(ioctl(descriptor, FIONREAD, &unread), 0);
  EXPECT_GE(unread, 1);
  EXPECT_LE(unread, 64);
  close(descriptor);
  EXPECT_EQ(port.Wake(), "DISPL0\r");
}

TEST_F(ProgramTest, AVanishedPortIsGoneUntilTheSignalThatEndsTheProgram) {
  Program program({"--kind", "6", "--link", Path("com1"), "--fault", "vanish-in-read"});
  program.Line();
  const Port port(Path("com1"));
  EXPECT_EQ(port.Wake(), "DISPL6\r");
  port.Write("T80000\r");
  const std::string text = port.Until("STOP\r");
  EXPECT_TRUE(text.starts_with("M80000\r"));
  EXPECT_LE(text.size(), 7U + 106U * 9U);
  EXPECT_FALSE(fs::is_symlink(directory_ / "com1"));
  program.Signal(SIGINT);
  EXPECT_EQ(program.End().status, 0);
}

TEST_F(ProgramTest, ALinkIsReplacedAndAFileIsNot) {
  fs::create_symlink("/nowhere", directory_ / "com1");
  {
    Program program({"--kind", "0", "--link", Path("com1")});
    EXPECT_EQ(program.Line(), "ready " + Path("com1") + "\n");
    EXPECT_NE(fs::read_symlink(directory_ / "com1"), "/nowhere");
    program.Signal(SIGHUP);
    EXPECT_EQ(program.End().status, 0);
  }
  std::ofstream(directory_ / "file") << "precious";
  Program refused({"--kind", "0", "--link", Path("file")});
  const Outcome outcome = refused.End();
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.errors.find("is not a link"), std::string::npos);
  EXPECT_EQ(TextOf("file"), "precious");
}

TEST_F(ProgramTest, TwoModulesTakeTurnsAtALinkWithoutRemovingEachOthers) {
  Program first({"--kind", "0", "--link", Path("com1")});
  first.Line();
  Program second({"--kind", "1", "--link", Path("com1")});
  second.Line();
  first.Signal(SIGTERM);
  EXPECT_EQ(first.End().status, 0);
  const Port port(Path("com1"));
  EXPECT_EQ(port.Wake(), "DISPL1\r");
}

TEST_F(ProgramTest, WrongArgumentsAreToldAndEndWithTwo) {
  SaveImage(Memory(1), Path("dimmer.BK1"));
  const std::pair<std::vector<std::string>, std::string> wrongs[] = {
      {{}, "--kind is missing"},
      {{"--kind", "0"}, "--link is missing"},
      {{"--kind", "10", "--link", Path("p")}, "--kind: no module is of kind 10"},
      {{"--kind", "x", "--link", Path("p")}, "--kind: \"x\" is not a number"},
      {{"--kind", "0", "--link"}, "--link: nothing follows it"},
      {{"--kind", "0", "--link", Path("p"), "--fault", "silence"},
       "--fault: there is no fault \"silence\""},
      {{"--kind", "0", "--link", Path("p"), "--seed", "-1"}, "--seed: \"-1\" is not a number"},
      {{"--kind", "0", "--port", "1"}, "--port: there is no such option"},
      {{"--kind", "0", "--link", Path("p"), "--image", Path("none.BK1")},
       Path("none.BK1") + ": cannot be read"},
      {{"--kind", "0", "--link", Path("p"), "--image", Path("dimmer.BK1")},
       "--image: " + Path("dimmer.BK1") + " is of kind 1, not of kind 0"},
      {{"--kind", "0", "--link", Path("p"), "--log", Path("none/log")},
       Path("none/log") + ": cannot be written"},
  };
  for (const auto& [words, error] : wrongs) {
    Program program(words);
    const Outcome outcome = program.End();
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "virtual_module: " + error + "\n");
    EXPECT_FALSE(fs::is_symlink(directory_ / "p"));
  }
}

TEST_F(ProgramTest, HelpListsEveryKindAndEveryFault) {
  Program program({"--help"});
  const Outcome outcome = program.End();
  EXPECT_EQ(outcome.status, 0);
  for (const KindRow& row : Kinds()) {
    EXPECT_NE(outcome.output.find(row.caption), std::string::npos);
  }
  for (const FaultRow& row : Faults()) {
    EXPECT_NE(outcome.output.find(row.name), std::string::npos);
    EXPECT_NE(outcome.output.find(row.description), std::string::npos);
  }
}

}  // namespace
}  // namespace virtual_module
