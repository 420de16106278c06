#include "lifecycle/options_form.h"

#include <algorithm>
#include <array>

#include "project/pressure_loss_form.h"
#include "project/project_items.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr double kSmallestFont = 4.0;  // points
constexpr double kLargestFont = 72.0;
constexpr double kLargestNodeStep = 1000.0;

struct StoredText {
  SettingKey key;
  std::string OptionsForm::*text = nullptr;
};

constexpr std::array kTexts{
    StoredText{setting::kDefaultPipeData, &OptionsForm::PipeData},
    StoredText{setting::kDefaultAuthorityOfProject, &OptionsForm::Authority},
    StoredText{setting::kDefaultLossEquation, &OptionsForm::Equation},
    StoredText{setting::kDefaultWaterTemperature, &OptionsForm::WaterTemp},
    StoredText{setting::kDefaultHeadCodes, &OptionsForm::HeadCodes},
    StoredText{setting::kTextFontName, &OptionsForm::FontName},
    StoredText{setting::kTextFontSize, &OptionsForm::FontSize},
    StoredText{setting::kTextColour, &OptionsForm::TextColour},
    StoredText{setting::kBackground, &OptionsForm::Background},
    StoredText{setting::kTheme, &OptionsForm::Theme},
    StoredText{setting::kNodeStep, &OptionsForm::NodeStep}};

struct StoredFlag {
  SettingKey key;
  bool OptionsForm::*flag = nullptr;
};

constexpr std::array kFlags{StoredFlag{setting::kTextFontBold, &OptionsForm::FontBold},
                            StoredFlag{setting::kTextFontItalic, &OptionsForm::FontItalic},
                            StoredFlag{setting::kAutoNode, &OptionsForm::AutoNode},
                            StoredFlag{setting::kAutoSave, &OptionsForm::AutoSave}};

std::vector<std::string> FilesOf(Session& session, const std::string& folder,
                                 const std::string& extension) {
  std::vector<std::string> names = session.platform.files.FileNames(folder);
  std::erase_if(names,
                [&](const std::string& name) { return !UpperCase(name).ends_with(extension); });
  return names;
}

void CorrectNumber(std::string& text, double least, double most, const SettingKey& key) {
  const double value = Val(text);
  if (!(value >= least && value <= most)) text = key.default_value;
}

}  // namespace

OptionsForm::OptionsForm(Session& session)
    : PdtFolder(session.folders.PdtFolder), session_(session) {
  for (const StoredText& row : kTexts) this->*row.text = session.settings.GetIniValue(row.key);
  for (const StoredFlag& row : kFlags)
    this->*row.flag = session.settings.GetIniValue(row.key) == "True";
  if (Authority.empty()) Authority = NewProjectAuthority(session);
  ComPLE_Click();
}

std::vector<std::string> OptionsForm::PipeDataFiles() const {
  return FilesOf(session_, PdtFolder, ".PDT");
}

std::vector<std::string> OptionsForm::Authorities() const {
  std::vector<std::string> names;
  for (const DesignAuthority& row : session_.authorities.Rows())
    if (session_.authorities.DesignAuthInList(row.name, Authority)) names.push_back(row.name);
  return names;
}

std::vector<std::string> OptionsForm::Equations() { return PressureLossForm::Equations(); }

std::vector<std::string> OptionsForm::Temperatures() { return PressureLossForm::Temperatures(); }

std::vector<std::string> OptionsForm::HeadCodeLibraries() const {
  return FilesOf(session_, session_.folders.LibraryFolder, ".HCL");
}

std::vector<std::string> OptionsForm::Backgrounds() { return {"White", "Light-Gray", "Gray"}; }

std::vector<std::string> OptionsForm::Themes() { return {"System", "Light", "Dark"}; }

void OptionsForm::ComPLE_Click() { WaterTempEnabled = Equation == kDarcyWeisbach; }

void OptionsForm::cmdOK_Click() {
  if (!session_.platform.files.FolderExists(PdtFolder)) {
    session_.platform.dialogs.Show({.title = "Folder of pipe data",
                                    .text = "The folder " + PdtFolder + " does not exist.",
                                    .icon = MessageIcon::kWarning});
    return;
  }
  CorrectNumbers();
  StoreTexts();
  StoreFlags();
  session_.platform.shell.Close(*this);
}

void OptionsForm::cmdCancel_Click() { session_.platform.shell.Close(*this); }

void OptionsForm::CorrectNumbers() {
  CorrectNumber(FontSize, kSmallestFont, kLargestFont, setting::kTextFontSize);
  CorrectNumber(NodeStep, 1.0, kLargestNodeStep, setting::kNodeStep);
}

void OptionsForm::StoreTexts() {
  Settings& settings = session_.settings;
  for (const StoredText& row : kTexts) {
    if (settings.GetIniValue(row.key) != this->*row.text)
      settings.SetIniValue(row.key, this->*row.text);
  }
  if (session_.folders.PdtFolder == PdtFolder) return;
  session_.folders.PdtFolder = PdtFolder;
  settings.SaveSetting(std::string(setting::kPdtFolder.section),
                       std::string(setting::kPdtFolder.key), PdtFolder);
  // The next check reads the pipe data of the new folder.
  session_.project.PipeSizeCount = 0;
}

void OptionsForm::StoreFlags() {
  for (const StoredFlag& row : kFlags) {
    const std::string text = this->*row.flag ? "True" : "False";
    if (session_.settings.GetIniValue(row.key) != text)
      session_.settings.SetIniValue(row.key, text);
  }
  session_.AutoSave = AutoSave;
}

}  // namespace zeb
