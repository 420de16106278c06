#pragma once

#include <string>

#include "platform/file_system.h"

namespace zeb {

// Writes a whole file so that at any moment either the old one or the new one stands complete: the
// bytes go into a file beside the target, are flushed, and are renamed over it. A failure leaves
// the old file and removes the one beside it.
void WriteFileSafely(FileSystem& files, const std::string& path, const std::string& bytes);

// Copies a file, with the same promise for the copy.
void CopyFileSafely(FileSystem& files, const std::string& from, const std::string& to);

}  // namespace zeb
