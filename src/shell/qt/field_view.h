// What all views of fields have in common. The views of each kind derive from it, and the window
// refreshes them.
#pragma once

#include <QPalette>
#include <QString>
#include <QWidget>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/field.h"

namespace bkconf {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Mirrors one field. A view never runs logic for changes that logic made: it listens to what only
/// a user can do.
class FieldView {
 public:
  FieldView() = default;
  FieldView(const FieldView&) = delete;
  FieldView& operator=(const FieldView&) = delete;
  virtual ~FieldView() = default;

  /// Pushes what changed in the field since the last push, without a signal.
  virtual void Refresh() = 0;
};

/// The view of a field that is a widget in the window. The widget belongs to its Qt parent.
class WidgetView : public FieldView {
 public:
  QWidget* Widget() const { return widget_; }
  const Field& Shown() const { return field_; }

  /// A label whose text tells what this field is, for a screen reader. Several are read out one
  /// after the other.
  void AddLabel(const Field& label) { labels_.push_back(&label); }

  void Refresh() final;

  /// What Enter does in it where the screen has no button for Enter.
  virtual void Open() {}

 protected:
  /// Takes the widget's name from the field.
  WidgetView(const Field& field, QWidget* widget);

  /// Pushes what only this kind has.
  virtual void Push() = 0;
  /// Whether the user can do something with it.
  virtual bool Enabled() const { return field_.enabled; }
  /// What a screen reader says: the caption, or the texts of the labels.
  virtual QString SpokenName() const;
  /// Paints the colour of the field in the one role, and what is written on it in the other, in the
  /// colour that the field has for it. For the kinds that show a colour.
  void PushColour(QPalette::ColorRole behind, QPalette::ColorRole text);

 private:
  const Field& field_;
  QWidget* widget_;
  std::optional<Colour> colour_;
  std::optional<Colour> textColour_;
  QPalette plain_;  ///< what the widget has without a colour
  std::vector<const Field*> labels_;
  std::string toolTip_;
};

/// The view that the kind of the field asks for; null for menus, which are no widgets of a layout.
std::unique_ptr<WidgetView> MakeView(Field& field, QWidget* parent);

}  // namespace bkconf
