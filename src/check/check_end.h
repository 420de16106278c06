#pragma once

#include "check/check_run.h"
#include "model/failure.h"

namespace zeb {

// After a pass that ran to its end: the project is checked, and its summary opens when there is
// something to warn of.
void FinishCheck(CheckRun& run);

// Tells of a run-time failure within the pass.
void ReportFailure(const CheckRun& run, const RuntimeFailure& failure);

// After every pass: menus, status bar, model guard and picture. A pass that the user stopped opens
// the project data form.
void EndCheck(const CheckRun& run);

}  // namespace zeb
