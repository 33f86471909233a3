#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/Control.h"

namespace corvane::ui {

struct CommandButton;
class UiHost;

/// A screen without a face: its controls are fields, its handlers functions. Life: construct, `Load`, set flags,
/// `Show` or `ShowModal`, `Unload`, destroy.
class Form {
 public:
  Form(UiHost& host, std::string_view name);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  UiHost& Host() const { return host_; }
  std::string_view Name() const { return name_; }
  const std::vector<Control*>& Controls() const { return controls_; }

  /// Runs `Form_Load`, once. False when the form refuses to be shown.
  bool Load();
  /// Shows the form and returns when it is unloaded. A form that refuses to load is not shown.
  void ShowModal();
  /// Shows the form and returns at once.
  void Show();
  /// Runs `Form_Unload` and marks the form; the host takes the window away at its next flush.
  void Unload();
  bool IsLoaded() const { return loaded_; }
  bool IsUnloaded() const { return unloaded_; }
  /// What the close box of the window does: the same as the Cancel button; nothing while that one is disabled.
  void CloseBox();
  /// The buttons of Enter and Escape; null where the form has none that is visible.
  CommandButton* DefaultButton() const;
  CommandButton* CancelButton() const;

  std::string Caption;
  Pointer MousePointer = Pointer::Default;
  /// Help topic of F1.
  int HelpContext = 0;
  /// A click on the form's own surface.
  Handler Click;

 protected:
  virtual bool Form_Load() { return true; }
  virtual void Form_Unload() {}

 private:
  friend class Control;
  CommandButton* FindButton(bool CommandButton::*role) const;

  UiHost& host_;
  std::string_view name_;
  std::vector<Control*> controls_;
  bool loaded_ = false;
  bool accepted_ = false;
  bool shown_ = false;
  bool unloaded_ = false;
};

}  // namespace corvane::ui
