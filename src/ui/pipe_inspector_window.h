#pragma once

#include "ui/form_dialog.h"
#include "view/pipe_inspector_form.h"

namespace zeb {

// The list of a pipe's data, frmInspector, which follows each press on the drawing.
class PipeInspectorWindow final : public FormDialog {
  Q_OBJECT

 public:
  PipeInspectorWindow(const Ui& ui, PipeInspectorForm& form, QWidget* parent);
};

}  // namespace zeb
