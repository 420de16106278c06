#pragma once

#include <array>
#include <string>

#include "model/int16.h"

namespace zeb {

// Everything that is one value per model, the one place that names them: members, clearing and the
// JSON dump run over these lists. Within a list the groups show who clears them together.

// Integers that a check clears at its start.
//   StopFlag     3 stops the check
//   CheckBroken  1 when the check was stopped or failed: the tables hold a part of the network
#define ZEB_CHECK_INTS(X) \
  X(PipeCount) \
  X(HeadCount) \
  X(LoopCount) \
  X(UnsizedCount) \
  X(HydrantCount) \
  X(OrificeCount) \
  X(SourceNode) \
  X(WarningCount) \
  X(StopFlag) \
  X(CheckBroken) \
  X(MinSize) \
  X(MaxSize) \
  X(PipeDataErrorCount) \
  X(MinNode) \
  X(MaxNode) \
  X(MinHeadCode) \
  X(MaxHeadCode)

// Integers of the open project.
//   RuleType        1 general, 2 NFPA, 3 FM: the rule type of the design authority
//   ModelState      0 stale, 1 read, 2 checked, 3 calculated
//   DataChanged     above 0 when the lines differ from the file
//   SprinklerOrient 2 pendent, else 1
#define ZEB_PROJECT_INTS(X) \
  X(LineCount) \
  X(PipeTypeCount) \
  X(PipeSizeCount) \
  X(ValveCount) \
  X(WeldSize) \
  X(RuleType) \
  X(HeadCodeCount) \
  X(CheckErrorCount) \
  X(DataChanged) \
  X(ModelState) \
  X(HeadAreaState) \
  X(LoopListLength) \
  X(NewProjectFlag) \
  X(SupplyCount) \
  X(PumpRow) \
  X(Schedule40Type) \
  X(AutoSavePending) \
  X(SprinklerOrient) \
  X(ClosedownDone) \
  X(SelectedHeadsMode) \
  X(SelectedHeadCount) \
  X(UndoSeq) \
  X(UndoSlot) \
  X(UndoKeep) \
  X(AutoSaveEvery) \
  X(AutoSaveCounter) \
  X(SaveFormat) \
  X(MaxPipes) \
  X(MaxHeads) \
  X(MaxLoops) \
  X(LastSessionNumber)

// Integers of the view and the pointer.
//   ViewMode         1 plan, 2 front, 3 side, 4 to 7 isometric; 8 plan while a box is awaited
//   ZoomState        0 no zoom, 1 box awaited, 2 box being dragged, 3 zoomed
//   ZoomKept         1 once a box is finished: isometrics keep the zoom
//   HeadBoxState     1 and 2 as ZoomState, for the box that picks operating heads
//   PanLocked        1 from a zoom command to the next redraw
//   PickedPipe       found by the last pick, 0 none; a head slot while heads are picked
//   HighlightedPipe  the pipe shown green, 0 none
//   MarkedNode       a pipe slot whose start node (+) or end node (-) is printed on top
#define ZEB_VIEW_INTS(X) \
  X(ViewMode) \
  X(CommandMode) \
  X(ZoomState) \
  X(ColourByClass) \
  X(ShowNodesOnce) \
  X(DisplayItem) \
  X(PanLocked) \
  X(PickedPipe) \
  X(HighlightedPipe) \
  X(ZoomKept) \
  X(HeadBoxState) \
  X(MarkedNode)

// Reals of the view. The zoom box is in picture units while it is dragged, then in m, with 1 the
// lower value.
//   ZoomZ1, ZoomZ2            heights that belong to the zoom, m
//   ViewOriginX, ViewOriginY  the point at the lower left of the last plan drawn, m
//   ViewScaleX, ViewScaleY    picture units per m in the last plan drawn
//   PicLogWidth ...           the picture's logical size, and its place and size in the window
//   HeadBoxX1 ...             the box that picks operating heads, in picture units
#define ZEB_VIEW_REALS(X) \
  X(ViewMargin) \
  X(ViewOriginX) \
  X(ViewOriginY) \
  X(ViewScaleX) \
  X(ViewScaleY) \
  X(ZoomX1) \
  X(ZoomY1) \
  X(ZoomX2) \
  X(ZoomY2) \
  X(ZoomZ1) \
  X(ZoomZ2) \
  X(PicLogWidth) \
  X(PicLogHeight) \
  X(PicWidth) \
  X(PicHeight) \
  X(PicLeft) \
  X(PicTop) \
  X(HeadBoxX1) \
  X(HeadBoxY1) \
  X(HeadBoxX2) \
  X(HeadBoxY2)

// Integers of the calculation.
//   LimitListKind   1 to 3: what the limit list shows
//   RestartState    0 first run, 2 after a restart
//   LossModel       0 Hazen-Williams, 1 Darcy-Weisbach by table, 2 by formula
//   DrySystem       1 when the pipes from DryFromPipe up hold no water until a head opens
//   PumpCurveIndex  the supply row in force, 0 none
//   HeadDensityEdited  1 when a head's density was edited on the drawing since the last calculate
#define ZEB_CALC_INTS(X) \
  X(Iteration) \
  X(RestartState) \
  X(ControlHead) \
  X(IterationCount) \
  X(CalcCancelled) \
  X(LimitListKind) \
  X(LossModel) \
  X(DrySystem) \
  X(DryFromPipe) \
  X(PumpCurveIndex) \
  X(OffCurve) \
  X(RemotestHead) \
  X(RemotestNode) \
  X(LeastDensityHead) \
  X(ChosenMrHead) \
  X(MrHead1) \
  X(MrHead2) \
  X(MrHead3) \
  X(MrHead4) \
  X(MrNode1) \
  X(MrNode2) \
  X(MrNode3) \
  X(MrNode4) \
  X(HeadsUnderPressure) \
  X(HeadsUnderDensity) \
  X(PipesNoFlow) \
  X(PipesOverSpeed) \
  X(HeadsOver2Bar) \
  X(FastestPipe) \
  X(MinNominal) \
  X(MaxNominal) \
  X(SizingMethod) \
  X(SizedCount) \
  X(FurthestNode) \
  X(NearestNode) \
  X(CalcSource) \
  X(HeadDensityEdited) \
  X(PartSave)

// Reals that a check clears at its start.
#define ZEB_CHECK_REALS(X) \
  X(MinLength) \
  X(MaxLength) \
  X(TotalHeadArea) \
  X(MinHeadHeight) \
  X(MaxHeadHeight) \
  X(TotalLength) \
  X(TotalVolume) \
  X(MinOrifice) \
  X(MaxOrifice) \
  X(MinK) \
  X(MaxK) \
  X(MinArea) \
  X(MaxArea) \
  X(MinPress) \
  X(MaxPress) \
  X(MinDensity) \
  X(MaxDensity) \
  X(MinX) \
  X(MaxX) \
  X(MinY) \
  X(MaxY) \
  X(MinZ) \
  X(MaxZ) \
  X(TotalHydrantFlow) \
  X(LoopError)

// Results of a calculation that both a check and the start of a calculation clear.
#define ZEB_RESULT_REALS(X) \
  X(MinStartPressure) \
  X(MaxStartPressure) \
  X(MinEndPressure) \
  X(MaxEndPressure) \
  X(MinHeadPressure) \
  X(MaxHeadPressure) \
  X(MinHeadFlow) \
  X(MaxHeadFlow) \
  X(MinHeadDensity) \
  X(MaxHeadDensity) \
  X(MinVelocity) \
  X(MaxVelocity) \
  X(MinGradient) \
  X(MaxGradient) \
  X(MinPipeFlow) \
  X(MaxPipeFlow) \
  X(MinPipeDrop) \
  X(MaxPipeDrop) \
  X(MinEqLength) \
  X(MaxEqLength)

// Other reals: m per bar, m, bar, L/min, m/s, mbar/m, mm/min as their names say.
#define ZEB_PROJECT_REALS(X) \
  X(AuthorityStatic) \
  X(ZOffset) \
  X(SelectedArea) \
  X(minVel) \
  X(maxVel) \
  X(maxPD) \
  X(SizingPdPerM) \
  X(SizingTotalDrop) \
  X(SizingMinNominal) \
  X(SizingLimit) \
  X(FurthestLength) \
  X(NearestLength) \
  X(DemandFlow) \
  X(DemandPressure) \
  X(ZLimitOn) \
  X(MinZLimit) \
  X(MaxZLimit)

// Reals of the calculation. VJ is the equivalent length of a mechanical joint, m.
#define ZEB_CALC_REALS(X) \
  X(SourceFlow) \
  X(SourcePressure) \
  X(PressureTol) \
  X(FinalTol) \
  X(LoopFactor) \
  X(Relaxation) \
  X(PrevMaxChange) \
  X(DesignFlow) \
  X(FluidSG) \
  X(FluidDensity) \
  X(FluidViscosity) \
  X(VJ) \
  X(NodeFlowError) \
  X(PipePdError) \
  X(HeadPdError) \
  X(FlowBalance) \
  X(HeadAreaMin) \
  X(HeadAreaMax) \
  X(ValveMaxVelocity) \
  X(PipeVolume) \
  X(SumHeadFlow) \
  X(ReportArea) \
  X(VelocityReportLimit) \
  X(CalculationTime) \
  X(MrFlow) \
  X(MrArea) \
  X(MrDensity) \
  X(MrRequiredDensity) \
  X(MrAreaAverage) \
  X(AmaoFlowA) \
  X(AmaoFlowB) \
  X(AmaoDifference)

// Texts.
//   ProjectPath   upper-cased path or "[Untitled]"
//   FileHeader... the four fields of the project file's first line
#define ZEB_TEXTS(X) \
  X(ProductName) \
  X(LastProject) \
  X(ProjectPath) \
  X(ProjectFolder) \
  X(StandardFolder) \
  X(ResultFolder) \
  X(PipeDataFile) \
  X(PipeDataPath) \
  X(UndoDescription) \
  X(BackupFile) \
  X(CheckSummary) \
  X(ProjectTitle) \
  X(HeaderOrigin) \
  X(HeaderStamp) \
  X(HeaderCounts) \
  X(HeaderVersion) \
  X(ErrorNumberText) \
  X(ErrorLocation) \
  X(ErrorProblem) \
  X(ErrorReason) \
  X(ErrorCorrection) \
  X(WarningText) \
  X(PipeCountText) \
  X(ComposedLine) \
  X(SavedCopyPath) \
  X(ViewName) \
  X(ViewTitle) \
  X(ViewHint) \
  X(PipeHint) \
  X(MrNodeText) \
  X(ReportComment) \
  X(CalcSummary) \
  X(ResultLine)

struct SystemValues {
#define ZEB_INT_VALUE(name) Int16 name;
#define ZEB_REAL_VALUE(name) float name = 0.0F;
#define ZEB_TEXT_VALUE(name) std::string name;
  ZEB_CHECK_INTS(ZEB_INT_VALUE)
  ZEB_PROJECT_INTS(ZEB_INT_VALUE)
  ZEB_VIEW_INTS(ZEB_INT_VALUE)
  ZEB_CALC_INTS(ZEB_INT_VALUE)
  ZEB_CHECK_REALS(ZEB_REAL_VALUE)
  ZEB_RESULT_REALS(ZEB_REAL_VALUE)
  ZEB_PROJECT_REALS(ZEB_REAL_VALUE)
  ZEB_VIEW_REALS(ZEB_REAL_VALUE)
  ZEB_CALC_REALS(ZEB_REAL_VALUE)
  ZEB_TEXTS(ZEB_TEXT_VALUE)
#undef ZEB_INT_VALUE
#undef ZEB_REAL_VALUE
#undef ZEB_TEXT_VALUE

