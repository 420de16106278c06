#include "project/backup.h"

#include <gtest/gtest.h>

#include <string>

#include "project/empty_tmp.h"
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

}  // namespace
}  // namespace zeb::test
