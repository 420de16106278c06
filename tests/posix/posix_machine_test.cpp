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

struct PosixMachineTest : testing::Test {
  TemporaryFolder folder;
  TemporaryVariable home{"HOME", folder / "home"};
  TemporaryVariable config{"XDG_CONFIG_HOME", folder / "config"};
  TemporaryVariable data{"XDG_DATA_HOME", folder / "data"};
  PosixFileSystem files;
  PosixMachine machine;
};

TEST_F(PosixMachineTest, FollowsTheUsersFolders) {
  EXPECT_EQ(machine.ConfigFolder(), folder / "config");
  EXPECT_EQ(machine.DocumentsFolder(), folder / "home/Documents");
  EXPECT_EQ(machine.DesktopFolder(), folder / "home/Desktop");
  files.MakeFolder(folder / "config");
  files.WriteFile(folder / "config/user-dirs.dirs",
                  "# folders\nXDG_DESKTOP_DIR=\"$HOME/B\xC3\xBCro\"\n"
                  "XDG_DOCUMENTS_DIR=\"/srv/docs\"\n");
  EXPECT_EQ(machine.DocumentsFolder(), "/srv/docs");
  EXPECT_EQ(machine.DesktopFolder(), folder / "home/B\xFCro");
  const TemporaryVariable relative("XDG_CONFIG_HOME", "not/absolute");
  EXPECT_EQ(machine.ConfigFolder(), folder / "home/.config");
}

TEST_F(PosixMachineTest, KnowsItself) {
  EXPECT_FALSE(machine.ComputerName().empty());
  EXPECT_TRUE(files.FolderExists(machine.ExecutableFolder()));
  EXPECT_EQ(machine.Environment("HOME"), folder / "home");
  EXPECT_EQ(machine.Environment("ZEB_NOT_SET"), "");
  const std::string identifier = machine.NewIdentifier();
  EXPECT_EQ(identifier.size(), 20U);
  EXPECT_FALSE(Contains(identifier, ","));
  EXPECT_NE(identifier, machine.NewIdentifier());
}

TEST_F(PosixMachineTest, TrashedFilesCanBeRestored) {
  const std::string path = folder / "Mill 1%.zeb";
  for (const char* bytes : {"first", "second"}) {
    files.WriteFile(path, bytes);
    machine.MoveToTrash(path);
    EXPECT_FALSE(files.FileExists(path));
  }
  EXPECT_EQ(files.ReadFile(folder / "data/Trash/files/Mill 1%.zeb"), "first");
  EXPECT_EQ(files.ReadFile(folder / "data/Trash/files/Mill 1%.zeb.2"), "second");
  const std::string info = files.ReadFile(folder / "data/Trash/info/Mill 1%.zeb.2.trashinfo");
  EXPECT_TRUE(info.starts_with("[Trash Info]\nPath=" + folder.Path().native() +
                               "/Mill%201%25.zeb\nDeletionDate=20"));
  EXPECT_EQ(fs::status(folder / "data/Trash").permissions(), fs::perms::owner_all);
}

TEST_F(PosixMachineTest, AFailedTrashingKeepsTheFile) {
  EXPECT_EQ(FailureOf([&] { machine.MoveToTrash(folder / "none"); }), 53);
  files.WriteFile(folder / "data", "no folder");
  files.WriteFile(folder / "a", "x");
  EXPECT_NE(FailureOf([&] { machine.MoveToTrash(folder / "a"); }), 0);
  EXPECT_EQ(files.ReadFile(folder / "a"), "x");
}

TEST(SystemClockTest, NeverRunsBackward) {
  SystemClock clock;
  const double before = clock.Seconds();
  EXPECT_GE(clock.Seconds(), before);
  EXPECT_GE(clock.Now().year, 2024);
}

}  // namespace
}  // namespace zeb::test
