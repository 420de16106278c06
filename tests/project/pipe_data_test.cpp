// Pipe data files, read and written.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <tuple>
#include <utility>

#include "project/fault_report.h"
#include "project/pipe_data_reader.h"
#include "project/pipe_data_writer.h"
#include "services/text.h"
#include "support/failure_of.h"
#include "support/real_file.h"
#include "support/slots.h"
#include "support/small_pipe_data.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct PipeDataReader : testing::Test, TestSession {
  PipeDataReader() {
    project.PipeDataFile = "TEST.PDT";
    project.RuleType = kRulesGeneral;
    shell.OnForm<WarningForm>("ZEBF04", [this](WarningForm& form) {
      captions.push_back(form.Caption);
      stop_at_fault ? form.Canbut_Click() : form.cbut_Click();
    });
  }

  void Read(const std::string& bytes, CheckMode mode = CheckMode::kKeepLines) {
    project.PipeDataFile = "TEST.PDT";
    files.Put(path, bytes);
    ReadPipeData(session, mode);
  }

  const std::string& folder = session.folders.PdtFolder;
  const std::string path = folder + "/TEST.PDT";
  Texts captions;
  bool stop_at_fault = false;
};

// What a fault says, in the order of the fixture.
Texts TextsOf(const CheckFault& fault) {
  return {std::to_string(fault.number), fault.location, fault.problem, fault.reason,
          fault.correction};
}

TEST_F(PipeDataReader, ReportsEachFaultInItsWords) {
  const Texts lines = SplitLines(RealFile(ZEB_FIXTURES "/pipe_data_faults.txt"));
  int cases = 0;
  for (std::size_t at = 3; at + 5 < lines.size(); at += 7, ++cases) {
    SCOPED_TRACE(lines[at]);
    Texts texts(lines.begin() + at + 1, lines.begin() + at + 6);
    for (std::string& text : texts) text = ReplaceAll(text, "\\n", "\r\n");
    project.Faults.clear();
    project.PipeDataErrorCount = 4;
    captions.clear();
    Read(SmallPipeData().With(std::stoi(lines[at]), lines[at].substr(lines[at].find(' ') + 1)));

    ASSERT_EQ(project.Faults.size(), 1U);
    EXPECT_EQ(TextsOf(project.Faults[0]), texts);
    EXPECT_EQ(project.ErrorCorrection, texts[4]);
    EXPECT_EQ(captions, Texts{"ZEB Warning No: 5 in Pipe / Fittings Data File TEST.PDT"});
    EXPECT_EQ(project.PipeSizeCount, 3);
  }
  EXPECT_EQ(cases, 11);
}

TEST_F(PipeDataReader, TakesValuesOnTheLimitsAsGood) {
  SmallPipeData data;
  data.Set(2, "1,90,0.4,0.0001,3,MED,Steel medium");
  data.Set(3, "2,150,1.6,0.99,2,CU,Copper tube");
  data.Set(4, "25,-50,100");
  data.Set(5, "28,28,108");
  data.Set(7, "22.4,81.9,87.5");
  data.Set(8, "19.6,36.4,0");
  data.Set(11, "0,200,3");
  Read(data.Text());
  EXPECT_TRUE(project.Faults.empty()) << project.Faults.front().problem;
  EXPECT_EQ(project.NominalSizes[0][2], -50);
  EXPECT_EQ(project.PipeSizeCount, 3);
}

TEST_F(PipeDataReader, ReplacesOnlyRoughnessAndSizesLine) {
  Read(SmallPipeData().With(2, "1,80,2,5,0,M,Steel medium"));
  EXPECT_EQ(project.Faults.size(), 5U);
  EXPECT_EQ(project.PipeDataErrorCount, 5);
  EXPECT_EQ(project.TypeC[1], 80.0F);
  EXPECT_EQ(project.TypeFittingFactor[1], 2.0F);
  EXPECT_EQ(project.TypeRoughness[1], 0.046F);
  EXPECT_EQ(project.TypeSizesLine[1], 1.0F);
  EXPECT_EQ(project.PipeTypeRefs[1], "M");
}

