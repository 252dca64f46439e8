// What the colours of a field do to its view, in light and in dark.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

constexpr Colour Green{0xC0, 0xFF, 0xC0};
constexpr Colour Magenta{0xFF, 0x00, 0xFF};
constexpr Colour Red{0xFF, 0x80, 0x80};

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    label.caption = "State";
    text.Show("Text");
    list.items = {"A", "B"};
    list.Show("A");
    button.caption = "Button";
  }

  LabelField label{*this, "label"};
  TextField text{*this, "text"};
  ListField list{*this, "list"};
  ButtonField button{*this, "button"};
};

Part SampleLayout() {
  return Row({Item("label"), Item("text"), Item("list"), Item("button")});
}

/// The field, its widget, and the roles that it is painted with.
struct Painted {
  Field* field;
  QWidget* widget;
  QPalette::ColorRole behind;
  QPalette::ColorRole text;
};

}  // namespace

class ColourViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    plain_ = QApplication::palette();
    Build();
  }
  void cleanup() {
    window_.reset();
    QApplication::setPalette(plain_);
  }

  void AColourStandsBehindTheTextAndGoesAgain() {
    for (const Painted& each : All()) {
      const QPalette before = each.widget->palette();
      Paint(each, Green);
      QCOMPARE(each.widget->palette().color(each.behind), QColor(0xC0, 0xFF, 0xC0));
      Paint(each, Red);
      QCOMPARE(each.widget->palette().color(each.behind), QColor(0xFF, 0x80, 0x80));
      Paint(each, {});
      QCOMPARE(each.widget->palette(), before);
    }
  }

  void TheTextOnAColourIsDarkInADarkThemeToo() {
    UseDarkTheme();
    for (const Painted& each : All()) {
      QCOMPARE(each.widget->palette().color(each.text), QColor(Qt::white));
      Paint(each, Green);
      QVERIFY(each.widget->palette().color(each.text).lightness() < 64);
      each.field->enabled = false;
      Paint(each, Green);
      QVERIFY(each.widget->palette().color(each.text).lightness() < 128);
      each.field->enabled = true;
      Paint(each, {});
      QCOMPARE(each.widget->palette().color(each.text), QColor(Qt::white));
    }
  }

  void ATextHasTheColourOfItsField() {
    for (const Painted& each : All()) {
      const QPalette before = each.widget->palette();
      Write(each, Magenta);
      QCOMPARE(each.widget->palette().color(QPalette::Active, each.text), QColor(0xFF, 0x00, 0xFF));
      QCOMPARE(each.widget->palette().color(each.behind), before.color(each.behind));
      QCOMPARE(each.widget->palette().color(QPalette::Disabled, each.text),
               before.color(QPalette::Disabled, each.text));
      Paint(each, Green);
      QCOMPARE(each.widget->palette().color(QPalette::Active, each.text), QColor(0xFF, 0x00, 0xFF));
      QCOMPARE(each.widget->palette().color(each.behind), QColor(0xC0, 0xFF, 0xC0));
      Paint(each, {});
      Write(each, {});
      QCOMPARE(each.widget->palette(), before);
    }
  }

  void AColourOfATextIsSeenInTheWindow() {
    for (const Painted& each : All()) {
      Write(each, Magenta);
      const QImage image = each.widget->grab().toImage();
      bool seen = false;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
          const QColor colour = image.pixelColor(x, y);
          seen = seen || (colour.hslSaturation() > 100 && qAbs(colour.hslHue() - 300) < 15);
        }
      }
      QVERIFY2(seen, each.field->name.c_str());
    }
  }

  void ADarkColourOfATextIsLightInADarkTheme() {
    UseDarkTheme();
    for (const Painted& each : All()) {
      for (const Colour colour : {Colour{0x40, 0x40, 0x40}, Colour{0x00, 0x00, 0xFF}}) {
        Write(each, colour);
        const QColor text = each.widget->palette().color(QPalette::Active, each.text);
        QVERIFY(text.lightness() >= 170);
        if (colour.blue == 0xFF) QCOMPARE(text.hslHue(), QColor(Qt::blue).hslHue());
      }
      // On a light ground it stays as it is.
      Paint(each, Green);
      QCOMPARE(each.widget->palette().color(QPalette::Active, each.text), QColor(Qt::blue));
    }
  }

  void ATextThatIsNoItemHasTheColourToo() {
    screen_->list.Show("C");
    screen_->list.textColour = Magenta;
    Refresh();
    QCOMPARE(Find<QComboBox>("list")->palette().color(QPalette::PlaceholderText),
             QColor(0xFF, 0x00, 0xFF));
  }

  void ATextThatIsNoItemIsAsReadableOnAColour() {
    screen_->list.Show("C");
    screen_->list.colour = Green;
    Refresh();
    const QPalette palette = Find<QComboBox>("list")->palette();
    QCOMPARE(palette.color(QPalette::PlaceholderText), palette.color(QPalette::ButtonText));
    screen_->list.colour.reset();
    Refresh();
    const QPalette after = Find<QComboBox>("list")->palette();
    QCOMPARE(after.color(QPalette::PlaceholderText), after.color(QPalette::ButtonText));
  }

  void ALabelWithAColourIsABoxThatKeepsItsSize() {
    auto* label = Find<QLabel>("label");
    const QSize plain = label->sizeHint();
    screen_->label.colour = Green;
    Refresh();
    const QSize box = label->sizeHint();
    QVERIFY(box.width() > plain.width() && box.height() > plain.height());
    screen_->label.caption = "1";
    Refresh();
    QCOMPARE(label->sizeHint(), box);
    screen_->label.caption.clear();
    Refresh();
    QCOMPARE(label->sizeHint(), box);
    const QImage image = label->grab().toImage();
    QCOMPARE(image.pixelColor(image.rect().center()), QColor(0xC0, 0xFF, 0xC0));
    QVERIFY(image.pixelColor(0, image.height() / 2).lightness() <
            QColor(0xC0, 0xFF, 0xC0).lightness());
    screen_->label.caption = "State";
    screen_->label.colour.reset();
    Refresh();
    QCOMPARE(label->sizeHint(), plain);
  }

 private:
  void Build() {
    window_.reset();
    screen_ = std::make_unique<SampleScreen>();
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    Refresh();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  }
  void UseDarkTheme() {
    QPalette dark(QColor(0x30, 0x30, 0x30), QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Base, QColor(0x10, 0x10, 0x10));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      dark.setColor(role, Qt::white);
    }
    QApplication::setPalette(dark);
    Build();
  }
  void Refresh() { window_->Refresh(); }
  void Paint(const Painted& painted, std::optional<Colour> colour) {
    painted.field->colour = colour;
    Refresh();
  }
  void Write(const Painted& painted, std::optional<Colour> colour) {
    painted.field->textColour = colour;
    Refresh();
  }

  std::vector<Painted> All() const {
    return {{&screen_->label, Find<QLabel>("label"), QPalette::Window, QPalette::WindowText},
            {&screen_->text, Find<QLineEdit>("text"), QPalette::Base, QPalette::Text},
            {&screen_->list, Find<QComboBox>("list"), QPalette::Button, QPalette::ButtonText}};
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }

  QPalette plain_;
  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(ColourViewTest)
#include "colour_view_test.moc"
