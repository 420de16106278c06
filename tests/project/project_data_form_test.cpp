#include "project/project_data_form.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "model/model_state.h"
#include "project/pressure_loss_form.h"
#include "project/stored_references.h"
#include "services/text.h"
#include "support/project_text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

constexpr const char* kPath = "/JOBS/A.ZEB";

// A session with an open, unchanged project.
struct OpenJob : TestSession {
  OpenJob() {
    project.ProductName = "ZEB";
    project.ProjectPath = kPath;
    project.PipeDataFile = "STD_PIPE.PDT";
    project.PipeSizeCount = 21;
    project.SaveFormat = 3;
    files.PutFolder("/JOBS");
    files.Put("/JOBS/A.ZEB", "old");
    SetLines(project, Split("Job|Street|12|AB|EN 12845 Rules|---|Water|65|STD_PIPE.PDT|None|"
                            "Area|1 -LC|OH3|5.00|216|D1|---|no",
                            "|"));
    project.HeadCodeLines[1] = "01 15.0  80.00   0.50 STD1";
    project.HeadCodeCount = 1;
    SetPipeLines({"1 2 65 3.0 N 1 0 1 12", "' comment", "Z!Z! 2 3 50", "2 3 50 4.0 E", "END"});
    files.Put(ZEBJobsPath(session),
              "PROJ=Job\r\nADDR=Street\r\nPNUM=12\r\nDESI=AB\r\nINSC=---\r\nFLUI=Water\r\n"
              "WELD=65\r\nPIPE=STD_PIPE.PDT\r\nAREF=Area\r\nINST=1 -LC\r\nHAZC=OH3\r\nDENS=5.00\r\n"
              "AMAO=216\r\nDRGN=D1\r\nISSU=---\r\n");
  }

  void SetPipeLines(const Texts& lines) { SetLines(project, lines, kFirstPipeLine); }
  void BeginNewProject() {
    project.PipeLines.Clear();
    project.LineCount = 0;
    project.NewProjectFlag = 1;
    project.ProjectPath = "[Untitled]";
  }
  [[nodiscard]] Texts PipeLines() const { return LinesOf(project, kFirstPipeLine); }

  ProjectDataForm form{session};
};

struct ProjectData : testing::Test, OpenJob {};

TEST_F(ProjectData, ShowsTheProject) {
  project.SupplyCount = 2;
  project.SupplyNames[1] = "None";
  project.SupplyNames[2] = "Town";
  project.PipeLines[10] = "TOWN";
  files.Put(session.folders.PdtFolder + "/own.pdt", "");
  files.Put(session.folders.PdtFolder + "/own.txt", "");
  form.Form_Load();
  EXPECT_EQ(shell.panels[Panel::kHint],
            "Amend input data as required and click on 'Apply' or 'Cancel' to proceed");
  EXPECT_EQ(form.Caption, "ZEB - Project and Design Area Information - ");
  EXPECT_EQ(form.Field(Item::kInstallation), "1 -LC");
  EXPECT_EQ(form.ListOf(Item::kHazard), Texts{"OH3"});
  EXPECT_EQ(form.ListOf(Item::kPipeData), Texts{"own.pdt"});
  EXPECT_EQ(form.ListOf(Item::kAuthority).size(), 3U);
  EXPECT_EQ(form.Supplies.SelectedRow(), 2);
  EXPECT_EQ(form.Text.Boxes[0], "1 2 65 3.0 N 1 0 1 12\r\n' comment\r\n2 3 50 4.0 E\r\n");
}