TEST_F(PipeDataReader, EndsAtTheFaultWhereTheUserStops) {
  project.PipeTypeCount = 9;
  stop_at_fault = true;
  Read(SmallPipeData().With(10, "TEE,Equal tee"), CheckMode::kSilent);  // has no box to stop at
  EXPECT_TRUE(captions.empty());
  EXPECT_EQ(project.PipeTypeCount, 2);

  project.PipeSizeCount = 0;
  Read(SmallPipeData().With(2, "1,80,2,5,0,M,Steel medium"));
  EXPECT_EQ(captions.size(), 1U);
  EXPECT_EQ(project.StopFlag, kStopCheck);
  EXPECT_EQ(project.PipeSizeCount, 0);
}

TEST_F(PipeDataReader, PassesOverBoresWhenTheCommentsSaySo) {
  project.PipeLines[18] = "see drawing -ep";
  Read(SmallPipeData().With(8, "26.20,70.3,0.00"));
  EXPECT_TRUE(project.Faults.empty());
  EXPECT_EQ(project.PipeBores[2][2], 70.3F);
}

TEST_F(PipeDataReader, CountsOfZeroAreOne) {
  Read("a,b\n0,0,0\n1,120,1,0.046,1,MED,Steel\n25\n25\n25\n27.3\nEL,Elbow\n0.77\n2\n");
  EXPECT_EQ(project.PipeSizeCount, 1);
  EXPECT_EQ(project.EqLengthsNfpa[1][1], 2.0F);
}

// Lines of a value for each size.
std::string Rows(int count, int sizes, const std::string& value) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    for (int size = 1; size <= sizes; ++size) text += (size == 1 ? "" : ",") + value;
    text += "\r\n";
  }
  return text;
}

// A file that claims the counts and holds the others.
std::string PipeDataOf(const std::string& counts, int types, int sizes, int valves) {
  std::string text = "ZEB,12:00\r\n" + counts + "\r\n";
  for (int type = 1; type <= types; ++type) {
    text += std::to_string(type) + ",120,1,0.046,1,MED,Steel\r\n";
  }
  text += Rows(3, sizes, "25") + Rows(types, sizes, "27.3");
  for (int valve = 0; valve < valves; ++valve) text += "EL,Elbow\r\n";
  return text + Rows(valves, sizes, "1.5") + Rows(valves, sizes, "5");
}

TEST_F(PipeDataReader, HoldsAsManyRecordsAsItsTables) {
  Read(PipeDataOf("50,30,20", 50, 30, 20));
  EXPECT_TRUE(project.Faults.empty());
  EXPECT_EQ(project.PipeBores[30][50], 27.3F);
  EXPECT_EQ(project.EqLengthsNfpa[20][30], 5.0F);

  for (const char* counts : {"51,30,20", "50,31,20", "50,30,21"}) {
    SCOPED_TRACE(counts);
    project.Faults.clear();
    Read(PipeDataOf(counts, 50, 30, 20));
    ASSERT_EQ(project.Faults.size(), 1U);
    EXPECT_EQ(project.PipeTypeCount, 50);
    EXPECT_EQ(project.PipeSizeCount, 30);
    EXPECT_EQ(project.ValveCount, 20);
  }
  EXPECT_EQ(TextsOf(project.Faults[0]),
            (Texts{"20", "First line of file is incorrect",
                   "[Error 20] It should have 3 numbers separated by commas",
                   "1 = 50 Pipe Types  (Maximum = 30)\r\n2 = 30 Pipe Sizes  (Maximum = 20)\r\n"
                   "3 = 21 Valve Types (Maximum = 20)\r\n",
                   "Refer to listing of file or the user manual"}));
}

TEST_F(PipeDataReader, LineBreaksBetweenFieldsCarryNoMeaning) {
  const std::string text = SmallPipeData().Text();
  const std::pair<std::string, std::string> rewritings[] = {{"\r\n", "\n"},
                                                            {"\r\n", "\r"},
                                                            {"53.10,105.30", "53.10,\r\n105.30"},
                                                            {"1,120,1.000", "1\r\n120\r\n1.000"},
                                                            {"MED,Steel", "MED,\r\nSteel"},
                                                            {"Copper tube", "\"Copper tube\""},
                                                            {"0.77,1.50", "  0.77 ,\t1.50  "}};
  for (const auto& [from, to] : rewritings) {
    SCOPED_TRACE(to);
    project.PipeTypeDescriptions.Clear();
    Read(ReplaceAll(text, from, to));
    EXPECT_TRUE(project.Faults.empty());
    EXPECT_EQ(Slots(project.PipeTypeDescriptions, 1, 2), (Texts{"Steel medium", "Copper tube"}));
    EXPECT_EQ(project.PipeBores[3][1], 105.3F);
    EXPECT_EQ(project.EqLengthsNfpa[2][3], 20.0F);
  }
}

