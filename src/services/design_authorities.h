#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"
#include "services/settings.h"

namespace zeb {

struct DesignAuthority {
  std::string name;
  std::string static_value;  // metres of head per bar, "10P2" is 10.2
  bool shown = false;
  bool is_default = false;
  int rule_number = 0;
};

// The rule types that an authority can follow.
inline constexpr int kRulesGeneral = 1;
inline constexpr int kRulesNfpa = 2;
inline constexpr int kRulesFm = 3;

// The table of design authorities, from the protected archive DesignAuth_V2.dat or a plain table.
class DesignAuthorities {
 public:
  DesignAuthorities(const Platform& platform, Settings& settings)
      : platform_(platform), settings_(settings) {}

  // Unpacks the archive in `program_folder` and reads its table. A missing archive shows the
  // message and answers false.
  bool ReadArchive(const std::string& program_folder);
  // Reads a plain table file; failures as those of the file system.
  void ReadCsvFile(const std::string& path);
  // One authority a line: name, static value, shown, default, rule number. Missing columns are
  // empty; text behind the last line break does not count. The user's own choice of what is shown
  // and of the default then goes over the table's.
  void Parse(const std::string& csv);

  [[nodiscard]] const std::vector<DesignAuthority>& Rows() const { return rows_; }
  [[nodiscard]] bool HaveDesignAuthInList(const std::string& name) const;
  // Whether lists offer the name: its row is shown, or it is the project's present authority.
  [[nodiscard]] bool DesignAuthInList(const std::string& name, const std::string& current) const;
  // The highest row number; -1 without a table.
  [[nodiscard]] int DesignAuthNumber() const;
  // The name of the first default row; empty, with a message, when there is none.
  [[nodiscard]] std::string DefaultDesignAuth() const;
  // Metres of head per bar, 9.7 to 10.3; else 10.0 with the stop message. 10.0 for a name that is
  // not in the table.
  [[nodiscard]] float StaticValue(const std::string& name) const;
  // One of the rule types above; NFPA for a name that is not in the table.
  [[nodiscard]] int RuleType(const std::string& name) const;

  // Makes a row the default one, and shown, for this run.
  void SetDefaultAuth(int row);
  // Shows or hides a row, and keeps that for later runs.
  void SetShown(int row, bool shown);
  void SetShowDesignAuth(const std::string& name, bool show);
  // The default of later runs.
  void SaveDefaultDesignAuth(const std::string& name);
  void LoadDefaultDesignAuth();

 private:
  [[nodiscard]] const DesignAuthority* Find(const std::string& name) const;
  [[nodiscard]] DesignAuthority& Row(int row);

  const Platform& platform_;
  Settings& settings_;
  std::vector<DesignAuthority> rows_;
};

}  // namespace zeb
