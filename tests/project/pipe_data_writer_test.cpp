#include "project/pipe_data_writer.h"

#include <gtest/gtest.h>

#include <string>

#include "project/pipe_data_reader.h"
#include "services/text.h"
#include "support/failure_of.h"
#include "support/small_pipe_data.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct PipeDataWriter : testing::Test, TestSession {
  PipeDataWriter() { project.PipeDataFile = "TEST.PDT"; }

  void Read(const std::string& bytes) {
    files.Put(path, bytes);
    ReadPipeData(session, CheckMode::kSilent);
  }

  const std::string path = session.folders.PdtFolder + "/TEST.PDT";
  const std::string backup = session.folders.PdtFolder + "/TEST.BAK";
};

TEST_F(PipeDataWriter, WritesFixedFields) {
  Read(SmallPipeData().Text());
  project.PipeBores[1][1] = 27.256F;
  WritePipeData(session);
  EXPECT_EQ(files.Bytes(path),
            "ZEB,09:05\r\n"
            " 2, 3, 2\r\n"
            " 1,120,1.000,0.0460,1,MED,Steel medium\r\n"
            " 2,140,1.330,0.0015,2,CU ,Copper tube\r\n"
            "25   ,50   ,100\r\n"
            "28   ,54   ,108\r\n"
            "32   ,63   ,125\r\n"
            "27.26,53.10,105.30\r\n"
            "26.20,51.60,  0.00\r\n"
            "EL,Elbow\r\n"
            "TE,Tee\r\n"
            " 0.77, 1.50,  3.00\r\n"
            " 1.50, 2.90,  6.10\r\n"
            " 2.00, 5.00, 10.00\r\n"
            " 5.00,10.00, 20.00\r\n");
  EXPECT_EQ(files.Bytes(backup), SmallPipeData().Text());
  EXPECT_EQ(
      dialogs.Shown(),
      (Boxes{
          {path + " updated",
           path + " has been updated with new pipe types/sizes with a backup in " + backup +
               "\r\n\r\nIf you want to amend any of the data, choose 'Options' from the top menu. "
               "Click on 'OK' to continue."}}));
}

TEST_F(PipeDataWriter, LosesNothingThatANarrowFieldCannotHold) {
  SmallPipeData data;
  data.Set(2, "1,1200,1.000,0.0460,1,STEEL,\"Steel, medium\"");
  data.Set(5, "28,106,108");  // in a column of two digits
  data.Set(9, "EL,");
  data.Set(11, "0.77,-123.5,3.00");
  Read(data.Text());
  WritePipeData(session);
  const std::string written = files.Bytes(path);
  Read(written);
  EXPECT_EQ(project.PipeTypeCount, 2);
  EXPECT_EQ(project.TypeC[1], 1200.0F);
  EXPECT_EQ(project.PipeTypeRefs[1], "STEEL");
  EXPECT_EQ(project.PipeTypeDescriptions[1], "Steel, medium");
  EXPECT_EQ(project.NominalSizes[1][2], 106);
  EXPECT_EQ(project.ValveDescriptions[1], "");
  EXPECT_EQ(project.EqLengthsLpc[1][2], -123.5F);
  WritePipeData(session);
  EXPECT_EQ(files.Bytes(path), written);
}

TEST_F(PipeDataWriter, KeepsTheFilesOwnCUnderOtherRules) {
  project.RuleType = kRulesNfpa;
  Read(SmallPipeData().Text());
  ASSERT_EQ(project.TypeC[2], 150.0F);
  WritePipeData(session);
  EXPECT_TRUE(Contains(files.Bytes(path), " 2,140,1.330,"));
}

TEST_F(PipeDataWriter, AFailureLeavesTheOldFileOrTheNewOne) {
  Read(SmallPipeData().Text());
  WritePipeData(session);
  const std::string old_bytes = files.Bytes(path);
  const std::string new_bytes = ReplaceAll(old_bytes, "27.30", "30.00");
  project.PipeBores[1][1] = 30.0F;
  int number = failure::kDiskFull;
  for (int operation = 1; number != 0; ++operation) {
    files.Put(path, old_bytes);
    files.FailAt(operation, failure::kDiskFull);
    number = FailureOf([&] { WritePipeData(session); });
    files.StopFailing();
    EXPECT_TRUE(files.Bytes(path) == old_bytes || files.Bytes(path) == new_bytes) << operation;
    ASSERT_LT(operation, 50);
  }
  EXPECT_EQ(files.Bytes(path), new_bytes);
}

}  // namespace
}  // namespace zeb::test
