#include "project/head_codes.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "project/head_code_editor.h"
#include "support/slots.h"
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
  void Add(const char* size, const char* k, const char* pressure, const char* name) {
    editor.cmdAddHeadCode_Click();
    Enter(size, k, pressure, name);
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
  using Values = std::vector<float>;
  EXPECT_EQ(Slots(project.HeadCodeOrifice, 1, 5), (Values{15, 20, 6.5F, 15, 15}));
  EXPECT_EQ(Slots(project.HeadCodeK, 1, 5), (Values{80, 115, 0.95F, 0, 8}));
  EXPECT_EQ(Slots(project.HeadCodePress, 1, 5), (Values{0.5F, 0.35F, 10, 0.5F, 0.5F}));
  EXPECT_EQ(Slots(project.HeadCodeUses, 1, 5), Values(5, 0.0F));
  EXPECT_EQ(Slots(project.HeadCodeMinArea, 1, 5), Values(5, 9999.9F));
  EXPECT_EQ(Slots(project.HeadCodeMaxArea, 1, 5), Values(5, 0.0F));
}

// The values that the user types are those that the check reads, whatever the columns.
TEST_F(HeadCodes, TheCheckReadsWhatWasEntered) {
  const std::tuple<const char*, const char*, const char*, float> cases[] = {
      {"15", "80", "0.5", 15.0F},     {"8.5", "115", "0.35", 8.5F},
      {"20", "0.512", "0.05", 20.0F}, {"99.9", "999.99", "999.99", 99.9F},
      {"120", "360", "1.25", 120.0F}, {"0", "1", "0", 0.0F}};
  for (const int code : {1, 9, 99, 101, 300}) {
    for (const auto& [size, k, pressure, orifice_read] : cases) {
      SCOPED_TRACE(std::string(size) + " as code " + std::to_string(code));
      Fill(code - 1);
      Add(size, k, pressure, "NAME");
      ASSERT_EQ(project.HeadCodeCount, code);
      ParseHeadCodes(project);
      EXPECT_EQ(project.HeadCodeOrifice[code], orifice_read);
      EXPECT_EQ(project.HeadCodeK[code], std::stof(k));
      EXPECT_EQ(project.HeadCodePress[code], std::stof(pressure));
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

  Add("15", "1200", "0.5", "TOO LARGE");  // its first digit would stand in a column not read
  EXPECT_TRUE(editor.Editing());
  EXPECT_EQ(dialogs.messages.size(), 1U);
  editor.cmdCancelHeadCode_Click();
  EXPECT_EQ(project.HeadCodeCount, 1);
  EXPECT_EQ(editor.KFactor, "80.00");
}

TEST_F(HeadCodes, TheListEndsAt400) {
  Fill(400);
  Add("15", "80", "0.5", "STD");
  EXPECT_EQ(project.HeadCodeCount, 400);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_TRUE(dialogs.messages[0].text.starts_with("Subscript out of range"));
}

// The editor takes code 100 for a wide one, the check for a narrow one.
TEST_F(HeadCodes, Code100IsReadDifferently) {
  Fill(99);
  Add("15", "80", "0.5", "STD");
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
  EXPECT_EQ(Slots(project.HeadCodeLines, 1, 2),
            (Texts{"01 15.0  80.00   0.50 STD1", "07  8.0  57.50   0.50 RES         /JOBS/A.ZEB"}));
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
  EXPECT_EQ(project.HeadCodeCount, 7);
  EXPECT_EQ(Slots(project.HeadCodeLines, 4, 7),
            (Texts{"04 15.0  80.00   0.50 STD1    ", "05  8.5 115.00   0.35 ELO     ",
                   "06" + std::string(28, ' '), "07 20.0 161.00   0.50 ESFR LON"}));
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
    EXPECT_EQ(dialogs.Shown().back(),
              (ShownBox{"Existing file name", "Do you wish to overwrite the existing file?  "}));
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
  EXPECT_EQ(project.HeadCodeCount, 2);
  EXPECT_EQ(Slots(project.HeadCodeLines, 1, 3),
            (Texts{"01 20.0 115.00   0.35 ELO         ", "02 10.0  57.00   0.50 RES", ""}));
  EXPECT_EQ(Slots(project.HeadCode, 1, 4), (std::vector{2.0F, 1.0F, -1.0F, 2.0F}));
  EXPECT_EQ(commands.composed, (std::vector<int>{1, 3}));
  EXPECT_EQ(shell.redraws, 1);
}

TEST_F(Compacting, MovesLinesFromTheTenthOnByOneColumn) {
  Fill(11);
  SetHeads({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
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