  bool SuppressBoreCheck = false;  // no report of bores that do not fit their nominal size

  // The gridded layout form's last values, and the last values of the form that adds pipes.
  static constexpr int kGridLayoutTexts = 23;
  static constexpr int kAddPipeTexts = 14;
  std::array<std::string, kGridLayoutTexts> GridLayoutTexts;
  std::array<std::string, kAddPipeTexts> AddPipeTexts;
};

// Clear the values that a check works out anew.
void ClearCheckValues(SystemValues& values);
// Clear the extremes of the last calculation.
void ClearResultValues(SystemValues& values);

// Calls visit(name, value) for every integer, real and text of the lists.
template <class Values, class Visit>
void ForEachSystemValue(Values& values, Visit visit) {
#define ZEB_VISIT(name) visit(#name, values.name);
  ZEB_CHECK_INTS(ZEB_VISIT)
  ZEB_PROJECT_INTS(ZEB_VISIT)
  ZEB_VIEW_INTS(ZEB_VISIT)
  ZEB_CALC_INTS(ZEB_VISIT)
  ZEB_CHECK_REALS(ZEB_VISIT)
  ZEB_RESULT_REALS(ZEB_VISIT)
  ZEB_PROJECT_REALS(ZEB_VISIT)
  ZEB_VIEW_REALS(ZEB_VISIT)
  ZEB_CALC_REALS(ZEB_VISIT)
  ZEB_TEXTS(ZEB_VISIT)
#undef ZEB_VISIT
}

}  // namespace zeb
