#include "lifecycle/startup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lifecycle/folders_setup.h"
#include "lifecycle/program_folder.h"
#include "support/networks.h"
#include "support/test_session.h"

namespace zeb {
namespace {

// A computer on which the program never ran. The executable lies in /prog.
struct Startup : testing::Test {
  // Makes /prog a portable program folder.
  void Unpack(const std::string& folder) {
    files.Put(folder + "/DesignAuth_V2.dat", "archive");
    files.Put(folder + "/zeblast.txt", "a,b,c,d\r\n/JOBS/LAST.ZEB\r\n\r\n0\r\n" +
                                           std::string(23, '\n') +
                                           "HEAD=01 15.0  80.00   0.50 STD1\r\n");
  }
  // The user presses Continue.
  bool Start(const std::string& command_text) {
    StartUpForm form(session, command_text);
    return form.Form_Load() && form.cmdContinue_Click();
  }

  test::RecordingDialogs dialogs;
  test::RecordingShell shell;
  test::FakeCommands commands;
  test::MemoryFileSystem files;
  test::FixedClock clock;
  test::FakeMachine machine;
  test::FakeArchive archive;
  test::FakeClipboard clipboard;
  Session session{Platform{dialogs, shell, commands, files, clock, machine, archive, clipboard}};
  Project& project = session.project;
  Folders& folders = session.folders;
};

TEST_F(Startup, MakesTheFoldersOfThePlaceWhereItLies) {
  Unpack("/prog");
  files.Put("/prog/Examples/ring.zeb", "ring");
  files.Put("/prog/Examples.zip", "archive");
  archive.archives["/prog/Examples.zip"] = {{{"Examples/", ""}, {"Examples/grid.zeb", "grid"}}, ""};
  ResolveFolders(session);
  EXPECT_EQ(folders.Program, "/prog");
  EXPECT_EQ(folders.PdtFolder, "/prog/pipedata");
  EXPECT_EQ(folders.SessionFile, "/prog/zeblast.txt");
  EXPECT_EQ(folders.LastFolder, "/docs/My ZEB/Projects");
  EXPECT_EQ(folders.UserDataFolder, "/config/ZEB");
  EXPECT_TRUE(files.FolderExists(folders.LastFolder));
  EXPECT_EQ(files.Bytes("/docs/My ZEB/Examples/grid.zeb"), "grid");
  EXPECT_EQ(files.Bytes("/docs/My ZEB/Examples/ring.zeb"), "ring");

  files.Remove("/docs/My ZEB/Examples/ring.zeb");  // by the user, for good
  ResolveFolders(session);
  EXPECT_FALSE(files.Has("/docs/My ZEB/Examples/ring.zeb"));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(Startup, AnInstalledProgramWorksInAFolderOfTheUsers) {
  Unpack("/share/zeb");
  files.Put("/share/zeb/pipedata/STD_PIPE.PDT", "installed");
  files.Put("/config/ZEB/program/zeblast.txt", "mine");
  ResolveFolders(session);
  EXPECT_EQ(folders.Program, "/config/ZEB/program");
  EXPECT_EQ(files.Bytes("/config/ZEB/program/pipedata/STD_PIPE.PDT"), "installed");
  EXPECT_EQ(files.Bytes("/config/ZEB/program/zeblast.txt"), "mine");

  machine.environment["ZEB_PROGRAM_FOLDER"] = "/elsewhere/";
  EXPECT_EQ(FindProgramFolder(session.platform), "/elsewhere");
}

TEST_F(Startup, SettingsMoveTheFolders) {
  Unpack("/prog");
  ResolveFolders(session);
  session.settings.SaveSetting("Options", "PDT_folder", "/data/pipes/");
  session.settings.SetIniValue(setting::kProjFolder, "/jobs");
  session.settings.SetIniValue(setting::kOldSessionFile, "/state/old.txt");
  ResolveFolders(session);
  EXPECT_EQ(folders.SessionFile, "/state/old.txt");
  files.PutFolder("/state");
  session.settings.SetIniValue(setting::kSessionFile, "/state");
  ResolveFolders(session);
  EXPECT_EQ(folders.SessionFile, "/state/zeblast.txt");
  EXPECT_EQ(folders.PdtFolder, "/data/pipes");
  EXPECT_EQ(folders.LastFolder, "/jobs");
}

TEST_F(Startup, AutomaticSavingIsOnUnlessItWasSwitchedOff) {
  Unpack("/prog");
  TolvanSetup(session);
  EXPECT_TRUE(session.AutoSave);
  EXPECT_EQ(session.settings.GetIniValue("Options", "AutoSave", ""), "True");
  EXPECT_EQ(session.settings.GetIniValue(setting::kIdentifier), session.Identifier);
  for (const char* text : {"False", "true"}) {
    session.settings.SetIniValue(setting::kAutoSave, text);
    TolvanSetup(session);
    EXPECT_FALSE(session.AutoSave) << text;
  }
}

TEST_F(Startup, StartsWithTheProjectOfTheCommandLine) {
  Unpack("/prog");
  files.Put("/jobs/My job.zeb", test::ProjectFile({" 1 2 50 1.0 N"}));
  ASSERT_TRUE(Start(" \"/jobs/My job.zeb\" "));
  EXPECT_EQ(project.ProjectPath, "/JOBS/MY JOB.ZEB");
  EXPECT_EQ(project.LineCount, 20);
  EXPECT_EQ(commands.checks, std::vector<CheckMode>{CheckMode::kComposeLines});
  EXPECT_EQ(folders.LastFolder, "/jobs");
  EXPECT_EQ(shell.closed_forms, std::vector<std::string>{"frmStartUp"});
}

TEST_F(Startup, StartsWithAnEmptyProject) {
  Unpack("/prog");
  for (const char* text : {"", "\"/missing.zeb\"", "\"a\""}) {
    ASSERT_TRUE(Start(text));
    EXPECT_EQ(project.ProjectPath, "") << text;
    EXPECT_EQ(project.LineCount, 0) << text;
  }
  EXPECT_EQ(project.SaveFormat, 3);
  EXPECT_EQ(project.MaxHeads, 1500);
  EXPECT_EQ(project.PipeDataFile, "STD_PIPE.PDT");
  EXPECT_EQ(project.LastProject, "/JOBS/LAST.ZEB");
  EXPECT_TRUE(files.Has("/prog/Library/user.hcl"));
  EXPECT_EQ(shell.panels[Panel::kErrors], "[ON]");
  EXPECT_FALSE(shell.features[Feature::kUndo]);
}

TEST_F(Startup, WithoutAWindowNothingIsWritten) {
  Unpack("/share/zeb");
  const std::size_t before = files.AllFiles().size();
  StartWithoutWindow(session);
  files.Put("/jobs/job.zeb", test::ProjectFile({" 1 2 50 1.0 N"}));
  session.CommandFile = "/jobs/job.zeb";
  checkCommandLine(session);
  EXPECT_EQ(project.LineCount, 20);
  EXPECT_EQ(folders.PdtFolder, "/share/zeb/pipedata");
  EXPECT_EQ(project.maxVel, 6.0F);
  EXPECT_EQ(files.AllFiles().size(), before + 1);
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace zeb
