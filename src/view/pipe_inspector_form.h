#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/drawing_surface.h"
#include "platform/form.h"
#include "services/session.h"
#include "view/pipe_properties.h"

namespace zeb {

// A list of the data of the pipe that was pressed last, kept on top of the main window. It marks
// the pipe on the picture.
class PipeInspectorForm : public Form {
 public:
  PipeInspectorForm(Session& session, DrawingSurface& surface)
      : session_(session), surface_(surface) {}

  [[nodiscard]] std::string_view Name() const override { return "frmInspector"; }

  // Opens the window with the picked pipe.
  void munInspect();
  // The pipe to show, 0 for none; nothing happens while the window is closed.
  void SetData(int pipe);
  // Shows what has become of the pipe, nothing when it is not there any more.
  void Renew();
  // The window was closed.
  void Form_Unload() { open_ = false; }

  std::vector<PipeProperty> Rows;

 private:
  Session& session_;
  DrawingSurface& surface_;
  bool open_ = false;
  int pipe_ = 0;
};

}  // namespace zeb