TEST_F(PipeDataReader, FollowsTheRulesInForce) {
  // 5 ft or 1.5 m as metres, and C of copper at 140.
  const std::tuple<int, float, int, float> cases[] = {
      {kRulesGeneral, 1.5F, 0, 140}, {kRulesNfpa, 1.524F, 1, 150}, {kRulesFm, 1.524F, 0, 150}};
  for (const auto& [rule_type, metres, schedule40_type, c] : cases) {
    SCOPED_TRACE(rule_type);
    project.RuleType = rule_type;
    for (const char* line : {"1,120,1,0.046,1,S40,Steel", "1,120,1,0.046,1,ST, schedule 40"}) {
      Read(SmallPipeData().With(2, line));
      EXPECT_EQ(project.Schedule40Type, schedule40_type) << line;
    }
    EXPECT_EQ(project.EqLengths[1][2], metres);
    EXPECT_EQ(project.EqLengthsLpc[1][2], 1.5F);
    EXPECT_EQ(project.TypeC[2], c);
  }
}

TEST_F(PipeDataReader, ChangesCOfMaterialsUnderNfpaRules) {
  const std::tuple<const char*, float, float> cases[] = {
      {"2,110,1.25,0.0015,2,CU,  ductile iron", 100, 0.714F},
      {"2,120,1.25,0.0015,2,CU,Ductile iron", 120, 1.25F},
      {"2,140,1.25,0.0015,2,CU,CPVC", 150, 1.49F},
      {"2,140,1.25,0.0015,2,CU,Plastic", 150, 1.49F},
      {"2,130,1.25,0.0015,2,CU,Cement lined", 140, 1.33F},
      {"2,140,1.25,0.0015,2,CU,Copper", 150, 1.49F},
      {"2,130,1.25,0.0015,2,CU,Copper", 130, 1.25F},
      {"2,140,1.25,0.0015,2,CU,Steel", 140, 1.25F}};
  project.RuleType = kRulesNfpa;
  for (const auto& [line, new_c, new_factor] : cases) {
    Read(SmallPipeData().With(3, line));
    EXPECT_EQ(project.TypeC[2], new_c) << line;
    EXPECT_EQ(project.TypeFittingFactor[2], new_factor) << line;
  }
}

TEST_F(PipeDataReader, FindsItsFileWhateverTheCase) {
  files.Put(folder + "/Test.pdt", SmallPipeData().Text());
  ReadPipeData(session, CheckMode::kKeepLines);
  EXPECT_EQ(project.PipeTypeCount, 2);
  EXPECT_EQ(project.PipeDataPath, folder + "/Test.pdt");
  EXPECT_EQ(shell.panels[Panel::kHint], "Reading in and checking " + project.PipeDataPath + " ...");

  // Two that differ only in case: the project's spelling tells which, else the user does.
  files.Put(folder + "/test.pdt", SmallPipeData().With(2, "1,100,1,0.046,1,MED,Steel"));
  project.PipeLines[9] = "test.pdt";
  ReadPipeData(session, CheckMode::kKeepLines);
  EXPECT_EQ(project.TypeC[1], 100.0F);
  project.PipeLines[9] = "";
  dialogs.answers = {Answer::kYes};
  ReadPipeData(session, CheckMode::kKeepLines);
  EXPECT_EQ(project.TypeC[1], 120.0F);
  EXPECT_EQ(dialogs.Titles(), Texts{"TEST.PDT"});
}

