#include "lifecycle/options_form.h"

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace zeb {
namespace {

class OptionsFormTest : public testing::Test {
 protected:
  void SetUp() override {
    outside_.files.WriteFile("/prog/pipedata/STD_PIPE.PDT", "");
    outside_.files.WriteFile("/prog/pipedata/notes.txt", "");
    outside_.files.WriteFile("/prog/Library/user.hcl", "");
  }

  [[nodiscard]] std::string Stored(const SettingKey& key) {
    return session_.settings.GetIniValue(key);
  }

  test::TestSession outside_;
  Session& session_ = outside_.session;
};

TEST_F(OptionsFormTest, ShowsTheDefaultsOfAFirstRun) {
  const OptionsForm form(session_);
  EXPECT_EQ(form.PipeData, "STD_PIPE.PDT");
  EXPECT_EQ(form.Authority, "EN 12845 Rules");
  EXPECT_EQ(form.Equation, "Hazen Williams");
  EXPECT_FALSE(form.WaterTempEnabled);
  EXPECT_EQ(form.Background, "White");
  EXPECT_EQ(form.NodeStep, "10");
  EXPECT_TRUE(form.AutoSave);
  EXPECT_EQ(form.PipeDataFiles(), std::vector<std::string>{"STD_PIPE.PDT"});
  EXPECT_EQ(form.HeadCodeLibraries(), std::vector<std::string>{"user.hcl"});
}

TEST_F(OptionsFormTest, StoresWhatWasChosenOnlyOnOk) {
  OptionsForm form(session_);
  form.Equation = "Darcy-Weisbach";
  form.ComPLE_Click();
  EXPECT_TRUE(form.WaterTempEnabled);
  form.WaterTemp = "10.0";
  form.TextColour = "16711680";
  form.FontBold = true;
  form.AutoSave = false;
  form.cmdCancel_Click();
  EXPECT_EQ(Stored(setting::kDefaultLossEquation), "Hazen Williams");

  form.cmdOK_Click();
  EXPECT_EQ(Stored(setting::kDefaultLossEquation), "Darcy-Weisbach");
  EXPECT_EQ(Stored(setting::kDefaultWaterTemperature), "10.0");
  EXPECT_EQ(Stored(setting::kTextColour), "16711680");
  EXPECT_EQ(Stored(setting::kTextFontBold), "True");
  EXPECT_FALSE(session_.AutoSave);
}

TEST_F(OptionsFormTest, PutsNumbersThatMakeNoSenseBack) {
  OptionsForm form(session_);
  form.FontSize = "0";
  form.NodeStep = "-5";
  form.cmdOK_Click();
  EXPECT_EQ(Stored(setting::kTextFontSize), "8");
  EXPECT_EQ(Stored(setting::kNodeStep), "10");
}

TEST_F(OptionsFormTest, TakesAnotherPipeDataFolderAtOnceIfItIsThere) {
  session_.project.PipeSizeCount = 21;
  OptionsForm form(session_);
  form.PdtFolder = "/nowhere";
  form.cmdOK_Click();
  EXPECT_EQ(outside_.dialogs.Titles(), std::vector<std::string>{"Folder of pipe data"});
  EXPECT_TRUE(outside_.shell.closed_forms.empty());

  outside_.files.PutFolder("/tables");
  form.PdtFolder = "/tables";
  form.cmdOK_Click();
  EXPECT_EQ(session_.folders.PdtFolder, "/tables");
  EXPECT_EQ(session_.settings.GetSetting("Options", "PDT_folder", ""), "/tables");
  EXPECT_EQ(session_.project.PipeSizeCount, 0) << "the next check reads them";
}

}  // namespace
}  // namespace zeb
