// Turns the description of a screen's look into Qt layouts. The window calls it once.
#pragma once

#include <QBoxLayout>
#include <QStackedLayout>
#include <functional>

#include "shell/qt/field_view.h"
#include "shell/qt/layout.h"

namespace bkconf {

/// A part that lies over another one while a field is visible.
struct CoverPages {
  QStackedLayout* pages;  ///< the part below, and the one that lies over it
  const Field* field;
  QWidget* closer;  ///< the button that closes it
};

class LayoutBuilder {
 public:
  /// `find` gives the view of a field by name; a name that is no field is an error of the
  /// description, and ends the program.
  explicit LayoutBuilder(std::function<WidgetView&(const std::string& field)> find)
      : find_(std::move(find)) {}

  QLayout* Build(const Part& part);

  /// The widgets in reading order.
  const std::vector<QWidget*>& Placed() const { return placed_; }

  const std::vector<CoverPages>& Covers() const { return covers_; }

  /// What gets the keyboard when it appears. One that lies in another comes before it.
  const std::vector<QWidget*>& Entered() const { return entered_; }

 private:
  QLayout* BuildBox(const Part& part);
  QLayout* BuildForm(const Part& part);
  QLayout* BuildLine(const Part& line);
  QLayout* BuildBelow(const Part& part);
  QLayout* BuildTiles(const Part& part);
  QLayout* BuildColumns(const Part& part);
  QLayout* BuildInside(const Part& part);
  QLayout* BuildAmid(const Part& part);
  QLayout* BuildPile(const Part& part);
  QLayout* BuildCover(const Part& part);
  QWidget* BuildFrame(const Part& part);
  QLayout* BuildBelowCaption(const Part& frame, WidgetView& group);
  QWidget* Place(const Part& part);
  void Add(const Part& part, QBoxLayout& box);
  void Label(const std::string& labels, WidgetView& view);

  std::function<WidgetView&(const std::string&)> find_;
  std::vector<QWidget*> placed_;
  std::vector<CoverPages> covers_;
  std::vector<QWidget*> entered_;
  bool keeping_ = false;  ///< what is placed keeps its room while it is hidden
};

}  // namespace bkconf
