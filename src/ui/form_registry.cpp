#include "ui/form_registry.h"

#include "ui/authority_dialog.h"
#include "ui/calc_options_dialog.h"
#include "ui/heights_dialog.h"
#include "ui/limit_list_dialog.h"
#include "ui/options_dialog.h"
#include "ui/pipe_details_window.h"
#include "ui/pipe_inspector_window.h"
#include "ui/pressure_loss_dialog.h"
#include "ui/progress_dialog.h"
#include "ui/project_data_dialog.h"
#include "ui/sizing_dialog.h"
#include "ui/stored_texts_dialog.h"
#include "ui/summary_dialog.h"
#include "ui/undo_dialog.h"
#include "ui/warning_box.h"

namespace zeb {

std::unique_ptr<FormDialog> FormRegistry::Make(const Ui& ui, Form& form, QWidget* parent) const {
  const auto maker = makers_.find(form.Name());
  return maker == makers_.end() ? nullptr : maker->second(ui, form, parent);
}

const FormRegistry& ProgramForms() {
  static const FormRegistry forms = [] {
    FormRegistry registry;
    registry.Add<Auth, AuthorityDialog>("Auth");
    registry.Add<CalcOptionsForm, CalcOptionsDialog>("frmCalc");
    registry.Add<HeightLimitsForm, HeightsDialog>("ZEB39");
    registry.Add<LimitListForm, LimitListDialog>("frmLimitList");
    registry.Add<OptionsForm, OptionsDialog>("frmOptions");
    registry.Add<PipeDetailsForm, PipeDetailsWindow>("frmViewInfo");
    registry.Add<PipeInspectorForm, PipeInspectorWindow>("frmInspector");
    registry.Add<PressureLossForm, PressureLossDialog>("frmPLF");
    registry.Add<ProgressForm, ProgressDialog>("frmCalcProgress");
    registry.Add<ProjectDataForm, ProjectDataDialog>("ZEBF02");
    registry.Add<ResetReferencesForm, StoredTextsDialog>("ZEBF18");
    registry.Add<SizingForm, SizingDialog>("frmCalcAutoSize");
    registry.Add<SummaryForm, SummaryDialog>("frmCalcSummary");
    registry.Add<UndoForm, UndoDialog>("frmUndo");
    registry.Add<WarningForm, WarningBox>("ZEBF04");
    return registry;
  }();
  return forms;
}

}  // namespace zeb
