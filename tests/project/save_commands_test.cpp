#include "project/save_commands.h"

#include <gtest/gtest.h>

#include <string>

#include "project/open_project.h"
#include "project/project_writer.h"
#include "project/save_question.h"
#include "services/text.h"
#include "support/networks.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct SaveCommands : testing::Test, TestSession {
  SaveCommands() {
    project.ProductName = "ZEB";
    project.SaveFormat = 3;
    session.AutoSave = false;
    files.Put("/jobs/job.zeb", ProjectFile({" 1 2 50 1.0 N"}));
  }

  void Open() {
    OpenProject(session, "/jobs/job.zeb");
    Change();
    dialogs.messages.clear();
  }
  void BeginUntitled() {
    project.ProjectPath = kUntitled;
    project.LineCount = 1;
    Change();
  }
  void Change() {
    project.PipeLines[1] = "changed";
    project.DataChanged = 1;
  }
  [[nodiscard]] bool Saved(const std::string& path) const {
    return Contains(files.Bytes(path), "changed");
  }
};

TEST_F(SaveCommands, TheQuestionDecidesAboutChanges) {
  for (const Answer answer : {Answer::kYes, Answer::kNo}) {
    Open();
    dialogs.answers = {answer};
    EXPECT_TRUE(CheckSaveChanges(session));
    EXPECT_EQ(dialogs.Titles(), Texts{"Save ZEB Project Data"});
    EXPECT_EQ(Saved("/jobs/job.zeb"), answer == Answer::kYes);
    EXPECT_EQ(project.DataChanged, 0);
    EXPECT_TRUE(CheckSaveChanges(session));  // nothing left to ask
    EXPECT_EQ(dialogs.messages.size(), 1U);
    files.Put("/jobs/job.zeb", ProjectFile({" 1 2 50 1.0 N"}));
  }
}

TEST_F(SaveCommands, PlainSaveNeverAsksAndLeavesNoPermission) {
  Open();
  Fsav(session);
  EXPECT_TRUE(Saved("/jobs/job.zeb"));
  Fsav(session);  // nothing to save
  EXPECT_EQ(project.AutoSavePending, 0);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SaveCommands, AnUntitledProjectIsNamed) {
  BeginUntitled();
  dialogs.save_answers = {"/other/New job.zeb"};
  files.PutFolder("/other");
  EXPECT_TRUE(CheckSaveChanges(session));
  EXPECT_EQ(project.ProjectPath, "/OTHER/NEW JOB.ZEB");
  EXPECT_TRUE(Saved("/other/New job.zeb"));
  EXPECT_EQ(shell.recent_files, Texts{"/other/New job.zeb"});
  EXPECT_EQ(session.settings.GetIniValue(setting::kProjFolder), "/other");
}

TEST_F(SaveCommands, AnUntitledProjectIsDroppedOnlyWhenTheUserSaysSo) {
  BeginUntitled();
  for (const Answer answer : {Answer::kNo, Answer::kYes}) {
    dialogs.answers = {answer};
    EXPECT_EQ(CheckSaveChanges(session), answer == Answer::kYes);
    EXPECT_EQ(dialogs.messages.back().title, "This data will not be saved");
    EXPECT_EQ(project.DataChanged, answer == Answer::kYes ? 0 : 1);
  }
}

TEST_F(SaveCommands, ADeclinedOverwriteIsNotMadeGoodByTheNextSave) {
  BeginUntitled();
  dialogs.save_answers = {"/jobs/job.zeb", ""};
  dialogs.answers = {Answer::kNo, Answer::kNo};
  EXPECT_FALSE(CheckSaveChanges(session));
  EXPECT_EQ(dialogs.messages[0].title, "/JOBS/JOB.ZEB already exists");
  Fsav(session);
  EXPECT_FALSE(Saved("/jobs/job.zeb"));
  EXPECT_EQ(project.ProjectPath, kUntitled);
}

TEST_F(SaveCommands, SaveAsContinuesOnTheNewFile) {
  Open();
  project.NewProjectFlag = 1;
  dialogs.save_answers = {"/jobs/copy.zeb"};
  Fsave(session);
  EXPECT_TRUE(Saved("/jobs/copy.zeb"));
  EXPECT_FALSE(Saved("/jobs/job.zeb"));
  EXPECT_EQ(project.ProjectPath, "/JOBS/COPY.ZEB");
  EXPECT_EQ(project.LineCount, 20);
  EXPECT_EQ(project.UndoSeq, 2);
  EXPECT_EQ(commands.checks.size(), 2U);
}

TEST_F(SaveCommands, SaveAsLeavesAnExistingFileWhenTheUserSaysNo) {
  Open();
  files.Put("/jobs/copy.zeb", "precious");
  dialogs.save_answers = {"/jobs/copy.zeb"};
  dialogs.answers = {Answer::kNo};
  Fsave(session);
  EXPECT_EQ(files.Bytes("/jobs/copy.zeb"), "precious");
  EXPECT_EQ(dialogs.Titles(), Texts{"Existing File Name"});
  EXPECT_EQ(project.ProjectPath, "/JOBS/JOB.ZEB");
}

TEST_F(SaveCommands, VersionsAreNumbered) {
  Open();
  for (const char* name : {"job_Ver.zeb", "job_Ver1.zeb", "job_Ver2.zeb"}) {
    FsaveVersion(session);
    EXPECT_TRUE(Saved(std::string("/jobs/") + name));
    EXPECT_EQ(dialogs.messages.back().text,
              std::string("The ZEB project has just been saved as:\r\n") + name);
  }
  EXPECT_EQ(project.ProjectPath, "/JOBS/JOB.ZEB");
  EXPECT_EQ(project.DataChanged, 1) << "the project's own file still lacks the change";
  EXPECT_EQ(shell.pictures[Panel::kSaveState], "disk_save_BW");

  OpenProject(session, "/jobs/job_Ver1.zeb");
  FsaveVersion(session);
  EXPECT_TRUE(files.Has("/jobs/job_Ver3.zeb"));
  project.ProjectPath = kUntitled;
  FsaveVersion(session);
  EXPECT_EQ(dialogs.messages.size(), 4U);
}

}  // namespace
}  // namespace zeb::test
