#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "platform/form.h"
#include "ui/command_runner.h"

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;

namespace zeb {

// What every window needs of the program.
struct Ui {
  Session& session;
  CommandRunner& runner;
};

// The window of a form. It shows the form's texts and runs its event procedures, nothing else:
// after each event all bound controls show the form's present state. The controls bear the form's
// own names for them as object names.
class FormDialog : public QDialog {
  Q_OBJECT

 public:
  FormDialog(const Ui& ui, Form& form, QWidget* parent);

  [[nodiscard]] Form& ShownForm() const { return form_; }
  // Shows the form's present texts.
  void Refresh();
  // Takes the window away; the form may be gone afterwards.
  void Finish();
  // What Esc and the frame's button do, as one of the form's own commands.
  void reject() override;

 protected:
  using Event = CommandRunner::Statement;

  // Controls and the texts and flags of the form that they show and change. What is bound must live
  // as long as the form.
  void Bind(QLineEdit& field, std::string& text);
  void Bind(QPlainTextEdit& field, std::string& text);
  void Bind(QCheckBox& box, bool& checked);
  void Bind(QRadioButton& button, const bool& checked);
  // A drop-down list of fixed entries, or with a field that takes other texts too.
  using Entries = std::function<std::vector<std::string>()>;
  void Bind(QComboBox& list, std::string& text, const Entries& entries);
  void Show(QLabel& label, const std::string& text);
  void Enable(QWidget& widget, const bool& enabled);
  void OnRefresh(std::function<void()> refresh);
  // Puts another character in place of each one that is typed into a field, behind its Bind.
  void MapTyped(QLineEdit& field, std::string& text, const std::function<char(char)>& map);

  // Events, each under the name of its procedure.
  void OnClick(QAbstractButton& button, const std::string& procedure, const Event& event);
  void OnPick(QComboBox& list, const std::string& procedure, const Event& event);
  void OnLeave(QWidget& field, const std::string& procedure, const Event& event);
  void OnDismiss(const std::string& procedure, const Event& event);
  void Run(const std::string& procedure, const Event& event);

  [[nodiscard]] Session& TheSession() const { return ui_.session; }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  struct LeaveEvent {
    QObject* field;
    std::string procedure;
    Event event;
  };

  Ui ui_;
  Form& form_;
  std::vector<std::function<void()>> refreshers_;
  std::vector<LeaveEvent> leave_events_;
  std::string dismiss_procedure_;
  Event dismiss_;
  bool finished_ = false;
};

}  // namespace zeb
