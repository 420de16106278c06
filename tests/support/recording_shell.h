#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/shell.h"

namespace zeb::test {

// Keeps what was shown. A form that is shown runs its hook, which stands for the user.
class RecordingShell final : public Shell {
 public:
  struct Popup {
    std::vector<std::string> entries;
    int ticked;
  };

  // Runs `hook(form)` each time the form of that name is shown.
  template <class FormType, class Hook>
  void OnForm(std::string name, Hook hook) {
    hooks_[std::move(name)] = [hook](Form& form) { hook(dynamic_cast<FormType&>(form)); };
  }

  void SetPanel(Panel panel, const std::string& text) override { panels[panel] = text; }
  void SetPanelTip(Panel panel, const std::string& text) override { tips[panel] = text; }
  void SetPanelPicture(Panel panel, std::string_view picture) override {
    pictures[panel] = picture;
  }
  void SetTitle(const std::string& title) override { titles.push_back(title); }
  void SetBusyPointer(bool busy) override { busy_pointer = busy; }
  void SetPicturePointer(PicturePointer shape) override { picture_pointer = shape; }
  void Enable(Feature feature, bool enabled) override { features[feature] = enabled; }
  void ClearPicture() override { ++clears; }
  void Redraw() override;
  void ShowPanArrows(bool shown) override { pan_arrows = shown; }
  int ShowPopup(const std::vector<std::string>& entries, int ticked) override;
  void Beep() override { ++beeps; }
  void Yield() override;
  void AddRecentFile(const std::string& path) override { recent_files.push_back(path); }
  void ShowModal(Form& form) override;
  void Open(Form& form) override;
  void Close(Form& form) override { closed_forms.emplace_back(form.Name()); }
  void CloseNamed(std::string_view name) override { closed_forms.emplace_back(name); }
  void Refresh(Form& form) override { refreshed_forms.emplace_back(form.Name()); }

  std::map<Panel, std::string> panels;
  std::map<Panel, std::string> tips;
  std::map<Panel, std::string> pictures;
  std::map<Feature, bool> features;
  std::vector<std::string> titles;
  std::vector<std::string> recent_files;
  std::vector<std::string> modal_forms;
  std::vector<std::string> open_forms;
  std::vector<std::string> closed_forms;
  std::vector<std::string> refreshed_forms;
  std::vector<Popup> popups;
  std::deque<int> popup_answers;  // none picked when empty
  PicturePointer picture_pointer{};
  bool pan_arrows = false;
  bool busy_pointer = false;
  int clears = 0;
  int redraws = 0;
  int beeps = 0;
  int yields = 0;

  // What happens at each redraw and at each yield, such as a press on Stop.
  std::function<void()> on_redraw;
  std::function<void()> on_yield;

 private:
  void RunHook(Form& form);

  std::map<std::string, std::function<void(Form&)>, std::less<>> hooks_;
};

}  // namespace zeb::test
