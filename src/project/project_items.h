#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "model/project.h"
#include "services/session.h"

namespace zeb {

// One of the 18 items of a project.
struct ProjectItem {
  Item item;
  std::string_view key;         // of its stored references, empty without
  std::string_view label;       // before its text in a list of the input
  std::string_view label_end;   // behind it
  std::string_view empty_text;  // what an empty item becomes
};

inline constexpr std::array<ProjectItem, kItemCount> kProjectItems = {{
    {Item::kProjectName, "PROJ", " 1] Project name          : ", "", "---"},
    {Item::kAddress, "ADDR", " 2] Address / location    : ", "", "---"},
    {Item::kProjectNumber, "PNUM", " 3] Project number        : ", "", "---"},
    {Item::kDesigner, "DESI", " 4] Designers reference   : ", "", "---"},
    {Item::kAuthority, "", " 5] Design authority      : ", "", "EN 12845 Rules"},
    {Item::kInsurer, "INSC", " 6] Insurance company     : ", "", "---"},
    {Item::kFluid, "FLUI", " 7] Fluid                 : ", "", "Water"},
    {Item::kWeldSize, "WELD", " 8] Elbows are welded for : ", " mm and above", "65"},
    {Item::kPipeData, "PIPE", " 9] Pipe types data file  : ", "", ""},
    {Item::kSupply, "", "10] Water supply / pump   : ", "", "None"},
    {Item::kAreaReference, "AREF", "11] Area reference        : ", "", "Most Unfavourable"},
    {Item::kInstallation, "INST", "12] Installation number   : ", "", "1"},
    {Item::kHazard, "HAZC", "13] Hazard classification : ", "", "High Hazard"},
    {Item::kDensity, "DENS", "14] Density of coverage   : ", " mm/min", "0.00"},
    {Item::kDesignArea, "AMAO", "15] Design area           : ", " sq.m", "0"},
    {Item::kDrawing, "DRGN", "16] Drawing number(s)     : ", "", "---"},
    {Item::kIssue, "ISSU", "17] Issue number / date   : ", "", "---"},
    {Item::kComments, "", "18] Comments              : ", "", "---"},
}};

[[nodiscard]] const ProjectItem& ItemOf(Item item);

// What an empty item becomes: the pipe data file stays the present one.
[[nodiscard]] std::string DefaultItemText(const Project& project, Item item);

inline constexpr std::string_view kFluidTip =
    "Specify fluid type WATER, FOAM, DRY (NFPA only) or NFPA 750";
inline constexpr std::string_view kWater = "Water";
inline constexpr std::string_view kHazenWilliams = "Hazen Williams";
inline constexpr std::string_view kDarcyWeisbach = "Darcy-Weisbach";
inline constexpr std::string_view kDefaultWaterTemperature = "21.1";

// The texts that a new project takes from the settings.
[[nodiscard]] std::string NewProjectPipeData(Session& session);
[[nodiscard]] std::string NewProjectAuthority(Session& session);
[[nodiscard]] std::string NewProjectFluid(Session& session);

// The text for item 17 that counts the issue up: "Issue 2 : 22/11/2026" for one that holds
// "Issue 1 : ...", and issue 1 for any other.
[[nodiscard]] std::string NextIssueText(const std::string& item, const std::string& date);

}  // namespace zeb
