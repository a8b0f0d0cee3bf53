#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "forms/renderer.h"

namespace tessara {

class MessageBoxes;
class RunTimeError;

/// The rules of the window system: which windows are loaded, which is the active one, what runs
/// inside what. One for the program; the renderer is set once, before the first window loads.
class WindowSystem {
 public:
  explicit WindowSystem(MessageBoxes& messages);
  WindowSystem(const WindowSystem&) = delete;
  WindowSystem& operator=(const WindowSystem&) = delete;
  ~WindowSystem();

  void SetRenderer(Renderer& renderer) { renderer_ = &renderer; }
  /// Runs, and raises nothing, at the end of each event that is inside no other.
  void SetAfterEvent(std::function<void()> afterEvent) { afterEvent_ = std::move(afterEvent); }
  [[nodiscard]] Renderer& RendererOf() const { return *renderer_; }

  /// Runs an event. A run-time error that it lets out is shown in the error report box, and then
  /// the program ends with status 1: the renderer is told, and ProgramEnded leaves all events but
  /// the outermost. Neither error ever leaves that one. An exception of the standard library counts
  /// as the run-time error that it comes to. Once the program has ended, a new outermost event does
  /// not run.
  void Run(const std::function<void()>& event);
  /// The exit status once the program has ended.
  [[nodiscard]] std::optional<int> ExitStatus() const { return exitStatus_; }
  /// Leaves the event that waited while the program ended: dialogs call it when they return.
  void LeaveIfEnded() const;
  void EndProgram(int exitStatus);

  /// The active window among the program's own; null where none is on screen.
  [[nodiscard]] Form* ActiveForm() const;
  /// The window in front of the frame: the one whose menu bar shows; null where none is.
  [[nodiscard]] Form* ActiveChild() const;
  [[nodiscard]] Form* ModalForm() const { return modals_.empty() ? nullptr : modals_.back(); }
  /// Loaded windows in the order of their loading. Only tests and fuzzers ask.
  [[nodiscard]] const std::vector<Form*>& LoadedForms() const { return loaded_; }
  [[nodiscard]] Form* FrameForm() const;
  /// True while no window that occupies the frame is on screen.
  [[nodiscard]] bool FrameIsEmpty() const;
  /// True while a window holds a text of the user's that is nowhere else.
  [[nodiscard]] bool HoldsUnkeptText() const;
  /// The form whose menus the frame shows: the child in front where it has some and takes input,
  /// else the frame; null without either.
  [[nodiscard]] Form* MenuBarForm() const;

 private:
  friend class Form;
  friend class FormSlot;

  /// Reports the error that the event now running has let out, and ends the program.
  void EndBy(const RunTimeError& error);
  void Report(const RunTimeError& error);
  void Leave();
  void Add(Form& form);
  void Remove(Form& form);
  /// The form goes with its owner: no event runs and nobody is told.
  void Forget(Form& form);
  void Bury(std::unique_ptr<Form> form);
  /// Brings the form to the front and runs what the change of the active window causes.
  void BringForward(Form& form);
  void Drop(Form& form);
  /// The active window, and the one that the frame's menu bar follows.
  struct Front {
    Form* active;
    Form* child;
    friend bool operator==(const Front&, const Front&) = default;
  };
  [[nodiscard]] Front InFront() const { return {ActiveForm(), ActiveChild()}; }
  void FrontMayHaveChanged(const Front& front);
  void TellFrame() const;
  bool CloseFrame(Form& frame);

  MessageBoxes& messages_;
  Renderer* renderer_ = nullptr;
  std::function<void()> afterEvent_;
  std::vector<Form*> loaded_;
  std::vector<Form*> order_;  ///< windows on screen, the frame apart; the last is the active one
  std::vector<Form*> modals_;
  std::vector<std::unique_ptr<Form>> buried_;
  int depth_ = 0;
  bool closingFrame_ = false;
  std::optional<int> exitStatus_;
};

}  // namespace tessara
