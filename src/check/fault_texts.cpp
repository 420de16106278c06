#include "check/fault_texts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

namespace zeb {
namespace {

// {i} is the pipe's slot, {a} and {b} its start and end node; {red} the tail of corrections that
// mark the pipe.
struct FaultRow {
  int number;
  int code;
  const char* short_line;
  const char* location;
  const char* problem;
  const char* reason;
  const char* correction;
};

constexpr auto* kRedTail = " - this pipe will be shown in red on the drawing and ??? in your data.";

constexpr auto* kStartShort = "Start node{a} for pipe{i} is wrong";
constexpr auto* kStartLocation = "Pipe{i} start node{a}";
constexpr auto* kPipeLocation = "Pipe{i} = start node {a} end node {b}";
constexpr auto* kNodeChanged =
    "Node number has been changed to{n} but this may cause further errors if it has been used in a "
    "subsequent pipe{red}";

// In the order of Fault.
constexpr std::array kFaultRows = {
    FaultRow{1, 1, kStartShort, kStartLocation,
             "[Error 1] Start node is the same as the first pipe",
             "But they must be different to get the right flows and pressures in the system",
             "It has been changed to{n} (the end node of the first pipe) to allow you to "
             "continue{red}"},
    FaultRow{2, 2, kStartShort, kStartLocation, "[Error 2] Start node is incorrect",
             "It must be in the range of 1 to 9900", kNodeChanged},
    FaultRow{3, 3, "End node for pipe{a}{b} is wrong", kPipeLocation,
             "[Error 3] End node is incorrect", "It must be in the range of 2 to 9901",
             kNodeChanged},
    FaultRow{3, 3, "Pipe{a}{b} end node is wrong", kPipeLocation,
             "[Error 3] The end node is the same as the original start node",
             "This is completely wrong as you cannot have a loop back to the source.",
             kNodeChanged},
    FaultRow{4, 4, "Pipe{i} had same start/end nodes", kPipeLocation,
             "[Error 4] The start and end node numbers of this pipe are the same",
             "They must be different of course as otherwise this pipe doesn't go anywhere!",
             "The end node has been changed to{n} but this may cause further errors if it has been "
             "used in a subsequent pipe{red}"},
    FaultRow{5, 12, "Pipe{a}{b} start not a previous end", kPipeLocation,
             "[Error 5] The start node of{a} has not been given previously as an end node",
             "This is an isolated pipe that does not connect into the rest. Perhaps position  or "
             "some previous start / end node numbers are wrong",
             "It has been changed to the end node of the previous pipe of{n}{red}"},
    FaultRow{6, 5, "Pipe{a}{b} direction = {word}", kPipeLocation,
             "[Error 6] Direction code of {word} has not been recognised",
             "It must be one of N, NE, E, SE, S, SW, W, NW, U or D for points of the compass or up "
             "/ down and it can can also be given as * then an angle eg. *64",
             "It has been changed to *0@0 but this may cause the drawing to be completely "
             "wrong{red}"},
    FaultRow{7, 6, "Pipe{a}{b} Pipe type ={type}", kPipeLocation,
             "[Error 7] Pipe type specified as{type}", "But only{n} have been specified in {file}",
             "It has been changed to pipe type 1 for now{red}"},
    FaultRow{8, 7, "Pipe{a}{b} Size ={size}mm", kPipeLocation,
             "[Error 8] Pipe size of{size}mm is not applicable to pipe type{type}",
             "This size is incorrect or cannot be found in the list for \r\n{description}\r\n "
             "which only contains :-\r\n{sizes}mm",
             "The size has been changed to{n}mm as being the nearest which might be "
             "applicable{red}"},
    FaultRow{9, 8, "Pipe{a}{b} didn't connect to{first start}", kPipeLocation,
             "[Error 9]                              x        y        z\r\n"
             "Previous pipe{first pipe} finished at{first point} m\r\n"
             "Start node{start} begins at       {start point} m\r\n"
             "Entered as length ={length} m direction ={direction} and slope ={slope} deg\r\n",
             "It has been corrected to{new length} m long at{new direction} deg and slope ="
             "{new slope}\r\n",
             "This may indicate a noding or measuring error{red}"},
    FaultRow{10, 10, "Pipe{a}{b} Head code ={code}", kPipeLocation,
             "[Error 10] Head code given as{code}",
             "But this number was not specified in the list of head codes ={codes}",
             "This head code has been changed to 1"},
    FaultRow{11, 0, "Pipe{a}{b} Head area ={area}sq.m", kPipeLocation,
             "[Error 11] Area given as{area} sq.m for head code{code}",
             "Maximum of 31 sq.m (You can switch this checking off in the Project Data).",
             "The entered value will be used in the calculations"},
    FaultRow{12, 0, "Pipe{a}{b} Head code k factor = 0", kPipeLocation,
             "[Error 12] Head code{code} has a 'k' factor of zero so will require an infinite "
             "pressure!",
             "Perhaps the wrong head code has been given or the 'k' factor is wrong",
             "This has been changed to 1.0"},
    FaultRow{13, 0, "Head node{node} is duplicated", "Head at end node{node}",
             "[Error 13] Head number{head} in pipe{a}{b} = head code{code}\r\nis the same end node "
             "as head number{other head} in pipe{other a}{other b}",
             "this is not right", ""},
    FaultRow{14, 1, "{columns}", "Pipes around node number{node}",
             "[Error 14] Pipe{a}{b} is{size} mm but is supplied from pipe{up a}{up b} which is "
             "only{up size} mm",
             "This is normally not permitted",
             "One or both pipes may need to be increased in size - these 2 pipes will be shown in "
             "red on the next drawing."},
    FaultRow{15, 1, "{columns}", "Pipes connecting at node{node}",
             "[Error 15] Pipe{a}{b} direction given as{direction} deg and slope ={slope} deg but "
             "is supplied from pipe{up a}{up b} which has a direction of{up direction} deg and "
             "slope ={up slope} deg which does not make a valid tee fitting",
             "This might be what you intended but it doesn't look right",
             "Can be ignored if correct{red}"},
    FaultRow{16, 0, "Pipe{a}{b} is duplicated", "{last location}",
             "[Error 16] Pipe{a}{b} at line{line} is a repeat of pipe{a}{b} given previously",
             "This will therefore have zero flow rate", ""},
};

const FaultRow& RowOf(Fault fault) { return kFaultRows.at(static_cast<std::size_t>(fault)); }

std::string_view ValueOf(std::string_view name, const FaultFields& fields) {
  if (name == "red") return kRedTail;
  const auto field = std::find_if(fields.begin(), fields.end(),
                                  [&](const FaultField& entry) { return entry.name == name; });
  if (field == fields.end()) throw std::logic_error("fault text without a value for a place");
  return field->text;
}

std::string FillIn(std::string_view text, const FaultFields& fields) {
  std::string filled;
  while (true) {
    const std::size_t open = text.find('{');
    filled += text.substr(0, open);
    if (open == std::string_view::npos) return filled;
    const std::size_t close = text.find('}', open);
    filled += ValueOf(text.substr(open + 1, close - open - 1), fields);
    text.remove_prefix(close + 1);
  }
}

}  // namespace

CheckFault MakeFault(Fault fault, const FaultFields& fields) {
  const FaultRow& row = RowOf(fault);
  return {.number = row.number,
          .location = FillIn(row.location, fields),
          .problem = FillIn(row.problem, fields),
          .reason = FillIn(row.reason, fields),
          .correction = FillIn(row.correction, fields),
          .short_line = FillIn(row.short_line, fields)};
}

int FaultCode(Fault fault) { return RowOf(fault).code; }

}  // namespace zeb
