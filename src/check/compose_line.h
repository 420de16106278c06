#pragma once

#include "services/session.h"

namespace zeb {

// Writes the canonical line of a pipe's table rows to its place in PipeLines; a pipe marked as
// deleted becomes "Z!Z!". The line reads back as the same pipe. With a SavedCopyPath the text goes
// to ComposedLine instead, without the words of a head that is not selected.
void ComposePipeLine(Session& session, int pipe);

}  // namespace zeb
