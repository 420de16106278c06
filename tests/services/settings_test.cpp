#include "services/settings.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "services/component_failure.h"
#include "services/form_position.h"
#include "services/ini_file.h"
#include "support/failure_of.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

constexpr const char* kIni = "/config/ZEB/zeb.ini";

std::string ReasonOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const ComponentFailure& failure) {
    EXPECT_EQ(failure.Source(), "ZEB.CIniFile");
    return failure.Description();
  }
  return {};
}

struct IniFileTest : testing::Test {
  void Open(const std::string& text) {
    files.Put("/a.ini", text);
    ini.Init("/a.ini");
  }

  MemoryFileSystem files;
  CIniFile ini{files};
};

TEST_F(IniFileTest, ReadsWhatOthersWrote) {
  Open(
      "; a note\n[ Text ]\n colour = 12 \nFontName=\" Arial \"\n;Colour=9\nEmpty=\n"
      "[Other]\nColour=7\n[TEXT]\nSize=8.5mm\nColour=1");
  EXPECT_EQ(ini.GetStringValue("text", "COLOUR", "x"), "12") << "the first one counts";
  EXPECT_EQ(ini.GetStringValue("Text", "FontName", "x"), " Arial ");
  EXPECT_EQ(ini.GetStringValue("Text", "Empty", "x"), "");
  EXPECT_EQ(ini.GetStringValue("Text", "None", "x"), "x");
  EXPECT_EQ(ini.GetStringValue("None", "Colour", "x"), "x");
  EXPECT_EQ(ini.GetNumericValue("Text", "Size", 1.0), 8.5);
  EXPECT_EQ(ini.GetNumericValue("Text", "None", 1.5), 1.5);
  EXPECT_EQ(ini.EnumerateAllSections(), (Texts{"Text", "Other", "TEXT"}));
  EXPECT_EQ(ini.EnumerateAllKeys("other"), Texts{"Colour"});
}

TEST_F(IniFileTest, ChangesOneLineAndKeepsTheRest) {
  Open("; note\n[A]\nx=1\nodd line\n\n[B]\nx=2\n");
  ini.SaveStringValue("a", "y", "new");
  ini.SaveStringValue("B", "X", " 3");
  ini.SaveNumericValue("C", "z", 0.1);
  EXPECT_EQ(files.Bytes("/a.ini"),
            "; note\r\n[A]\r\nx=1\r\nodd line\r\ny=new\r\n\r\n[B]\r\nX=\" 3\"\r\n[C]\r\nz=0.1\r\n");
  ini.DeleteKey("a", "x");
  ini.DeleteSection("b");
  EXPECT_EQ(files.Bytes("/a.ini"), "; note\r\n[A]\r\nodd line\r\ny=new\r\n\r\n[C]\r\nz=0.1\r\n");
}

TEST_F(IniFileTest, ValuesComeBackAsTheyWereSaved) {
  Open("");
  for (const char* value : {"", " ", "\t", "\"quoted\"", "a=b;c", "[x]", " \"", "BS 9251 : R"}) {
    ini.SaveStringValue("S", "K", value);
    EXPECT_EQ(ini.GetStringValue("S", "K", "none"), value);
  }
  ini.SaveStringValue("S", "K", "two\r\n[lines]");
  EXPECT_EQ(ini.GetStringValue("S", "K", ""), "two  [lines]");
  EXPECT_EQ(ini.EnumerateAllSections(), Texts{"S"});
}

TEST_F(IniFileTest, SaysWhatIsMissing) {
  const std::string head = "CIniFile component failure\r\n";
  EXPECT_EQ(ReasonOf([&] { (void)ini.EnumerateAllSections(); }),
            head + "Object not properly initialized");
  EXPECT_EQ(ReasonOf([&] { ini.Init(""); }), head + "Invalid file name");
  ini.Init("/none.ini");
  EXPECT_EQ(ReasonOf([&] { ini.SaveStringValue("", "", "x"); }), head + "File not found");
  Open("");
  EXPECT_EQ(ReasonOf([&] { (void)ini.GetStringValue(" ", "", "x"); }), head + "Invalid section");
  EXPECT_EQ(ReasonOf([&] { (void)ini.GetStringValue("S", "", "x"); }), head + "Invalid key");
  EXPECT_EQ(ReasonOf([&] { ini.SaveStringValue("S", "a=b", "x"); }), head + "Invalid key");
  EXPECT_EQ(files.Bytes("/a.ini"), "");
}

struct SettingsTest : testing::Test, TestSession {
  Settings& settings = session.settings;
};

TEST_F(SettingsTest, KeepsTheThreeStoresApart) {
  EXPECT_EQ(settings.GetIniValue(setting::kNodeStep), "10");
  EXPECT_FALSE(settings.HasIniValue(setting::kAutoSave));
  settings.SetIniValue(setting::kCalcCsvDelimiter, ";");
  settings.SaveSetting("Options", "PDT_folder", "/pipes/");
  files.Put("/prog/ZEB_config.ini", "[Report]\r\nheader=Our report\r\n");

  EXPECT_EQ(settings.GetIniValue(setting::kCalcCsvDelimiter), ";");
  EXPECT_EQ(settings.GetIniValue(setting::kDataExportDelimiter), ",") << "same key, other section";
  EXPECT_TRUE(settings.HasIniValue(setting::kCalcCsvDelimiter));
  EXPECT_EQ(settings.GetSetting("Options", "PDT_folder", ""), "/pipes/");
  EXPECT_EQ(settings.GetIniValue("Options", "PDT_folder", "none"), "none");
  EXPECT_EQ(settings.GetConfigValue(setting::kReportHeader), "Our report");
  EXPECT_EQ(files.Bytes(kIni), "[CalcCSV]\r\nDeliniter=;\r\n");
}

TEST_F(SettingsTest, WithoutAFolderAnswersDefaultsAndDropsTheRest) {
  settings.Locate("", "");
  const auto before = files.AllFiles();
  settings.SetIniValue(setting::kTextColour, "3");
  settings.SaveSetting("Options", "PDT_folder", "/x");
  EXPECT_EQ(settings.GetIniValue(setting::kTextColour), "12");
  EXPECT_EQ(settings.GetSetting("Options", "PDT_folder", "d"), "d");
  EXPECT_EQ(files.AllFiles(), before);
}

TEST_F(SettingsTest, AFullDiskLeavesTheOldSettings) {
  settings.SetIniValue(setting::kTextColour, "3");
  files.FailAt(2, 61);  // the read, then the write
  EXPECT_EQ(FailureOf([&] { settings.SetIniValue(setting::kTextColour, "4"); }), 61);
  files.StopFailing();
  EXPECT_EQ(settings.GetIniValue(setting::kTextColour), "3");
}

TEST_F(SettingsTest, IsCentredUntilStored) {
  EXPECT_FALSE(LoadFormPos(settings, "ZEBF03").top);
  SaveFormPos(settings, "ZEBF03", {.top = -5, .left = 20, .width = {}, .height = 400});
  const FormPosition stored = LoadFormPos(settings, "ZEBF03");
  EXPECT_EQ(stored.top, -5);
  EXPECT_EQ(stored.left, 20);
  EXPECT_FALSE(stored.width);
  EXPECT_EQ(stored.height, 400);
  EXPECT_EQ(settings.GetSetting("FormPos", "ZEBF03_Left", ""), "20");
}

}  // namespace
}  // namespace zeb::test
