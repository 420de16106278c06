#pragma once

#include <string>
#include <string_view>

#include "platform/drawing_surface.h"
#include "platform/form.h"
#include "services/session.h"

namespace zeb {

inline constexpr std::string_view kPipeDetailsName = "frmViewInfo";

// A scrolling text of all data of the picked pipe, with buttons that step through the pipes. It
// marks the pipe on the picture. It stays open beside the main window until it is closed.
class PipeDetailsForm : public Form {
 public:
  PipeDetailsForm(Session& session, DrawingSurface& surface)
      : session_(session), surface_(surface) {}

  [[nodiscard]] std::string_view Name() const override { return kPipeDetailsName; }

  // Shows PickedPipe, opening the window when it is closed.
  void ShowPickedPipe();
  // Shows what has become of the pipe, empty when it is not there any more.
  void Renew();

  void cmdNext_Click();
  void cmdPrevious_Click();
  void cmdUpStream_Click();
  // Esc closes the window.
  void KeyEscape();
  // The window was closed: back to the default command.
  void Form_Unload();

  std::string Caption = "Pipe details";
  std::string Help = "Click on scroll bars to see more or on one of the buttons as needed";
  std::string Details;
  bool NextVisible = true;
  bool PreviousVisible = true;
  bool UpStreamVisible = true;

 private:
  void StepTo(int pipe);

  Session& session_;
  DrawingSurface& surface_;
  bool open_ = false;
  int pipe_ = 0;
};

}  // namespace zeb
