#include "services/authority_form.h"

#include <cstddef>

#include "services/procedure.h"

namespace zeb {
namespace {

const DesignAuthority& AuthorityOf(const Session& session, int row) {
  if (row < 0 || row > session.authorities.DesignAuthNumber()) {
    throw RuntimeFailure(failure::kSubscriptOutOfRange);
  }
  return session.authorities.Rows()[static_cast<std::size_t>(row)];
}

}  // namespace

Auth::Auth(Session& session) : session_(session) { refreshGrid(); }

void Auth::refreshGrid() {
  const auto mark = [](bool set) { return set ? "Yes" : ""; };
  rows_.clear();
  for (const DesignAuthority& row : session_.authorities.Rows()) {
    rows_.push_back({row.name, mark(row.shown), mark(row.is_default)});
  }
}

void Auth::MSFlexGrid1_Click(int row) {
  Procedure procedure(session_, "Auth", "MSFlexGrid1_Click");
  procedure.Step(10,
                 [&] { session_.authorities.SetShown(row, !AuthorityOf(session_, row).shown); });
  refreshGrid();
}

void Auth::MSFlexGrid1_DblClick(int row) {
  Procedure procedure(session_, "Auth", "MSFlexGrid1_DblClick");
  procedure.Step(10, [&] {
    const std::string name = AuthorityOf(session_, row).name;
    if (!UserAgrees(session_.platform.dialogs, "Design Authority - Default Valve",
                    "Would you like to set this as the Default Valve")) {
      return;
    }
    session_.authorities.SaveDefaultDesignAuth(name);
    session_.authorities.SetDefaultAuth(row);
  });
  refreshGrid();
}

}  // namespace zeb
