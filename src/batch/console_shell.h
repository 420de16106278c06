#pragma once

#include "batch/options.h"
#include "platform/shell.h"

namespace zeb {

// A shell without a window: panels and menus go nowhere, and a form gets the answer that the
// command line gives, else that of its default button.
class ConsoleShell : public Shell {
 public:
  explicit ConsoleShell(const BatchOptions& options) : options_(options) {}

  void SetPanel(Panel /*panel*/, const std::string& /*text*/) override {}
  void SetPanelTip(Panel /*panel*/, const std::string& /*text*/) override {}
  void SetPanelPicture(Panel /*panel*/, std::string_view /*picture*/) override {}
  void SetTitle(const std::string& /*title*/) override {}
  void SetBusyPointer(bool /*busy*/) override {}
  void SetPicturePointer(PicturePointer /*shape*/) override {}
  void Enable(Feature /*feature*/, bool /*enabled*/) override {}
  void ClearPicture() override {}
  void Redraw() override {}
  void ShowPanArrows(bool /*shown*/) override {}
  int ShowPopup(const std::vector<std::string>& /*entries*/, int /*ticked*/) override { return -1; }
  void Beep() override {}
  void Yield() override {}
  void AddRecentFile(const std::string& /*path*/) override {}
  void ShowModal(Form& form) override;
  void Open(Form& /*form*/) override {}
  void Close(Form& /*form*/) override {}
  void CloseNamed(std::string_view /*name*/) override {}
  void Refresh(Form& /*form*/) override {}

 private:
  const BatchOptions& options_;
};

}  // namespace zeb
