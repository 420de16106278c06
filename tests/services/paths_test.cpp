#include "services/paths.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "services/find_file.h"
#include "services/project_paths.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

TEST(PathsTest, SplitsAtEitherSeparator) {
  const struct {
    const char *path, *folder, *name, *changed;
  } cases[] = {{"/a/b.c/JOB.ZEB", "/a/b.c", "JOB.ZEB", "/a/b.c/JOB.ZE!"},
               {"C:\\jobs\\a.b.zeb", "C:\\jobs", "a.b.zeb", "C:\\jobs\\a.b.ZE!"},
               {"/a.b/job", "/a.b", "job", "/a.b/job.ZE!"},
               {"job.zeb", "", "job.zeb", "job.ZE!"},
               {"/job.zeb", "/", "job.zeb", "/job.ZE!"},
               {"/a//job.zeb", "/a", "job.zeb", "/a//job.ZE!"},
               {"/a/", "/a", "", "/a/.ZE!"}};
  for (const auto& c : cases) {
    EXPECT_EQ(ReturnFolder(c.path), c.folder) << c.path;
    EXPECT_EQ(ReturnFileName(c.path), c.name) << c.path;
    EXPECT_EQ(ChangeFileExt(c.path, "ZE!"), c.changed) << c.path;
  }
  EXPECT_EQ(ChangeFileExt("/a/job.zeb", ""), "/a/job");
}

TEST(PathsTest, EndsAFolderInOneSeparator) {
  EXPECT_EQ(AddBackSlash("/a"), "/a/");
  EXPECT_EQ(AddBackSlash("/a//"), "/a/");
  EXPECT_EQ(AddBackSlash("a\\"), "a/");
  EXPECT_EQ(AddBackSlash("/"), "/");
  EXPECT_EQ(AddBackSlash(""), "");  // never the root
}

TEST(PathsTest, ShortensMiddleFoldersOneByOne) {
  const std::tuple<const char*, int, const char*> cases[] = {
      {"/home/user/jobs/JOB.ZEB", 40, "/home/user/jobs/JOB.ZEB"},
      {"/home/user/jobs/JOB.ZEB", 22, "/home/../jobs/JOB.ZEB"},
      {"/home/user/jobs/JOB.ZEB", 5, "/home/../../JOB.ZEB"},
      {"C:\\Documents\\Projects\\JOB.ZEB", 25, "C:\\..\\Projects\\JOB.ZEB"},
      {"JOB.ZEB", 3, "JOB.ZEB"}};
  for (const auto& [path, length, text] : cases) EXPECT_EQ(ShortPath(path, length), text);
}

TEST(PathsTest, ComparesWithoutCaseOrKindOfSeparator) {
  EXPECT_TRUE(SamePathNoCase("/a/B/", "/A/b"));
  EXPECT_TRUE(SamePathNoCase("a\\b", "A/B"));
  EXPECT_FALSE(SamePathNoCase("/a/b", "/ab"));
}

struct RealPathTest : testing::Test, TestSession {};

TEST_F(RealPathTest, PrefersThePickThenTheExactFileThenTheMatch) {
  files.Put("/home/Ann/Jobs/Mill.zeb", "");
  EXPECT_EQ(RealPath(session, "/HOME/ANN/JOBS/MILL.ZEB"), "/home/Ann/Jobs/Mill.zeb");
  files.Put("/jobs/Mill.zeb", "");
  files.Put("/jobs/MILL.ZEB", "");
  EXPECT_EQ(RealPath(session, "/jobs/MILL.ZEB"), "/jobs/MILL.ZEB");
  RememberRealPath(session, "/jobs/Mill.zeb");
  EXPECT_EQ(RealPath(session, "/JOBS/MILL.ZEB"), "/jobs/Mill.zeb");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(RealPathTest, AsksWhenSeveralFilesMatchAndKeepsTheAnswer) {
  files.Put("/a/mill.zeb", "");
  files.Put("/a/Mill.zeb", "");
  files.Put("/A/MILL.zeb", "");
  const std::string stated = "/A/MILL.ZEB";
  EXPECT_EQ(RealPath(session, stated), stated) << "no guess without an answer";
  EXPECT_EQ(dialogs.messages.size(), 3U);
  dialogs.answers = {Answer::kNo, Answer::kYes};
  EXPECT_EQ(RealPath(session, stated), "/a/Mill.zeb");
  dialogs.messages.clear();
  EXPECT_EQ(RealPath(session, stated), "/a/Mill.zeb");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(RealPathTest, NamesANewFileAsTyped) {
  files.PutFolder("/home/Ann");
  RememberRealPath(session, "/home/Ann/New Job.zeb");
  session.project.ProjectPath = "/HOME/ANN/NEW JOB.ZEB";
  EXPECT_EQ(RealProjectPath(session), "/home/Ann/New Job.zeb");
  EXPECT_EQ(RealPath(session, "/HOME/ANN/OTHER.ZEB"), "/home/Ann/OTHER.ZEB");
  EXPECT_EQ(RealPath(session, "/NO/WHERE.ZEB"), "/NO/WHERE.ZEB");
  EXPECT_EQ(RealPath(session, "[Untitled]"), "[Untitled]");
}

}  // namespace
}  // namespace zeb::test
