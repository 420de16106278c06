#pragma once

#include "model/int16.h"
#include "model/limits.h"
#include "model/table.h"

namespace zeb {

// The rows of the per-pipe tables, the one place that names them: members, clearing, copying and
// the JSON dump all run over these lists. A pipe is a slot, the same in all rows; slot 0 is the
// source point. Units: bar, L/min, m, mm, degrees.
//
//   PipeStartPressure   bar at the pipe's start; Hazen-Williams coefficient while iterating
//   PipeFlow            signed, L/min; until the first calculation the slope in degrees
//   PipeDrop            signed friction and added drop, bar
//   PipeX, PipeY, PipeZ end point, m; slot 0 is the source
//   PipeLength          true length, m
//   PipeRise            m
//   PipeEqLength        length with fittings, m, by the calculation
//   PipeEndPressure     bar, by the calculation; -100 unset
//   PipeSlope           degrees, up positive
//   PipeLengthIn        length as on the line, m
//   PipeHydrant         L/min
//   PipeVelocity        m/s, by the calculation
//   PipeOrifice         K of an orifice plate
//   PipePressDrop       fixed drop, bar
//   PipeAddLength       added length, m
//   PipeOrificeDrop     bar, by the calculation
//   PipeABFlow, PipeABPress, PipeABArea  an added building: L/min, bar, m2
//   PipeDirection       degrees clockwise from north; 999 up, -999 down
#define ZEB_PIPE_REAL_ROWS(X) \
  X(PipeStartPressure) \
  X(PipeFlow) \
  X(PipeDrop) \
  X(PipeX) \
  X(PipeY) \
  X(PipeZ) \
  X(PipeLength) \
  X(PipeRise) \
  X(PipeEqLength) \
  X(PipeEndPressure) \
  X(PipeSlope) \
  X(PipeLengthIn) \
  X(PipeHydrant) \
  X(PipeVelocity) \
  X(PipeOrifice) \
  X(PipePressDrop) \
  X(PipeAddLength) \
  X(PipeOrificeDrop) \
  X(PipeABFlow) \
  X(PipeABPress) \
  X(PipeABArea) \
  X(PipeDirection)

//   PipeMark            -6666 after reading; the row of the size optimiser while it works
//   PipeUpstream        the first pipe that arrived at this pipe's start node; 0 the source
//   PipeSizeIndex       column of the size in the pipe data tables; 0 none
//   PipeSize            nominal size, mm
//   PipeVJ              mechanical joints
//   PipeHead            head slot at the pipe's end, 0 none
//   PipeType, PipeValve numbers in the pipe data; valve 0 none
//   PipeElbows, PipeTees derived fittings with the entered extras
//   PipeLoopClose       the first pipe into the same end node when this pipe closes a loop
//   PipeError           0 clean; the code that draws the pipe red; -1 deleted
//   PipeLine            its line in PipeLines
//   PipePrevious        the highest earlier slot that ends at this start node
//   PipeSmallUp         1 once reported as too small an upstream pipe
//   PipeAE, PipeAT      entered extra fittings
//   PipeSelected        1 within the present selection
//   PipeSizeIndexAsRead, PipeSizeAsRead  size before automatic sizing
//   PipeUnsized         1 for a pipe entered with size 0
#define ZEB_PIPE_INT_ROWS(X) \
  X(PipeMark) \
  X(PipeUpstream) \
  X(PipeSizeIndex) \
  X(PipeSize) \
  X(PipeVJ) \
  X(PipeHead) \
  X(PipeType) \
  X(PipeValve) \
  X(PipeElbows) \
  X(PipeTees) \
  X(PipeStartNode) \
  X(PipeEndNode) \
  X(PipeLoopClose) \
  X(PipeError) \
  X(PipeLine) \
  X(PipePrevious) \
  X(PipeSmallUp) \
  X(PipeAE) \
  X(PipeAT) \
  X(PipeSelected) \
  X(PipeSizeIndexAsRead) \
  X(PipeSizeAsRead) \
  X(PipeUnsized)

// Picture coordinates of the pipe's two ends, rewritten by each redraw.
#define ZEB_PIPE_COORD_ROWS(X) \
  X(PipeScreenX1) \
  X(PipeScreenY1) \
  X(PipeScreenX2) \
  X(PipeScreenY2)

struct PipeTables {
#define ZEB_REAL_ROW(name) Table<float, kLastPipe> name;
#define ZEB_INT_ROW(name) Table<Int16, kLastPipe> name;
  ZEB_PIPE_REAL_ROWS(ZEB_REAL_ROW)
  ZEB_PIPE_INT_ROWS(ZEB_INT_ROW)
  ZEB_PIPE_COORD_ROWS(ZEB_REAL_ROW)
#undef ZEB_REAL_ROW
#undef ZEB_INT_ROW
};

// Calls visit(name, row) for every real row, in table order.
template <class Tables, class Visit>
void ForEachPipeRealRow(Tables& tables, Visit visit) {
#define ZEB_VISIT(name) visit(#name, tables.name);
  ZEB_PIPE_REAL_ROWS(ZEB_VISIT)
#undef ZEB_VISIT
}

// Calls visit(name, row) for every integer row, in table order.
template <class Tables, class Visit>
void ForEachPipeIntRow(Tables& tables, Visit visit) {
#define ZEB_VISIT(name) visit(#name, tables.name);
  ZEB_PIPE_INT_ROWS(ZEB_VISIT)
#undef ZEB_VISIT
}

// Calls visit(name, row) for every real and integer row.
template <class Tables, class Visit>
void ForEachPipeRow(Tables& tables, Visit visit) {
  ForEachPipeRealRow(tables, visit);
  ForEachPipeIntRow(tables, visit);
}

}  // namespace zeb
