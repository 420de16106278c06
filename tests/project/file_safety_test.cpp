// Copies of project files, and what the user is told when a file fails.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "project/backup.h"
#include "project/empty_tmp.h"
#include "project/file_failures.h"
#include "project/project_bundle.h"
#include "services/text.h"
#include "support/project_text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct Backup : testing::Test, TestSession {
  void Make(bool ask = false) { EXPECT_TRUE(MakeBackup(session, "/jobs/a.b.zeb", "ZE!", ask)); }
};

TEST_F(Backup, CopiesIntoTmpAndBesideTheFile) {
  files.Put("/jobs/a.b.zeb", "new");
  files.Put("/jobs/a.b.ZE!", "old");
  files.Put("/prog/tmp/a.b.zeb", "older");
  Make();
  EXPECT_EQ(files.Bytes("/jobs/a.b.ZE!"), "new");
  EXPECT_EQ(files.Bytes("/prog/tmp/a.b.zeb"), "new");
  EXPECT_EQ(machine.trashed, Texts{"/prog/tmp/a.b.zeb"});
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(Backup, CopiesNothingWhenTheUserKeepsTheOldOneOrThereIsNoFile) {
  Make();
  EXPECT_TRUE(files.AllFiles().empty());
  files.Put("/jobs/a.b.zeb", "new");
  files.Put("/jobs/a.b.ZE!", "old");
  dialogs.answers = {Answer::kNo};
  Make(true);
  EXPECT_EQ(files.Bytes("/jobs/a.b.ZE!"), "old");
  EXPECT_FALSE(files.Has("/prog/tmp/a.b.zeb"));
  EXPECT_EQ(dialogs.messages[0].text, "The backup file already exist, shall I replace it? ");
}

TEST_F(Backup, OpeningABackupDoesNotTrashIt) {
  for (const char* path : {"/prog/tmp/job.zeb", "/jobs/JOB.ZE!"}) {
    files.Put(path, "only copy");
    MakeBackup(session, path, "ZE!", false);
    EXPECT_EQ(files.Bytes(path), "only copy");
  }
  EXPECT_TRUE(machine.trashed.empty());
}

TEST_F(Backup, AReadOnlyFolderIsToldAndPassedOver) {
  files.Put("/jobs/a.b.zeb", "new");
  files.SetReadOnly("/jobs");
  Make();
  EXPECT_EQ(files.Bytes("/prog/tmp/a.b.zeb"), "new");
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_TRUE(Contains(dialogs.messages[0].text, "in ZEB.Open_Save.MakeBackup at line 70"));
}

TEST_F(Backup, EmptyingTmpLeavesOtherFiles) {
  for (const char* name : {"a.zeb", "b.BAK", "c.ze!", "notes.txt", "zeb"}) {
    files.Put("/prog/tmp/" + std::string(name), "");
  }
  dialogs.answers = {Answer::kNo};
  EmptyTmpFolder(session);
  EXPECT_EQ(files.AllFiles().size(), 5U);
  EmptyTmpFolder(session);
  EXPECT_EQ(files.AllFiles(), (Texts{"/prog/tmp/notes.txt", "/prog/tmp/zeb"}));
}

TEST_F(Backup, TheSupportBundleLeavesTheProjectUnsaved) {
  project.DataChanged = 1;
  SetLines(project, {"item"});
  savePrjDataToZIP(session);
  EXPECT_EQ(project.DataChanged, 1);
  const auto& entries = archive.archives["/prog/ZEB_prj_err_dat.zip"].entries;
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].name, "22112026090507.zeb");
  EXPECT_EQ(entries[0].bytes, files.Bytes("/prog/22112026090507.zeb"));
  EXPECT_TRUE(entries[0].bytes.ends_with("\r\nitem\r\nEND\r\n"));
}

TEST(FileFailures, EachNumberHasItsBox) {
  const std::tuple<int, ShownBox, MessageButtons> cases[] = {
      {61, {"Drive File Error", "Disk or device is full! \r\n"}, MessageButtons::kRetryCancel},
      {70, {"Disk File Error", "Permission denied"}, MessageButtons::kOk},
      {9, {"ZEB", "Subscript out of range\r\n 9ZEB at line 30"}, MessageButtons::kOk}};
  for (const auto& [number, box, buttons] : cases) {
    TestSession test;
    test.session.project.ProductName = "ZEB";
    test.dialogs.answers = {Answer::kCancel};
    const RuntimeFailure failure(number);
    EXPECT_FALSE(RunFileStatement(test.session, "X.Y", 30, [&] { throw failure; }));
    ASSERT_EQ(test.dialogs.Shown(), Boxes{box});
    EXPECT_EQ(test.dialogs.messages[0].buttons, buttons) << number;
    EXPECT_TRUE(Contains(test.files.Bytes("/prog/ZEB_error.log"), std::to_string(number)));
  }
}

TEST(FileFailures, RetriesAsLongAsTheUserAsks) {
  TestSession test;
  int tries = 0;
  test.dialogs.answers = {Answer::kRetry, Answer::kRetry};
  EXPECT_TRUE(RunFileStatement(test.session, "X.Y", 30, [&] {
    if (++tries < 3) throw RuntimeFailure(failure::kDiskFull);
  }));
  EXPECT_EQ(tries, 3);
  EXPECT_FALSE(test.files.Has("/prog/ZEB_error.log"));
}

}  // namespace
}  // namespace zeb::test
