#include "view/redraw_steps.h"

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {

bool RedrawSteps::AskForRetry(int number, const RuntimeFailure& failure) {
  const std::string text = PlainText(failure.Number()) + " " + failure.Description() +
                           std::string(kLineBreak) + "in Module PipeDraw - Draw view " +
                           "at line " + PlainText(number);
  session_.log.LogError({.text = text, .source = "PipeDraw", .line = number});
  const Answer answer =
      session_.platform.dialogs.Show({.title = "Error in ZEB -  Draw View Module",
                                      .text = text,
                                      .icon = MessageIcon::kStop,
                                      .buttons = MessageButtons::kAbortRetryIgnore});
  if (answer == Answer::kAbort) throw RedrawAborted{};
  return answer == Answer::kRetry;
}

}  // namespace zeb
