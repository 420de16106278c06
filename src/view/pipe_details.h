#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// All data of a pipe and its head as lines of text for a fixed-pitch font, with the results after a
// calculation. PipeHint takes the pipe's nodes.
[[nodiscard]] std::string ShowPipeDetails(Session& session, int pipe);

// "North" and so on, "Up", "Down", or the degrees.
[[nodiscard]] std::string DirectionWords(float direction);

}  // namespace zeb
