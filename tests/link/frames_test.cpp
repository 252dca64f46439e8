#include "link/frames.h"

#include <gtest/gtest.h>

#include "support/session_test.h"

namespace bkconf {
namespace {

struct FrameCase {
  FrameForm form;
  int index;
  Cell cell;
  const char* frame;
};

class FrameTest : public testing::TestWithParam<FrameCase> {};

TEST_P(FrameTest, HasItsCharacters) {
  const FrameCase& expected = GetParam();
  EXPECT_EQ(BuildFrame(expected.form, expected.index, expected.cell), expected.frame);
}

const FrameCase FrameCases[] = {
    {FrameForm::Paced, 0, 0, "T000000"},           {FrameForm::Paced, 162, 42, "T162042"},
    {FrameForm::Paced, 7, 255, "T007255"},         {FrameForm::Paced, 7, 999, "T007999"},
    {FrameForm::Paced, 7, Cell(), "T007000"},      {FrameForm::Paced, 7, "*", "T007000"},
    {FrameForm::Paced, 7, "07", "T007007"},        {FrameForm::Paced, 7, 1234, "T007234"},
    {FrameForm::Paced, 7, 10500, "T007150"},       {FrameForm::Paced, 7, 1.5, "T007001"},
    {FrameForm::Paced, 7, -5, "T00795"},           {FrameForm::Block, 0, 65, "T000065\n\r"},
    {FrameForm::Block, 0, 90, "T000090\n\r"},      {FrameForm::Block, 20, 32, "T020032\n\r"},
    {FrameForm::Block, 611, 126, "T611126\n\r"},   {FrameForm::Block, 239, 0, "T239000\n\r"},
    {FrameForm::Block, 5, Cell(), "T005000\n\r"},  {FrameForm::Block, 5, "*", "T005000\n\r"},
    {FrameForm::Block, 5, "07", "T005007\n\r"},    {FrameForm::Block, 5, 1234, "T005234\n\r"},
    {FrameForm::Block, 5, 10500, "T005500\n\r"},   {FrameForm::Block, 5, 1.5, "T0051.5\n\r"},
    {FrameForm::Block, 5, -5, "T005995\n\r"},      {FrameForm::ShortBlock, 0, 6, "T00006\n\r"},
    {FrameForm::ShortBlock, 671, 5, "T67105\n\r"}, {FrameForm::ShortBlock, 335, 21, "T33521\n\r"},
    {FrameForm::ShortBlock, 335, 0, "T33500\n\r"}, {FrameForm::ShortBlock, 1, Cell(), "T00100\n\r"},
    {FrameForm::ShortBlock, 1, "*", "T00100\n\r"}, {FrameForm::FreeNumber, 0, 40, "T00040\n\r"},
    {FrameForm::FreeNumber, 0, 5, "T0005\n\r"},    {FrameForm::FreeNumber, 63, 255, "T063255\n\r"},
    {FrameForm::FreeNumber, 3, "07", "T0037\n\r"}, {FrameForm::FreeNumber, 3, Cell(), "T0030\n\r"},
    {FrameForm::FreeNumber, 3, "*", "T0030\n\r"},  {FrameForm::FreeText, 64, 65, "T06465\n\r"},
    {FrameForm::FreeText, 65, 0, "T0650\n\r"},     {FrameForm::FreeText, 81, 8, "T0818\n\r"},
    {FrameForm::FreeText, 3, "07", "T00307\n\r"},  {FrameForm::FreeText, 3, Cell(), "T0030\n\r"},
    {FrameForm::FreeText, 3, "*", "T0030\n\r"},
};

INSTANTIATE_TEST_SUITE_P(Frames, FrameTest, testing::ValuesIn(FrameCases));

class FrameLineTest : public SessionTest {};

TEST_F(FrameLineTest, APacedFrameIsSevenWritesWithAPauseAfterEachOfTheFirstSix) {
  CharDelayCount = 100;
  SendFrame(FrameForm::Paced, 12, 34);
  ASSERT_EQ(line.written.size(), 7U);
  EXPECT_EQ(line.AllWritten(), "T012034");
  EXPECT_EQ(line.written.back().time - line.written.front().time, 6 * 101);
}

TEST_F(FrameLineTest, EveryOtherFrameIsOneWrite) {
  for (const FrameForm form :
       {FrameForm::Block, FrameForm::ShortBlock, FrameForm::FreeNumber, FrameForm::FreeText}) {
    line.written.clear();
    SendFrame(form, 12, 34);
    EXPECT_EQ(line.written.size(), 1U);
  }
}

}  // namespace
}  // namespace bkconf
