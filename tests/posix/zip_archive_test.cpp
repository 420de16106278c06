#include "posix/zip_archive.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <string>
#include <vector>

#include "archive_passwords.h"
#include "posix/posix_file_system.h"
#include "services/text.h"
#include "support/failure_of.h"
#include "support/memory_file_system.h"
#include "temporary_folder.h"

namespace zeb::test {
namespace {

using Entries = std::vector<ArchiveEntry>;

const Entries kEntries{{"a.txt", "some text some text some text"},
                       {"M\xFChle/b.dat", std::string(100000, '\0')},
                       {"empty", ""}};

void ExpectEntries(const Entries& found) {
  ASSERT_EQ(found.size(), kEntries.size());
  for (std::size_t entry = 0; entry < found.size(); ++entry) {
    EXPECT_EQ(found[entry].name, kEntries[entry].name);
    EXPECT_EQ(found[entry].bytes, kEntries[entry].bytes);
  }
}

struct ZipArchiveTest : testing::Test {
  MemoryFileSystem files;
  ZipArchive archive{files};
};

TEST_F(ZipArchiveTest, UnpacksWhatItPacked) {
  for (const char* password : {"", "A1b2C3d"}) {
    archive.Write("/a.zip", kEntries, password);
    ExpectEntries(archive.Read("/a.zip", password));
  }
  EXPECT_FALSE(Contains(files.Bytes("/a.zip"), "some text"));
  archive.Write("/a.zip", {}, "");
  EXPECT_TRUE(archive.Read("/a.zip", "").empty());
}

TEST_F(ZipArchiveTest, RefusesWhatItCannotTrust) {
  EXPECT_EQ(FailureOf([&] { (void)archive.Read("/none.zip", ""); }), 53);

  archive.Write("/a.zip", kEntries, "right");
  for (const char* wrong : {"", "wrong"}) {
    EXPECT_EQ(FailureOf([&] { (void)archive.Read("/a.zip", wrong); }), 70);
  }
  archive.Write("/up.zip", {{"../a.txt", "x"}}, "");
  archive.Write("/root.zip", {{"/a.txt", "x"}}, "");
  files.Put("/text.zip", "no archive");
  files.Put("/nothing.zip", "");
  for (const char* path : {"/up.zip", "/root.zip", "/text.zip", "/nothing.zip"}) {
    EXPECT_EQ(FailureOf([&] { (void)archive.Read(path, ""); }), 57) << path;
  }
}

// Every cut and every changed byte gives the old entries or a failure, never other bytes.
TEST_F(ZipArchiveTest, NeverReadsDamagedBytes) {
  const Entries entries{{"a.txt", "some text"}};
  archive.Write("/a.zip", entries, "");
  const std::string good = files.Bytes("/a.zip");
  for (std::size_t at = 0; at < good.size(); ++at) {
    std::string flipped = good;
    flipped[at] = static_cast<char>(flipped[at] ^ 0x55);
    for (const std::string& bad : {good.substr(0, at), flipped}) {
      files.Put("/a.zip", bad);
      (void)FailureOf([&] {
        for (const ArchiveEntry& entry : archive.Read("/a.zip", "")) {
          EXPECT_EQ(entry.bytes, "some text") << at;
        }
      });
    }
  }
}

TEST_F(ZipArchiveTest, AFullDiskLeavesTheOldArchive) {
  archive.Write("/a.zip", kEntries, "");
  files.FailAt(1, 61);
  EXPECT_EQ(FailureOf([&] { archive.Write("/a.zip", {}, ""); }), 61);
  files.StopFailing();
  ExpectEntries(archive.Read("/a.zip", ""));
}

TEST_F(ZipArchiveTest, OpensTheArchiveOfTheProgramFolder) {
  PosixFileSystem disk;
  const Entries entries = ZipArchive(disk).Read(
      std::string(ZEB_PROGRAM_FOLDER) + "/DesignAuth_V2.dat", design_auth_password);
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].name, "DesignAuth.csv");
}

}  // namespace
}  // namespace zeb::test
