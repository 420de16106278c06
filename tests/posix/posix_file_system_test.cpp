#include "posix/posix_file_system.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "posix/system_failure.h"
#include "services/file_writing.h"
#include "support/failure_of.h"
#include "temporary_folder.h"

namespace zeb::test {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

struct PosixFileSystemTest : testing::Test {
  // Runs an action in a child, which answers with the number of the failure.
  template <class Action>
  pid_t Fork(Action action) {
    const pid_t child = fork();
    if (child == 0) _exit(FailureOf(action));
    return child;
  }

  static int ExitStatus(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  TemporaryFolder folder;
  const std::string path = folder / "a.zeb";
  PosixFileSystem files;
};

TEST_F(PosixFileSystemTest, WritesReadsAndRemoves) {
  std::string bytes(200000, 'x');
  bytes[1] = '\0';
  files.WriteFile(path, bytes);
  EXPECT_EQ(files.ReadFile(path), bytes);
  EXPECT_EQ(files.FileSize(path), bytes.size());
  EXPECT_GT(files.FileTime(path).year, 2000);
  files.WriteFile(path, "short");
  files.AppendFile(path, "er");
  EXPECT_EQ(files.ReadFile(path), "shorter");
  files.Rename(path, folder / "b.zeb");
  files.MakeFolder(folder / "deep/er");
  files.MakeFolder(folder / "deep/er");
  EXPECT_EQ(files.FileNames(folder / ""), Texts{"b.zeb"});
  EXPECT_EQ(files.FolderNames(folder / ""), Texts{"deep"});
  EXPECT_EQ(files.FileNames(folder / "none"), Texts{});
  files.Remove(folder / "b.zeb");
  EXPECT_FALSE(files.FileExists(folder / "b.zeb"));
}

TEST_F(PosixFileSystemTest, TellsFailuresByTheirNumbers) {
  files.WriteFile(folder / "file", "");
  EXPECT_EQ(FailureOf([&] { (void)files.ReadFile(folder / "none"); }), 53);
  EXPECT_EQ(FailureOf([&] { (void)files.ReadFile(folder / "none/none"); }), 76);
  EXPECT_EQ(FailureOf([&] { (void)files.ReadFile(folder / "file/none"); }), 76);
  EXPECT_EQ(FailureOf([&] { files.WriteFile(folder / "none/a", ""); }), 76);
  EXPECT_EQ(FailureOf([&] { files.WriteFile(folder / "", ""); }), 75);
  EXPECT_EQ(FailureOf([&] { files.WriteFile(folder / std::string(300, 'x'), ""); }), 52);
  EXPECT_EQ(FailureOf([&] { files.WriteFile("", ""); }), 52);
  EXPECT_EQ(FailureOf([&] { files.WriteFile("/proc/self/none", ""); }), 53);
  EXPECT_EQ(FailureOf([&] { files.Remove(folder / "none"); }), 53);
  EXPECT_EQ(FailureOf([&] { files.MakeFolder(folder / "file"); }), 76);
  EXPECT_EQ(FailureNumber(ENOSPC), 61);
  EXPECT_EQ(FailureNumber(EROFS), 75);
  EXPECT_EQ(FailureNumber(EMFILE), 67);
}

TEST_F(PosixFileSystemTest, NeverWaitsForAPipeNorReadsADevice) {
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& odd : {pipe, std::string("/dev/zero"), folder / ""}) {
    EXPECT_EQ(FailureOf([&] { (void)files.ReadFile(odd); }), 75) << odd;
    EXPECT_EQ(FailureOf([&] { files.WriteFile(odd, "x"); }), 75) << odd;
    EXPECT_EQ(FailureOf([&] { WriteFileSafely(files, odd, "x"); }), 75) << odd;
    EXPECT_EQ(FailureOf([&] { (void)files.FileSize(odd); }), 75) << odd;
  }
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(PosixFileSystemTest, KeepsPermissionsAndLinks) {
  files.WriteFile(path, "old");
  chmod(path.c_str(), 0640);
  fs::create_symlink("a.zeb", folder / "link");
  fs::create_symlink("link", folder / "link to link");
  fs::create_symlink("new.zeb", folder / "link to new");
  WriteFileSafely(files, folder / "link to link", "new");
  WriteFileSafely(files, folder / "link to new", "made");
  EXPECT_EQ(files.ReadFile(path), "new");
  EXPECT_EQ(files.ReadFile(folder / "new.zeb"), "made");
  EXPECT_TRUE(fs::is_symlink(folder / "link to link"));
  EXPECT_EQ(fs::status(path).permissions(), static_cast<fs::perms>(0640));

  fs::create_symlink("loop", folder / "loop");
  EXPECT_EQ(FailureOf([&] { (void)files.ReadFile(folder / "loop"); }), 52);
}

// Root may write anything, so the child is another user.
TEST_F(PosixFileSystemTest, RefusesReadOnlyFilesAndFolders) {
  files.WriteFile(path, "old");
  for (const auto& [file_mode, folder_mode] : {std::pair{0444, 0777}, std::pair{0666, 0555}}) {
    chmod(path.c_str(), file_mode);
    chmod(folder.Path().c_str(), folder_mode);
    const pid_t child = Fork([&] {
      constexpr uid_t kNobody = 65534;
      if (geteuid() == 0 && setuid(kNobody) != 0) throw RuntimeFailure(5);
      WriteFileSafely(files, path, "new");
    });
    EXPECT_EQ(ExitStatus(child), 75);
    EXPECT_EQ(files.ReadFile(path), "old");
  }
  chmod(folder.Path().c_str(), 0700);
}

TEST_F(PosixFileSystemTest, OpensNamesInAndOutsideTheCodePage) {
  const std::string umlaut = folder / "M\xFChle.zeb";  // as texts hold it
  files.WriteFile(umlaut, "1");
  EXPECT_TRUE(fs::exists(folder / "M\xC3\xBChle.zeb"));  // as the disk does
  const std::string alpha = folder / "\xCE\xB1.zeb";
  files.WriteFile(alpha, "2");
  EXPECT_TRUE(fs::exists(alpha));
  const std::string ambiguous = folder / "\xC3\x83\xC2\xBC.zeb";  // a tilde and a quarter
  files.WriteFile(ambiguous, "3");
  EXPECT_TRUE(fs::exists(ambiguous));
  for (const std::string& name : files.FileNames(folder / "")) {
    EXPECT_EQ(files.ReadFile(folder / name).size(), 1U) << name;
  }
  EXPECT_EQ(files.FileNames(folder / "").size(), 3U);
}

// A disk with room for half of the new bytes.
TEST_F(PosixFileSystemTest, AFullDiskLeavesTheOldFile) {
  const std::string old_bytes(100000, 'o');
  files.WriteFile(path, old_bytes);
  const pid_t child = Fork([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit half{100000, 100000};
    setrlimit(RLIMIT_FSIZE, &half);
    WriteFileSafely(files, path, std::string(200000, 'n'));
  });
  EXPECT_EQ(ExitStatus(child), 61);
  EXPECT_EQ(files.ReadFile(path), old_bytes);
  EXPECT_EQ(files.FileNames(folder / ""), Texts{"a.zeb"});
}

// A child saves two contents in turn until it is killed, at moments that differ.
TEST_F(PosixFileSystemTest, AKilledSaveLeavesAWholeFile) {
  const Texts contents{std::string(300000, 'a'), std::string(500000, 'b')};
  files.WriteFile(path, contents[0]);
  for (int round = 0; round < 20; ++round) {
    const pid_t child = Fork([&] {
      while (true) {
        for (const std::string& bytes : contents) WriteFileSafely(files, path, bytes);
      }
    });
    std::this_thread::sleep_for(std::chrono::microseconds(1000 + 1700 * round));
    kill(child, SIGKILL);
    ExitStatus(child);
    const std::string stands = files.ReadFile(path);
    EXPECT_TRUE(stands == contents[0] || stands == contents[1]) << stands.size();
  }
  WriteFileSafely(files, path, contents[0]);
  EXPECT_EQ(files.FileNames(folder / ""), Texts{"a.zeb"});
}

}  // namespace
}  // namespace zeb::test
