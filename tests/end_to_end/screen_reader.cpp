#include "end_to_end/screen_reader.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QRect>
#include <atomic>
#include <stdexcept>

#include "end_to_end/deadline.h"

namespace end_to_end {
namespace {

const QString accessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");
const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
constexpr int callLimit = 5000;  // ms; a tool that spins does not answer

// Places in the state set of the accessibility protocol.
constexpr unsigned checkedState = 4;
constexpr unsigned enabledState = 8;
constexpr unsigned focusedState = 12;
constexpr unsigned showingState = 25;

struct Place {
  QString service;
  QString path;
};

QString UniqueName(const char* base) {
  static std::atomic<int> count = 0;
  return QString::fromLatin1(base) + QString::number(++count);
}

QDBusPendingCall Ask(const QDBusConnection& bus, const Place& place, const QString& interface,
                     const QString& method, const QVariantList& words = {}) {
  QDBusMessage message =
      QDBusMessage::createMethodCall(place.service, place.path, interface, method);
  message.setArguments(words);
  return bus.asyncCall(message, callLimit);
}

// The value of the answer; an invalid one when there is no good answer.
QVariant Answer(QDBusPendingCall& call) {
  call.waitForFinished();
  const QDBusMessage answer = call.reply();
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return {};
  return answer.arguments().first();
}

QDBusPendingCall AskStates(const QDBusConnection& bus, const Place& place) {
  return Ask(bus, place, accessibleInterface, QStringLiteral("GetState"));
}

// The first of them, one bit each; none of a widget that is gone.
quint32 StatesOf(QDBusPendingCall& call) {
  const auto states = qdbus_cast<QList<quint32>>(Answer(call));
  return states.isEmpty() ? 0 : states.first();
}

bool Holds(quint32 states, unsigned state) {
  return (states >> state & 1U) != 0;
}

// All that is asked of one widget. A tool that waits for its module answers between two rounds of
// waiting only, so the questions go out together, and those about all widgets of a level as well.
class Questions {
 public:
  Questions(const QDBusConnection& bus, const Place& place)
      : states_(AskStates(bus, place)),
        role_(Ask(bus, place, accessibleInterface, QStringLiteral("GetRoleName"))),
        name_(AskProperty(bus, place, "Name")),
        description_(AskProperty(bus, place, "Description")),
        area_(Ask(bus, place, QStringLiteral("org.a11y.atspi.Component"),
                  QStringLiteral("GetExtents"), {QVariant::fromValue<quint32>(0)})),
        children_(Ask(bus, place, accessibleInterface, QStringLiteral("GetChildren"))) {}

  // The widget if it is on the display.
  std::optional<Widget> Answers() {
    const auto states = StatesOf(states_);
    if (!Holds(states, showingState)) return std::nullopt;
    QRect area;
    if (const QVariant answer = Answer(area_); answer.isValid()) {
      answer.value<QDBusArgument>() >> area;
    }
    return Widget{.role = Answer(role_).toString().toStdString(),
                  .name = TextOf(Answer(name_)),
                  .description = TextOf(Answer(description_)),
                  .x = area.x(),
                  .y = area.y(),
                  .width = area.width(),
                  .height = area.height(),
                  .enabled = Holds(states, enabledState),
                  .focused = Holds(states, focusedState),
                  .checked = Holds(states, checkedState)};
  }

  std::vector<Place> Children() {
    std::vector<Place> children;
    const QVariant answer = Answer(children_);
    if (!answer.isValid()) return children;
    const auto list = answer.value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
      Place child;
      QDBusObjectPath path;
      list.beginStructure();
      list >> child.service >> path;
      list.endStructure();
      child.path = path.path();
      children.push_back(child);
    }
    list.endArray();
    return children;
  }

 private:
  static QDBusPendingCall AskProperty(const QDBusConnection& bus, const Place& place,
                                      const char* name) {
    return Ask(bus, place, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
               {accessibleInterface, QString::fromLatin1(name)});
  }

  static std::string TextOf(const QVariant& answer) {
    return answer.value<QDBusVariant>().variant().toString().toStdString();
  }

