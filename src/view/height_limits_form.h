#pragma once

#include <string>
#include <string_view>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Asks for the heights that zoomed elevations and isometrics show. The picture stays as it is until
// the next view or zoom.
class HeightLimitsForm : public Form {
 public:
  explicit HeightLimitsForm(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "ZEB39"; }

  // OK: restricts the heights, 0 to 99.99 m.
  void cmdOK_Click();
  // Cancel: shows all heights; the limits stay stored.
  void cmdCancel_Click();

  std::string Caption = "Restrict depth of view of isometrics";
  std::string Message;
  std::string MinHeight;  // m
  std::string MaxHeight;

 private:
  Session& session_;
};

}  // namespace zeb
