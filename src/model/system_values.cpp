#include "model/system_values.h"

namespace zeb {

#define ZEB_CLEAR(name) values.name = {};

void ClearCheckValues(SystemValues& values) {
  ZEB_CHECK_INTS(ZEB_CLEAR)
  ZEB_CHECK_REALS(ZEB_CLEAR)
  ClearResultValues(values);
}

void ClearResultValues(SystemValues& values) { ZEB_RESULT_REALS(ZEB_CLEAR) }

#undef ZEB_CLEAR

}  // namespace zeb
