#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zeb {

// What the command line asks for.
struct BatchOptions {
  enum class Command { kCheck, kCalculate, kCanonical, kConvert, kPipeData, kDump };

  Command command = Command::kCheck;
  std::vector<std::string> files;

  // Common options; empty means none.
  std::string pipe_data_folder;
  std::string authorities_csv;
  std::string session_file;
  std::string settings_folder;
  double time_limit = 0.0;  // seconds, 0 none
  bool yes = false;         // questions are answered with Yes or OK

  // convert
  std::string target;
  int mode = 3;
  bool operating_heads = false;

  // calculate and dump --calculate: what the dialogs ask for.
  bool calculate = false;
  std::string summary_file;
  std::optional<std::string> supply;
  std::vector<int> select_nodes;
  std::optional<std::string> mrh_node;
  std::optional<std::string> min_vel;
  std::optional<std::string> max_vel;
  std::optional<std::string> max_pd;
  std::optional<int> sizing_method;
  std::optional<std::string> sizing_pd;
  std::optional<std::string> sizing_drop;
  std::optional<std::string> sizing_min;
};

// How a run ends.
inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;  // errors found, calculation failed or not balanced
inline constexpr int kExitUsage = 2;   // wrong usage or unreadable input

// The options, or the exit status when the run ends here (help, version, wrong usage).
struct ParsedCommandLine {
  BatchOptions options;
  std::optional<int> exit_status;
};
[[nodiscard]] ParsedCommandLine ParseCommandLine(int argc, const char* const* argv);

}  // namespace zeb
