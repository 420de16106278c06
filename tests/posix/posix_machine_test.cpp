#include "posix/posix_machine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "posix/posix_file_system.h"
#include "posix/system_clock.h"
#include "services/text.h"
#include "support/failure_of.h"
#include "temporary_folder.h"

namespace zeb::test {
namespace {

namespace fs = std::filesystem;

class PosixMachineTest : public testing::Test {
 protected:
  TemporaryFolder folder_;
  TemporaryVariable home_{"HOME", folder_ / "home"};
  TemporaryVariable config_{"XDG_CONFIG_HOME", folder_ / "config"};
  TemporaryVariable data_{"XDG_DATA_HOME", folder_ / "data"};
  PosixFileSystem files_;
  PosixMachine machine_;
};

TEST_F(PosixMachineTest, FollowsTheUsersFolders) {
  EXPECT_EQ(machine_.ConfigFolder(), folder_ / "config");
  EXPECT_EQ(machine_.DocumentsFolder(), folder_ / "home/Documents");
  EXPECT_EQ(machine_.DesktopFolder(), folder_ / "home/Desktop");
  files_.MakeFolder(folder_ / "config");
  files_.WriteFile(folder_ / "config/user-dirs.dirs",
                   "# folders\nXDG_DESKTOP_DIR=\"$HOME/B\xC3\xBCro\"\n"
                   "XDG_DOCUMENTS_DIR=\"/srv/docs\"\n");
  EXPECT_EQ(machine_.DocumentsFolder(), "/srv/docs");
  EXPECT_EQ(machine_.DesktopFolder(), folder_ / "home/B\xFCro");
  const TemporaryVariable relative("XDG_CONFIG_HOME", "not/absolute");
  EXPECT_EQ(machine_.ConfigFolder(), folder_ / "home/.config");
}

TEST_F(PosixMachineTest, KnowsItself) {
  EXPECT_FALSE(machine_.ComputerName().empty());
  EXPECT_TRUE(files_.FolderExists(machine_.ExecutableFolder()));
  EXPECT_EQ(machine_.Environment("HOME"), folder_ / "home");
  EXPECT_EQ(machine_.Environment("ZEB_NOT_SET"), "");
  const std::string identifier = machine_.NewIdentifier();
  EXPECT_EQ(identifier.size(), 20U);
  EXPECT_FALSE(Contains(identifier, ","));
  EXPECT_NE(identifier, machine_.NewIdentifier());
}

TEST_F(PosixMachineTest, TrashedFilesCanBeRestored) {
  const std::string path = folder_ / "Mill 1%.zeb";
  for (const char* bytes : {"first", "second"}) {
    files_.WriteFile(path, bytes);
    machine_.MoveToTrash(path);
    EXPECT_FALSE(files_.FileExists(path));
  }
  EXPECT_EQ(files_.ReadFile(folder_ / "data/Trash/files/Mill 1%.zeb"), "first");
  EXPECT_EQ(files_.ReadFile(folder_ / "data/Trash/files/Mill 1%.zeb.2"), "second");
  const std::string info = files_.ReadFile(folder_ / "data/Trash/info/Mill 1%.zeb.2.trashinfo");
  EXPECT_TRUE(info.starts_with("[Trash Info]\nPath=" + folder_.Path().native() +
                               "/Mill%201%25.zeb\nDeletionDate=20"));
  EXPECT_EQ(fs::status(folder_ / "data/Trash").permissions(), fs::perms::owner_all);
}

TEST_F(PosixMachineTest, AFailedTrashingKeepsTheFile) {
  EXPECT_EQ(FailureOf([&] { machine_.MoveToTrash(folder_ / "none"); }), 53);
  files_.WriteFile(folder_ / "data", "no folder");
  files_.WriteFile(folder_ / "a", "x");
  EXPECT_NE(FailureOf([&] { machine_.MoveToTrash(folder_ / "a"); }), 0);
  EXPECT_EQ(files_.ReadFile(folder_ / "a"), "x");
}

TEST(SystemClockTest, NeverRunsBackward) {
  SystemClock clock;
  const double before = clock.Seconds();
  EXPECT_GE(clock.Seconds(), before);
  EXPECT_GE(clock.Now().year, 2024);
}

}  // namespace
}  // namespace zeb::test
