#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

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
  explicit DesignAuthorities(const Platform& platform) : platform_(platform) {}

  // Unpacks the archive in `program_folder` and reads its table. A missing archive shows the
  // message and answers false.
  bool ReadArchive(const std::string& program_folder);
  // Reads a plain table file; failures as those of the file system.
  void ReadCsvFile(const std::string& path);
  void Parse(const std::string& csv);

  [[nodiscard]] const std::vector<DesignAuthority>& Rows() const { return rows_; }
  [[nodiscard]] bool HaveDesignAuthInList(const std::string& name) const;
  [[nodiscard]] bool DesignAuthInList(const std::string& name, const std::string& current) const;
  [[nodiscard]] int DesignAuthNumber() const;
  [[nodiscard]] std::string DefaultDesignAuth() const;
  // Metres of head per bar, 9.7 to 10.3; else 10.0 with the stop message.
  [[nodiscard]] float StaticValue(const std::string& name) const;
  [[nodiscard]] int RuleType(const std::string& name) const;

  void SetDefaultAuth(int row);
  void SetShown(int row, bool shown);

 private:
  const Platform& platform_;
  std::vector<DesignAuthority> rows_;
};

}  // namespace zeb
