#include "virtual_module/line_log.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

TEST(LineLog, ShowsControlCharactersAndBytesAsEscapes) {
  using namespace std::string_view_literals;
  EXPECT_EQ(EscapedText("T000065\n\r"), "T000065\\n\\r");
  EXPECT_EQ(EscapedText("\0a~\x7f\xff\\"sv), "\\x00a~\\x7F\\xFF\\\\");
}

TEST(LineLog, HasOneLineForEachUnitInTheOrderOfTheLine) {
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / "bkconf-line-log-test.txt";
  Conversation line(3);
  line.module.memory().Cells("LcdHeader") = {65, 21};
  LineLog log(path);
  log.Write(line.module);
  line.RunFor(120 * millisecond);
  line.Read("T80000");
  log.Write(line.module);
  line.RunFor(130 * millisecond);
  log.Write(line.module);
  log.WriteOpenPolls(line.module);

  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string text; std::getline(file, text);) {
    lines.push_back(text);
  }
  std::filesystem::remove(path);
  ASSERT_EQ(lines.size(), 9U);
  EXPECT_EQ(lines[0], "1042 151042 module M x 4");
  EXPECT_EQ(lines[1], "152084 173966 tool DDDDDDDDDDDDDDDDDDDDDD");
  EXPECT_EQ(lines[2], "325008 331258 module DISPL3\\r");
  EXPECT_EQ(lines[3], "332300 338552 tool T80000\\r");
  EXPECT_EQ(lines[4], "339594 345844 module M80000\\r");
  EXPECT_EQ(lines[5], "346886 355219 module M1000065\\r");
  EXPECT_EQ(lines[6], "356261 364594 module C1001021\\r");
  EXPECT_EQ(lines[7], "365636 369802 module STOP\\r");
  EXPECT_EQ(lines[8], "420844 470844 module M x 2");
}

TEST(LineLog, ThatCannotBeWrittenIsAnError) {
  EXPECT_THROW(LineLog("/nowhere/at/all.txt"), std::runtime_error);
}

}  // namespace
}  // namespace virtual_module
