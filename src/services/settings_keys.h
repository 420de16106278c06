#pragma once

#include <string_view>

namespace zeb {

// Where a setting lies and what it is when it was never set. The misspelled names stand in stored
// files. An empty default means that the caller knows it, as for folders.
struct SettingKey {
  std::string_view section;
  std::string_view key;
  std::string_view default_value;
};

namespace setting {

// zeb.ini.
inline constexpr SettingKey kMinVel{"CalcOptions", "minVel", ""};
inline constexpr SettingKey kMaxVel{"CalcOptions", "maxVel", ""};
inline constexpr SettingKey kMaxPd{"CalcOptions", "maxPD", ""};
inline constexpr SettingKey kCalcCsvDelimiter{"CalcCSV", "Deliniter", ","};
inline constexpr SettingKey kCalcCsvQuotes{"CalcCSV", "Quotes", "0"};
inline constexpr SettingKey kDataExportDelimiter{"DataExportCSV", "Deliniter", ","};
inline constexpr SettingKey kRenumberStartNode{"RenumberNodes", "StartNode", "100"};
inline constexpr SettingKey kRenumberIncrement{"RenumberNodes", "Increment", "10"};
inline constexpr SettingKey kProjFolder{"FileLocation", "ProjFolder", ""};
inline constexpr SettingKey kDirPath{"FileLocation", "DirPath", ""};
inline constexpr SettingKey kSessionFile{"FileLocation", "zeblast", ""};
inline constexpr SettingKey kOldSessionFile{"zeblast", "FileLocation", ""};
inline constexpr SettingKey kAutoNode{"AutoNode", "Auto", "True"};
inline constexpr SettingKey kNodeStep{"AutoNode", "NodeStep", "10"};
inline constexpr SettingKey kDefaultPipeData{"ProjData", "PDT", "STD_PIPE.PDT"};
inline constexpr SettingKey kDefaultAuthorityOfProject{"ProjData", "DesignAth", ""};
inline constexpr SettingKey kDefaultLossEquation{"ProjData", "PLF", "Hazen Williams"};
inline constexpr SettingKey kDefaultWaterTemperature{"ProjData", "DWTemp", "21.1"};
inline constexpr SettingKey kDefaultHeadCodes{"ProjData", "HCL", "user.hcl"};
inline constexpr SettingKey kTextColour{"Text", "Colour", "12"};
inline constexpr SettingKey kTextFontName{"Text", "FontName", "Arial"};
inline constexpr SettingKey kTextFontSize{"Text", "FontSize", "8"};
inline constexpr SettingKey kTextFontBold{"Text", "FontBold", "False"};
inline constexpr SettingKey kTextFontItalic{"Text", "FontItalic", "False"};
inline constexpr SettingKey kReportTitleFont{"FONT", "Name", "Arial"};
inline constexpr SettingKey kPdfLeftMargin{"TolvanPDF", "LeftMargin", "30"};
inline constexpr SettingKey kBackground{"Display", "Background", "White"};
inline constexpr SettingKey kTheme{"Display", "Theme", "System"};
inline constexpr SettingKey kDefaultAuthority{"DesignAuth", "Default", ""};
inline constexpr SettingKey kIdentifier{"Installation", "Identifier", ""};
inline constexpr SettingKey kAutoSave{"Options", "AutoSave", "True"};
// The authorities' own names are keys of this section: "1" shown, "0" hidden.
inline constexpr std::string_view kAuthoritySection = "DesignAuth";

// ZEB_config.ini.
inline constexpr SettingKey kReportHeader{"Report", "header", "ZEB - Hydraulic Calculation Report"};
inline constexpr SettingKey kReportFooter{"Report", "footerLeft2", "www.tolvan.example"};

// The per-program store.
inline constexpr SettingKey kPdtFolder{"Options", "PDT_folder", ""};
inline constexpr std::string_view kFormPositionSection = "FormPos";
inline constexpr std::string_view kColumnWidthSection = "Settings";

}  // namespace setting
}  // namespace zeb
