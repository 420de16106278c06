#include "services/file_writing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/failure_of.h"
#include "support/memory_file_system.h"

namespace zeb::test {
namespace {

const std::string kOld = "the old bytes";
const std::string kNew = "the new and longer bytes";

struct FileWriting : testing::Test {
  FileWriting() { files.Put("/jobs/a.zeb", kOld); }

  MemoryFileSystem files;
};

// One failure at each operation in turn, until the writing gets by: the old file or the new one
// stands, and nothing beside it.
TEST_F(FileWriting, AFailureAtAnyOperationLeavesAWholeFile) {
  int failures = 0;
  for (int operation = 1;; ++operation) {
    files.Put("/jobs/a.zeb", kOld);
    files.FailAt(operation, 61);
    const int failed = FailureOf([&] { WriteFileSafely(files, "/jobs/a.zeb", kNew); });
    ASSERT_EQ(files.AllFiles(), std::vector<std::string>{"/jobs/a.zeb"}) << operation;
    const std::string stands = files.Bytes("/jobs/a.zeb");
    if (failed == 0) {
      EXPECT_EQ(stands, kNew);
      break;
    }
    EXPECT_EQ(failed, 61);
    EXPECT_TRUE(stands == kOld || stands == kNew) << operation << ": " << stands;
    ++failures;
  }
  EXPECT_GE(failures, 3) << "write, rename and flush can fail";
}

TEST_F(FileWriting, AKillAtAnyOperationLeavesAWholeFileAndTheNextSaveTidiesUp) {
  bool done = false;
  for (int operation = 1; !done; ++operation) {
    files.Put("/jobs/a.zeb", kOld);
    files.KillAt(operation);
    try {
      WriteFileSafely(files, "/jobs/a.zeb", kNew);
      done = true;
    } catch (const MemoryFileSystem::Killed&) {
      ASSERT_LT(operation, 10);
    }
    files.StopFailing();
    const std::string stands = files.Bytes("/jobs/a.zeb");
    EXPECT_TRUE(stands == kOld || stands == kNew) << operation << ": " << stands;
    WriteFileSafely(files, "/jobs/a.zeb", kNew);
    EXPECT_EQ(files.AllFiles(), std::vector<std::string>{"/jobs/a.zeb"}) << operation;
  }
}

TEST_F(FileWriting, RefusesWhatMustNotBeReplaced) {
  files.SetReadOnly("/jobs/a.zeb");
  EXPECT_EQ(FailureOf([&] { WriteFileSafely(files, "/jobs/a.zeb", kNew); }), 75);
  EXPECT_EQ(FailureOf([&] { WriteFileSafely(files, "/jobs", kNew); }), 75);
  EXPECT_EQ(FailureOf([&] { WriteFileSafely(files, "/none/a.zeb", kNew); }), 76);
  EXPECT_EQ(files.Bytes("/jobs/a.zeb"), kOld);
}

TEST_F(FileWriting, AFailedCopyKeepsTheOldOne) {
  files.Put("/jobs/b.zeb", kNew);
  files.FailAt(2, 61);
  EXPECT_EQ(FailureOf([&] { CopyFileSafely(files, "/jobs/b.zeb", "/jobs/a.zeb"); }), 61);
  EXPECT_EQ(files.Bytes("/jobs/a.zeb"), kOld);
  files.StopFailing();
  CopyFileSafely(files, "/jobs/b.zeb", "/jobs/a.zeb");
  EXPECT_EQ(files.Bytes("/jobs/a.zeb"), kNew);
}

}  // namespace
}  // namespace zeb::test
