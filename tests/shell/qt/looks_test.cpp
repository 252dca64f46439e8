// How every window of the tool looks, with something in it, in one language: captions are whole,
// all that takes the keyboard has a name, is visited in reading order and shows it, and a desktop
// of 1024 by 768 has room for it.
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <memory>

#include "screens/shown_screens.h"
#include "shell/qt/content_area.h"
#include "shell/qt/style.h"

using namespace bkconf;

namespace {

/// What a desktop of 1024 x 768 leaves for a window within its frame.
constexpr QSize SmallDesktop{1014, 728};
/// Between a list that an option holds and the words behind it.
constexpr int CaptionGap = 8;

/// Paths are left out in their middle, and told whole by a tool tip.
bool IsPath(const QLabel& label) {
  static const QStringList names = {QStringLiteral("path"), QStringLiteral("directory"),
                                    QStringLiteral("current")};
  return names.contains(label.objectName());
}

QSize SizeOf(const QWidget& widget, const QString& text, int width = QWIDGETSIZE_MAX) {
  const int wraps = width == QWIDGETSIZE_MAX ? 0 : int{Qt::TextWordWrap};
  return widget.fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), wraps, text).size();
}

/// What of a caption has no room; nothing where all of it is seen. One for each kind of widget.
using Cut = QString;

Cut Told(const QWidget& widget, const QString& text, QSize needed, QSize room) {
  if (needed.width() <= room.width() && needed.height() <= room.height()) return {};
  return QStringLiteral("%1 \"%2\" needs %3 x %4 and has %5 x %6")
      .arg(widget.objectName(), text)
      .arg(needed.width())
      .arg(needed.height())
      .arg(room.width())
      .arg(room.height());
}

Cut CutOf(const QLabel& label) {
  if (IsPath(label) || label.text().isEmpty() || !label.pixmap(Qt::ReturnByValue).isNull())
    return {};
  const QSize room = label.contentsRect().size();
  const QSize needed =
      SizeOf(label, label.text(), label.wordWrap() ? room.width() : QWIDGETSIZE_MAX);
  return Told(label, label.text(), needed, room);
}

QString WithoutMark(QString text) {
  return text.remove(u'&');
}

Cut CutOf(const QAbstractButton& button, QStyle::SubElement contents) {
  if (button.text().isEmpty()) return {};
  QStyleOptionButton option;
  option.initFrom(&button);
  option.text = button.text();
  QRect room = button.style()->subElementRect(contents, &option, &button);
  const auto* held = button.findChild<QComboBox*>();
  if (held != nullptr && held->isVisible()) room.setLeft(held->geometry().right() + CaptionGap);
  return Told(button, button.text(), SizeOf(button, WithoutMark(button.text())), room.size());
}

Cut CutOf(const QGroupBox& group) {
  QFont font = group.font();
  font.setWeight(QFont::DemiBold);
  const QSize needed = QFontMetrics(font).size(0, group.title());
  return Told(group, group.title(), needed, group.size() - QSize(2 * FrameMargin, 0));
}

Cut CutOf(const QComboBox& list) {
  QStyleOptionComboBox option;
  option.initFrom(&list);
  const QRect room = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                  QStyle::SC_ComboBoxEditField, &list);
  const QString text = list.currentIndex() < 0 ? list.placeholderText() : list.currentText();
  return Told(list, text, SizeOf(list, text), room.size());
}

/// Captions of columns and rows, and the cells that are in sight.
Cut CutOf(const QTableView& table) {
  constexpr int padding = 3;
  QString cut;
  const auto check = [&](const QHeaderView& header, int section, int room) {
    if (header.isHidden() || !cut.isEmpty()) return;
    const QString text = table.model()->headerData(section, header.orientation()).toString();
    cut = Told(table, text, SizeOf(header, text) + QSize(padding, 0), {room, QWIDGETSIZE_MAX});
  };
  const QAbstractItemModel& model = *table.model();
  for (int column = 0; column < model.columnCount(); ++column) {
    check(*table.horizontalHeader(), column, table.columnWidth(column));
    for (int row = 0; row < model.rowCount() && cut.isEmpty(); ++row) {
      const QString text = model.index(row, column).data().toString();
      const QSize needed = SizeOf(table, text) + QSize(2 * padding, 0);
      cut = Told(table, text, needed, {table.columnWidth(column), table.rowHeight(row)});
    }
  }
  for (int row = 0; row < model.rowCount(); ++row) {
    check(*table.verticalHeader(), row, table.verticalHeader()->width());
  }
  return cut;
}

