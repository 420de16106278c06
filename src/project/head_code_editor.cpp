#include "project/head_code_editor.h"

#include "model/real_arithmetic.h"
#include "project/head_code_library.h"
#include "project/head_codes.h"
#include "services/number_text.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr const char* kModule = "ZEBF02";

FileDialog LibraryDialog(const Session& session, const std::string& title,
                         const std::string& file_name) {
  return {.title = title,
          .filter = "hcl|*.hcl",
          .default_extension = "hcl",
          .folder = session.folders.LibraryFolder,
          .file_name = file_name};
}

bool MayReplaceLibrary(Session& session, const std::string& path) {
  return !session.platform.files.FileExists(path) ||
         UserAgrees(session.platform.dialogs, "Existing file name",
                    "Do you wish to overwrite the existing file?  ");
}

void TellThatNothingFits(Dialogs& dialogs) {
  dialogs.Show({.title = "Head code",
                .text = "The orifice must be in the range of 0 to 999.9 mm, the K factor and the "
                        "minimum pressure in the range of 0 to 999.99.",
                .icon = MessageIcon::kWarning});
}

}  // namespace

void HeadCodeEditor::lstHeadCodes_Click(int position) {
  Procedure proc(session_, kModule, "lstHeadCodes_Click");
  selected_ = position;
  proc.Step(10, [&] { ShowFields(position); });
}

void HeadCodeEditor::ShowFields(int position) {
  const HeadCodeFields fields = HeadCodeAt(session_.project, position);
  Size = FormatDecimals(fields.orifice, 1);
  KFactor = FormatDecimals(fields.k, fields.k < 1.0F ? 3 : 2);
  MinPressure = FormatDecimals(fields.pressure, 2);
  HeadName = fields.name;
}

void HeadCodeEditor::cmdAddHeadCode_Click() {
  entry_ = Entry::kNew;
  Size.clear();
  KFactor.clear();
  MinPressure.clear();
  HeadName.clear();
}

void HeadCodeEditor::cmdEdit_Click() {
  if (selected_ == 0) return;
  if (MayChangeHeadCode(session_.project, selected_)) {
    entry_ = Entry::kSelected;
  } else {
    session_.platform.shell.SetPanel(Panel::kHint,
                                     "This head code came from another project: read only");
  }
}

void HeadCodeEditor::cmdApplyHeadCode_Click() {
  if (!Editing()) return;
  Procedure proc(session_, kModule, "cmdAddHeadCode_Click");
  proc.Step(10, [&] { StoreFields(); });
}

void HeadCodeEditor::StoreFields() {
  const HeadCodeFields fields = {.orifice = RoundToSingle(Val(Size)),
                                 .k = RoundToSingle(Val(KFactor)),
                                 .pressure = RoundToSingle(Val(MinPressure)),
                                 .name = Trim(HeadName)};
  if (!FitsHeadCodeLine(fields)) {
    TellThatNothingFits(session_.platform.dialogs);
    return;
  }
  const Entry entry = entry_;
  entry_ = Entry::kNone;
  if (entry == Entry::kNew) {
    AddHeadCode(session_.project, fields);
    selected_ = session_.project.HeadCodeCount;
  } else {
    ChangeHeadCode(session_.project, selected_, fields);
  }
  CountChange();
  ShowFields(selected_);
}

void HeadCodeEditor::cmdCancelHeadCode_Click() {
  entry_ = Entry::kNone;
  if (selected_ > 0) lstHeadCodes_Click(selected_);
}

void HeadCodeEditor::cmdLoad_Click() {
  const std::string path = session_.platform.dialogs.OpenFile(
      LibraryDialog(session_, "Load Head Code Library File", {}));
  if (path.empty()) return;
  Procedure proc(session_, kModule, "cmdLoad_Click");
  const int before = session_.project.HeadCodeCount;
  proc.Step(10, [&] { AppendHeadCodeLibrary(session_, path); });
  if (session_.project.HeadCodeCount > before) CountChange();
}

void HeadCodeEditor::cmdSave_Click() {
  const std::string path = session_.platform.dialogs.SaveFile(
      LibraryDialog(session_, "Save Head Code Library File", "user.hcl"));
  if (path.empty() || !MayReplaceLibrary(session_, path)) return;
  Procedure proc(session_, kModule, "cmdSave_Click");
  proc.Step(10, [&] { WriteHeadCodeLibrary(session_, path); });
}

void HeadCodeEditor::CountChange() {
  ++Changes;
  session_.project.DataChanged = 1;
}

}  // namespace zeb
