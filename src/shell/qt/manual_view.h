// The view of a manual: all pages one below the other, as wide as there is room.
// Made by MakeView.
#pragma once

#include <QPdfDocument>
#include <QPdfView>
#include <memory>
#include <string>

#include "shell/qt/field_view.h"

namespace bkconf {

/// Holds the document, and all that shows it, only while the field is visible. The keys that scroll
/// work wherever in the window the focus is.
class ManualView : public WidgetView {
 public:
  ManualView(ManualField& field, QWidget* parent);
  ~ManualView() override;

 protected:
  void Push() override;
  QString SpokenName() const override;

 private:
  void Open();
  void Close();
  void AddScrollKeys();

  ManualField& field_;
  std::string file_;  ///< of the document that is open
  std::unique_ptr<QPdfDocument> document_;
  std::unique_ptr<QPdfView> pages_;
};

}  // namespace bkconf
