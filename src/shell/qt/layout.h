// How the look of a screen is told: rows, columns, forms, frames and tiles that name its fields.
// The files in layouts/ write it, the layout builder turns it into Qt layouts.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bkconf {

/// How much a part catches the eye.
enum class Look {
  Plain,
  Primary,   ///< a button: what the screen is there for
  Heading,   ///< a label: stands out from the text around it
  Path,      ///< a label: takes no more width than there is, and leaves out its middle
  Wrapped,   ///< a label, or the caption of a frame: takes as many lines as it needs
  Sentence,  ///< a label: has room for two lines, whatever it says
  Tall,      ///< a box to tick, or a value: as tall as the lists beside it
  Low,       ///< a list: no taller than its text asks for
  Short,     ///< a list: no wider than its items
  Display,   ///< a text or a label: as it stands on the display of a module
  Newest,    ///< a list box: its last item stays in view when items are added
};

enum class PartKind {
  Item,     ///< one field
  Row,      ///< parts side by side
  Column,   ///< parts one below the other
  Form,     ///< lines of a label and what it names, aligned with each other
  Line,     ///< a line of a form: a field, and parts to its right
  Below,    ///< a field, and close above it the label that names it
  Frame,    ///< a group field around one part
  Tiles,    ///< equal parts in some columns; hidden ones leave no hole
  Columns,  ///< rows whose parts stand in columns
  Inside,   ///< a field in place of blanks: those that an option begins with, or within a label
  Pile,     ///< parts in the same place, of which one is shown at a time
  Cover,    ///< two parts in the same place: one, and another that lies over it now and then
  Rule,     ///< a thin line across
  Space,    ///< empty room that takes what is left over
};

/// Fields of a part are placed, and visited with the tabulator key, in the order in which they are
/// named.
struct Part {
  PartKind kind = PartKind::Space;
  std::string field;
  std::string label;  ///< the field that names this one, or several with blanks between
  std::vector<Part> parts;
  Look look = Look::Plain;
  int columns = 0;     ///< of tiles
  int share = 0;       ///< of the width of its row, in proportion to the others; 0 is as it needs
  int characters = 0;  ///< of average width, that a field or a frame has room for
  bool tight = false;  ///< a column: its parts belong together; a frame: nothing around it
  bool kept = false;   ///< hidden fields keep their room
  /// A frame or a field: gets the keyboard when it appears, and gives it back when it goes.
  bool entered = false;
};

inline Part Item(std::string_view field, Look look = Look::Plain) {
  return {.kind = PartKind::Item, .field = std::string(field), .look = look};
}
/// A field without a caption of its own, named by a label that stands elsewhere, or by several.
inline Part Labelled(std::string_view label, std::string_view field) {
  return {.kind = PartKind::Item, .field = std::string(field), .label = std::string(label)};
}
inline Part Row(std::vector<Part> parts) {
  return {.kind = PartKind::Row, .parts = std::move(parts)};
}
inline Part Column(std::vector<Part> parts) {
  return {.kind = PartKind::Column, .parts = std::move(parts)};
}
inline Part Line(std::string_view label, std::string_view field, std::vector<Part> beside = {}) {
  return {.kind = PartKind::Line,
          .field = std::string(field),
          .label = std::string(label),
          .parts = std::move(beside)};
}
inline Part Form(std::vector<Part> lines) {
  return {.kind = PartKind::Form, .parts = std::move(lines)};
}
inline Part Below(std::string_view label, std::string_view field) {
  return {.kind = PartKind::Below, .field = std::string(field), .label = std::string(label)};
}
inline Part Frame(std::string_view group, Part content) {
  Part part{.kind = PartKind::Frame, .field = std::string(group)};
  part.parts.push_back(std::move(content));
  return part;
}
/// A group that has no caption: there is nothing to see of it.
inline Part Hidable(std::string_view group, Part content) {
  Part part = Frame(group, std::move(content));
  part.tight = true;
  return part;
}
inline Part Tiles(int columns, std::vector<Part> parts) {
  return {.kind = PartKind::Tiles, .parts = std::move(parts), .columns = columns};
}
/// Rows of fields, close to each other, in columns. A row whose fields are all hidden leaves no
/// hole. A space leaves its place in the row empty.
inline Part Columns(std::vector<Part> rows) {
  return {.kind = PartKind::Columns, .parts = std::move(rows)};
}
/// A list in place of the blanks that the caption of an option begins with, or that a label has
/// between its words.
inline Part Inside(std::string_view caption, std::string_view list) {
  return {.kind = PartKind::Inside, .field = std::string(list), .label = std::string(caption)};
}
/// A frame whose caption takes as many lines as it needs, at a width of so many characters.
inline Part WrappedFrame(int characters, std::string_view group, Part content) {
  Part part = Frame(group, std::move(content));
  part.look = Look::Wrapped;
  part.characters = characters;
  return part;
}
/// Parts in the same place, from its top on. The logic shows the fields of one of them at a time.
inline Part Pile(std::vector<Part> parts) {
  return {.kind = PartKind::Pile, .parts = std::move(parts)};
}
/// While the field is visible, `over` takes the place of the whole content. What `over` names first
/// is the button that closes it: it gets the focus, and Escape presses it.
inline Part Cover(std::string_view field, Part content, Part over) {
  Part part{.kind = PartKind::Cover, .field = std::string(field)};
  part.parts.push_back(std::move(content));
  part.parts.push_back(std::move(over));
  return part;
}
/// A part of a row, with its share of the width.
inline Part Share(int share, Part part) {
  part.share = share;
  return part;
}
/// A field or a frame that is at least as wide as so many characters.
inline Part Wide(int characters, Part part) {
  part.characters = characters;
  return part;
}
/// A column whose parts belong together.
inline Part Tight(std::vector<Part> parts) {
  Part part = Column(std::move(parts));
  part.tight = true;
  return part;
}
/// A part whose fields keep their room while they are hidden, so that nothing around it moves.
inline Part Kept(Part part) {
  part.kept = true;
  return part;
}
/// A frame or a field that gets the keyboard when it appears, and gives it back when it goes.
inline Part Entered(Part part) {
  part.entered = true;
  return part;
}
inline Part Rule() {
  return {.kind = PartKind::Rule};
}
inline Part Space() {
  return {};
}

}  // namespace bkconf
