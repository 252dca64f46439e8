#include "shell/qt/layout_builder.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>

#include "shell/qt/style.h"
#include "shell/qt/tile_layout.h"

namespace bkconf {
namespace {

constexpr int Spacing = 14;
constexpr int LineSpacing = 10;
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
  return kind == FieldKind::Text || kind == FieldKind::List || kind == FieldKind::ListBox;
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
  box->setSpacing(Spacing);
  for (const Part& each : part.parts) {
    if (each.kind == PartKind::Space) {
      box->addStretch(1);
    } else if (each.kind == PartKind::Rule) {
      box->addWidget(MakeRule());
    } else if (each.kind == PartKind::Frame) {
      box->addWidget(BuildFrame(each), each.share);
    } else if (each.kind == PartKind::Item) {
      box->addWidget(Place(each), each.share);
    } else if (each.kind == PartKind::Cover) {
      box->addLayout(BuildCover(each), each.share);
    } else {
      box->addLayout(Build(each), each.share);
    }
  }
  return box;
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
  std::vector<Part> parts = {Labelled(line.label, line.field)};
  parts.insert(parts.end(), line.parts.begin(), line.parts.end());
  parts.push_back(Space());
  return BuildBox(Row(std::move(parts)));
}

QLayout* LayoutBuilder::BuildBelow(const Part& part) {
  auto* box = new QVBoxLayout;
  box->setSpacing(LabelSpacing);
  box->addWidget(Place(Item(part.label)));
  box->addWidget(Place(Labelled(part.label, part.field)), 1);
  return box;
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
  QWidget* frame = find_(part.field).Widget();
  QLayout* content = Build(part.parts.front());
  content->setContentsMargins(FrameMargin, FrameMargin, FrameMargin, FrameMargin);
  frame->setLayout(content);
  return frame;
}

QWidget* LayoutBuilder::Place(const Part& part) {
  WidgetView& view = find_(part.field);
  QWidget* widget = view.Widget();
  if (!part.label.empty()) Label(part.label, view);
  ApplyLook(part.look, *widget);
  placed_.push_back(widget);
  return widget;
}

void LayoutBuilder::Label(const std::string& label, WidgetView& view) {
  WidgetView& labelView = find_(label);
  view.SetLabel(labelView.Shown());
  auto* widget = dynamic_cast<QLabel*>(labelView.Widget());
  if (widget != nullptr && TakesInput(view.Shown().kind)) widget->setBuddy(view.Widget());
}

}  // namespace bkconf
