#include "check_fixture.h"

namespace zeb::test {
namespace {

const std::string kRed = " - this pipe will be shown in red on the drawing and ??? in your data.";
const std::string kNodeChanged =
    " but this may cause further errors if it has been used in a subsequent pipe" + kRed;

using FaultRules = CheckFixture;

TEST_F(FaultRules, TheirTextsAreReportedToTheLetter) {
  const struct {
    std::string lines;
    int pipe, mark, number;  // of the last fault
    std::string location, problem, reason, correction, short_line;
  } cases[] = {
      {"10 11 50 3 N / 10 12 50 3 E", 2, 1, 1, "Pipe 2 start node 10",
       "[Error 1] Start node is the same as the first pipe",
       "But they must be different to get the right flows and pressures in the system",
       "It has been changed to 11 (the end node of the first pipe) to allow you to continue" + kRed,
       "Start node 10 for pipe 2 is wrong"},
      {"10 9900 50 3 N / 9901 12 50 3 E", 2, 2, 2, "Pipe 2 start node 9901",
       "[Error 2] Start node is incorrect", "It must be in the range of 1 to 9900",
       "Node number has been changed to 9900" + kNodeChanged,
       "Start node 9901 for pipe 2 is wrong"},
      {"10 11 50 3 N / 11 -5 50 3 E", 2, 3, 3, "Pipe 2 = start node  11 end node -5",
       "[Error 3] End node is incorrect", "It must be in the range of 2 to 9901",
       "Node number has been changed to 2" + kNodeChanged, "End node for pipe 11-5 is wrong"},
      {"10 12 50 3 N / 12 10 50 3 S", 2, 3, 3, "Pipe 2 = start node  12 end node  10",
       "[Error 3] The end node is the same as the original start node",
       "This is completely wrong as you cannot have a loop back to the source.",
       "Node number has been changed to 11" + kNodeChanged, "Pipe 12 10 end node is wrong"},
      {"10 11 50 3 N / 11 11 50 3 E", 2, 4, 4, "Pipe 2 = start node  11 end node  11",
       "[Error 4] The start and end node numbers of this pipe are the same",
       "They must be different of course as otherwise this pipe doesn't go anywhere!",
       "The end node has been changed to 9911" + kNodeChanged, "Pipe 2 had same start/end nodes"},
      {"10 11 50 3 N / 20 12 50 3 E", 2, 12, 5, "Pipe 2 = start node  20 end node  12",
       "[Error 5] The start node of 20 has not been given previously as an end node",
       "This is an isolated pipe that does not connect into the rest. Perhaps position  or some "
       "previous start / end node numbers are wrong",
       "It has been changed to the end node of the previous pipe of 11" + kRed,
       "Pipe 20 12 start not a previous end"},
      {"10 11 50 3 q1", 1, 5, 6, "Pipe 1 = start node  10 end node  11",
       "[Error 6] Direction code of Q1 has not been recognised",
       "It must be one of N, NE, E, SE, S, SW, W, NW, U or D for points of the compass or up / "
       "down and it can can also be given as * then an angle eg. *64",
       "It has been changed to *0@0 but this may cause the drawing to be completely wrong" + kRed,
       "Pipe 10 11 direction = Q1"},
      {"10 11 50 3 N 7", 1, 6, 7, "Pipe 1 = start node  10 end node  11",
       "[Error 7] Pipe type specified as 7", "But only 2 have been specified in TEST.PDT",
       "It has been changed to pipe type 1 for now" + kRed, "Pipe 10 11 Pipe type = 7"},
      {"10 11 30 3 N 2", 1, 7, 8, "Pipe 1 = start node  10 end node  11",
       "[Error 8] Pipe size of 30mm is not applicable to pipe type 2",
       "This size is incorrect or cannot be found in the list for \r\nCopper\r\n which only "
       "contains :-\r\n 25  50  80  100 mm",
       "The size has been changed to 25mm as being the nearest which might be applicable" + kRed,
       "Pipe 10 11 Size = 30mm"},
      {"10 11 50 2 E / 11 12 50 3 N / 11 13 50 4 E / 13 12 50 4.5 NW", 4, 8, 9,
       "Pipe 4 = start node  13 end node  12",
       "[Error 9]                              x        y        z\r\n"
       "Previous pipe   11   12 finished at    2.000    3.000    0.000 m\r\n"
       "Start node      13 begins at           6.000    0.000    0.000 m\r\n"
       "Entered as length =    4.500 m direction =315.0 and slope =  0.0 deg\r\n",
       "It has been corrected to    5.000 m long at 306.9 deg and slope =  0.0\r\n",
       "This may indicate a noding or measuring error" + kRed, "Pipe 13 12 didn't connect to 11"},
      {"10 11 50 3 N 1 0 9 12", 1, 10, 10, "Pipe 1 = start node  10 end node  11",
       "[Error 10] Head code given as 9",
       "But this number was not specified in the list of head codes = 1 2 3 4",
       "This head code has been changed to 1", "Pipe 10 11 Head code = 9"},
      {"10 11 50 3 N 1 0 1 40", 1, 0, 11, "Pipe 1 = start node  10 end node  11",
       "[Error 11] Area given as   40.000 sq.m for head code 1",
       "Maximum of 31 sq.m (You can switch this checking off in the Project Data).",
       "The entered value will be used in the calculations", "Pipe 10 11 Head area =   40.000sq.m"},
      {"10 11 50 3 N 1 0 3 12", 1, 0, 12, "Pipe 1 = start node  10 end node  11",
       "[Error 12] Head code 3 has a 'k' factor of zero so will require an infinite pressure!",
       "Perhaps the wrong head code has been given or the 'k' factor is wrong",
       "This has been changed to 1.0", "Pipe 10 11 Head code k factor = 0"},
      {"10 11 50 2 E / 11 12 50 3 N 1 0 1 12 / 11 13 50 4 E / 13 12 50 5 *306.87 1 0 2 9", 4, 0, 13,
       "Head at end node 12",
       "[Error 13] Head number 1 in pipe 11 12 = head code 1\r\n"
       "is the same end node as head number 2 in pipe 13 12",
       "this is not right", "You will need to investigate this problem.",
       "Head node 12 is duplicated"},
      {"10 11 25 3 N / 11 12 50 3 N 1 0 1 12", 1, 1, 14, "Pipes around node number 11",
       "[Error 14] Pipe 11 12 is 50 mm but is supplied from pipe 10 11 which is only 25 mm",
       "This is normally not permitted",
       "One or both pipes may need to be increased in size - these 2 pipes will be shown in red "
       "on the next drawing.",
       "  P i p e      Size   Upstream   Size\r\n   11   12   50   10   11   25"},
      {"10 11 50 3 N / 11 12 50 3 N / 11 13 50 3 *30@-5.5", 3, 1, 15, "Pipes connecting at node 11",
       "[Error 15] Pipe 11 13 direction given as  30.0 deg and slope = -5.50 deg but is supplied "
       "from pipe 10 11 which has a direction of   0.0 deg and slope =  0.00 deg which does not "
       "make a valid tee fitting",
       "This might be what you intended but it doesn't look right",
       "Can be ignored if correct" + kRed,
       "  P i p e       Dir   Upstream    Dir\r\n   11   13  30.0   10   11   0.0"},
      {"10 11 50 3 N / 11 12 50 3 Q / 11 12 50 4 N", 2, 5, 16,
       "Pipe 2 = start node  11 end node  12",
       "[Error 16] Pipe 11 12 at line 21 is a repeat of pipe 11 12 given previously",
       "This will therefore have zero flow rate", "You will need to investigate this problem.",
       "Pipe 11 12 is duplicated"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.problem);
    captions.clear();
    Check(c.lines);
    ASSERT_FALSE(project.Faults.empty());
    const CheckFault& fault = project.Faults.back();
    EXPECT_EQ(fault.number, c.number);
    EXPECT_EQ(fault.location, c.location);
    EXPECT_EQ(fault.problem, c.problem);
    EXPECT_EQ(fault.reason, c.reason);
    EXPECT_EQ(fault.correction, c.correction);
    EXPECT_EQ(fault.short_line, c.short_line);
    EXPECT_TRUE(project.WarningText.ends_with(c.short_line + "\r\n"));
    EXPECT_EQ(project.PipeError[c.pipe], c.mark);
    EXPECT_EQ(captions.back(),
              "ZEB Warning No: " + std::to_string(captions.size()) + " in [Untitled]");
  }
}

TEST_F(FaultRules, CorrectionsTakeEffect) {
  Check("10 11 30 3 N 2 / 20 11 50 1 E / 11 12 50 1000 X 7 -3 / 12 12 50 1 E");
  EXPECT_EQ(FaultNumbers(), (std::vector{8, 5, 9, 6, 7, 4}));
  EXPECT_EQ(project.PipeSize[1], 25);
  EXPECT_EQ(project.PipeSizeIndex[1], 1);
  EXPECT_EQ(project.PipeStartNode[2], 11);  // the end of the pipe before, though it is its own end
  EXPECT_EQ(project.PipeType[3], 1);
  EXPECT_EQ(project.PipeValve[3], 0);
  EXPECT_EQ(project.PipeLengthIn[3], 999.9F);
  EXPECT_EQ(project.PipeDirection[3], 0.0F);
  EXPECT_EQ(project.PipeError[3], 6);  // of the last correction
  EXPECT_EQ(project.PipeEndNode[4], 9911);
}

TEST_F(FaultRules, ARepeatGivesItsSlotBackAndHasNoLocationOfItsOwn) {
  Check("10 11 50 3 N / 11 12 50 3 N / 11 12 50 9 E / 12 13 50 3 N / 12 11 50 3 S");
  EXPECT_EQ(project.Faults[0].number, 16);
  EXPECT_EQ(project.Faults[0].location, "");
  EXPECT_EQ(project.PipeCount, 4);
  EXPECT_EQ(project.PipeEndNode[3], 13);
  EXPECT_EQ(project.PipeLine[3], 22);
  EXPECT_EQ(project.NodeStarts[11], 1);
  EXPECT_EQ(project.PipeStartNode[4], 12);  // the way back is a pipe of its own
}

TEST_F(FaultRules, AreasReportOnlyANewHighestAndCanBeSwitchedOff) {
  const std::string lines =
      "1 2 50 3 N 1 0 1 31 / 2 3 50 3 N 1 0 1 40 / 3 4 50 3 N 1 0 1 -35 / 4 5 50 3 N 1 0 1 41";
  Check(lines);
  EXPECT_EQ(FaultNumbers(), (std::vector{11, 11}));
  EXPECT_EQ(project.HeadArea[3], 35.0F);
  SetItem(Item::kInstallation, "1 -ac");
  Check(lines);
  EXPECT_TRUE(project.Faults.empty());
}

TEST_F(FaultRules, OnlyTheFirstUpstreamCaseHasAHeadingAndAPipeIsReportedOnce) {
  SetItem(Item::kInstallation, "-SH");
  Check("1 2 25 3 N / 2 3 50 3 N 1 0 1 9 / 2 4 50 3 E / 4 5 80 3 E 1 0 1 9 / 5 6 50 3 E 1 0 1 9");
  EXPECT_EQ(FaultNumbers(), (std::vector{14, 14}));
  EXPECT_EQ(project.Faults[1].short_line, "    4    5   80    2    4   50");
  EXPECT_EQ(project.WarningCount, 2);
  EXPECT_EQ(project.PipeError[1], 1);
  EXPECT_EQ(project.PipeError[4], 1);
  EXPECT_EQ(project.PipeSmallUp[1], 1);
}

// Rungs between two rails, each a loop, fed by a smaller pipe.
std::string Ladder(int loops) {
  std::string lines = "1 100 25 1 E / 100 300 50 1 S 1 0 1 9 / 100 200 50 2 N";
  for (int i = 1; i <= loops; ++i) {
    AddPipe(lines, 99 + i, 100 + i, " 50 2 E");
    AddPipe(lines, 100 + i, 200 + i, " 50 2 N");
    AddPipe(lines, 199 + i, 200 + i, " 50 2 E");
  }
  return lines;
}

TEST_F(FaultRules, UpstreamSizesAreNotJudgedInAGridNorWithoutFittingChecks) {
  Check(Ladder(3));
  EXPECT_EQ(FaultNumbers(), std::vector{14});
  Check(Ladder(4));
  EXPECT_TRUE(project.Faults.empty());
  SetItem(Item::kInstallation, "-FC");
  Check(Ladder(3));
  EXPECT_TRUE(project.Faults.empty());
}

}  // namespace
}  // namespace zeb::test
