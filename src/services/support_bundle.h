#pragma once

#include "services/session.h"

namespace zeb {

inline constexpr const char* kProjectBundle = "ZEB_prj_err_dat.zip";
inline constexpr const char* kErrorBundle = "ZEB_error_data.zip";

// Packs what support needs to see into ZEB_error_data.zip in the program folder, copies that to the
// desktop if there is one, and says where it is: the logs, texts, pipe data and head codes of the
// program folder, the project bundle if there is one, and the user's ZEB folder with its folders
// (as ZEB/...).
void ZEB_error_dat(Session& session);

// Deletes both bundles and the error log from the program folder, each if present.
void delErrorLogFiles(Session& session);

}  // namespace zeb
