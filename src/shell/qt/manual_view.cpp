#include "shell/qt/manual_view.h"

#include <QAbstractSlider>
#include <QPdfPageRenderer>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "session/settings.h"

namespace bkconf {
namespace {

struct ScrollKey {
  Qt::Key key;
  QAbstractSlider::SliderAction action;
};

constexpr ScrollKey ScrollKeys[] = {
    {Qt::Key_Up, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Down, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
    {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
    {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
    {Qt::Key_End, QAbstractSlider::SliderToMaximum},
};

}  // namespace

ManualView::ManualView(ManualField& field, QWidget* parent)
    : WidgetView(field, new QWidget(parent)), field_(field) {
  auto* layout = new QVBoxLayout(Widget());
  layout->setContentsMargins(0, 0, 0, 0);
  Widget()->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

ManualView::~ManualView() {
  Close();
}

void ManualView::Push() {
  if (!field_.visible) {
    Close();
  } else if (pages_ == nullptr || file_ != field_.file) {
    Close();
    Open();
  }
}

QString ManualView::SpokenName() const {
  if (document_ == nullptr) return {};
  const QString title = document_->metaData(QPdfDocument::MetaDataField::Title).toString();
  return title.isEmpty() ? ToQt(file_) : title;
}

void ManualView::Open() {
  file_ = field_.file;
  document_ = std::make_unique<QPdfDocument>();
  // A file that is missing or broken leaves the document without pages, which is all there is to
  // tell.
  document_->load(ToQt(SettingsPath(file_)));
  pages_ = std::make_unique<QPdfView>(Widget());
  pages_->setPageMode(QPdfView::PageMode::MultiPage);
  pages_->setZoomMode(QPdfView::ZoomMode::FitToWidth);
  QPalette palette = pages_->palette();
  palette.setColor(QPalette::Dark, palette.color(QPalette::Window));  // around the pages
  pages_->setPalette(palette);
  pages_->setDocument(document_.get());
  pages_->setAccessibleName(SpokenName());
  Widget()->layout()->addWidget(pages_.get());
  Widget()->setFocusProxy(pages_.get());
  AddScrollKeys();
}

void ManualView::AddScrollKeys() {
  QScrollBar* bar = pages_->verticalScrollBar();
  for (const ScrollKey& each : ScrollKeys) {
    auto* shortcut = new QShortcut(each.key, pages_.get());
    QObject::connect(shortcut, &QShortcut::activated, bar,
                     [bar, action = each.action] { bar->triggerAction(action); });
  }
}

void ManualView::Close() {
  if (pages_ != nullptr) {
    // Otherwise the thread that draws the pages is ended but never deleted.
    for (auto* renderer : pages_->findChildren<QPdfPageRenderer*>()) {
      renderer->setRenderMode(QPdfPageRenderer::RenderMode::SingleThreaded);
    }
  }
  pages_.reset();
  document_.reset();
  file_.clear();
}

}  // namespace bkconf
