#pragma once

#include "services/session.h"

namespace zeb {

// After a calculation with picked heads: offers SavePartProject where the options ask for it.
void OfferPartSave(Session& session);

// Asks, and then saves a new project that holds only the operating heads.
void SavePartProject(Session& session);

}  // namespace zeb
