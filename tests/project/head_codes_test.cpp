#include "project/head_codes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "project/head_code_editor.h"
#include "support/failure_of.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct HeadCodes : testing::Test, TestSession {
  HeadCodes() { project.ProjectPath = "/JOBS/A.ZEB"; }

  void SetLines(const Texts& lines) {
    project.HeadCodeLines.Clear();
    project.HeadCodeCount = 0;
    for (const std::string& line : lines) AppendHeadCodeLine(project, line);
  }
  void Fill(int count) {
    SetLines(Texts(static_cast<std::size_t>(count), "01 15.0  80.00   0.50 STD1"));
  }
  void Enter(const char* size, const char* k, const char* pressure, const char* name) {
    editor.Size = size;
    editor.KFactor = k;
    editor.MinPressure = pressure;
    editor.HeadName = name;
    editor.cmdApplyHeadCode_Click();
  }

  HeadCodeEditor editor{session};
};

TEST_F(HeadCodes, ParsesFixedColumns) {
  //         1234567890123456789012345678901
  SetLines({"01 15.0  80.00   0.50 STD1", "02 20.0 115.00   0.35 ELO", "03  6.5  0.950  10.00 MIST",
            "04 15.0           0.50 NONE", "05 15.0  8x.00   0.50 BAD"});
  ParseHeadCodes(project);
  const float expected[][3] = {
      {15, 80, 0.5F}, {20, 115, 0.35F}, {6.5F, 0.95F, 10}, {15, 0, 0.5F}, {15, 8, 0.5F}};
  for (int code = 1; code <= 5; ++code) {
    SCOPED_TRACE(code);
    EXPECT_EQ(project.HeadCodeOrifice[code], expected[code - 1][0]);
    EXPECT_EQ(project.HeadCodeK[code], expected[code - 1][1]);
    EXPECT_EQ(project.HeadCodePress[code], expected[code - 1][2]);
    EXPECT_EQ(project.HeadCodeUses[code], 0.0F);
    EXPECT_EQ(project.HeadCodeMinArea[code], 9999.9F);
    EXPECT_EQ(project.HeadCodeMaxArea[code], 0.0F);
  }
}

// The values that the user types are those that the check reads, whatever the columns.
TEST_F(HeadCodes, TheCheckReadsWhatWasEntered) {
  struct Case {
    const char* size;
    const char* k;
    const char* pressure;
    float orifice_read;
  };
  const std::vector<Case> cases = {
      {"15", "80", "0.5", 15.0F},     {"8.5", "115", "0.35", 8.5F},
      {"20", "0.512", "0.05", 20.0F}, {"99.9", "999.99", "999.99", 99.9F},
      {"120", "360", "1.25", 120.0F}, {"0", "1", "0", 0.0F},
  };
  for (const int before : {0, 8, 98, 100, 299}) {
    for (const Case& head : cases) {
      SCOPED_TRACE(std::string(head.size) + " as code " + std::to_string(before + 1));
      Fill(before);
      editor.cmdAddHeadCode_Click();
      Enter(head.size, head.k, head.pressure, "NAME");
      const int code = before + 1;
      ASSERT_EQ(project.HeadCodeCount, code);
      ParseHeadCodes(project);
      EXPECT_EQ(project.HeadCodeOrifice[code], head.orifice_read);
      EXPECT_EQ(project.HeadCodeK[code], std::stof(head.k));
      EXPECT_EQ(project.HeadCodePress[code], std::stof(head.pressure));
      EXPECT_EQ(editor.HeadName, "NAME");
    }
  }
}

TEST_F(HeadCodes, AddedLinesHaveTheirFields) {
  editor.cmdAddHeadCode_Click();
  EXPECT_TRUE(editor.Editing());
  Enter("15", "80", "0.5", "STANDARD RESPONSE");
  EXPECT_FALSE(editor.Editing());
  EXPECT_EQ(project.HeadCodeLines[1], "01 15.0  80.00   0.50 STANDARD R  /JOBS/A.ZEB");
  EXPECT_EQ(editor.SelectedPosition(), 1);
  EXPECT_EQ(editor.Changes, 1);

  editor.cmdAddHeadCode_Click();
  Enter("15", "1200", "0.5", "TOO LARGE");  // its first digit would stand in a column not read
  EXPECT_TRUE(editor.Editing());
  EXPECT_EQ(dialogs.messages.size(), 1U);
  editor.cmdCancelHeadCode_Click();
  EXPECT_EQ(project.HeadCodeCount, 1);
  EXPECT_EQ(editor.KFactor, "80.00");
}

TEST_F(HeadCodes, TheListEndsAt400) {
  Fill(400);
  editor.cmdAddHeadCode_Click();
  Enter("15", "80", "0.5", "STD");
  EXPECT_EQ(project.HeadCodeCount, 400);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text.substr(0, 22), "Subscript out of range");
}

// The editor takes code 100 for a wide one, the check for a narrow one.
TEST_F(HeadCodes, Code100IsReadDifferently) {
  Fill(99);
  editor.cmdAddHeadCode_Click();
  Enter("15", "80", "0.5", "STD");
  EXPECT_EQ(HeadCodeAt(project, 100).k, 80.0F);
  ParseHeadCodes(project);
  EXPECT_EQ(project.HeadCodeK[100], 0.0F);
}

TEST_F(HeadCodes, OnlyThisProjectsCodesAreEdited) {
  for (const char* path : {"", "[Untitled]", "/jobs/a.zeb", "/JOBS/A.ZEB.OLD", "/JOBS/B.ZEB"}) {
    SCOPED_TRACE(path);
    SetLines({"01 15.0  80.00   0.50 STD1        " + std::string(path)});
    editor.lstHeadCodes_Click(1);
    editor.cmdEdit_Click();
    EXPECT_EQ(editor.Editing(), path != std::string("/JOBS/B.ZEB"));
    editor.cmdCancelHeadCode_Click();
  }
}

