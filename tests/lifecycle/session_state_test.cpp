#include "lifecycle/session_state.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/failure_of.h"
#include "support/project_text.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::FileText;
using test::Joined;
using test::TestSession;

constexpr const char* kFile = "/prog/zeblast.txt";

std::vector<std::string> Head() {
  std::vector<std::string> lines{"kept,also,10:11,fourth", "/JOBS/LAST.ZEB", "01/02/2026", " 7 "};
  for (int text = 1; text <= SystemValues::kGridLayoutTexts; ++text) {
    lines.push_back(" grid " + std::to_string(text));
  }
  return lines;
}

const std::vector<std::string> kFigures{"CALC=", "0.5", "7", "2", "40", "4", "20", "3"};

std::vector<std::string> Supply(const std::string& name) {
  return {"PUMP=" + name, "      0,    100,    200,    300,    400,    500,    600,    700",
          "  8.000,  7.500,  7.000,  6.500,  6.000,  5.500,  5.000,  4.500", "  2.500",
          "/JOBS/" + name + ".ZEB"};
}

struct SessionState : testing::Test, TestSession {
  SessionState() { SetDefaultCalculationFigures(project); }
  void Read(const std::vector<std::string>& lines) {
    files.Put(kFile, FileText(lines));
    ReadInZEBLast(session);
  }
};

TEST_F(SessionState, WhatIsWrittenWasRead) {
  const std::vector<std::string> tail = Joined(kFigures, Supply("Town main"));
  Read(Joined(Head(), tail));
  EXPECT_EQ(project.GridLayoutTexts[22], "grid 23");
  EXPECT_EQ(project.SizingMethod, 3);
  EXPECT_EQ(project.SupplyTable[1][15], 4.5F);
  EXPECT_EQ(project.SupplyTable[0], SupplyValues{});

  WriteSessionState(session);
  std::vector<std::string> head = Head();
  head[0] = "kept,also,09:05,fourth";
  head[2] = "22/11/2026";
  for (std::string& line : head) line = Trim(line);
  EXPECT_EQ(files.Bytes(kFile), FileText(Joined(head, tail)));
}

TEST_F(SessionState, TheFirstHeadCodesMakeTheLibrary) {
  Read(Joined(Head(), {"HEAD=01 15.0  80.00   0.50 STD1      and a path",  //
                       "head=02 15.0  80.00  0.50 OLD"}));  // a column fewer: point in column 23
  EXPECT_EQ(project.HeadCodeCount, 2);
  EXPECT_EQ(project.HeadCodeLines[2], "02 15.0  80.00   0.50 OLD");
  EXPECT_EQ(files.Bytes("/prog/Library/user.hcl"),
            "01 15.0  80.00   0.50 STD1      an\r\n02 15.0  80.00   0.50 OLD\r\n");
  files.Put("/prog/Library/user.hcl", "mine");
  ReadInZEBLast(session);
  EXPECT_EQ(files.Bytes("/prog/Library/user.hcl"), "mine");
}

TEST_F(SessionState, NoneHasNoHeightAndAFurtherSupplyOverwritesTheLastRow) {
  std::vector<std::string> lines = Joined(Head(), Supply("nOnE"));
  for (int row = 2; row <= 51; ++row) lines = Joined(lines, Supply("S" + std::to_string(row)));
  Read(lines);
  EXPECT_EQ(project.SupplyTable[1][kTankHeightValue], 0.0F);
  EXPECT_EQ(project.SupplyPaths[1], std::string(22, ' '));
  EXPECT_EQ(project.SupplyCount, 49);
  EXPECT_EQ(project.SupplyNames[48], "S48");
  EXPECT_EQ(project.SupplyNames[49], "S51");
  EXPECT_EQ(project.maxVel, 6.0F);  // the default, without CALC=
}

TEST_F(SessionState, AMissingFileIsToldAndLoggedAndTheStartGoesOn) {
  ReadInZEBLast(session);
  EXPECT_EQ(dialogs.Titles(), std::vector<std::string>{"Critical Error "});
  EXPECT_TRUE(files.Has("/prog/ZEB_error.log"));
  EXPECT_FALSE(files.Has("/prog/Library/user.hcl"));
  EXPECT_EQ(project.SupplyCount, 0);
}

// The next write must not be the end of what could still be saved by hand.
TEST_F(SessionState, OfADamagedFileTheWholeSuppliesAndACopyStay) {
  std::vector<std::string> lines = Joined(Joined(Head(), Supply("A")), Supply("B"));
  lines[lines.size() - 3] = "8.0, bar";
  Read(lines);
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(project.SupplyCount, 1);
  EXPECT_EQ(project.SupplyNames[1], "A");
  EXPECT_EQ(files.Bytes("/prog/zeblast.bak"), FileText(lines));
}

TEST_F(SessionState, AFailedWriteLeavesTheOldFile) {
  Read(Joined(Head(), kFigures));
  const std::string before = files.Bytes(kFile);
  for (int step = 1; step <= 2; ++step) {
    files.FailAt(step, failure::kDiskFull);
    EXPECT_EQ(test::FailureOf([&] { WriteSessionState(session); }), failure::kDiskFull);
    EXPECT_EQ(files.Bytes(kFile), before) << step;
  }
}

TEST_F(SessionState, TheResetKeepsTheSupplies) {
  Read(Joined(Joined(Head(), kFigures), Supply("A")));
  mnuResetZEBlast(session);
  ReadInZEBLast(session);
  EXPECT_EQ(project.SupplyNames[1], "A");
  EXPECT_EQ(project.maxVel, 6.0F);
  EXPECT_EQ(project.GridLayoutTexts[2], "260");
  EXPECT_EQ(project.LastProject, "");
}

}  // namespace
}  // namespace zeb
