#include "calc/limit_list_form.h"

#include <utility>

#include "services/number_text.h"

namespace zeb {
namespace {

std::string CaptionOf(int kind) {
  switch (kind) {
    case kPipesBeyondLimits:
      return "List of pipes beyond specified limits";
    case kHeadsBelowDuty:
      return "List of under performing heads";
    default:
      return "These pipe sizes have been varied";
  }
}

std::vector<std::string> ColumnsOf(int kind) {
  if (kind == kHeadsBelowDuty) {
    return {"Head  F l o w  Area  Density mm/min   Pressure bars",
            "node   L/min   sq.m  Reqd    Actual   Reqd   Actual"};
  }
  return {" N o d e s   Size  F l o w   Vel   Eq.len  Pressure",
          "Start   End   mm    L/min    m/s      m    drop bars"};
}

// The first supply is the one that stands for none.
std::string FootOf(const Project& project) {
  if (project.LimitListKind != kHeadsBelowDuty) {
    return "These pipes may be undersized - click on 'OK' to proceed";
  }
  if (project.PumpCurveIndex > 1) return "Possible inadequate pump curve specified";
  return "Possible incorrect 'k' factors or areas - click on 'OK' to proceed";
}

}  // namespace

LimitListForm::LimitListForm(Session& session, std::string header, std::string rows)
    : Caption(CaptionOf(session.project.LimitListKind)),
      Title("Source duty = " + FormatDecimals(session.project.SourceFlow, 1) + " L/min at " +
            FormatDecimals(session.project.SourcePressure, 3) + " bars"),
      Header(std::move(header)),
      Columns(ColumnsOf(session.project.LimitListKind)),
      Rows(std::move(rows)),
      Foot(FootOf(session.project)),
      session_(session) {}

void LimitListForm::cmdOK_Click() { session_.platform.shell.Close(*this); }

}  // namespace zeb
