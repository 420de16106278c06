#include "check/pipe_lines.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "check/compose_line.h"
#include "check/correction.h"
#include "check/direction_code.h"
#include "check/line_heads.h"
#include "check/line_options.h"
#include "check/line_words.h"
#include "check/loop_closing.h"
#include "check/pipe_input.h"
#include "check/pipe_nodes.h"
#include "check/pipe_sizes.h"
#include "check/swing_joint.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr float kShortest = 0.01F;  // m
constexpr float kLongest = 999.9F;  // m
constexpr int kShortenedCode = 15;
constexpr int kNewMark = -6666;

bool IsSkipped(const std::string& line) {
  return line.size() <= 2 || line.starts_with("Z!Z!") || line.starts_with('\'');
}

bool EndsInput(const std::string& line) { return StartsWithNoCase(line, "END"); }

class PipeReader {
 public:
  explicit PipeReader(CheckRun& run) : run_(run), project_(run.project), nodes_(run), heads_(run) {}

  void Read(int line);

 private:
  bool ReadNodes(PipeInput& input, LineWords& words);
  void ReadLength(PipeInput& input, std::string_view word);
  void ReadDirection(PipeInput& input, std::string_view word);
  void StorePipe(const PipeInput& input);
  void StoreGeometry(const PipeInput& input);
  void StoreOptions(int pipe, const LineOptions& options);
  void RewriteLine(const PipeInput& input);
  void CountText();

  CheckRun& run_;
  Project& project_;
  PipeNodes nodes_;
  LineHeads heads_;
};

void PipeReader::Read(int line) {
  const std::string text = UpperCase(project_.PipeLines[line]);
  LineWords words(text);
  PipeInput input{.slot = std::min(run_.pipes + 1, kLastPipe), .line = line};
  if (!ReadNodes(input, words)) return;
  run_.pipes = input.slot;

  input.size = ValInt16(words.Next());
  ReadLength(input, words.Next());
  ReadDirection(input, words.Next());
  TakePipeType(run_, input, words.Next());
  FindPipeSize(run_, input);
  input.valve = std::max<int>(ValInt16(words.Next()), 0);
  SetPlanAndRise(input);
  CorrectSwingJoint(run_, input);
  FitClosingPipe(run_, input);
  StorePipe(input);
  StoreGeometry(input);

  const LineOptions options(text);
  StoreOptions(input.slot, options);
  if (options.Has(LineOption::kAddBuilding)) {
    heads_.AddDischarge(input, options);
  } else {
    heads_.AddHead(input, words, options);
  }
  project_.PipeError[input.slot] = input.code;
  RewriteLine(input);
  CountText();
}

bool PipeReader::ReadNodes(PipeInput& input, LineWords& words) {
  input.start = ValInt16(words.Next());
  input.end = ValInt16(words.Next());
  if (!nodes_.Judge(input)) return false;
  nodes_.Book(input);
  return true;
}

void PipeReader::ReadLength(PipeInput& input, std::string_view word) {
  input.length = std::max(ValSingle(word), kShortest);
  if (input.length <= kLongest) return;
  input.length = kLongest;
  input.code = kShortenedCode;
  project_.WarningText +=
      "Pipe" + SignedText(input.start) + SignedText(input.end) + " length reduced to 999.9m";
}

void PipeReader::ReadDirection(PipeInput& input, std::string_view word) {
  DirectionCode code;
  if (!ParseDirection(word, code)) {
    ReportCorrection(run_, input, Fault::kDirection, {{"word", std::string(word)}});
  }
  input.direction = code.direction;
  input.slope = code.slope;
}

void PipeReader::StorePipe(const PipeInput& input) {
  const int pipe = input.slot;
  ClearPipe(project_, pipe);
  project_.PipeMark[pipe] = kNewMark;
  project_.PipeUpstream[pipe] = input.upstream;
  project_.PipeSizeIndex[pipe] = input.size_index;
  project_.PipeSize[pipe] = input.size;
  project_.PipeType[pipe] = input.type;
  project_.PipeValve[pipe] = input.valve;
  project_.PipeStartNode[pipe] = input.start;
  project_.PipeEndNode[pipe] = input.end;
  project_.PipeLoopClose[pipe] = input.loop_close;
  project_.PipeLine[pipe] = input.line;
  project_.PipePrevious[pipe] = nodes_.LastInto(input.start);
  project_.PipeUnsized[pipe] = input.size_index == 0 && input.size == 0 ? 1 : 0;
  nodes_.Remember(input);
}

void PipeReader::StoreGeometry(const PipeInput& input) {
  const int pipe = input.slot;
  float rise = input.rise;
  if (input.direction == kDirectionUp) rise = input.length;
  if (input.direction == kDirectionDown) rise = -input.length;
  PlacePipe(project_, pipe, input.direction, input.plan, rise);
  project_.PipeFlow[pipe] = input.slope;
  project_.PipeSlope[pipe] = input.slope;
  project_.PipeLengthIn[pipe] = input.length;
  project_.PipeDirection[pipe] = input.direction;
}

void PipeReader::StoreOptions(int pipe, const LineOptions& options) {
  project_.PipeOrifice[pipe] = options.Single(LineOption::kOrifice);
  project_.PipePressDrop[pipe] = options.Single(LineOption::kPressDrop);
  project_.PipeAddLength[pipe] = options.Single(LineOption::kAddLength);
  project_.PipeAE[pipe] = options.Integer(LineOption::kElbows);
  project_.PipeAT[pipe] = options.Integer(LineOption::kTees);
  project_.PipeVJ[pipe] = options.Integer(LineOption::kJoints);
  project_.PipeHydrant[pipe] = options.Single(LineOption::kHydrant);
}

void PipeReader::RewriteLine(const PipeInput& input) {
  if (run_.mode != CheckMode::kComposeLines) return;
  if (input.code == 0) {
    ComposePipeLine(run_.session, input.slot);
  } else {
    project_.PipeLines[input.line] += "  ???";
  }
}

void PipeReader::CountText() {
  project_.PipeCountText =
      SignedText(run_.pipes) + " pipes and" + SignedText(run_.heads) + " heads";
}

}  // namespace

void ReadPipeLines(CheckRun& run) {
  PipeReader reader(run);
  const Project& project = run.project;
  for (int line = kFirstPipeLine; line <= project.LineCount; ++line) {
    const std::string& text = project.PipeLines[line];
    if (EndsInput(text)) break;
    if (!IsSkipped(text)) reader.Read(line);
  }
}

}  // namespace zeb
