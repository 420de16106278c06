#include "ui/error_boxes.h"

#include "check/check_run.h"

namespace zeb {

void ToggleErrorBoxes(Session& session) {
  session.SuppressErrors = !session.SuppressErrors;
  ShowErrorPanel(session);
}

}  // namespace zeb
