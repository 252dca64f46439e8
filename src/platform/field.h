// Fields: what a screen is made of, as logic only. A screen's code, a script and a test work on
// them alike; the window mirrors them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace bkconf {

struct ButtonField;
struct Screen;

/// Which view a field gets.
enum class FieldKind { Group, Label, Text, List, ListBox, Button, Progress, Picture, Manual, Menu };

/// What all fields have. A field adds itself to its screen's list, in the order of declaration, so
/// it never moves. Texts are UTF-8.
struct Field {
  Field(Screen& screen, FieldKind fieldKind, std::string_view fieldName);
  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;
  virtual ~Field() = default;

  const FieldKind kind;
  const std::string name;  ///< stable and unique in its screen; also the widget's object name
  std::string caption;
  std::string toolTip;
  bool enabled = true;
  bool visible = true;
};

/// A frame with a caption that is shown and hidden with all that the layout puts into it.
struct GroupField : Field {
  GroupField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Group, fieldName) {}
};

/// A line of text that the user only reads. `caption` is the text.
struct LabelField : Field {
  LabelField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Label, fieldName) {}

  std::function<void()> onDoubleClick;

  void DoubleClick() const {
    if (enabled && visible && onDoubleClick) onDoubleClick();
  }
};

/// A line of text that the user types.
struct TextField : Field {
  TextField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Text, fieldName) {}

  std::function<void()> onChange;      ///< runs after the user changed the text, on every character
  const ButtonField* enter = nullptr;  ///< what Enter presses in it, in place of the screen's

  const std::string& Text() const { return text_; }
  /// Shows a text without running the handler.
  void Show(std::string_view text) { text_ = text; }
  /// Types a text in place of what stands there. A disabled or hidden field takes none.
  void Type(std::string_view text);

 private:
  std::string text_;
};

/// A list to pick one item from. It can show a text that is none of its items: what a module holds
/// is shown as it is.
struct ListField : Field {
  ListField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::List, fieldName) {}

  std::vector<std::string> items;
  std::function<void()> onPick;   ///< runs after an item was picked
  std::function<void()> onTyped;  ///< runs after a text was typed

  int Index() const { return index_; }               ///< -1 when no item is picked
  const std::string& Text() const { return text_; }  ///< what the field shows

  /// Shows a text without running any handler; the index follows where the text is an item.
  void Show(std::string_view text);
  /// Shows nothing, without running any handler.
  void Clear() { Show(""); }
  /// Picks an item and runs `onPick`, as a user does, whether a person or logic picks. A disabled
  /// or hidden list, or an index outside the items, changes nothing.
  void Pick(int index);
  /// Types a text over what the field shows and runs `onTyped`. Without a handler the list takes
  /// no free text: what it showed comes back.
  void Type(std::string_view text);

 private:
  int index_ = -1;
  std::string text_;
};

/// A list whose items are all in sight. One may be picked; a double click opens it.
struct ListBoxField : Field {
  ListBoxField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::ListBox, fieldName) {}

  std::function<void()> onPick;  ///< runs after an item was picked
  std::function<void()> onOpen;  ///< runs after an item was picked by a double click, or by Enter

  const std::vector<std::string>& Items() const { return items_; }
  /// Shows other items, none of them picked, without running any handler.
  void SetItems(std::vector<std::string> items);

  int Index() const { return index_; }  ///< -1 when no item is picked
  /// The item that is picked, or nothing.
  std::string Text() const;
  /// Picks an item and runs `onPick`. A disabled or hidden list, or an index outside the items,
  /// changes nothing.
  void Pick(int index);
  /// Picks an item, then runs `onOpen` as well.
  void Open(int index);

 private:
  bool Has(int index) const {
    return enabled && visible && index >= 0 && index < static_cast<int>(items_.size());
  }

  std::vector<std::string> items_;
  int index_ = -1;
};

/// A button. Without a handler it is shown disabled, since there is nothing that it could do.
struct ButtonField : Field {
  ButtonField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Button, fieldName) {}

  std::function<void()> onClick;

  bool Usable() const { return enabled && visible && onClick; }
  void Click() const {
    if (Usable()) onClick();
  }
};

/// A progress bar. Its end is part of the logic: the wake-up wait counts on the error past it.
struct ProgressField : Field {
  ProgressField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Progress, fieldName) {
    visible = false;
  }

  int Value() const { return value_; }
  int Maximum() const { return maximum_; }
  /// Shows the bar empty, with a new end.
  void Start(int maximum);
  /// Throws RuntimeError past the maximum, leaving the value as it was.
  void SetValue(int value);
  void Advance() { SetValue(value_ + 1); }

  /// Draws the bar; for a routine that spins and holds the window. The only call from a field to
  /// its view: during the wait for a poll, the climbing bar is all that shows that the program
  /// lives.
  std::function<void()> draw;

 private:
  int value_ = 0;
  int maximum_ = 100;
};

/// A picture by its file name in the settings directory; a file that cannot be shown shows nothing.
struct PictureField : Field {
  PictureField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Picture, fieldName) {}

  std::string file;
};

/// A document by its file name in the settings directory; a file that cannot be shown shows
/// nothing.
struct ManualField : Field {
  ManualField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Manual, fieldName) {
    visible = false;
  }

  std::string file;
};

/// A menu (it has entries) or a menu entry. Without a handler an entry is shown disabled.
struct MenuField : Field {
  /// `parent` is null for a menu of the menu bar.
  MenuField(Screen& screen, MenuField* parent, std::string_view fieldName);

  std::vector<MenuField*> entries;
  bool checkable = false;
  bool checked = false;
  bool separator = false;
  std::function<void()> onClick;
  std::function<void()> onOpen;  ///< of a menu: runs before its entries are shown

  bool Usable() const;  ///< enabled, as are all menus that it lies in, and there is something to do
  void Click() const {
    if (Usable()) onClick();
  }

 private:
  const MenuField* parent_;
};

/// A window of the program: its title and its fields.
struct Screen {
  explicit Screen(std::string_view screenName) : name(screenName) {}
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  const std::string name;
  std::string title;
  bool shown = false;
  std::vector<Field*> fields;
  /// What closing the window does; without a handler the screen is just not shown any more.
  std::function<void()> onClose;
  const ButtonField* enter = nullptr;  ///< what Enter presses while no button has the focus
  const Field* firstFocus = nullptr;  ///< where the keyboard is on opening; else in the first field

  void Close();

  /// The field of that name and type, or null.
  Field* Find(std::string_view fieldName) const;
};

}  // namespace bkconf
