#pragma once

#include "services/session.h"

namespace zeb {

// The boxes of a calculation. The Warn functions show theirs only where there is a reason to.

void WarnOfCurveStart(Session& session);
void ShowNothingOperates(Session& session);
void ShowHydrantsNeedCurve(Session& session);
void WarnOfHighHead(Session& session);
void WarnOfHighDensity(Session& session);

void ShowCalculationFailed(Session& session);
void WarnOfManyIterations(Session& session);
void WarnOfUnlikelyDuty(Session& session);
void WarnOfLowEndPressures(Session& session);
void WarnOfFlowOffCurve(Session& session);

}  // namespace zeb
