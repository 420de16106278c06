#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Lets the user choose which design authorities lists offer, and which one new projects get.
class Auth final : public Form {
 public:
  explicit Auth(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "Auth"; }

  static constexpr int kColumnCount = 3;
  static constexpr std::array<std::string_view, kColumnCount> kHeadings{"Design Authority", "Show",
                                                                        "Default"};
  // One a row of the table; "Yes" where the authority is shown or the default, else empty.
  [[nodiscard]] const std::vector<std::array<std::string, kColumnCount>>& Rows() const {
    return rows_;
  }

  void refreshGrid();
  // Shows a hidden authority, hides a shown one. Rows count from 0.
  void MSFlexGrid1_Click(int row);
  // Asks whether the row shall be the default.
  void MSFlexGrid1_DblClick(int row);

 private:
  Session& session_;
  std::vector<std::array<std::string, kColumnCount>> rows_;
};

}  // namespace zeb
