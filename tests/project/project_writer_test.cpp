#include "project/project_writer.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "project/project_reader.h"
#include "support/project_text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

constexpr const char* kPath = "/jobs/job.zeb";

// A project of a pipe, a deleted one, a comment and a head code in use.
struct ProjectWriter : testing::Test, TestSession {
  ProjectWriter() {
    project.ProjectPath = "/JOBS/JOB.ZEB";
    project.SaveFormat = 3;
    session.Identifier = "ID7";
    files.PutFolder("/jobs");
    session.RealPaths["/JOBS/JOB.ZEB"] = kPath;
    SetLines(project, Joined(NumberedItems(), {"1 2 50 1.0 N  ", "Z!Z! 2 3", "' note", "END"}));
    project.HeadCodeCount = 1;
    project.HeadCodeLines[1] = "01 15.0  80.00   0.50 STD1        /JOBS/JOB.ZEB";
  }

  const std::string code = "01 15.0  80.00   0.50 STD1    ";
  const Texts lines = Joined(NumberedItems(), {"1 2 50 1.0 N", "' note", "END"});
};

TEST_F(ProjectWriter, WritesEachMode) {
  project.SupplyCount = 2;
  project.SupplyNames[1] = "None";
  project.SupplyNames[2] = " item 10 ";
  project.SupplyTable[2][1] = 2.5F;
  project.SupplyTable[2][16] = -1.0F;
  const std::string record = "item 10|0|2.5|0|0|0|0|0|0|0|0|0|0|0|0|0|0|-1";
  const std::string stamp = "ID7,22/11/2026 09:05:07,";
  const std::tuple<SaveMode, Texts, Texts> cases[] = {
      {SaveMode::kLinesOnly, {stamp + ","}, {}},
      {SaveMode::kVersion1, {stamp + "00100000022,1"}, {code}},
      {SaveMode::kVersion2, {stamp + "00100000022,2", "USER,COMPUTER", "", ""}, {code}},
      {SaveMode::kVersion3, {stamp + "00100000022,3", "USER,COMPUTER", "", ""}, {code}},
      {SaveMode::kPumpRecord, {stamp + "00100000022,3", "USER,COMPUTER", record, ""}, {code}}};
  for (const auto& [mode, head, codes] : cases) {
    EXPECT_TRUE(SaveProject(session, mode));
    EXPECT_EQ(files.Bytes(kPath), FileText(Joined(Joined(head, lines), codes))) << head[0];
  }
}

TEST_F(ProjectWriter, AnEndIsWrittenWhereItStandsAndAddedWhenItIsNotTheLastLine) {
  const Texts items = NumberedItems();
  const std::tuple<Texts, Texts, Texts> cases[] = {
      {{"", "1", "end", "  "}, {"1", "end", "END"}, {"1", "end", "END"}},
      {{"1", "END", "2"}, {"1", "END", "2", "END"}, {"1", "2", "END"}},
      {{"1", "ENDING", "END  "}, {"1", "ENDING", "END"}, {"1", "END"}}};
  for (const auto& [given, written, written_in_mode_0] : cases) {
    SetLines(project, Joined(items, given));
    SaveProject(session, SaveMode::kVersion1);
    EXPECT_TRUE(files.Bytes(kPath).ends_with(FileText(Joined(Joined(items, written), {code}))));
    SaveProject(session, SaveMode::kLinesOnly);
    EXPECT_TRUE(files.Bytes(kPath).ends_with(FileText(Joined(items, written_in_mode_0))));
  }
}

TEST_F(ProjectWriter, WhoWroteTheFileFirstStaysNamedInIt) {
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"FIRST", "1/2/2003", "2", "FIRST,1/2/2003,"},
      {"FIRST", "1/2/2003", "", "ID7,22/11/2026 09:05:07,"},
      {"", "1/2/2003", "3", "ID7,1/2/2003,"},
      {"09:41", "1/2/1995", "x", "ID7,1/2/1995,"}};  // read back, it would be legacy
  for (const auto& [origin, stamp, version, head] : cases) {
    project.HeaderOrigin = origin;
    project.HeaderStamp = stamp;
    project.HeaderVersion = version;
    SaveProject(session, SaveMode::kVersion3);
    EXPECT_TRUE(files.Bytes(kPath).starts_with(head)) << files.Bytes(kPath).substr(0, 40);
  }
}

TEST_F(ProjectWriter, WhatIsSavedReadsBack) {
  project.DataChanged = 2;
  project.AutoSavePending = 1;
  SaveProject(session, SaveMode::kVersion3);
  EXPECT_EQ(project.DataChanged, 0);
  EXPECT_EQ(project.AutoSavePending, 0);
  EXPECT_EQ(project.UndoDescription, "Data saved");
  EXPECT_EQ(shell.pictures[Panel::kSaveState], kPictureSaved);
  ReadProject(session);
  EXPECT_EQ(LinesOf(project), lines);
}

// Whatever operation fails or is the last one of a killed program.
TEST_F(ProjectWriter, AtAnyMomentTheOldFileOrTheNewOneStandsWhole) {
  const std::string old_bytes(1000, 'o');
  for (const bool kill : {false, true}) {
    int step = 0;
    bool disturbed = true;
    while (disturbed) {
      files.Put(kPath, old_bytes);
      dialogs.messages.clear();
      dialogs.answers.assign(20, Answer::kCancel);
      project.DataChanged = 1;
      kill ? files.KillAt(++step) : files.FailAt(++step, failure::kDiskFull);
      bool saved = false;
      bool killed = false;
      try {
        saved = SaveProject(session, SaveMode::kVersion3);
      } catch (const MemoryFileSystem::Killed&) {
        killed = true;
      }
      files.StopFailing();
      disturbed = killed || !dialogs.messages.empty();
      const std::string now = files.Bytes(kPath);
      EXPECT_TRUE(now == old_bytes || now.ends_with(code + "\r\n")) << step;
      EXPECT_EQ(project.DataChanged == 0, saved) << step;
      EXPECT_TRUE(!saved || now != old_bytes) << step;
      const std::string backup = files.Bytes("/jobs/job.ZE!");
      EXPECT_TRUE(backup.empty() || backup == old_bytes) << step;
    }
    EXPECT_GT(step, 10);
  }
}

TEST_F(ProjectWriter, ACheckedCopyHoldsTheComposedPipes) {
  Texts items = NumberedItems();
  items[1] = "";
  SetLines(project, Joined(items, {"as typed", "' note", "END"}));
  project.PipeCount = 3;
  project.PipeError[2] = kPipeDeleted;
  commands.on_compose = [&](int pipe) {
    EXPECT_EQ(project.SavedCopyPath, "/jobs/copy.zeb");
    project.ComposedLine = "pipe " + std::to_string(pipe);
  };
  EXPECT_TRUE(SaveCheckedCopy(session, "/jobs/copy.zeb"));
  EXPECT_EQ(files.Bytes("/jobs/copy.zeb"),
            FileText(Joined(
                Joined({"ID7,22/11/2026 09:05:07,00100000021,3", "USER,COMPUTER", "", ""}, items),
                {"pipe 1", "pipe 3", "END", code})));
  EXPECT_EQ(project.SavedCopyPath, "");
  EXPECT_EQ(project.PipeLines[19], "as typed");
  EXPECT_EQ(files.AllFiles().size(), 1U);
}

}  // namespace
}  // namespace zeb::test
