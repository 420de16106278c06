#pragma once

#include "services/session.h"

namespace zeb {

void ShowAbout(Session& session);

}  // namespace zeb
