#pragma once

#include "services/session.h"

namespace zeb {

// Saves a copy of the open project into the program folder, named by the date and the time, and
// packs it alone into ZEB_prj_err_dat.zip there. The project counts as changed as before.
void savePrjDataToZIP(Session& session);

}  // namespace zeb