TEST_F(HeadCodes, AnEditKeepsTheNumberAndThePosition) {
  SetLines({"01 15.0  80.00   0.50 STD1", "07 20.0 115.00   0.35 ELO"});
  editor.lstHeadCodes_Click(2);
  EXPECT_EQ(editor.KFactor, "115.00");
  editor.cmdEdit_Click();
  Enter("8", "57.5", "0.5", "RES");
  EXPECT_EQ(project.HeadCodeLines[1], "01 15.0  80.00   0.50 STD1");
  EXPECT_EQ(project.HeadCodeLines[2], "07  8.0  57.50   0.50 RES         /JOBS/A.ZEB");
}

TEST_F(HeadCodes, ALibraryIsAppendedUnderNewNumbers) {
  Fill(3);
  files.Put("/lib.hcl",
            "01 15.0  80.00   0.50 STD1        /JOBS/X.ZEB\r\n"
            "17   8.5 115.00   0.35 ELO\r\n"
            "\r\n"
            " 12 20.0 161.00   0.50 ESFR LONG NAME\r\n");
  dialogs.open_answers = {"/lib.hcl"};
  editor.cmdLoad_Click();
  ASSERT_EQ(project.HeadCodeCount, 7);
  EXPECT_EQ(project.HeadCodeLines[4], "04 15.0  80.00   0.50 STD1    ");
  EXPECT_EQ(project.HeadCodeLines[5], "05  8.5 115.00   0.35 ELO     ");
  EXPECT_EQ(project.HeadCodeLines[6], "06" + std::string(28, ' '));
  EXPECT_EQ(project.HeadCodeLines[7], "07 20.0 161.00   0.50 ESFR LON");
  EXPECT_EQ(dialogs.opens[0].title, "Load Head Code Library File");
  EXPECT_EQ(dialogs.opens[0].folder, session.folders.LibraryFolder);

  Fill(399);
  dialogs.open_answers = {"/lib.hcl"};
  editor.cmdLoad_Click();
  EXPECT_EQ(project.HeadCodeCount, 400);
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(HeadCodes, ALibraryIsOverwrittenOnlyOnYes) {
  SetLines({"01 15.0  80.00   0.50 STD1        /JOBS/A.ZEB"});
  files.Put("/lib.hcl", "old");
  for (const Answer answer : {Answer::kNo, Answer::kYes}) {
    dialogs.save_answers = {"/lib.hcl"};
    dialogs.answers = {answer};
    editor.cmdSave_Click();
    EXPECT_EQ(dialogs.messages.back().title, "Existing file name");
    EXPECT_EQ(dialogs.messages.back().text, "Do you wish to overwrite the existing file?  ");
    EXPECT_EQ(files.Bytes("/lib.hcl") == "old", answer == Answer::kNo);
  }
  EXPECT_EQ(files.Bytes("/lib.hcl"), "01 15.0  80.00   0.50 STD1        /JOBS/A.ZEB\r\n");
  EXPECT_EQ(dialogs.saves[0].file_name, "user.hcl");
}

struct Compacting : HeadCodes {
  void SetHeads(const std::vector<float>& codes) {
    int head = 0;
    for (const float code : codes) project.HeadCode[++head] = code;
    project.HeadCount = head;
  }
};

TEST_F(Compacting, KeepsTheCodesInUse) {
  SetLines({"01 15.0  80.00   0.50 STD1", "02 20.0 115.00   0.35 ELO         /JOBS/A.ZEB", "03 x",
            "04 x", "05 10.0  57.00   0.50 RES", "06 x"});
  SetHeads({5, 2, -1, 5});
  project.PipeCount = 3;
  project.PipeError[2] = kPipeDeleted;
  countHeads(session);
  ASSERT_EQ(project.HeadCodeCount, 2);
  EXPECT_EQ(project.HeadCodeLines[1], "01 20.0 115.00   0.35 ELO         ");
  EXPECT_EQ(project.HeadCodeLines[2], "02 10.0  57.00   0.50 RES");
  EXPECT_EQ(project.HeadCodeLines[3], "");
  EXPECT_EQ(project.HeadCode[1], 2.0F);
  EXPECT_EQ(project.HeadCode[2], 1.0F);
  EXPECT_EQ(project.HeadCode[3], -1.0F);
  EXPECT_EQ(project.HeadCode[4], 2.0F);
  EXPECT_EQ(commands.composed, (std::vector<int>{1, 3}));
  EXPECT_EQ(shell.redraws, 1);
}

TEST_F(Compacting, MovesLinesFromTheTenthOnByOneColumn) {
  std::vector<float> codes;
  for (int code = 1; code <= 11; ++code) codes.push_back(static_cast<float>(code));
  Fill(11);
  SetHeads(codes);
  countHeads(session);
  EXPECT_EQ(project.HeadCodeLines[9], "09 15.0  80.00   0.50 STD1");
  EXPECT_EQ(project.HeadCodeLines[10], " 10 15.0  80.00   0.50 STD1");
  countHeads(session);
  EXPECT_EQ(project.HeadCodeLines[10], " 10 15.0  80.00   0.50 STD1");
  ParseHeadCodes(project);
  EXPECT_EQ(project.HeadCodeK[10], 80.0F);
  EXPECT_EQ(project.HeadCodePress[10], 0.5F);
}

TEST_F(Compacting, WithoutHeadsDoesNothing) {
  Fill(3);
  SetHeads({-1});
  countHeads(session);
  EXPECT_EQ(project.HeadCodeCount, 3);
  EXPECT_EQ(shell.redraws, 0);
}

}  // namespace
}  // namespace zeb::test
