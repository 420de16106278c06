#pragma once

#include <string>
#include <string_view>

#include "model/project.h"
#include "services/session.h"

namespace zeb {

// What a head code line tells of its kind of head.
struct HeadCodeFields {
  float orifice = 0.0F;   // mm
  float k = 0.0F;         // L/min per root bar
  float pressure = 0.0F;  // minimum, bar
  std::string name;
};

// Parses the lines of all codes into the head code table and resets what is counted by code.
void ParseHeadCodes(Project& project);

// The line at a list position as the editor reads it: from position 100 on it takes the layout of
// three-digit codes, one position before the check does.
[[nodiscard]] HeadCodeFields HeadCodeAt(const Project& project, int position);

// False when a value is too large for its column, or negative.
[[nodiscard]] bool FitsHeadCodeLine(const HeadCodeFields& fields);

// Adds a line at the end of the list. Fails when the list is full, and leaves it as it was.
void AppendHeadCodeLine(Project& project, const std::string& line);

// Adds a code, which belongs to the open project.
void AddHeadCode(Project& project, const HeadCodeFields& fields);

// A code that another project uses is read-only.
[[nodiscard]] bool MayChangeHeadCode(const Project& project, int position);
// Rebuilds the line at its position; its number stays.
void ChangeHeadCode(Project& project, int position, const HeadCodeFields& fields);

// What follows the number of a head code line, from the blank on.
[[nodiscard]] std::string BehindHeadCodeNumber(std::string_view line);

// Leaves only the codes in use, numbered from 1, in the list, the heads and the pipe lines. The
// project must be checked. Without heads nothing happens.
void countHeads(Session& session);

}  // namespace zeb
