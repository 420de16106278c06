#include "services/design_authorities.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "archive_passwords.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr const char* kArchiveName = "DesignAuth_V2.dat";
constexpr const char* kTableName = "DesignAuth.csv";

// 0 for anything but the two numbers that mean something.
int RuleNumber(std::string_view field) {
  const double number = Val(field);
  return number == 1.0 ? 1 : number == 2.0 ? 2 : 0;
}

DesignAuthority RowOf(const std::string& line) {
  std::vector<std::string> fields = Split(line, ",");
  fields.resize(std::max<std::size_t>(fields.size(), 5));
  return {.name = fields[0],
          .static_value = fields[1],
          .shown = Val(fields[2]) == 1.0,
          .is_default = Val(fields[3]) == 1.0,
          .rule_number = RuleNumber(fields[4])};
}

// A table made by hand may lack the carriage returns.
std::vector<std::string> WholeLines(const std::string& csv) {
  std::vector<std::string> lines = Split(csv, Contains(csv, kLineBreak) ? kLineBreak : "\n");
  lines.pop_back();
  return lines;
}

}  // namespace

bool DesignAuthorities::ReadArchive(const std::string& program_folder) {
  const std::string path = AddBackSlash(program_folder) + kArchiveName;
  if (!platform_.files.FileExists(path)) {
    platform_.dialogs.Show({.title = "Missing File Error",
                            .text = "Sorry ZEB cannot continue without the DesignAuth file.  ",
                            .icon = MessageIcon::kStop});
    return false;
  }
  for (const ArchiveEntry& entry : platform_.archive.Read(path, design_auth_password)) {
    if (SamePathNoCase(entry.name, kTableName)) {
      Parse(entry.bytes);
      return true;
    }
  }
  throw RuntimeFailure(failure::kFileNotFound);
}

void DesignAuthorities::ReadCsvFile(const std::string& path) {
  Parse(platform_.files.ReadFile(path));
}

void DesignAuthorities::Parse(const std::string& csv) {
  rows_.clear();
  for (const std::string& line : WholeLines(csv)) rows_.push_back(RowOf(line));
  for (DesignAuthority& row : rows_) {
    if (Trim(row.name).empty()) continue;
    const std::string table_value = row.shown ? "1" : "0";
    row.shown = settings_.GetIniValue(std::string(setting::kAuthoritySection), row.name,
                                      table_value) == "1";
  }
  LoadDefaultDesignAuth();
}

bool DesignAuthorities::HaveDesignAuthInList(const std::string& name) const {
  return std::any_of(rows_.begin(), rows_.end(),
                     [&](const DesignAuthority& row) { return Trim(row.name) == Trim(name); });
}

bool DesignAuthorities::DesignAuthInList(const std::string& name,
                                         const std::string& current) const {
  const DesignAuthority* row = Find(name);
  return row != nullptr && (row->shown || name == current);
}

int DesignAuthorities::DesignAuthNumber() const { return static_cast<int>(rows_.size()) - 1; }

std::string DesignAuthorities::DefaultDesignAuth() const {
  for (const DesignAuthority& row : rows_) {
    if (row.is_default) return row.name;
  }
  platform_.dialogs.Show({.title = "Error - Default Design Authority",
                          .text = "Please set the default design authority" +
                                  std::string(kLineBreak) +
                                  "ZEB MENU : Tools -> Options ->  Design Authority"});
  return {};
}

float DesignAuthorities::StaticValue(const std::string& name) const {
  const DesignAuthority* row = Find(name);
  if (row == nullptr) return 10.0F;
  const auto value = static_cast<float>(Val(ReplaceAll(row->static_value, "P", ".")));
  if (value >= 9.7F && value <= 10.3F) return value;
  platform_.dialogs.Show({.title = "Error - Design Authority Data File",
                          .text = "The static value of " + name + " must be from 9.7 to 10.3.",
                          .icon = MessageIcon::kStop});
  return 10.0F;
}

int DesignAuthorities::RuleType(const std::string& name) const {
  const DesignAuthority* row = Find(name);
  const int rule_number = row == nullptr ? 1 : row->rule_number;
  switch (rule_number) {
    case 1:
      return kRulesNfpa;
    case 2:
      return kRulesFm;
    default:
      return kRulesGeneral;
  }
}

void DesignAuthorities::SetDefaultAuth(int row) {
  DesignAuthority& chosen = Row(row);
  for (DesignAuthority& other : rows_) other.is_default = false;
  chosen.is_default = true;
  chosen.shown = true;
}

void DesignAuthorities::SetShown(int row, bool shown) { SetShowDesignAuth(Row(row).name, shown); }

void DesignAuthorities::SetShowDesignAuth(const std::string& name, bool show) {
  settings_.SetIniValue(std::string(setting::kAuthoritySection), name, show ? "1" : "0");
  for (DesignAuthority& row : rows_) {
    if (row.name == name) row.shown = show;
  }
}

void DesignAuthorities::SaveDefaultDesignAuth(const std::string& name) {
  settings_.SetIniValue(setting::kDefaultAuthority, name);
}

void DesignAuthorities::LoadDefaultDesignAuth() {
  const std::string name = settings_.GetIniValue(setting::kDefaultAuthority);
  const DesignAuthority* row = Find(name);
  if (!name.empty() && row != nullptr) SetDefaultAuth(static_cast<int>(row - rows_.data()));
}

const DesignAuthority* DesignAuthorities::Find(const std::string& name) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(),
                                  [&](const DesignAuthority& row) { return row.name == name; });
  return found == rows_.end() ? nullptr : &*found;
}

DesignAuthority& DesignAuthorities::Row(int row) {
  if (row < 0 || row > DesignAuthNumber()) throw RuntimeFailure(failure::kSubscriptOutOfRange);
  return rows_[static_cast<std::size_t>(row)];
}

}  // namespace zeb
