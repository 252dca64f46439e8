#include "shell/qt/layout_builder.h"

#include <QGridLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <sstream>

#include "shell/qt/group_view.h"
#include "shell/qt/label_view.h"
#include "shell/qt/list_box_view.h"
#include "shell/qt/option_view.h"
#include "shell/qt/style.h"
#include "shell/qt/tile_layout.h"

namespace bkconf {
namespace {

constexpr int Spacing = 14;
constexpr int LineSpacing = 10;
constexpr int TightSpacing = 6;
constexpr int LabelSpacing = 4;

QWidget* MakeRule() {
  auto* rule = new QFrame;
  rule->setFrameShape(QFrame::HLine);
  rule->setForegroundRole(QPalette::Midlight);
  rule->setFrameShadow(QFrame::Plain);
  return rule;
}

/// What a screen reader names by the label beside it.
bool TakesInput(FieldKind kind) {
  return kind == FieldKind::Text || kind == FieldKind::List || kind == FieldKind::ListBox ||
         kind == FieldKind::Grid || kind == FieldKind::Scroll;
}

void KeepRoom(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

void Widen(const Part& part, QWidget& widget) {
  if (part.characters == 0) return;
  widget.setMinimumWidth(part.characters * widget.fontMetrics().averageCharWidth());
}

}  // namespace

QLayout* LayoutBuilder::Build(const Part& part) {
  switch (part.kind) {
    case PartKind::Row:
    case PartKind::Column:
      return BuildBox(part);
    case PartKind::Form:
      return BuildForm(part);
    case PartKind::Tiles:
      return BuildTiles(part);
    case PartKind::Line:
      return BuildLine(part);
    case PartKind::Below:
      return BuildBelow(part);
    case PartKind::Columns:
      return BuildColumns(part);
    case PartKind::Inside:
      return find_(part.label).Shown().kind == FieldKind::Label ? BuildAmid(part)
                                                                : BuildInside(part);
    case PartKind::Pile:
      return BuildPile(part);
    case PartKind::Item:
    case PartKind::Frame:
    case PartKind::Cover:
    case PartKind::Rule:
    case PartKind::Space:
      return BuildBox(Column({part}));
  }
  return nullptr;
}

QLayout* LayoutBuilder::BuildBox(const Part& part) {
  const bool row = part.kind == PartKind::Row;
  auto* box = new QBoxLayout(row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  box->setSpacing(part.tight ? TightSpacing : Spacing);
  for (const Part& each : part.parts) Add(each, *box);
  return box;
}

void LayoutBuilder::Add(const Part& part, QBoxLayout& box) {
  const QScopedValueRollback<bool> keeping(keeping_, keeping_ || part.kept);
  switch (part.kind) {
    case PartKind::Space:
      box.addStretch(1);
      return;
    case PartKind::Rule:
      box.addWidget(MakeRule());
      return;
    case PartKind::Frame:
      box.addWidget(BuildFrame(part), part.share);
      return;
    case PartKind::Item:
      box.addWidget(Place(part), part.share);
      return;
    case PartKind::Cover:
      box.addLayout(BuildCover(part), part.share);
      return;
    case PartKind::Row:
    case PartKind::Column:
    case PartKind::Form:
    case PartKind::Line:
    case PartKind::Below:
    case PartKind::Tiles:
    case PartKind::Columns:
    case PartKind::Inside:
    case PartKind::Pile:
      box.addLayout(Build(part), part.share);
      return;
  }
}

/// A grid and no QFormLayout, which leaves a hole for each hidden line.
QLayout* LayoutBuilder::BuildForm(const Part& part) {
  auto* form = new QGridLayout;
  form->setHorizontalSpacing(Spacing);
  form->setVerticalSpacing(LineSpacing);
  form->setColumnStretch(1, 1);
  for (int row = 0; const Part& line : part.parts) {
    form->addWidget(Place(Item(line.label)), row, 0);
    form->addLayout(BuildLine(line), row, 1);
    ++row;
  }
  return form;
}

QLayout* LayoutBuilder::BuildLine(const Part& line) {
  Part field = Labelled(line.label, line.field);
  field.look = line.look;
  field.characters = line.characters;
  std::vector<Part> parts = {std::move(field)};
  parts.insert(parts.end(), line.parts.begin(), line.parts.end());
  parts.push_back(Space());
  return BuildBox(Row(std::move(parts)));
}

QLayout* LayoutBuilder::BuildBelow(const Part& part) {
  auto* box = new QVBoxLayout;
  box->setSpacing(LabelSpacing);
  box->addWidget(Place(Item(part.label)));
  box->addWidget(Place(Wide(part.characters, Labelled(part.label, part.field))), 1);
  return box;
}

QLayout* LayoutBuilder::BuildInside(const Part& part) {
  QWidget* option = Place(Item(part.label));
  // A hidden list would leave a hole in the caption.
  const QScopedValueRollback<bool> keeping(keeping_, false);
  static_cast<OptionButton*>(option)->Hold(*Place(Labelled(part.label, part.field)));
  auto* box = new QVBoxLayout;
  box->addWidget(option);
  return box;
}

/// The words of a label before the blanks, the list, and the words after them.
QLayout* LayoutBuilder::BuildAmid(const Part& part) {
  auto* row = new QHBoxLayout;
  row->setSpacing(TightSpacing);
  row->addWidget(Place(Item(part.label)));
  row->addWidget(Place(Wide(part.characters, Labelled(part.label, part.field))));
  QWidget& rest = static_cast<LabelView&>(find_(part.label)).SplitOff();
  if (keeping_) KeepRoom(rest);
  row->addWidget(&rest);
  return row;
}

QLayout* LayoutBuilder::BuildColumns(const Part& part) {
  auto* table = new QGridLayout;
  table->setHorizontalSpacing(Spacing);
  table->setVerticalSpacing(LabelSpacing);
  for (int row = 0; const Part& line : part.parts) {
    for (int column = 0; const Part& cell : line.parts) {
      if (cell.kind != PartKind::Space) table->addWidget(Place(cell), row, column);
      ++column;
    }
    ++row;
  }
  table->setColumnStretch(table->columnCount(), 1);
  return table;
}

QLayout* LayoutBuilder::BuildPile(const Part& part) {
  auto* pile = new QGridLayout;
  for (const Part& each : part.parts) pile->addLayout(Build(Column({each, Space()})), 0, 0);
  return pile;
}

QLayout* LayoutBuilder::BuildTiles(const Part& part) {
  auto* tiles = new TileLayout(part.columns);
  tiles->setSpacing(LineSpacing);
  for (const Part& each : part.parts) tiles->addWidget(Place(each));
  return tiles;
}

QLayout* LayoutBuilder::BuildCover(const Part& part) {
  auto* pages = new QStackedLayout;
  std::size_t firstPlaced = 0;
  for (const Part& each : part.parts) {
    firstPlaced = placed_.size();
    auto* page = new QWidget;
    QLayout* content = Build(each);
    content->setContentsMargins(0, 0, 0, 0);
    page->setLayout(content);
    pages->addWidget(page);
  }
  covers_.push_back({pages, &find_(part.field).Shown(), placed_.at(firstPlaced)});
  return pages;
}

QWidget* LayoutBuilder::BuildFrame(const Part& part) {
  WidgetView& view = find_(part.field);
  QWidget* frame = view.Widget();
  if (keeping_) KeepRoom(*frame);
  // What is in it comes and goes within the room that is kept.
  const QScopedValueRollback<bool> keeping(keeping_, false);
  QLayout* content =
      part.look == Look::Wrapped ? BuildBelowCaption(part, view) : Build(part.parts.front());
  const int margin = part.tight ? 0 : FrameMargin;
  content->setContentsMargins(margin, margin, margin, margin);
  frame->setLayout(content);
  // A width of its own would let it shrink below what its caption needs.
  if (part.look != Look::Wrapped) Widen(part, *frame);
  if (part.entered) entered_.push_back(frame);
  return frame;
}

QLayout* LayoutBuilder::BuildBelowCaption(const Part& frame, WidgetView& group) {
  QWidget& caption = static_cast<GroupView&>(group).WrapCaption();
  Widen(frame, caption);
  auto* column = new QVBoxLayout;
  column->setSpacing(TightSpacing);
  column->addWidget(&caption);
  column->addLayout(Build(frame.parts.front()));
  column->addStretch(1);
  return column;
}

QWidget* LayoutBuilder::Place(const Part& part) {
  WidgetView& view = find_(part.field);
  QWidget* widget = view.Widget();
  if (!part.label.empty()) Label(part.label, view);
  ApplyLook(part.look, *widget);
  if (part.look == Look::Newest) static_cast<ListBoxView&>(view).FollowNewest();
  if (keeping_) KeepRoom(*widget);
  Widen(part, *widget);
  // A text of a display is no wider than there.
  if (part.look == Look::Display && part.characters > 0) {
    widget->setMaximumWidth(widget->minimumWidth());
  }
  placed_.push_back(widget);
  if (part.entered) entered_.push_back(widget);
  return widget;
}

void LayoutBuilder::Label(const std::string& labels, WidgetView& view) {
  std::istringstream names(labels);
  for (std::string name; names >> name;) {
    WidgetView& label = find_(name);
    view.AddLabel(label.Shown());
    auto* widget = dynamic_cast<QLabel*>(label.Widget());
    // A label that names several fields goes with the first.
    if (widget == nullptr || widget->buddy() != nullptr || !TakesInput(view.Shown().kind)) continue;
    widget->setBuddy(view.Widget());
  }
}

}  // namespace bkconf
