#include "end_to_end/screen_reader.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QHash>
#include <QRect>
#include <QSet>
#include <atomic>
#include <stdexcept>

#include "end_to_end/deadline.h"

namespace end_to_end {
namespace {

const QString accessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");
const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
constexpr int callLimit = 25'000;  // ms; a tool that waits for its module answers late

// Places in the state set of the accessibility protocol.
constexpr unsigned checkedState = 4;
constexpr unsigned enabledState = 8;
constexpr unsigned expandedState = 10;
constexpr unsigned focusedState = 12;
constexpr unsigned showingState = 25;

using Place = ReaderPlace;

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

QDBusPendingCall AskArea(const QDBusConnection& bus, const Place& place) {
  return Ask(bus, place, QStringLiteral("org.a11y.atspi.Component"), QStringLiteral("GetExtents"),
             {QVariant::fromValue<quint32>(0)});
}

QRect AreaOf(QDBusPendingCall& call) {
  QRect area;
  if (const QVariant answer = Answer(call); answer.isValid()) {
    answer.value<QDBusArgument>() >> area;
  }
  return area;
}

QDBusPendingCall AskProperty(const QDBusConnection& bus, const Place& place, const char* name) {
  return Ask(bus, place, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
             {accessibleInterface, QString::fromLatin1(name)});
}

std::string TextOf(QDBusPendingCall& call) {
  return Answer(call).value<QDBusVariant>().variant().toString().toStdString();
}

void PutArea(const QRect& area, Widget& widget) {
  widget.x = area.x();
  widget.y = area.y();
  widget.width = area.width();
  widget.height = area.height();
}

void PutStates(quint32 states, Widget& widget) {
  widget.enabled = Holds(states, enabledState);
  widget.focused = Holds(states, focusedState);
  widget.checked = Holds(states, checkedState);
  widget.open = Holds(states, expandedState);
}

// Nothing lies within these.
bool IsLeaf(const QString& role) {
  static const QSet<QString> leaves = {
      QStringLiteral("label"),         QStringLiteral("push button"), QStringLiteral("check box"),
      QStringLiteral("radio button"),  QStringLiteral("cell"),        QStringLiteral("row header"),
      QStringLiteral("column header"), QStringLiteral("list item"),   QStringLiteral("combo box")};
  return leaves.contains(role);
}

bool IsOfTable(const QString& role) {
  return role == QStringLiteral("cell") || role.endsWith(QStringLiteral(" header"));
}

// A place and what is known of it.
struct Node {
  Place place;
  std::string group = {};  // its caption
  bool inTable = false;
  QString role = {};  // empty until it was asked for
  std::optional<quint32> states = std::nullopt;
};

// All that is asked of one widget. A tool that waits for its module answers between two rounds of
// waiting only, so the questions go out together, and those about all widgets of a level as well.
// Each costs the tool some time: what is known is not asked again. Items of a closed list are
// widgets too, and many, and so nobody asks for them.
class Questions {
 public:
  Questions(const QDBusConnection& bus, const Node& node)
      : knownStates_(node.states),
        knownRole_(node.role),
        name_(AskProperty(bus, node.place, "Name")),
        area_(AskArea(bus, node.place)) {
    if (!node.states) states_ = AskStates(bus, node.place);
    if (node.role.isEmpty()) {
      role_ = Ask(bus, node.place, accessibleInterface, QStringLiteral("GetRoleName"));
    }
    if (!IsOfTable(node.role)) description_ = AskProperty(bus, node.place, "Description");
    if (!IsLeaf(node.role)) {
      children_ = Ask(bus, node.place, accessibleInterface, QStringLiteral("GetChildren"));
    }
  }

  // The widget if it is on the display.
  std::optional<Widget> Answers() {
    const quint32 states = knownStates_ ? *knownStates_ : StatesOf(*states_);
    if (!Holds(states, showingState)) return std::nullopt;
    Widget widget;
    widget.role = Role().toStdString();
    widget.name = TextOf(name_);
    if (description_) widget.description = TextOf(*description_);
    PutArea(AreaOf(area_), widget);
    PutStates(states, widget);
    return widget;
  }

  QString Role() { return role_ ? Answer(*role_).toString() : knownRole_; }