Cut CutOf(const QWidget& widget) {
  if (const auto* label = dynamic_cast<const QLabel*>(&widget)) return CutOf(*label);
  if (const auto* push = dynamic_cast<const QPushButton*>(&widget)) {
    return CutOf(*push, QStyle::SE_PushButtonContents);
  }
  if (const auto* check = dynamic_cast<const QCheckBox*>(&widget)) {
    return CutOf(*check, QStyle::SE_CheckBoxContents);
  }
  if (const auto* radio = dynamic_cast<const QRadioButton*>(&widget)) {
    return CutOf(*radio, QStyle::SE_RadioButtonContents);
  }
  if (const auto* group = dynamic_cast<const QGroupBox*>(&widget)) return CutOf(*group);
  if (const auto* list = dynamic_cast<const QComboBox*>(&widget)) return CutOf(*list);
  if (const auto* table = dynamic_cast<const QTableView*>(&widget)) return CutOf(*table);
  return {};
}

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// One of a calendar's own, or a key of a picture: what it lies in stands for it.
bool IsStoodFor(const QWidget& widget) {
  for (const QWidget* each = widget.parentWidget(); each != nullptr; each = each->parentWidget()) {
    if (each->focusProxy() != nullptr) return true;
  }
  return false;
}

/// It lies below the first, or to the right of it; or within it, as a list in an option.
bool ComesBehind(const QRect& first, const QRect& second) {
  return second.left() >= first.right() || second.top() >= first.bottom() ||
         first.contains(second) || second.contains(first);
}

}  // namespace

class LooksTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() {
    ApplyStyle(*qApp);
    const QString language = qEnvironmentVariable("BKCONF_TEST_LANGUAGE");
    const QString directory = place_.filePath(QStringLiteral("settings"));
    QCOMPARE(QProcess::execute(QStringLiteral(BKCONF_SETUP_PROGRAM),
                               {QStringLiteral("--directory"), directory,
                                QStringLiteral("--language"), language}),
             0);
    house_ = std::make_unique<House>(directory.toStdString());
  }
  void cleanupTestCase() {
    house_->Clear();
    house_.reset();
  }

  void TheWindowFitsOnASmallDesktop_data() { AddScreens(); }
  void TheWindowFitsOnASmallDesktop() {
    Show();
    const QSize least = Least();
    QVERIFY2(least.width() <= SmallDesktop.width() && least.height() <= SmallDesktop.height(),
             qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
  }

  void EveryCaptionIsWholeAndInTheWindow_data() { AddScreens(); }
  void EveryCaptionIsWholeAndInTheWindow() {
    Show();
    int captions = 0;
    if (const auto* menu = dynamic_cast<const QMenu*>(front_)) captions = CountWhole(*menu);
    for (const QWidget* widget : Visible()) {
      const QString cut = CutOf(*widget);
      QVERIFY2(cut.isEmpty(), qPrintable(cut));
      if (widget->objectName().isEmpty()) continue;
      QVERIFY2(front_->rect().contains(PlaceOf(*widget)), qPrintable(widget->objectName()));
      ++captions;
    }
    QVERIFY(captions > 0);
  }

  void AllThatTakesTheKeyboardHasAName_data() { AddScreens(); }
  void AllThatTakesTheKeyboardHasAName() {
    Show();
    for (QWidget* widget : Visible()) {
      if (widget->focusPolicy() == Qt::NoFocus || IsStoodFor(*widget)) continue;
      QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      // That of a list is its item; what it is for stands in its description.
      const bool list = dynamic_cast<const QComboBox*>(widget) != nullptr;
      const QString name = spoken->text(list ? QAccessible::Description : QAccessible::Name);
      QVERIFY2(!name.isEmpty(), qPrintable(widget->objectName()));
    }
  }

  void TheTabulatorGoesInReadingOrder_data() { AddScreens(); }
  void TheTabulatorGoesInReadingOrder() {
    Show();
    const QList<QWidget*> chain = TabChain();
    for (int first = 0; first < chain.size(); ++first) {
      for (int second = first + 1; second < chain.size(); ++second) {
        QVERIFY2(ComesBehind(PlaceOf(*chain[first]), PlaceOf(*chain[second])),
                 qPrintable(chain[first]->objectName() + QStringLiteral(" before ") +
                            chain[second]->objectName()));
      }
    }
  }

  void WhereTheKeyboardIsCanBeSeen_data() { AddScreens(); }
  void WhereTheKeyboardIsCanBeSeen() {
    Show();
    const QList<QWidget*> chain = TabChain();
    if (chain.size() < 2) return;
    QVERIFY(QTest::qWaitForWindowActive(front_));
    for (QWidget* widget : chain) {
      (widget == chain.front() ? chain.back() : chain.front())->setFocus();
      QVERIFY2(!widget->hasFocus(), qPrintable(widget->objectName()));
      const QImage before = widget->grab().toImage();
      widget->setFocus();
      // Seen by those too who have not touched the keyboard yet.
      front_->setAttribute(Qt::WA_KeyboardFocusChange, false);
      QVERIFY2(widget->hasFocus(), qPrintable(widget->objectName()));
      QVERIFY2(widget->grab().toImage() != before, qPrintable(widget->objectName()));
    }
  }

 private:
  static void AddScreens() {
    QTest::addColumn<int>("screen");
    for (int screen = 0; const ShownScreen& each : ShownScreens()) {
      QTest::newRow(each.name) << screen++;
    }
  }

  /// The windows of screens get the room that a small desktop has for them; the desktop of the
  /// tests has less.
  void Show() {
    QFETCH(int, screen);
    house_->Clear();
    ShownScreens()[static_cast<std::size_t>(screen)].show(*house_);
    front_ = House::Front();
    QVERIFY(QTest::qWaitForWindowExposed(front_));
    if (dynamic_cast<ScreenWindow*>(front_) != nullptr) {
      front_->resize(front_->sizeHint().boundedTo(SmallDesktop).expandedTo(Least()));
    }
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round) QCoreApplication::processEvents();
  }

  QSize Least() const {
    const auto* content = front_->findChild<ContentArea*>();
    if (content == nullptr) return front_->minimumSizeHint();
    // What of the window is not its content.
    const QSize around = front_->minimumSizeHint() - content->minimumSizeHint();
    return content->widget()->minimumSizeHint() + QSize(0, around.height());
  }

  /// Entries of a menu; none where one of them is cut off.
  static int CountWhole(const QMenu& menu) {
    for (const QAction* entry : menu.actions()) {
      const int room = menu.actionGeometry(const_cast<QAction*>(entry)).width();
      if (SizeOf(menu, WithoutMark(entry->text())).width() > room) return 0;
    }
    return static_cast<int>(menu.actions().size());
  }

  QList<QWidget*> Visible() const {
    QList<QWidget*> widgets = front_->findChildren<QWidget*>();
    widgets.removeIf(
        [this](const QWidget* each) { return !each->isVisible() || each->window() != front_; });
    return widgets;
  }

  /// What the tabulator visits, from what lies nearest to the corner on: it goes round.
  QList<QWidget*> TabChain() const {
    QList<QWidget*> chain;
    for (QWidget* each = front_->nextInFocusChain(); each != front_;
         each = each->nextInFocusChain()) {
      const bool visited = each->isVisible() && each->isEnabled() && each->window() == front_ &&
                           (each->focusPolicy() & Qt::TabFocus) != 0;
      if (visited && !IsStoodFor(*each)) chain.append(each);
    }
    const auto first =
        std::min_element(chain.begin(), chain.end(), [](const QWidget* one, const QWidget* other) {
          return PlaceOf(*one).topLeft().manhattanLength() <
                 PlaceOf(*other).topLeft().manhattanLength();
        });
    std::rotate(chain.begin(), first, chain.end());
    return chain;
  }

  QTemporaryDir place_;
  std::unique_ptr<House> house_;
  QWidget* front_ = nullptr;
};

QTEST_MAIN(LooksTest)
#include "looks_test.moc"
