#pragma once

#include <string>
#include <vector>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Values of LimitListKind.
inline constexpr int kVariedSizes = 1;
inline constexpr int kPipesBeyondLimits = 2;
inline constexpr int kHeadsBelowDuty = 3;

// The window that lists pipes or heads, in the kind that LimitListKind tells.
class LimitListForm : public Form {
 public:
  // `header` tells what is listed and how many; `rows` are whole lines.
  LimitListForm(Session& session, std::string header, std::string rows);

  [[nodiscard]] std::string_view Name() const override { return "frmLimitList"; }

  void cmdOK_Click();

  std::string Caption;
  std::string Title;  // the source duty
  std::string Header;
  std::vector<std::string> Columns;  // two lines above the rows
  std::string Rows;
  std::string Foot;

 private:
  Session& session_;
};

}  // namespace zeb
