// Fields: what a screen is made of, as logic only. A screen's code, a script and a test work on
// them alike; the window mirrors them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/date.h"

namespace bkconf {

struct ButtonField;
struct Screen;

/// Which view a field gets.
enum class FieldKind {
  Group,
  Label,
  Text,
  List,
  ListBox,
  Check,
  Option,
  Grid,
  Calendar,
  Scroll,
  DayBand,
  Button,
  Progress,
  Picture,
  AreaPicture,
  Manual,
  Menu
};

/// What stands behind the text of a field.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend bool operator==(const Colour&, const Colour&) = default;
};

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
  std::optional<Colour> colour;      ///< behind the text; none for what the window has by itself
  std::optional<Colour> textColour;  ///< of the text; likewise
  bool enabled = true;
  bool visible = true;

 protected:
  /// Enabled and visible, in a screen that is shown: a screen that is not open, or not any more,
  /// knows nothing of what it would work on.
  bool TakesInput() const;

 private:
  const Screen& screen_;
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
    if (TakesInput() && onDoubleClick) onDoubleClick();
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
    return TakesInput() && index >= 0 && index < static_cast<int>(items_.size());
  }

  std::vector<std::string> items_;
  int index_ = -1;
};

/// A box to tick.
struct CheckField : Field {
  CheckField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Check, fieldName) {}

  bool checked = false;
  std::function<void()> onChange;  ///< runs after the user has ticked or unticked it

  /// Ticks or unticks it, as a user does. A disabled or hidden box stays as it is.
  void Set(bool on);
};

/// One of several choices, of which at most one is taken.
struct OptionField : Field {
  /// `first` is the first choice of the same group, or null for the first one itself.
  OptionField(Screen& screen, std::string_view fieldName, OptionField* first);

  std::function<void()> onChoose;  ///< runs after the user has taken it

  bool Chosen() const { return chosen_; }
  /// Takes the choice, as a user does: no other of its group is taken then. One that is taken
  /// already stays so and runs no handler.
  void Choose();
  /// Shows it as taken, without running the handler.
  void Show();
  /// Shows none of its group as taken.
  void ClearGroup();
  /// All choices of the group, in the order of declaration.
  const std::vector<OptionField*>& Group() const { return first_->group_; }

 private:
  bool chosen_ = false;
  OptionField* first_;
  std::vector<OptionField*> group_;  ///< of the first one: all of them
};

/// A table of texts with a row of captions on top. Rows count from 1, since 0 is the captions;
/// columns count from 0. One cell may be the current one.
struct GridField : Field {
  GridField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Grid, fieldName) {}

  struct Column {
    std::string caption;
    int width = 0;  ///< in proportion to the other columns
  };

  std::vector<Column> columns;
  bool rowHeader = false;  ///< column 0 is a header that is never current
  /// Each row is an entry of its own behind its number in column 0: to open it, any cell of it will
  /// do.
  bool rowIsEntry = false;
  std::function<void(int row, int column)> onSelect;       ///< runs after a cell became current
  std::function<void(int row, int column)> onDoubleClick;  ///< also on captions and headers

  int Rows() const { return static_cast<int>(cells_.size()); }
  int CurrentRow() const { return row_; }  ///< 0 when there is none
  int CurrentColumn() const { return column_; }

  /// Gives it that many rows, all of them empty, and no current cell.
  void Resize(int rows);
  /// Empty outside the table.
  const std::string& At(int row, int column) const;
  /// Outside the table nothing happens.
  void Put(int row, int column, std::string_view text);
  /// Empties every cell; the current one stays.
  void Blank();

  /// Makes a cell current and runs the handler. Captions, headers and what lies outside are never
  /// current.
  void Select(int row, int column);
  /// Selects the cell, where it can be, and runs the handler of the double click. Outside the table
  /// and its captions nothing happens.
  void DoubleClick(int row, int column);
  /// No cell is current any more.
  void ClearSelection() { row_ = column_ = 0; }

 private:
  bool Has(int row, int column) const;

  std::vector<std::vector<std::string>> cells_;
  int row_ = 0;
  int column_ = 0;
};

/// The days of a month, to pick one; the months can be leafed through.
struct CalendarField : Field {
  CalendarField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Calendar, fieldName) {
    visible = false;
  }

  std::function<void()> onPick;  ///< runs after a day was picked

  const Date& Day() const { return day_; }
  /// Shows a day and its month without running the handler.
  void Show(const Date& day) { day_ = day; }
  /// Picks a day and runs the handler. In a disabled or hidden calendar nothing changes.
  void Pick(const Date& day);

 private:
  Date day_;
};

/// A handle that the user moves between two ends.
struct ScrollField : Field {
  ScrollField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Scroll, fieldName) {}

  int lowest = 0;
  int highest = 100;
  int step = 1;                  ///< of one touch of an arrow
  std::function<void()> onMove;  ///< runs after the user moved it

  int Value() const { return value_; }
  /// Puts it there, without running the handler. Beyond an end it stays at the end.
  void Show(int value);
  /// Moves it, as a user does. Disabled or hidden, or at that place already, it changes nothing.
  void Move(int value);

 private:
  int value_ = 0;
};

/// A day as a band of 24 hours, drawn in parts of one colour each. There is nothing to do in it.
struct DayBandField : Field {
  DayBandField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::DayBand, fieldName) {}

  struct Part {
    int from = 0;  ///< in minutes
    int to = 0;    ///< at most 1440; before `from` it goes on across midnight
    std::string text;
    Colour colour;

    friend bool operator==(const Part&, const Part&) = default;
  };
  std::vector<Part> parts;
};

/// A button. Without a handler it is shown disabled, since there is nothing that it could do.
struct ButtonField : Field {
  ButtonField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::Button, fieldName) {}

  std::function<void()> onClick;

  bool Usable() const { return enabled && visible && onClick; }
  void Click() const {
    if (Usable() && TakesInput()) onClick();
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

/// A picture with areas in it that the user picks by a click or with the keyboard.
struct AreaPictureField : Field {
  AreaPictureField(Screen& screen, std::string_view fieldName)
      : Field(screen, FieldKind::AreaPicture, fieldName) {}

  /// In thousandths of the picture's width and height.
  struct Area {
    std::string name;  ///< what it is called
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
  };

  std::string file;  ///< in the settings directory; one that cannot be shown shows only the areas
  std::vector<Area> areas;
  std::function<void()> onPick;  ///< runs after an area was picked, also the same one again

  int Picked() const { return picked_; }  ///< -1 when none is
  void ClearPick() { picked_ = -1; }
  /// Disabled or hidden, or for an area that is none, it changes nothing.
  void Pick(int area);

 private:
  int picked_ = -1;
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
    if (Usable() && TakesInput()) onClick();
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
  const ButtonField* enter = nullptr;   ///< what Enter presses while no button has the focus
  const ButtonField* escape = nullptr;  ///< what Escape presses, in place of closing the window
  const Field* firstFocus = nullptr;  ///< where the keyboard is on opening; else in the first field

  void Close();

  /// The field of that name and type, or null.
  Field* Find(std::string_view fieldName) const;
};

}  // namespace bkconf
