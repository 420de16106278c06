#include "project/undo_history.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "project/project_writer.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct UndoHistory : testing::Test, TestSession {
  UndoHistory() {
    session.AutoSave = false;
    project.ProjectPath = kUntitled;
  }

  // Stores versions `first` to `last`; version n has n lines, of which the last is "line n".
  void Store(int first, int last) {
    for (int version = first; version <= last; ++version) {
      project.LineCount = version;
      project.PipeLines[version] = "line " + std::to_string(version);
      project.UndoDescription = "change " + std::to_string(version);
      Revert(session);
    }
  }
};

TEST_F(UndoHistory, ListsTheLastFiftyAndGoesBackToAnyOfThem) {
  Store(1, 53);
  project.SelectedHeadsMode = 1;
  UndoForm form(session);
  ASSERT_EQ(form.Rows.size(), 50U);
  EXPECT_EQ(form.Rows.front(), "change 4 at 09:05:07");
  EXPECT_EQ(form.Rows.back(), "change 53 at 09:05:07");
  EXPECT_EQ(form.Selected, 49);
  EXPECT_FALSE(form.cmbUndoEnabled);

  project.PipeLines[4] = "spoilt";
  form.lstUndo_Click(0);
  EXPECT_TRUE(form.cmbUndoEnabled);
  form.cmbUndo_Click();
  EXPECT_EQ(project.UndoSeq, 4);
  EXPECT_EQ(project.LineCount, 4);
  EXPECT_EQ(project.PipeLines[4], "line 4");
  EXPECT_EQ(project.DataChanged, 1);
  EXPECT_EQ(project.SelectedHeadsMode, 0);
  EXPECT_EQ(commands.checks, std::vector<CheckMode>{CheckMode::kKeepLines});
  EXPECT_EQ(shell.redraws, 1);
  EXPECT_EQ(shell.closed_forms, Texts{"frmUndo"});
}

// Versions 1 to 10 have given their slots to 51 to 60; what stands there comes back whole.
TEST_F(UndoHistory, AnOverwrittenVersionComesBackAsTheOneThatTookItsPlace) {
  Store(1, 60);
  UndoForm(session).lstUndo_DblClick(4);  // 15
  UndoForm(session).lstUndo_DblClick(0);  // 1, whose slot holds 51
  EXPECT_EQ(project.LineCount, 51);
  EXPECT_EQ(project.PipeLines[51], "line 51");
}

TEST_F(UndoHistory, TheSequenceStartsAgainBehindItsEnd) {
  Store(1, 1001);
  UndoForm form(session);
  EXPECT_EQ(form.Rows, Texts{"change 1001 at 09:05:07"});
}

TEST_F(UndoHistory, OneStepEndsAtTheFirstVersion) {
  Store(1, 3);
  FundoOneStep(session);
  FundoOneStep(session);
  EXPECT_EQ(project.LineCount, 1);
  FundoOneStep(session);
  EXPECT_EQ(project.UndoSeq, 1);
  EXPECT_EQ(project.LineCount, 1);
  EXPECT_EQ(commands.checks.size(), 2U);
}

TEST_F(UndoHistory, EveryFifthChangeSavesTheProject) {
  session.AutoSave = true;
  session.Backups = false;
  files.PutFolder("/jobs");
  project.ProjectPath = "/jobs/job.zeb";
  std::vector<int> saved_after;
  for (int change = 1; change <= 16; ++change) {
    files.StopFailing();
    Store(change, change);
    if (files.Operations() > 0) saved_after.push_back(change);
  }
  EXPECT_EQ(saved_after, (std::vector<int>{6, 11, 16}));
}

TEST_F(UndoHistory, NothingIsSavedWithoutAFileOrWithAutomaticSavingOff) {
  Store(1, 12);
  EXPECT_EQ(project.AutoSaveCounter, 0);
  session.AutoSave = true;
  Store(1, 12);
  EXPECT_EQ(project.AutoSaveCounter, 2);
  EXPECT_TRUE(files.AllFiles().empty());
}

}  // namespace
}  // namespace zeb::test
