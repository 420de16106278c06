#include "lifecycle/recovery.h"

#include <gtest/gtest.h>

#include "support/networks.h"
#include "support/test_session.h"

namespace zeb {
namespace {

constexpr char kProject[] = "/docs/My ZEB/Projects/job.zeb";
constexpr char kCopy[] = "/config/ZEB/recovery.zeb";

// One run of the program on a disk that outlives it.
struct ProgramRun {
  explicit ProgramRun(test::TestSession& outside_in) : outside(outside_in) {}

  void Edit(const std::string& project_name) {
    outside.session.project.PipeLines[1] = project_name;
    outside.session.project.DataChanged = 1;
    recovery.Keep();
  }

  test::TestSession& outside;
  Recovery recovery{outside.session};
};

class RecoveryTest : public testing::Test {
 protected:
  // A session with an open project of one changed line, then cut off.
  void LoseSession() {
    test::TestSession lost;
    Project& project = lost.session.project;
    project.ProductName = "ZEB";
    project.ProjectPath = kProject;
    project.LineCount = 20;
    for (int line = 1; line <= 18; ++line) project.PipeLines[line] = "---";
    project.PipeLines[19] = "1 2 50 3.0 E 1 0";
    project.PipeLines[20] = "END";
    project.HeadCodeCount = 1;
    project.HeadCodeLines[1] = "01 15.0  80.00   0.50 STD1";
    ProgramRun run(lost);
    run.Edit("Lost title");
    copy_ = lost.files.ReadFile(kCopy);
    note_ = lost.files.ReadFile("/config/ZEB/recovery.txt");
  }

  bool Offer(Answer answer) {
    next_.session.project.ProductName = "ZEB";
    next_.files.WriteFile(kCopy, copy_);
    next_.files.WriteFile("/config/ZEB/recovery.txt", note_);
    next_.dialogs.answers = {answer};
    return Recovery(next_.session).Offer();
  }

  std::string copy_;
  std::string note_;
  test::TestSession next_;
};

TEST_F(RecoveryTest, BringsTheChangesBackUnderTheProjectsOwnName) {
  LoseSession();
  EXPECT_TRUE(Offer(Answer::kYes));
  const Project& project = next_.session.project;
  EXPECT_EQ(project.PipeLines[1], "Lost title");
  EXPECT_EQ(project.ProjectPath, "/DOCS/MY ZEB/PROJECTS/JOB.ZEB");
  EXPECT_GT(project.DataChanged, 0) << "closing asks to save";
  EXPECT_NE(next_.dialogs.messages[0].text.find("22/11/2026 09:05:07"), std::string::npos);
}

TEST_F(RecoveryTest, DropsTheCopyThatTheUserDoesNotWant) {
  LoseSession();
  EXPECT_FALSE(Offer(Answer::kNo));
  EXPECT_FALSE(next_.files.FileExists(kCopy));
  EXPECT_FALSE(Recovery(next_.session).Offer()) << "and asks no more";
}

TEST_F(RecoveryTest, KeepsNewSuppliesAtOnce) {
  Project& project = next_.session.project;
  const std::string& path = next_.session.folders.SessionFile;
  Recovery recovery(next_.session);
  recovery.Offer();
  recovery.Keep();
  EXPECT_FALSE(next_.files.FileExists(path)) << "nothing is new";
  project.SupplyCount = 1;
  project.SupplyNames[1] = "Diesel pump";
  recovery.Keep();
  EXPECT_NE(next_.files.ReadFile(path).find("PUMP=Diesel pump"), std::string::npos);
}

TEST_F(RecoveryTest, LeavesNothingBehindOnceSaved) {
  ProgramRun run(next_);
  next_.session.project.LineCount = 20;
  run.Edit("Title");
  EXPECT_TRUE(next_.files.FileExists(kCopy));
  next_.session.project.DataChanged = 0;
  run.recovery.Keep();
  EXPECT_FALSE(next_.files.FileExists(kCopy));
}

}  // namespace
}  // namespace zeb