TEST_F(PipeDataReader, FallsBackToTheStandardFolderThenToTheStandardFile) {
  files.Put(folder + "/STD_PIPE.PDT", SmallPipeData().Text());
  project.ProjectFolder = "/projects";
  const std::pair<std::string, std::string> last_tried[] = {{"/projects", folder},
                                                            {"/standard", "/standard"}};
  for (const auto& [standard_folder, tried] : last_tried) {
    SCOPED_TRACE(standard_folder);
    dialogs.messages.clear();
    project.StandardFolder = standard_folder;
    project.PipeDataFile = "OTHER.PDT";
    ReadPipeData(session, CheckMode::kKeepLines);
    EXPECT_EQ(dialogs.Shown(), (Boxes{{"The program will have to continue with STD_PIPE.PDT",
                                       "Cannot read in " + tried + "/OTHER.PDT"}}));
    EXPECT_EQ(project.PipeDataFile, "STD_PIPE.PDT");
    EXPECT_EQ(project.PipeTypeCount, 2);
  }
  files.Put("/standard/TEST.PDT", SmallPipeData().Text());
  Read("ZEB,12:00\r\n2,3,x");
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(project.PipeDataPath, "/standard/TEST.PDT");
}

TEST_F(PipeDataReader, StopsTheCheckWithoutAnyFile) {
  project.PipeTypeCount = 7;
  ReadPipeData(session, CheckMode::kKeepLines);
  EXPECT_EQ(
      dialogs.Shown(),
      (Boxes{{"The program will have to continue with STD_PIPE.PDT",
              "Cannot read in " + folder + "/TEST.PDT"},
             {"This file is missing or corrupt", "Error in reading " + folder + "/STD_PIPE.PDT"}}));
  EXPECT_EQ(project.StopFlag, kStopCheck);
  EXPECT_EQ(project.PipeTypeCount, 7);
  EXPECT_EQ(project.PipeSizeCount, 0);
}

TEST_F(PipeDataReader, StopsTheCheckForBytesThatAreNoPipeData) {
  std::string noise;
  for (int i = 0; i < 5000; ++i) noise += static_cast<char>(i * 7919 % 256);
  Texts broken = {"\r\n\r\n",
                  ",,,,,,,,,",
                  "\"",
                  std::string(300, '\0'),
                  noise,
                  PipeDataOf("51,31,21", 51, 31, 21),
                  SmallPipeData().With(1, "99999,3,2"),
                  SmallPipeData().With(1, "2,3"),
                  SmallPipeData().With(2, "1,1e39,1,0.046,1,MED,Steel"),
                  SmallPipeData().With(4, "25,50,32768"),
                  SmallPipeData().With(7, "27.3,abc,105"),
                  "ZEB,12:00,1,1,1,1,120,1,0.046,1,MED," + std::string(10'000'000, '7'),
                  "ZEB,12:00," + std::string(10'000'000, '7')};
  const std::string whole = SmallPipeData().Text();
  const std::size_t last = whole.rfind(',') + 1;
  for (std::size_t size = 0; size <= last; ++size) broken.push_back(whole.substr(0, size));
  for (const std::string& bytes : broken) {
    SCOPED_TRACE(bytes.substr(0, 60) + " of " + std::to_string(bytes.size()));
    Read(bytes);
    EXPECT_EQ(project.StopFlag, kStopCheck);
    EXPECT_EQ(project.PipeSizeCount, 0);
    EXPECT_EQ(dialogs.messages.back().title, "This file is missing or corrupt");
  }
}

TEST_F(PipeDataReader, ReadsTheShippedFilesWithoutAReport) {
  int readings = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZEB_DATA_DIR "/pipedata")) {
    for (const int rule_type : {kRulesGeneral, kRulesNfpa, kRulesFm}) {
      SCOPED_TRACE(entry.path().filename().string());
      project.RuleType = rule_type;
      Read(RealFile(entry.path()));
      EXPECT_TRUE(project.Faults.empty()) << project.Faults.front().problem;
      EXPECT_EQ(project.StopFlag, 0);
      EXPECT_GT(project.EqLengths[4][1], 0.0F) << "the tee has no length";
      ++readings;
    }
  }
  EXPECT_GE(readings, 9);
}

struct PipeDataWriter : PipeDataReader {
  const std::string backup = folder + "/TEST.BAK";
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
