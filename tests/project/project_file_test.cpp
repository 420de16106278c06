// Project files, read and written.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

#include "model/model_state.h"
#include "project/project_reader.h"
#include "project/project_writer.h"
#include "support/networks.h"
#include "support/project_text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

constexpr const char* kPath = "/jobs/job.zeb";
const Texts kTail{"END", "01 15.0  80.00   0.50 STD1    "};

struct ProjectReader : testing::Test, TestSession {
  ProjectReader() {
    project.ProductName = "ZEB";
    project.ProjectPath = "/JOBS/JOB.ZEB";
    files.PutFolder("/jobs");
  }

  void Read(const std::string& bytes) {
    files.Put(kPath, bytes);
    ReadProject(session);
  }
  void Read(const Texts& head, const Texts& lines) { Read(FileText(Joined(head, lines))); }
};

TEST_F(ProjectReader, LeavesAFreshProject) {
  project.HeadOn[3] = 1;
  project.PipeCount = 9;
  Read({"ORIGIN,01/02/2003 04:05:06,00100000021,3", "user,computer", "", ""},
       Joined(NumberedItems(), kTail));
  EXPECT_EQ(project.LineCount, 19);
  EXPECT_EQ(project.PipeLines[18], "item 18");
  EXPECT_EQ(project.HeadCodeCount, 1);
  EXPECT_EQ(project.HeaderStamp, "01/02/2003 04:05:06");
  EXPECT_EQ(project.HeadOn[3], 0);
  EXPECT_EQ(project.PipeCount, 0);
  EXPECT_EQ(project.ModelState, model_state::kRead);
  EXPECT_EQ(project.AddPipeTexts[8], "3");
  EXPECT_EQ(shell.titles.back(), "ZEB: JOB.ZEB");
  EXPECT_TRUE(shell.features[Feature::kSave]);
  EXPECT_FALSE(shell.busy_pointer);
  EXPECT_TRUE(dialogs.messages.empty());
}

// The same lines under every header and with every line end. A lower-case end is no END.
TEST_F(ProjectReader, TellsTheFormatsApart) {
  const Texts body = {"a", "", " b", "   ", "end"};
  const Texts tail = {" END ", "", "01 one", "END", std::string(31, 'x')};
  const Texts kept = {"a", "", "b", "", "end", "END"};
  const Texts dropped = {"a", "b", "", "end", "END"};
  const std::pair<Texts, Texts> cases[] = {{{"me,now,002,1"}, dropped},
                                           {{"me,now,002,2", "x", "y", "z"}, dropped},
                                           {{"me,now,002,3", "x", "y", "z"}, kept},
                                           {{"me,now,002,3X", "x", "y", "z"}, kept},
                                           {{"me,now,002,3,4", "x", "y", "z"}, kept},
                                           {{R"( "me",now, 002, "3")", "x", "y", "z"}, kept},
                                           {{"me", "now", "002", "3", "x", "y", "z"}, kept}};
  for (const auto& [head, expected] : cases) {
    for (const char* end : {"\r\n", "\r", "\n"}) {
      Read(ReplaceAll(FileText(Joined(Joined(head, body), tail)), kLineBreak, end));
      EXPECT_EQ(LinesOf(project), expected) << head[0];
      EXPECT_EQ(project.HeaderOrigin, "me") << head[0];
      EXPECT_EQ(Slots(project.HeadCodeLines, 1, 2),
                (Texts{"01 one                        ", std::string(30, 'x')}));
    }
  }
}

TEST_F(ProjectReader, ALegacyFileKeepsAllLinesAndTakesTheLibrarysHeadCodes) {
  files.Put("/prog/Library/USER.HCL", "01 first\r\n\r\n03 a line longer than thirty characters");
  Read({"12:30,01/02/1995,x,3"}, {"a", "", " b ", "END", "after"});
  EXPECT_EQ(LinesOf(project), (Texts{"a", "", "b", "END", "after"}));
  EXPECT_EQ(Slots(project.HeadCodeLines, 1, project.HeadCodeCount),
            (Texts{"01 first", "", "03 a line longer than thirty characters"}));
}

