#include "batch/options.h"

#include <CLI/CLI.hpp>
#include <string>

#include "lifecycle/startup.h"
#include "posix/path_text.h"

namespace zeb {
namespace {

void AddCommonOptions(CLI::App& app, BatchOptions& options) {
  app.add_option("--pipe-data", options.pipe_data_folder,
                 "folder of the pipe data files, and of user.hcl for projects of the oldest format")
      ->type_name("FOLDER");
  app.add_option("--authorities", options.authorities_csv,
                 "plain table of design authorities instead of the protected one")
      ->type_name("CSV");
  app.add_option("--session", options.session_file,
                 "session file with the water supplies (default: none but \"None\")")
      ->type_name("FILE");
  app.add_option("--settings", options.settings_folder, "folder of zeb.ini (default: none)")
      ->type_name("FOLDER");
  app.add_option("--time-limit", options.time_limit, "end the run after so many seconds")
      ->type_name("SECONDS")
      ->check(CLI::PositiveNumber);
  app.add_flag("--yes", options.yes, "answer questions with Yes instead of their default");
}

void AddCalculationOptions(CLI::App& app, BatchOptions& options) {
  app.add_option("--supply", options.supply, "water supply in place of the project's")
      ->type_name("NAME");
  app.add_option("--select", options.select_nodes, "end nodes of the heads that operate")
      ->type_name("NODE,...")
      ->delimiter(',')
      ->allow_extra_args(false);
  app.add_option("--mrh-node", options.mrh_node, "node of the most remote head, 0 for no search")
      ->type_name("NODE");
  app.add_option("--min-vel", options.min_vel, "lower velocity limit, m/s")->type_name("M/S");
  app.add_option("--max-vel", options.max_vel, "upper velocity limit, m/s")->type_name("M/S");
  app.add_option("--max-pd", options.max_pd, "upper pressure drop limit, bar")->type_name("BAR");
  app.add_option("--sizing-method", options.sizing_method,
                 "sizing of unsized pipes by 1 velocity, 2 mbar/m, 3 total drop")
      ->check(CLI::Range(1, 3));
  app.add_option("--sizing-pd", options.sizing_pd, "sizing limit of method 2, mbar/m")
      ->type_name("MBAR/M");
  app.add_option("--sizing-drop", options.sizing_drop, "sizing limit of method 3, bar")
      ->type_name("BAR");
  app.add_option("--sizing-min", options.sizing_min, "smallest size given to a pipe, mm")
      ->type_name("MM");
}

enum class FileCount { kOne, kMany };

CLI::App* AddCommand(CLI::App& app, BatchOptions& options, BatchOptions::Command command,
                     const std::string& name, const std::string& help, FileCount count) {
  CLI::App* sub = app.add_subcommand(name, help);
  sub->add_option("FILE", options.files, "file to read")
      ->required()
      ->type_name("")
      ->expected(count == FileCount::kMany ? -1 : 1);
  sub->callback([&options, command] { options.command = command; });
  AddCommonOptions(*sub, options);
  return sub;
}

void AddCommands(CLI::App& app, BatchOptions& options) {
  using Command = BatchOptions::Command;
  AddCommand(app, options, Command::kCheck, "check", "check projects and print the summaries",
             FileCount::kMany);
  CLI::App* calculate = AddCommand(app, options, Command::kCalculate, "calculate",
                                   "calculate projects and print the summaries", FileCount::kMany);
  AddCalculationOptions(*calculate, options);
  calculate->add_option("--summary", options.summary_file, "also write the summary to a file")
      ->type_name("TXT");
  AddCommand(app, options, Command::kCanonical, "canonical",
             "print the lines of a project in canonical form", FileCount::kOne);
  CLI::App* convert =
      AddCommand(app, options, Command::kConvert, "convert",
                 "save a project in another format or with its picked heads", FileCount::kOne);
  convert->add_option("--to", options.target, "file to write")->type_name("OUT")->required();
  convert->add_option("--mode", options.mode, "format: 0 text, 1 to 3 versions, 4 with the supply")
      ->check(CLI::Range(0, 4));
  convert->add_flag("--operating-heads", options.operating_heads,
                    "write the checked project with its picked heads only");
  convert->add_option("--select", options.select_nodes, "end nodes of the heads that operate")
      ->type_name("NODE,...")
      ->delimiter(',')
      ->allow_extra_args(false);
  AddCommand(app, options, Command::kPipeData, "pipe-data",
             "read and judge a pipe data file and print its tables", FileCount::kOne);
  CLI::App* dump = AddCommand(app, options, Command::kDump, "dump", "print the whole model as JSON",
                              FileCount::kOne);
  dump->add_flag("--calculate", options.calculate, "calculate first");
  AddCalculationOptions(*dump, options);
}

// The system's paths are bytes, the program's are texts.
void TakePathsAsTexts(BatchOptions& options) {
  for (std::string& file : options.files) file = PathText(file);
  for (std::string* path :
       {&options.pipe_data_folder, &options.authorities_csv, &options.session_file,
        &options.settings_folder, &options.target, &options.summary_file}) {
    *path = PathText(*path);
  }
}

}  // namespace

ParsedCommandLine ParseCommandLine(int argc, const char* const* argv) {
  ParsedCommandLine parsed;
  CLI::App app("Hydraulic analysis of fire protection pipe networks, without a window",
               "zeb-batch");
  app.set_version_flag("--version", "zeb-batch " + VersionText());
  app.require_subcommand(1);
  AddCommands(app, parsed.options);
  try {
    app.parse(argc, argv);
    if (!parsed.options.summary_file.empty() && parsed.options.files.size() > 1) {
      throw CLI::ValidationError("--summary", "goes with one FILE only");
    }
    TakePathsAsTexts(parsed.options);
  } catch (const CLI::ParseError& error) {
    parsed.exit_status = app.exit(error) == 0 ? kExitDone : kExitUsage;
  }
  return parsed;
}

}  // namespace zeb