TEST_F(ProjectData, ApplyWithoutAChangeOnlyChecks) {
  project.ModelState = model_state::kCalculated;
  project.ZoomState = 1;
  form.Form_Load();
  form.cmdApply_Click();
  EXPECT_EQ(PipeLines(), (Texts{"1 2 65 3.0 N 1 0 1 12", "' comment", "2 3 50 4.0 E"}));
  EXPECT_EQ(project.PipeLines[22], "");
  EXPECT_EQ(project.DataChanged, 1);
  EXPECT_EQ(files.Bytes("/JOBS/A.ZEB"), "old");
  EXPECT_EQ(project.PipeSizeCount, 21);
  EXPECT_EQ(project.ModelState, model_state::kStale);
  EXPECT_EQ(project.ZoomState, 0);
  EXPECT_EQ(shell.closed_forms, Texts{"ZEBF02"});
  for (const Feature feature :
       {Feature::kCalculateMenu, Feature::kDisplayMenu, Feature::kPrintMenu, Feature::kReport}) {
    EXPECT_FALSE(shell.features.at(feature));
  }
  EXPECT_EQ(commands.checks, std::vector<CheckMode>{CheckMode::kComposeLines});
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST(ProjectDataChanges, AreSavedByApply) {
  struct Case {
    const char* what;
    void (*change)(OpenJob&);
    int sizes = 21;  // 0 when the pipe data have to be read again
  };
  for (const Case& c : {
           Case{"an item", [](OpenJob& job) { job.form.Field(Item::kHazard) = "HHP2"; }},
           Case{"an emptied item", [](OpenJob& job) { job.form.Field(Item::kDrawing) = " "; }},
           Case{"the comments", [](OpenJob& job) { job.form.Field(Item::kComments) = "-EP"; }},
           Case{"pipe data", [](OpenJob& job) { job.form.Field(Item::kPipeData) = "Other"; }, 0},
           Case{"authority", [](OpenJob& job) { job.form.Field(Item::kAuthority) = "Other"; }, 0},
           Case{"the supply", [](OpenJob& job) { job.form.Supplies.SupplyName = "Town"; }},
           Case{"the pipes", [](OpenJob& job) { job.form.Text.Boxes[0] += "3 4 50 1.0 N"; }},
           Case{"reference", [](OpenJob& job) { job.project.JobReferences[1] = "PROJ=Other"; }},
           Case{"a head code",
                [](OpenJob& job) {
                  job.form.HeadCodes.cmdAddHeadCode_Click();
                  job.form.HeadCodes.cmdApplyHeadCode_Click();
                }},
       }) {
    SCOPED_TRACE(c.what);
    OpenJob job;
    job.form.Form_Load();
    c.change(job);
    job.form.cmdApply_Click();
    EXPECT_EQ(job.project.PipeSizeCount, c.sizes);
    EXPECT_NE(job.files.Bytes("/JOBS/A.ZEB"), "old");
    EXPECT_EQ(job.files.Bytes("/JOBS/A.ZE!"), "old");
    EXPECT_EQ(job.project.DataChanged, 0);
  }
}

TEST_F(ProjectData, EmptyItemsTakeTheirDefaults) {
  BeginNewProject();
  form.Form_Load();
  form.Field(Item::kPipeData) = "";
  form.cmdApply_Click();
  EXPECT_EQ(LinesOf(project), Split("---|---|---|---|EN 12845 Rules|---|Water|65|STD_PIPE.PDT|None|"
                                    "Most Unfavourable|1|High Hazard|0.00|0|---|---|---",
                                    "|"));
  EXPECT_EQ(project.DataChanged, 1);
  EXPECT_FALSE(files.Has("[Untitled]"));
}

TEST_F(ProjectData, ANewProjectTakesAndKeepsTheChoicesOfTheSettings) {
  session.settings.SetIniValue("ProjData", "PDT", "NFPA.PDT");
  session.settings.SetIniValue("ProjData", "DesignAth", "FM Rules");
  session.settings.SetIniValue("ProjData", "PLF", "Darcy-Weisbach");
  BeginNewProject();
  form.Form_Load();
  EXPECT_EQ(form.Field(Item::kPipeData), "NFPA.PDT");
  EXPECT_EQ(form.Field(Item::kAuthority), "FM Rules");
  EXPECT_EQ(form.Field(Item::kFluid), "DWF DENS=998.0 VISC=0.95");
  form.Field(Item::kAuthority) = "NFPA 13 Rules";
  form.Field(Item::kPipeData) = "METRIC.PDT";
  form.cmdApply_Click();
  EXPECT_EQ(session.settings.GetIniValue("ProjData", "DesignAth", ""), "NFPA 13 Rules");
  EXPECT_EQ(session.settings.GetIniValue("ProjData", "PDT", ""), "METRIC.PDT");
}

TEST_F(ProjectData, LinesOfTheBoxesBecomeTheProjects) {
  form.Form_Load();
  form.Text.Boxes[0] = "  1 2 65 3.0 N  \r\nEND\r\n\r\nend of zone\n' last";
  form.Text.Boxes[3] = "5 6 50 1.0 E\r\n";
  form.cmdApply_Click();
  EXPECT_EQ(PipeLines(), (Texts{"1 2 65 3.0 N", "", "end of zone", "' last", "5 6 50 1.0 E"}));
}

TEST_F(ProjectData, TextBeyondTheBoxesIsToldAndKept) {
  const std::string line = "' " + std::string(98, 'x');  // 102 characters with its line end
  const Texts lines(2400, line);
  SetPipeLines(lines);
  form.Form_Load();
  EXPECT_EQ(dialogs.Shown(), (Boxes{{"Job is much too big", "Text box 4 has too many chars"}}));
  for (const std::string& box : form.Text.Boxes) EXPECT_EQ(box.size(), 588U * 102U);
  form.cmdApply_Click();
  EXPECT_EQ(PipeLines(), lines);
}

TEST_F(ProjectData, TooManyLinesLeaveTheFormOpen) {
  form.Form_Load();
  const Texts before = PipeLines();
  for (int line = 0; line < 5002; ++line) form.Text.Boxes[1] += "' x\r\n";
  form.cmdApply_Click();
  EXPECT_EQ(PipeLines(), before);
  EXPECT_TRUE(shell.closed_forms.empty());
  EXPECT_TRUE(commands.checks.empty());
}

TEST_F(ProjectData, EscAsksBeforeTypedTextsAreDropped) {
  form.Form_Load();
  form.Text.Boxes[1] += "3 4 50 2.0 E\r\n";
  dialogs.answers = {Answer::kNo, Answer::kYes};
  form.Form_QueryUnload();
  EXPECT_TRUE(shell.closed_forms.empty());
  form.Form_QueryUnload();
  EXPECT_EQ(shell.closed_forms, Texts{"ZEBF02"});

  BeginNewProject();
  ProjectDataForm untouched(session);
  untouched.Form_Load();
  untouched.Form_QueryUnload();
  EXPECT_EQ(dialogs.messages.size(), 2U);
}

TEST_F(ProjectData, CancelOfANewProjectEndsIt) {
  for (const bool is_new : {false, true}) {
    project.NewProjectFlag = is_new ? 1 : 0;
    project.AutoSavePending = project.DataChanged = 1;
    form.cmdCancel_Click();
    EXPECT_EQ(project.ProjectPath, is_new ? "[Untitled]" : kPath);
    EXPECT_EQ(project.NewProjectFlag, 0);
    EXPECT_EQ(project.AutoSavePending, is_new ? 0 : 1);
    EXPECT_EQ(project.DataChanged, is_new ? 0 : 1);
  }
  EXPECT_EQ(shell.redraws, 2);
  EXPECT_TRUE(commands.checks.empty());
}

TEST_F(ProjectData, IssuesCountUpOnYes) {
  const std::map<std::string, std::string> cases = {{"---", "Issue 1 : 22/11/2026"},
                                                    {"Issue 4 : 1/2/2026", "Issue 5 : 22/11/2026"},
                                                    {"Issue A : x", "Issue 1 : 22/11/2026"},
                                                    {"Issue 7", "Issue 1 : 22/11/2026"}};
  for (const auto& [present, next] : cases) {
    form.Field(Item::kIssue) = present;
    dialogs.answers = {Answer::kNo, Answer::kYes};
    form.cmdIssue_Click();
    EXPECT_EQ(form.Field(Item::kIssue), present);
    form.cmdIssue_Click();
    EXPECT_EQ(form.Field(Item::kIssue), next);
    EXPECT_EQ(dialogs.messages.back().text,
              "Do you with to use the Issue number and Date?   \r\n\r\n" + next);
  }
}

TEST_F(ProjectData, TheEquationIsPickedOrAskedFor) {
  std::string& fluid = form.Field(Item::kFluid);
  fluid = "Water";
  dialogs.answers = {Answer::kYes, Answer::kYes};
  form.cmdDWF_Click();
  EXPECT_EQ(dialogs.messages.back().text, "Do you wish to use the Darcy-Weisbach equation?");
  EXPECT_EQ(fluid, "DWF DENS=998 VISC=0.95");
  form.cmdDWF_Click();
  EXPECT_EQ(dialogs.messages.back().text, "Do you wish to use the Hazen-Williams equation?");
  EXPECT_EQ(fluid, "Water");
  shell.OnForm<PressureLossForm>("frmPLF", [](PressureLossForm& picker) {
    picker.ComPLE = "Darcy-Weisbach";
    picker.ComPLE_Click();
    picker.cmdOK_Click();
  });
  form.cmdDWF_Click();
  EXPECT_EQ(fluid, "DWF DENS=998.0 VISC=0.95");
  EXPECT_EQ(dialogs.messages.size(), 2U);
}

TEST_F(ProjectData, CompactShowsTheRenumberedLines) {
  project.HeadCodeCount = 2;
  project.HeadCodeLines[2] = "02 20.0 115.00   0.35 ELO";
  project.HeadCount = 1;
  project.HeadCode[1] = 2.0F;
  project.PipeCount = 1;
  commands.on_compose = [&](int) { project.PipeLines[19] = "1 2 65 3.0 N 1 0 1 12 new"; };
  form.Form_Load();

  form.cmdCompact_Click();  // the project is not checked
  EXPECT_EQ(project.HeadCodeCount, 2);
  project.ModelState = model_state::kChecked;
  dialogs.answers = {Answer::kNo};
  form.cmdCompact_Click();
  EXPECT_EQ(
      dialogs.Shown().back(),
      ShownBox("Compact  Head Codes",
               "Do you wish to remove heads codes which are not used in this project file  "));
  EXPECT_EQ(project.HeadCodeCount, 2);
  dialogs.answers = {Answer::kYes};
  form.cmdCompact_Click();
  EXPECT_EQ(form.HeadCodeRows(), Texts{"01 20.0 115.00   0.35 ELO"});
  EXPECT_TRUE(Contains(form.Text.Boxes[0], "12 new\r\n"));
  EXPECT_FALSE(form.Text.Edited());
  EXPECT_EQ(project.DataChanged, 1);
}

struct StoredReferences : ProjectData {
  const std::string path = ZEBJobsPath(session);
};

TEST_F(StoredReferences, EachIsStoredOnceUpTo390) {
  files.Remove(path);
  EXPECT_TRUE(ReadZEBJobsFile(session, path));
  EXPECT_EQ(files.Bytes(path), "Started afresh\r\n");
  files.Put(path, "PROJ=One\r\nab\r\n\r\nADDR=One\r\n");
  ReadZEBJobsFile(session, path);
  EXPECT_EQ(project.JobReferenceCount, 2);
  EXPECT_FALSE(AddReference(project, "PROJ", "One"));
  EXPECT_TRUE(AddReference(project, "PROJ", "Two"));
  EXPECT_EQ(ReferencesOf(project, "PROJ"), (Texts{"One", "Two"}));
  for (int i = 0; i < 500; ++i) AddReference(project, "DRGN", std::to_string(i));
  EXPECT_EQ(project.JobReferenceCount, 390);

  std::string many;
  for (int i = 0; i < 1000; ++i) many += "PROJ=" + std::to_string(i) + "\n";
  files.Put(path, many);
  EXPECT_TRUE(ReadZEBJobsFile(session, path));
}

TEST_F(StoredReferences, AFileThatCannotBeReadIsNotOverwritten) {
  const std::string stored = files.Bytes(path);
  files.FailAt(1, failure::kPermissionDenied);
  form.Form_Load();
  files.StopFailing();
  EXPECT_EQ(dialogs.Titles(), Texts{"Disk File Error"});
  form.cmdApply_Click();
  EXPECT_EQ(files.Bytes(path), stored);
}

TEST_F(StoredReferences, AreResetToTheLast) {
  files.Put(path, "PROJ=One\r\nADDR=Street\r\nPROJ=Two\r\nPROJ=Three\r\n");
  ReadZEBJobsFile(session, path);
  ResetReferencesForm reset(session, "PROJ");
  EXPECT_EQ(reset.Rows().size(), 3U);
  reset.Command2_Click();
  EXPECT_EQ(reset.Rows(), Texts{"Three"});
  EXPECT_EQ(reset.FrameCaption, " Last reference is ");
  EXPECT_EQ(project.JobReferences[3], "XXXX=Two");
  reset.Command1_Click();
  EXPECT_EQ(files.Bytes(path), "ADDR=Street\r\nPROJ=Three\r\n");
  EXPECT_EQ(shell.panels[Panel::kHint], " 2 lines now stored in " + path);
}

}  // namespace
}  // namespace zeb::test
