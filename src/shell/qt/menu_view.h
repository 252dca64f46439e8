// The view of a menu of the menu bar, with all entries and submenus in it.
// The window makes one for each menu of its screen.
#pragma once

#include <QMenu>
#include <QMenuBar>
#include <memory>
#include <vector>

#include "shell/qt/field_view.h"

namespace bkconf {

class MenuView : public FieldView {
 public:
  MenuView(MenuField& field, QMenuBar& bar);
  /// An entry or a submenu.
  MenuView(MenuField& field, QMenu& menu);

  void Refresh() override;

 private:
  void Fill();
  bool Enabled() const;
  QString Caption() const;

  MenuField& field_;
  QMenu* menu_ = nullptr;  ///< null for an entry
  QAction* action_;        ///< of a menu: the action that opens it
  bool inMenuBar_ = false;
  std::string caption_;
  std::vector<std::unique_ptr<MenuView>> entries_;
};

}  // namespace bkconf
