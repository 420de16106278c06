#include "ui/sizing_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

struct Method {
  const char* name;
  const char* text;
  const char* tip;
  bool SizingForm::*chosen;
  void (SizingForm::*choose)();
};

constexpr std::array<Method, 3> kMethods{
    {{"Option1", "Maximum &velocity in -  m/s", "", &SizingForm::Option1,
      &SizingForm::Option1_Click},
     {"Option2", "Maximum pressure drop - mb/&m", "", &SizingForm::Option2,
      &SizingForm::Option2_Click},
     {"Option3", "Maximum pressure drop - &bar",
      "Maximum pressure drop from source to furthest head in bars", &SizingForm::Option3,
      &SizingForm::Option3_Click}}};

constexpr std::size_t kMinSizeField = 3;

}  // namespace

SizingDialog::SizingDialog(const Ui& ui, SizingForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(Methods(form));
  auto* information = new QGroupBox(tr("Information"), this);
  information->setLayout(Information(form));
  layout->addWidget(information);
  layout->addStretch();
  auto* buttons = new QDialogButtonBox(this);
  OnClick(AddButton(*buttons, "OK", tr("&OK"), QDialogButtonBox::AcceptRole), "OK_Click",
          [&form] { form.OK_Click(); });
  OnClick(AddButton(*buttons, "Cancel", tr("&Cancel"), QDialogButtonBox::RejectRole),
          "Cancel_Click", [&form] { form.Cancel_Click(); });
  OnClick(AddButton(*buttons, "cmdZeroPipes", tr("&Zero pipes"), QDialogButtonBox::ActionRole,
                    tr("Removes the sizes of all pipes, so that all are sized anew")),
          "cmdZeroPipes_Click", [&form] { form.cmdZeroPipes_Click(); });
  OnDismiss("Cancel_Click", [&form] { form.Cancel_Click(); });
  layout->addWidget(buttons);
}

QLayout* SizingDialog::Methods(SizingForm& form) {
  auto* grid = new QGridLayout;
  const auto add_field = [&](std::size_t index, const QString& tip) {
    QLineEdit* field = NewField(("ot" + std::to_string(index)).c_str(), 8, tip);
    Bind(*field, form.ot.at(index));
    Enable(*field, form.otEnabled.at(index));
    grid->addWidget(field, static_cast<int>(index), 1);
    return field;
  };
  for (std::size_t index = 0; index < kMethods.size(); ++index) {
    const Method& method = kMethods[index];
    auto* option = new QRadioButton(tr(method.text));
    option->setObjectName(method.name);
    option->setToolTip(tr(method.tip));
    Bind(*option, form.*method.chosen);
    OnClick(*option, std::string(method.name) + "_Click",
            [&form, &method] { (form.*method.choose)(); });
    grid->addWidget(option, static_cast<int>(index), 0);
    add_field(index, tr(method.tip));
  }
  auto* label = new QLabel(tr("Minimum pipe &size - mm"));
  label->setBuddy(add_field(kMinSizeField, tr("No pipe is sized smaller")));
  grid->addWidget(label, static_cast<int>(kMinSizeField), 0);
  return grid;
}

QLayout* SizingDialog::Information(SizingForm& form) {
  auto* column = new QVBoxLayout;
  for (std::string* text :
       {&form.lblUnsized, &form.lblSized, &form.lblFurthest, &form.lblNearest, &form.lblHighest}) {
    QLabel* label = NewTextLabel("");
    label->setFont(FixedPitchFont());
    Show(*label, *text);
    column->addWidget(label);
  }
  return column;
}

}  // namespace zeb