TEST_F(ProjectReader, TranslatesOldAuthorityNames) {
  Texts lines = NumberedItems();
  lines[4] = "AS2118.1, Standards Australia - Fire Sprinkler";
  Read({"me,now,001,2", "", "", ""}, Joined(lines, kTail));
  EXPECT_EQ(project.PipeLines[5], "AS2118.1 : Standards Australia - Fire Sprinkler");
}

TEST_F(ProjectReader, RefusesWhatItCannotRead) {
  const std::string rest = "\r\n\r\n\r\n\r\na\r\nEND\r\n01\r\n";
  const std::string head = "me,now,001,3\r\n\r\n\r\n\r\n";
  const std::string too_many_lines = head + FileText(Texts(kLastLine + 1, "x"));
  const std::string too_many_codes =
      head + "a\r\nEND\r\n" + FileText(Texts(kLastHeadCode + 1, "x"));
  const std::tuple<const char*, std::string, const char*> cases[] = {
      {"empty", "", "Disk File Error"},
      {"ends behind END", head + "a\r\nEND\r\n", "Disk File Error"},
      {"version 7", "me,now,001,7" + rest, "File Error - Unknown file format"},
      {"no version", "me,now,001,\r\n3 High Street", "File Error - Unknown file format"},
      {"no number", "me,now,x01,3" + rest, "ZEB"},
      {"many lines", too_many_lines, "ZEB"},
      {"many head codes", too_many_codes, "ZEB"},
      {"many head codes told", "me,now,401,3" + rest, "ZEB"},
      {"legacy without a library", "12:30,a,b,c\r\na\r\n", "Disk File Error"}};
  for (const auto& [what, bytes, title] : cases) {
    SCOPED_TRACE(what);
    dialogs.messages.clear();
    Read(bytes);
    EXPECT_EQ(project.LineCount, 0);
    EXPECT_EQ(project.ModelState, model_state::kStale);
    EXPECT_EQ(dialogs.Titles(), Texts{title});
    EXPECT_FALSE(shell.features[Feature::kSave]);
    EXPECT_FALSE(shell.busy_pointer);
  }
}

TEST_F(ProjectReader, TakesStrangeBytesAsTheyAre) {
  const std::string binary("a\0b\xff", 4);
  const std::string huge(2'000'000, 'x');
  Read({"me,now,001,3", "", "", ""}, {binary, huge, "c", "d", "e", "END", "1"});
  EXPECT_EQ(LinesOf(project), (Texts{binary, huge, "c", "d", "e", "END"}));
}

// Whatever a project file is cut off at, it is read or refused, and memory stays in order.
TEST_F(ProjectReader, SurvivesAFileCutAnywhere) {
  const std::string whole = ProjectFile({"1 2 50 1.0 N", "2 3 50 1.0 N"});
  for (std::size_t size = 0; size < whole.size(); ++size) {
    Read(whole.substr(0, size));
    EXPECT_LE(project.LineCount, 21) << size;
  }
}

TEST_F(ProjectReader, StoresTwoVersionsAndBacksUpTheFile) {
  session.AutoSave = true;
  project.AutoSaveCounter = 5;  // an automatic save is due, but there is nothing to save
  const std::string bytes = ProjectFile({});
  Read(bytes);
  EXPECT_EQ(project.UndoSeq, 2);
  EXPECT_EQ(Slots(project.UndoNames, 1, 2), Texts(2, "As read in from disk at 09:05:07"));
  for (const char* path : {"/jobs/job.zeb", "/jobs/job.ZE!", "/prog/tmp/job.zeb"}) {
    EXPECT_EQ(files.Bytes(path), bytes) << path;
  }
}

TEST_F(ProjectReader, ANewProjectHasNoFileToRead) {
  project.NewProjectFlag = 1;
  project.PipeLines[1] = "typed";
  ReadProject(session);
  EXPECT_EQ(project.PipeLines[1], "typed");
  EXPECT_EQ(project.ModelState, model_state::kRead);
  EXPECT_TRUE(files.AllFiles().empty());
}

// A project of a pipe, a deleted one, a comment and a head code in use.
struct ProjectWriter : ProjectReader {
  ProjectWriter() {
    project.SaveFormat = 3;
    session.Identifier = "ID7";
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
