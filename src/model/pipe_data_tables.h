#pragma once

#include <string>

#include "model/int16.h"
#include "model/limits.h"
#include "model/table.h"

namespace zeb {

// The reference data of a pipe data file. Size index 0 stands for an unsized pipe.
struct PipeDataTables {
  // By type.
  Table<float, kLastPipeType> TypeC;               // Hazen-Williams C
  Table<float, kLastPipeType> TypeFittingFactor;   // on equivalent lengths, for this C
  Table<float, kLastPipeType> TypeSizesLine;       // 1 to 3: the line of NominalSizes it uses
  Table<float, kLastPipeType> TypeRoughness;       // mm
  Table<std::string, kLastPipeType> PipeTypeRefs;  // 2 or 3 characters
  Table<std::string, kLastPipeType> PipeTypeDescriptions;

  Table2<Int16, 2, kLastPipeSize> NominalSizes;           // [line 0 to 2][size], mm
  Table2<float, kLastPipeSize, kLastPipeType> PipeBores;  // [size][type], mm; up to 1.0 is absent

  Table<std::string, kLastValve> ValveRefs;  // 2 characters
  Table<std::string, kLastValve> ValveDescriptions;
  // [valve][size]. Valve 1 is the elbow, 2 the welded elbow and 4 the tee.
  Table2<float, kLastValve, kLastPipeSize> EqLengths;      // in force, m
  Table2<float, kLastValve, kLastPipeSize> EqLengthsLpc;   // m
  Table2<float, kLastValve, kLastPipeSize> EqLengthsNfpa;  // ft

  // Summed length by size and type, m, by the check.
  Table2<float, kLastPipeSize, kLastPipeType> PipeLengthByTypeSize;

  // The nominal size in mm of column `size` in the sizes line of `type`.
  [[nodiscard]] int NominalSize(int type, int size) const {
    return NominalSizes[static_cast<int>(TypeSizesLine[type]) - 1][size];
  }
};

}  // namespace zeb
