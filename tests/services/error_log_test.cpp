#include "services/error_log.h"

#include <gtest/gtest.h>

#include "services/procedure.h"
#include "services/support_bundle.h"
#include "services/text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

constexpr const char* kLog = "/prog/ZEB_error.log";

struct Logging : testing::Test, TestSession {
  [[nodiscard]] Texts LogLines() const { return SplitLines(files.Bytes(kLog)); }
};

TEST_F(Logging, StartsWithItsHeadAndTheNewSession) {
  session.log.LogError({.text = "Two\r\nlines", .source = "ZEB.Open_Save", .line = 12});
  session.log.LogError({.text = "Note", .source = "ZEB.X", .line = 1, .brief = true});
  const Texts lines = LogLines();
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[0], "ZEB Error log created on: 22/11/2026 at 09:05:07");
  EXPECT_EQ(lines[1], "ZEB path: /prog");
  EXPECT_TRUE(lines[2].starts_with("ZEB version: "));
  EXPECT_EQ(lines[3],
            "22/11/2026 - 09:05:07, "
            "New session.....................................................");
  EXPECT_EQ(lines[4], "22/11/2026 - 09:05:07, Two lines --- in ZEB.Open_Save / 12");
  EXPECT_EQ(lines[5], "22/11/2026 - 09:05:07, Note");
}

TEST_F(Logging, ALogOfAnEarlierRunGoesOn) {
  files.Put(kLog, "before\r\n");
  session.log.LogError({.text = "Note", .source = "", .line = 0, .brief = true});
  ASSERT_EQ(LogLines().size(), 3U);
  EXPECT_EQ(LogLines()[0], "before");
  EXPECT_TRUE(Contains(LogLines()[1], "New session"));
}

TEST_F(Logging, ShowsTheErrorEvenWhenTheDiskIsFull) {
  files.FailAt(1, 61);
  session.log.LogError({.text = "Bad", .source = "ZEB.X", .line = 3, .show = true});
  EXPECT_EQ(
      dialogs.Shown(),
      (Boxes{
          {"Tolvan - ZEB",
           "Error: Bad\r\n\r\nThe error happened in component 'ZEB.X' at line 3 and was logged (if "
           "configured so) to the 'Log.txt' file."}}));
}

TEST_F(Logging, TellsAFailureAndGoesOn) {
  for (const bool verbose : {false, true}) {
    session.VerboseLogging = verbose;
    Procedure procedure(session, "ZEBF03", "Rdxf_Click");
    EXPECT_FALSE(procedure.Step(10, [] { throw RuntimeFailure(11); }));
    EXPECT_TRUE(procedure.Step(20, [] {}));
    EXPECT_EQ(dialogs.messages.back().text,
              "Division by zero\r\nin ZEB.ZEBF03.Rdxf_Click at line 10");
    EXPECT_EQ(files.Has(kLog), verbose);
  }
  EXPECT_TRUE(LogLines().back().ends_with("Division by zero --- in ZEB.ZEBF03.Rdxf_Click / 10"));
}

TEST_F(Logging, PacksWhatSupportNeeds) {
  for (const char* path :
       {"/prog/ZEB_error.log", "/prog/zeblast.txt", "/prog/STD_PIPE.PDT", "/prog/zeb",
        "/prog/pipedata/other.pdt", "/prog/ZEB_prj_err_dat.zip", "/prog/ZEB_error_data.zip",
        "/config/ZEB/zeb.ini", "/config/ZEB/sub/zebjobs.dat"}) {
    files.Put(path, path);
  }
  ZEB_error_dat(session);
  EXPECT_TRUE(dialogs.messages.empty());
  const auto& bundle = archive.archives["/prog/ZEB_error_data.zip"];
  EXPECT_EQ(bundle.password, "");
  Texts names;
  for (const ArchiveEntry& entry : bundle.entries) names.push_back(entry.name);
  EXPECT_EQ(names, (Texts{"STD_PIPE.PDT", "ZEB_error.log", "zeblast.txt", "ZEB_prj_err_dat.zip",
                          "ZEB/zeb.ini", "ZEB/sub/zebjobs.dat"}));
  EXPECT_EQ(bundle.entries.back().bytes, "/config/ZEB/sub/zebjobs.dat");
  EXPECT_EQ(files.Bytes("/desktop/ZEB_error_data.zip"), files.Bytes("/prog/ZEB_error_data.zip"));

  delErrorLogFiles(session);
  for (const char* gone :
       {"/prog/ZEB_error.log", "/prog/ZEB_prj_err_dat.zip", "/prog/ZEB_error_data.zip"}) {
    EXPECT_FALSE(files.Has(gone));
  }
  EXPECT_TRUE(files.Has("/prog/zeblast.txt"));
  delErrorLogFiles(session);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(Logging, StaysInTheProgramFolderWithoutADesktop) {
  machine.desktop = "/none";
  ZEB_error_dat(session);
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(shell.panels[Panel::kHint], "ZEB_error_data.zip packed in /prog");
}

TEST_F(Logging, CopiesNoOlderBundleAfterAFailure) {
  files.Put("/prog/ZEB_error_data.zip", "old");
  files.FailAt(1, 61);
  ZEB_error_dat(session);
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_FALSE(files.Has("/desktop/ZEB_error_data.zip"));
}

}  // namespace
}  // namespace zeb::test