  std::vector<Place> Children() {
    std::vector<Place> children;
    const QVariant answer = children_ ? Answer(*children_) : QVariant();
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
  std::optional<quint32> knownStates_;
  QString knownRole_;
  QDBusPendingCall name_;
  QDBusPendingCall area_;
  std::optional<QDBusPendingCall> states_;
  std::optional<QDBusPendingCall> role_;
  std::optional<QDBusPendingCall> description_;
  std::optional<QDBusPendingCall> children_;
};

std::string ContentOf(const QDBusConnection& bus, const Place& field) {
  QDBusPendingCall call =
      Ask(bus, field, QStringLiteral("org.a11y.atspi.Text"), QStringLiteral("GetText"),
          {QVariant::fromValue<qint32>(0), QVariant::fromValue<qint32>(-1)});
  return Answer(call).toString().toStdString();
}

std::vector<Questions> AskAll(const QDBusConnection& bus, const std::vector<Node>& nodes) {
  std::vector<Questions> questions;
  for (const Node& node : nodes) questions.emplace_back(bus, node);
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
    found.push_back(node);
    if (!node.inTable) continue;
    found.back().states = StatesOf(*call++);
    if (!Holds(*found.back().states, showingState)) found.pop_back();
  }
  return found;
}

void AddChildren(Questions& parent, const Node& around, std::vector<Node>& children) {
  for (const Place& child : parent.Children()) {
    children.push_back({.place = child, .group = around.group, .inTable = around.inTable});
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

// A widget never changes its role, and a place is never given to another one.
struct ScreenReader::Roles {
  QHash<QString, QString> known;
};

ScreenReader::ScreenReader(const std::string& sessionBus)
    : session_(UniqueName("session").toStdString()),
      reader_(UniqueName("reader").toStdString()),
      bus_(QDBusConnection::connectToBus(
          ReaderBusAddress(QDBusConnection::connectToBus(QString::fromStdString(sessionBus),
                                                         QString::fromStdString(session_))),
          QString::fromStdString(reader_))),
      roles_(std::make_unique<Roles>()) {
  if (!bus_.isConnected()) throw std::runtime_error("no connection to the screen readers' bus");
}

ScreenReader::~ScreenReader() {
  QDBusConnection::disconnectFromBus(QString::fromStdString(reader_));
  QDBusConnection::disconnectFromBus(QString::fromStdString(session_));
}

std::vector<Widget> ScreenReader::WidgetsUntil(
    const std::function<bool(const Widget&)>& enough) const {
  std::vector<Widget> widgets;
  const Place registry{QStringLiteral("org.a11y.atspi.Registry"), rootPath};
  const std::vector<Node> programs = ChildrenOf(AskAll(bus_, {{.place = registry}}));
  std::vector<Node> level = ChildrenOf(AskAll(bus_, programs));
  while (!level.empty()) {
    for (Node& node : level) node.role = roles_->known.value(node.place.service + node.place.path);
    std::vector<Node> next;
    std::vector<Questions> asked = AskAll(bus_, level);
    for (std::size_t i = 0; i < level.size(); ++i) {
      std::optional<Widget> widget = asked[i].Answers();
      if (!widget) continue;
      const Node& node = level[i];
      roles_->known.insert(node.place.service + node.place.path, asked[i].Role());
      if (widget->role == "text") widget->content = ContentOf(bus_, node.place);
      widget->group = node.group;
      widget->place = node.place;
      widgets.push_back(*widget);
      if (enough(*widget)) return widgets;
      if (IsLeaf(asked[i].Role())) continue;
      AddChildren(asked[i],
                  {.group = IsGroup(*widget) ? widget->name : widget->group,
                   .inTable = widget->role == "table"},
                  next);
    }
    level = InSight(bus_, next);
  }
  return widgets;
}

std::optional<Widget> ScreenReader::LookAgain(const Widget& widget) const {
  QDBusPendingCall states = AskStates(bus_, widget.place);
  QDBusPendingCall area = AskArea(bus_, widget.place);
  QDBusPendingCall name = AskProperty(bus_, widget.place, "Name");
  const quint32 now = StatesOf(states);
  if (!Holds(now, showingState)) return std::nullopt;
  Widget again = widget;
  again.name = TextOf(name);
  PutArea(AreaOf(area), again);
  PutStates(now, again);
  return again;
}

}  // namespace end_to_end
