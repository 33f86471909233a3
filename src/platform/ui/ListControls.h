#pragma once

#include <string>
#include <vector>

#include "platform/ui/Control.h"

namespace corvane::ui {

/// A column of texts. `Revision` grows with every change of the entries.
class TextItems {
 public:
  int Count() const { return static_cast<int>(items_.size()); }
  /// The entry of an index from 0. Raises `InvalidPropertyValue`.
  const std::string& operator[](int index) const;
  const std::vector<std::string>& All() const { return items_; }
  /// Index of the first entry equal to `text`, case included; -1 when there is none.
  int IndexOf(std::string_view text) const;
  unsigned Revision() const { return revision_; }

 protected:
  std::vector<std::string> items_;
  unsigned revision_ = 0;
};

/// A drop-down box. With `Editable` any text may be typed; without, the text is always that of the chosen entry.
class ComboBox : public Control, public TextItems {
 public:
  ComboBox(Form& form, std::string_view name) : Control(form, name, ControlKind::ComboBox) {}

  void AddItem(std::string text);
  void RemoveItem(int index);
  void Clear();

  /// The chosen entry, -1 for none.
  int ListIndex() const { return listIndex_; }
  /// Chooses an entry and shows its text; -1 empties the box. Raises `InvalidPropertyValue` outside the list.
  void SetListIndex(int index);
  const std::string& Text() const { return text_; }
  /// Shows a text. A box that is not editable takes only the text of an entry and raises `InvalidPropertyValue` else.
  void SetText(const std::string& text);

  bool Editable = false;
  /// The user chose an entry.
  Handler Click;
  /// The user typed.
  Handler Change;

 private:
  std::string text_;
  int listIndex_ = -1;
};

/// A list of lines.
class ListBox : public Control, public TextItems {
 public:
  ListBox(Form& form, std::string_view name) : Control(form, name, ControlKind::ListBox) {}
  void AddItem(std::string text);
  void Clear();
};

}  // namespace corvane::ui
