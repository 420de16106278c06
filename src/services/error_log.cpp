#include "services/error_log.h"

#include <algorithm>

#include "model/failure.h"
#include "services/dates.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/text.h"
#include "zeb_version.h"

namespace zeb {
namespace {

constexpr const char* kNewSession =
    "New session.....................................................";

std::string Line(const std::string& text) { return text + std::string(kLineBreak); }

// Every entry is one line.
std::string OnOneLine(const std::string& text) {
  std::string line = ReplaceAll(text, kLineBreak, " ");
  std::replace(line.begin(), line.end(), '\r', ' ');
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line;
}

std::string Stamp(const DateTime& now) { return DateText(now) + " - " + TimeText(now) + ", "; }

std::string Head(const DateTime& now, const std::string& program_path) {
  const std::string version = PlainText(kVersionMajor) + "." + PlainText(kVersionMinor) + "." +
                              PlainText(kVersionRevision) + " : " + PlainText(kVersionBuild);
  return Line("ZEB Error log created on: " + DateText(now) + " at " + TimeText(now)) +
         Line("ZEB path: " + program_path) + Line("ZEB version: " + version);
}

std::string EntryText(const ErrorLog::Entry& entry) {
  if (entry.brief) return OnOneLine(entry.text);
  return OnOneLine(entry.text) + " --- in " + entry.source + " / " + PlainText(entry.line);
}

Message Shown(const ErrorLog::Entry& entry) {
  const std::string line_break(kLineBreak);
  return {.title = "Tolvan - ZEB",
          .text = "Error: " + entry.text + line_break + line_break +
                  "The error happened in component '" + entry.source + "' at line " +
                  PlainText(entry.line) +
                  " and was logged (if configured so) to the 'Log.txt' file.",
          .icon = MessageIcon::kStop};
}

}  // namespace

std::string ErrorLog::Path() const {
  return folder_.empty() ? std::string() : AddBackSlash(folder_) + "ZEB_error.log";
}

void ErrorLog::LogError(const Entry& entry) {
  try {
    Append(entry);
  } catch (const RuntimeFailure&) {
    session_line_written_ = false;
  }
  if (entry.show) platform_.dialogs.Show(Shown(entry));
}

void ErrorLog::Append(const Entry& entry) {
  if (folder_.empty()) return;
  const DateTime now = platform_.clock.Now();
  std::string text;
  if (!platform_.files.FileExists(Path())) text += Head(now, folder_);
  if (!session_line_written_) text += Line(Stamp(now) + kNewSession);
  text += Line(Stamp(now) + EntryText(entry));
  session_line_written_ = true;
  platform_.files.AppendFile(Path(), text);
}

}  // namespace zeb
