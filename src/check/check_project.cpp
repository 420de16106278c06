#include "check/check_project.h"

#include "check/check_end.h"
#include "check/check_run.h"
#include "check/check_summary.h"
#include "check/coordinates.h"
#include "check/duplicate_directions.h"
#include "check/duplicate_heads.h"
#include "check/fittings.h"
#include "check/head_details.h"
#include "check/head_pipes.h"
#include "check/initialisation.h"
#include "check/loop_finding.h"
#include "check/node_checks.h"
#include "check/pipe_details.h"
#include "check/pipe_lines.h"
#include "check/tee_shapes.h"
#include "check/upstream_sizes.h"
#include "model/model_state.h"

namespace zeb {
namespace {

void RunPhases(CheckRun& run) {
  run.Phase("initialisation", InitialiseCheck);
  run.Phase("reading in pipes", ReadPipeLines);
  run.Phase("xyz", PlaceCoordinates);
  run.Phase("duplicate heads", FindDuplicateHeads);
  run.Phase("pipe details", SumUpPipes);
  run.Phase("head details", SumUpHeads);
  run.Phase("node checks", CheckNodes);
  run.Phase("loop finding", FindLoops);
  run.Phase("upstream pipes", CheckUpstreamSizes);
  run.Phase("elbows/tees", CountFittings);
  run.Phase("extras", AddExtraFittings);
  run.Phase("tee shapes", CheckTeeShapes);
  run.Phase("duplicate dirs", FindDuplicateDirections);
  run.Phase("head pipes", CheckHeadPipes);
  run.Phase("summary", BuildCheckSummary);
}

}  // namespace

void CheckProject(Session& session, CheckMode mode) {
  if (!AcceptAuthority(session)) return;
  CheckRun run(session, mode);
  try {
    RunPhases(run);
    FinishCheck(run);
  } catch (const CheckStopped&) {
    session.project.ModelState = model_state::kRead;
    session.project.CheckBroken = 1;
  } catch (const RuntimeFailure& failure) {
    session.project.CheckBroken = 1;
    ReportFailure(run, failure);
  }
  EndCheck(run);
}

}  // namespace zeb
