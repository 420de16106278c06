#include "lifecycle/project_commands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "check/check_project.h"
#include "lifecycle/closedown.h"
#include "model/model_state.h"
#include "project/project_data_form.h"
#include "project/project_writer.h"
#include "project/undo_history.h"
#include "support/networks.h"
#include "support/small_pipe_data.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::TestSession;

struct ProjectCommands : testing::Test, TestSession {
  ProjectCommands() {
    project.ProductName = "ZEB";
    project.SaveFormat = 3;
    files.Put("/jobs/job.zeb", test::ProjectFile({" 1 2 50 1.0 N"}));
    files.Put("/prog/zeblast.txt", "old");
  }
  void OpenAndChange() {
    OpenProjectFile(session, "/jobs/job.zeb");
    project.DataChanged = 1;
    dialogs.messages.clear();
  }
};

TEST_F(ProjectCommands, NewStartsFromTheLibrary) {
  OpenAndChange();
  files.Put("/prog/Library/user.hcl",
            "01 one\r\n   \r\n07 seven, longer than thirty characters\r\n");
  dialogs.answers = {Answer::kNo};
  shell.panels[Panel::kCounts] = "of the project before";
  Fnew(session);
  EXPECT_EQ(shell.panels[Panel::kCounts], "");
  EXPECT_EQ(shell.panels[Panel::kView], "Plan");
  EXPECT_EQ(project.ProjectPath, kUntitled);
  EXPECT_EQ(project.LineCount, 0);
  EXPECT_EQ(project.PipeLines[1], "");
  EXPECT_EQ(project.HeaderOrigin, "");
  EXPECT_EQ(project.HeadCodeCount, 2);
  EXPECT_EQ(project.HeadCodeLines[2], "07 seven, longer than thirty characters");
  EXPECT_EQ(project.NewProjectFlag, 1);
  EXPECT_EQ(project.UndoSeq, 1);
  EXPECT_EQ(project.UndoNames[1], "New ZEB Project... at 09:05:07");
  EXPECT_FALSE(shell.features[Feature::kDrawMenu]);
  EXPECT_TRUE(shell.features[Feature::kUndo]);
}

TEST_F(ProjectCommands, AFileThatCannotBeReadLeavesNothingToUndo) {
  OpenProjectFile(session, "/jobs/job.zeb");
  files.Put("/jobs/note.zeb", "no project");
  OpenProjectFile(session, "/jobs/note.zeb");
  EXPECT_FALSE(shell.features[Feature::kUndo]);
  FundoOneStep(session);
  EXPECT_EQ(project.LineCount, 0);
  EXPECT_EQ(project.DataChanged, 0);
}

TEST_F(ProjectCommands, AnEmptyLibraryGivesOneHeadCode) {
  files.Put("/prog/Library/user.hcl", "\r\n  \r\n");
  Fnew(session);
  EXPECT_EQ(dialogs.Titles(), std::vector<std::string>{"Error: Head Codes"});
  EXPECT_EQ(project.HeadCodeCount, 1);
  EXPECT_EQ(project.HeadCodeLines[1], "01 15.0  80.00   0.50 STD1");
}

TEST_F(ProjectCommands, OpenReadsChecksAndRemembers) {
  session.SuppressErrors = true;
  files.PutFolder("/docs/My ZEB/Projects");
  dialogs.open_answers = {"/jobs/job.zeb"};
  Fopen(session);
  EXPECT_EQ(dialogs.opens[0].folder, "/docs/My ZEB/Projects");
  EXPECT_EQ(project.ProjectPath, "/JOBS/JOB.ZEB");
  EXPECT_EQ(project.LastProject, "/JOBS/JOB.ZEB");
  EXPECT_EQ(project.ProjectFolder, "/jobs");
  EXPECT_EQ(session.settings.GetIniValue(setting::kDirPath), "/jobs");
  EXPECT_EQ(commands.checks, std::vector<CheckMode>{CheckMode::kComposeLines});
  EXPECT_EQ(shell.recent_files, std::vector<std::string>{"/jobs/job.zeb"});
  EXPECT_EQ(shell.panels[Panel::kErrors], "[OFF]");
}

TEST_F(ProjectCommands, NothingReplacesAProjectThatCannotBeSaved) {
  OpenAndChange();
  files.SetReadOnly("/jobs");
  for (auto* command : {&Fnew, &Fopen}) {
    dialogs.open_answers = {"/jobs/job.zeb"};
    dialogs.answers.assign(20, Answer::kCancel);
    dialogs.answers.front() = Answer::kYes;
    (*command)(session);
    EXPECT_EQ(project.ProjectPath, "/JOBS/JOB.ZEB");
    EXPECT_EQ(project.DataChanged, 1);
  }
  EXPECT_TRUE(dialogs.opens.empty());
}

TEST_F(ProjectCommands, TheWindowAsksForTheFirstPipeOfANewProjectOnce) {
  files.Put("/prog/pipedata/STD_PIPE.PDT", test::SmallPipeData().Text());
  commands.on_check = [&](CheckMode mode) { CheckProject(session, mode); };
  shell.OnForm<ProjectDataForm>("ZEBF02", [](ProjectDataForm& form) { form.cmdApply_Click(); });
  Fnew(session);
  EXPECT_EQ(project.LineCount, 18);
  shell.features.clear();
  EXPECT_TRUE(Form_Activate(session));
  EXPECT_EQ(project.CommandMode, 1);
  EXPECT_EQ(shell.panels[Panel::kMode], "ADD");
  EXPECT_EQ(shell.panels[Panel::kHint], "Plan - No pipes yet specified");
  EXPECT_FALSE(Form_Activate(session));
  EXPECT_FALSE(shell.features.contains(Feature::kDrawMenu));
  project.ModelState = model_state::kStale;
  EXPECT_FALSE(Form_Activate(session));
  EXPECT_FALSE(shell.features.at(Feature::kDrawMenu));
}

TEST_F(ProjectCommands, ClosingSavesAndWritesTheSessionOnce) {
  OpenAndChange();
  EXPECT_TRUE(closedown(session));
  EXPECT_EQ(dialogs.Titles(), std::vector<std::string>{"Save ZEB Project Data"});
  const std::string written = files.Bytes("/prog/zeblast.txt");
  EXPECT_TRUE(written.starts_with(",,09:05,\r\n/JOBS/JOB.ZEB\r\n22/11/2026\r\n0\r\n"));

  project.LastProject = "later";
  project.DataChanged = 1;
  EXPECT_TRUE(Fexit(session));
  EXPECT_EQ(files.Bytes("/prog/zeblast.txt"), written);
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(ProjectCommands, ClosingEndsWhereTheUserWantsToStay) {
  project.ProjectPath = kUntitled;
  dialogs.answers = {Answer::kNo};
  EXPECT_FALSE(Fexit(session));
  EXPECT_EQ(project.ClosedownDone, 0);
  EXPECT_EQ(files.Bytes("/prog/zeblast.txt"), "old");
}

}  // namespace
}  // namespace zeb
