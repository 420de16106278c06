#include <algorithm>
#include <csignal>
#include <exception>
#include <iostream>

#include "batch/options.h"
#include "batch/run.h"

int main(int argc, char** argv) {
  // A file size limit is told as a full disk, not by the end of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    const zeb::ParsedCommandLine parsed = zeb::ParseCommandLine(argc, argv);
    if (parsed.exit_status) return *parsed.exit_status;
    const int status = zeb::RunBatch(parsed.options);
    // An output that could not be written is no success.
    return std::cout.flush() ? status : std::max(status, zeb::kExitFailed);
  } catch (const std::exception& error) {
    std::cerr << "zeb-batch: " << error.what() << '\n';
    return zeb::kExitFailed;
  }
}