  QDBusPendingCall states_;
  QDBusPendingCall role_;
  QDBusPendingCall name_;
  QDBusPendingCall description_;
  QDBusPendingCall area_;
  QDBusPendingCall children_;
};

std::string ContentOf(const QDBusConnection& bus, const Place& field) {
  QDBusPendingCall call =
      Ask(bus, field, QStringLiteral("org.a11y.atspi.Text"), QStringLiteral("GetText"),
          {QVariant::fromValue<qint32>(0), QVariant::fromValue<qint32>(-1)});
  return Answer(call).toString().toStdString();
}

// A place and what is around it.
struct Node {
  Place place;
  std::string group;  // its caption
  bool inTable = false;
};

std::vector<Questions> AskAll(const QDBusConnection& bus, const std::vector<Node>& nodes) {
  std::vector<Questions> questions;
  for (const Node& node : nodes) questions.emplace_back(bus, node.place);
  return questions;
}

// Without the cells of tables that are not on the display. There are hundreds of them, so they are
// asked for nothing else.
std::vector<Node> InSight(const QDBusConnection& bus, const std::vector<Node>& nodes) {
  std::vector<QDBusPendingCall> calls;
  for (const Node& node : nodes) {
    if (node.inTable) calls.push_back(AskStates(bus, node.place));
  }
  auto call = calls.begin();
  std::vector<Node> found;
  for (const Node& node : nodes) {
    if (!node.inTable || Holds(StatesOf(*call++), showingState)) found.push_back(node);
  }
  return found;
}

void AddChildren(Questions& parent, const Node& around, std::vector<Node>& children) {
  for (const Place& child : parent.Children()) {
    children.push_back({child, around.group, around.inTable});
  }
}

std::vector<Node> ChildrenOf(std::vector<Questions> parents) {
  std::vector<Node> children;
  for (Questions& parent : parents) AddChildren(parent, {}, children);
  return children;
}

bool IsGroup(const Widget& widget) {
  return !widget.name.empty() && (widget.role == "frame" || widget.role == "panel");
}

// The address of the bus on which programs answer screen readers, once there is one.
QString ReaderBusAddress(const QDBusConnection& session) {
  QString address;
  WaitFor([&] {
    QDBusPendingCall call =
        Ask(session, {QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus")},
            QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    address = Answer(call).toString();
    return !address.isEmpty();
  });
  if (address.isEmpty()) throw std::runtime_error("no screen reader can be used here");
  return address;
}

}  // namespace

ScreenReader::ScreenReader(const std::string& sessionBus)
    : session_(UniqueName("session").toStdString()),
      reader_(UniqueName("reader").toStdString()),
      bus_(QDBusConnection::connectToBus(
          ReaderBusAddress(QDBusConnection::connectToBus(QString::fromStdString(sessionBus),
                                                         QString::fromStdString(session_))),
          QString::fromStdString(reader_))) {
  if (!bus_.isConnected()) throw std::runtime_error("no connection to the screen readers' bus");
}

ScreenReader::~ScreenReader() {
  QDBusConnection::disconnectFromBus(QString::fromStdString(reader_));
  QDBusConnection::disconnectFromBus(QString::fromStdString(session_));
}

std::vector<Widget> ScreenReader::Widgets() const {
  std::vector<Widget> widgets;
  const Place registry{QStringLiteral("org.a11y.atspi.Registry"), rootPath};
  const std::vector<Node> programs = ChildrenOf(AskAll(bus_, {{.place = registry}}));
  std::vector<Node> level = ChildrenOf(AskAll(bus_, programs));
  while (!level.empty()) {
    std::vector<Node> next;
    std::vector<Questions> asked = AskAll(bus_, level);
    for (std::size_t i = 0; i < level.size(); ++i) {
      std::optional<Widget> widget = asked[i].Answers();
      if (!widget) continue;
      if (widget->role == "text") widget->content = ContentOf(bus_, level[i].place);
      widget->group = level[i].group;
      widgets.push_back(*widget);
      // Items of a closed list are widgets too, and many.
      if (widget->role == "combo box") continue;
      AddChildren(asked[i],
                  {.group = IsGroup(*widget) ? widget->name : widget->group,
                   .inTable = widget->role == "table"},
                  next);
    }
    level = InSight(bus_, next);
  }
  return widgets;
}

}  // namespace end_to_end
