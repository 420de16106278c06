#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"

namespace zeb {

// The panels of the status bar.
enum class Panel {
  kHint = 1,      // what is shown and what to do next
  kCounts = 2,    // pipes, loops, heads and area
  kMode = 3,      // the pointer command in force
  kView = 4,      // the view
  kNodes = 5,     // lowest and highest node
  kErrors = 6,    // errors of the last check, and whether their boxes are shown
  kSaveState = 7  // the picture that tells whether the project is saved
};

// Menus, commands and tool bars that are enabled and disabled as one.
enum class Feature {
  kEditMenu,
  kDrawMenu,
  kCalculateMenu,
  kDisplayMenu,
  kPrintMenu,
  kViewMenu,
  kToolsMenu,
  kToolBars,
  kSave,
  kSaveAs,
  kPrintInput,
  kUndo,
  kAdd,
  kNodeCopy,
  kSelectionCopy,
  kReport,
};

// The pointer's shape over the picture.
enum class PicturePointer { kDefault, kArrow, kCross };

inline constexpr std::string_view kPictureSaved = "disk_save";
inline constexpr std::string_view kPictureUnsaved = "disk_save_BW";

// The main window as the core sees it.
class Shell {
 public:
  Shell() = default;
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;
  virtual ~Shell() = default;

  virtual void SetPanel(Panel panel, const std::string& text) = 0;
  virtual void SetPanelTip(Panel panel, const std::string& text) = 0;
  virtual void SetPanelPicture(Panel panel, std::string_view picture) = 0;
  virtual void SetTitle(const std::string& title) = 0;
  virtual void SetBusyPointer(bool busy) = 0;
  virtual void SetPicturePointer(PicturePointer shape) = 0;
  virtual void Enable(Feature feature, bool enabled) = 0;
  virtual void ClearPicture() = 0;
  // Redraws the network in the current view.
  virtual void Redraw() = 0;
  // The eight arrows on the edges and corners of the picture.
  virtual void ShowPanArrows(bool shown) = 0;
  // Shows a menu at the pointer, with a tick at one entry. The entry picked, from 0; -1 for none.
  virtual int ShowPopup(const std::vector<std::string>& entries, int ticked) = 0;
  virtual void Beep() = 0;
  // Lets waiting events run, without starting a second command.
  virtual void Yield() = 0;
  virtual void AddRecentFile(const std::string& path) = 0;

  // Shows a form and returns when it is closed.
  virtual void ShowModal(Form& form) = 0;
  // Shows a form beside the running command; Close takes it away.
  virtual void Open(Form& form) = 0;
  virtual void Close(Form& form) = 0;
  // Closes the open form of that name, if there is one, as its user would.
  virtual void CloseNamed(std::string_view name) = 0;
  // Shows the present texts of an open form.
  virtual void Refresh(Form& form) = 0;
};

}  // namespace zeb
