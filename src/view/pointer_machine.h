#pragma once

#include <functional>
#include <vector>

#include "platform/drawing_surface.h"
#include "services/session.h"
#include "view/pipe_details_form.h"
#include "view/pipe_inspector_form.h"

namespace zeb {

enum class MouseButton { kLeft, kRight, kMiddle };

// What a pointer event works on; `at` is in picture units.
struct PointerContext {
  Session& session;
  DrawingSurface& surface;
  Point at;
};

// What the pointer does while a command mode is in force.
struct PointerMode {
  using Action = std::function<void(PointerContext&)>;

  int mode = 0;
  Action press;
  Action move = {};
  Action release = {};
  // The mode is left with the right button or Esc; undoes what a press has left on the picture.
  Action leave = {};
};

// The pointer on the picture: hands each event to the mode in force, and keeps the two windows that
// follow it.
class PointerMachine {
 public:
  PointerMachine(Session& session, DrawingSurface& surface);

  // Adds the mode of a command that a higher folder brings.
  void AddMode(PointerMode mode);
  // A double click with the left button calls this for the picked pipe, except in the mode that
  // edits with a single click.
  void OnDoubleClick(int editing_mode, std::function<void(int pipe)> edit);

  void pic1_MouseDown(MouseButton button, Point at);
  void pic1_MouseMove(Point at);
  void pic1_MouseUp(MouseButton button, Point at);
  void pic1_DblClick(MouseButton button);
  void pic1_MouseWheel(Point at, int notches);
  void KeyEscape();

  [[nodiscard]] PipeDetailsForm& Details() { return details_; }
  [[nodiscard]] PipeInspectorForm& Inspector() { return inspector_; }

 private:
  void Run(const char* procedure, Point at, PointerMode::Action PointerMode::*action);
  void FollowPress(Point at);
  void LeaveMode(const char* procedure);
  void ShowDisplayMenu();
  void PressInViewMode(Point at);

  Session& session_;
  DrawingSurface& surface_;
  PipeDetailsForm details_;
  PipeInspectorForm inspector_;
  std::vector<PointerMode> modes_;
  int editing_mode_ = 0;
  std::function<void(int)> edit_;
  bool dragging_plan_ = false;
  Point dragged_from_;
};

}  // namespace zeb
