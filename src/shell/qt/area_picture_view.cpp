#include "shell/qt/area_picture_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "session/settings.h"
#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

/// Areas are told in thousandths of the picture.
constexpr double Whole = 1000;
/// In device-independent pixels.
constexpr QSize PreferredSize{230, 460};
constexpr QSize LeastSize{190, 360};
constexpr double FrameWidth = 3;
constexpr double Radius = 8;
constexpr double CardRadius = 5;
/// Between the picture and the edge of its card.
constexpr int Margin = 6;

class AreaKey;

/// The picture on a card, as large as there is room, with the keys over it.
class AreaPicture : public QWidget {
 public:
  AreaPicture(QWidget* parent, std::function<void(int)> pick)
      : QWidget(parent), pick_(std::move(pick)) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }

  void ShowPicture(const QPixmap& picture) {
    picture_ = picture;
    PlaceKeys();
    update();
  }
  void ShowAreas(const std::vector<AreaPictureField::Area>& areas);
  void MarkPicked(int picked);

  bool HasPicture() const { return !picture_.isNull(); }
  void Pick(int key) const { pick_(key); }
  /// The one that the tabulator goes to.
  void MakeCurrent(AreaKey& key);
  /// From one key to the nearest in that direction.
  void Step(const AreaKey& from, QPoint direction) const;
  /// The key of that name, or null.
  AreaKey* Named(const QString& name) const;

  QSize sizeHint() const override { return PreferredSize; }
  QSize minimumSizeHint() const override { return LeastSize; }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (picture_.isNull()) return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Midlight));
    painter.setBrush(Qt::white);  // as what pictures are drawn on
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), CardRadius, CardRadius);
    painter.drawPixmap(PlaceOfPicture().toRect(), picture_);
  }
  void resizeEvent(QResizeEvent*) override { PlaceKeys(); }

 private:
  QRectF PlaceOfPicture() const {
    const QSize picture = picture_.isNull() ? PreferredSize : picture_.size();
    const QSize room = size() - QSize(2 * Margin, 2 * Margin);
    QRect place({}, picture.scaled(room, Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    return place;
  }
  void PlaceKeys();

  QPixmap picture_;
  std::vector<AreaPictureField::Area> areas_;
  std::vector<AreaKey*> keys_;
  std::function<void(int)> pick_;
};

/// There is nothing to see of it but where the mouse or the keyboard is, and which one is picked.
class AreaKey : public QPushButton {
 public:
  AreaKey(AreaPicture& picture, int number) : QPushButton(&picture), picture_(picture) {
    setFocusPolicy(Qt::ClickFocus);
    setCheckable(true);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setObjectName(picture.objectName() + QString::number(number));
    connect(this, &QPushButton::clicked, this, [this, number] { picture_.Pick(number); });
  }

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QPushButton::focusInEvent(event);
    picture_.MakeCurrent(*this);
  }

  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Left:
        return picture_.Step(*this, {-1, 0});
      case Qt::Key_Right:
        return picture_.Step(*this, {1, 0});
      case Qt::Key_Up:
        return picture_.Step(*this, {0, -1});
      case Qt::Key_Down:
        return picture_.Step(*this, {0, 1});
      case Qt::Key_Return:
      case Qt::Key_Enter:
        event->ignore();  // the window knows what Enter presses
        return;
      default:
        if (AreaKey* named = picture_.Named(event->text())) {
          named->setFocus();
          named->click();
        } else {
          QPushButton::keyPressEvent(event);
        }
    }
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor accent = palette().color(QPalette::Highlight);
    const bool marked = hasFocus() || isChecked();
    painter.setPen(marked ? QPen(accent, FrameWidth) : QPen(Qt::NoPen));
    if (!picture_.HasPicture() && !marked) painter.setPen(palette().color(QPalette::Mid));
    accent.setAlphaF(isChecked() ? 0.35F : 0.15F);
    const bool filled = isChecked() || isDown() || (underMouse() && isEnabled());
    painter.setBrush(filled ? QBrush(accent) : QBrush(Qt::NoBrush));
    const double inset = FrameWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), Radius, Radius);
    if (picture_.HasPicture()) return;
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter, accessibleName());
  }

 private:
  AreaPicture& picture_;
};

void AreaPicture::ShowAreas(const std::vector<AreaPictureField::Area>& areas) {
  while (keys_.size() < areas.size()) {
    keys_.push_back(new AreaKey(*this, static_cast<int>(keys_.size())));
  }
  areas_ = areas;
  for (std::size_t key = 0; key < keys_.size(); ++key) {
    keys_[key]->setVisible(key < areas_.size());
    if (key < areas_.size()) keys_[key]->setAccessibleName(ToQt(areas_[key].name));
  }
  if (focusProxy() == nullptr && !keys_.empty()) MakeCurrent(*keys_.front());
  PlaceKeys();
}

void AreaPicture::MarkPicked(int picked) {
  for (std::size_t key = 0; key < keys_.size(); ++key) {
    keys_[key]->setChecked(static_cast<int>(key) == picked);
  }
}

void AreaPicture::MakeCurrent(AreaKey& key) {
  for (AreaKey* each : keys_) {
    each->setFocusPolicy(each == &key ? Qt::StrongFocus : Qt::ClickFocus);
  }
  setFocusProxy(&key);
}

void AreaPicture::Step(const AreaKey& from, QPoint direction) const {
  AreaKey* nearest = nullptr;
  int least = 0;
  for (AreaKey* each : keys_) {
    const QPoint way = each->geometry().center() - from.geometry().center();
    const int along = QPoint::dotProduct(way, direction);
    const int aside = std::abs(QPoint::dotProduct(way, {direction.y(), direction.x()}));
    if (each == &from || each->isHidden() || along <= aside / 2) continue;
    const int distance = along + 2 * aside;
    if (nearest != nullptr && distance >= least) continue;
    nearest = each;
    least = distance;
  }
  if (nearest != nullptr) nearest->setFocus();
}

AreaKey* AreaPicture::Named(const QString& name) const {
  const auto key = std::find_if(keys_.begin(), keys_.end(), [&name](const AreaKey* each) {
    return !each->isHidden() && each->accessibleName() == name;
  });
  return key == keys_.end() ? nullptr : *key;
}

void AreaPicture::PlaceKeys() {
  const QRectF place = PlaceOfPicture();
  for (std::size_t key = 0; key < areas_.size(); ++key) {
    const AreaPictureField::Area& area = areas_[key];
    keys_[key]->setGeometry(QRectF(place.left() + place.width() * area.left / Whole,
                                   place.top() + place.height() * area.top / Whole,
                                   place.width() * area.width / Whole,
                                   place.height() * area.height / Whole)
                                .toRect());
  }
}

}  // namespace

AreaPictureView::AreaPictureView(AreaPictureField& field, QWidget* parent)
    : WidgetView(field, new AreaPicture(parent,
                                        [&field](int area) {
                                          RunEvent([&field, area] { field.Pick(area); });
                                        })),
      field_(field) {}

void AreaPictureView::Push() {
  auto& picture = *static_cast<AreaPicture*>(Widget());
  picture.ShowAreas(field_.areas);
  // The keys are asked: a click on one has marked it already.
  picture.MarkPicked(field_.Picked());
  if (file_ == field_.file) return;
  file_ = field_.file;
  // A file that is missing or no picture gives an empty picture, which is all there is to tell.
  picture.ShowPicture(file_.empty() ? QPixmap() : QPixmap(ToQt(SettingsPath(file_))));
}

}  // namespace bkconf
