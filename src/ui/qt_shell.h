#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/shell.h"
#include "ui/form_dialog.h"

namespace zeb {

class MainWindow;

// The main window and the forms' windows, as the core sees them. Before the main window is there,
// what would be shown on it is dropped. No call changes the flags of real arithmetic.
class QtShell final : public Shell {
 public:
  QtShell();
  ~QtShell() override;

  // Null before the main window goes; the windows beside it go with that.
  void Attach(MainWindow* window);

  void SetPanel(Panel panel, const std::string& text) override;
  void SetPanelTip(Panel panel, const std::string& text) override;
  void SetPanelPicture(Panel panel, std::string_view picture) override;
  void SetTitle(const std::string& title) override;
  void SetBusyPointer(bool busy) override;
  void SetPicturePointer(PicturePointer shape) override;
  void Enable(Feature feature, bool enabled) override;
  void ClearPicture() override;
  void Redraw() override;
  void ShowPanArrows(bool shown) override;
  int ShowPopup(const std::vector<std::string>& entries, int ticked) override;
  void Beep() override;
  void Yield() override;
  void AddRecentFile(const std::string& path) override;

  void ShowModal(Form& form) override;
  void Open(Form& form) override;
  void Close(Form& form) override;
  void CloseNamed(std::string_view name) override;
  void Refresh(Form& form) override;

 private:
  void OnWindow(const std::function<void(MainWindow&)>& action);
  [[nodiscard]] std::unique_ptr<FormDialog> Make(Form& form);
  [[nodiscard]] FormDialog* WindowOf(const Form& form) const;
  void Forget(FormDialog* dialog);

  MainWindow* window_ = nullptr;
  std::vector<FormDialog*> shown_;                   // in the order in which they came up
  std::vector<std::unique_ptr<FormDialog>> beside_;  // those that do not stop the command
};

}  // namespace zeb
