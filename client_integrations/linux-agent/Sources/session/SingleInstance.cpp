#include "session/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <algorithm>
#include <array>
#include <utility>

#include "session/StartupChecks.h"

namespace quillseal::linux {
namespace {

constexpr std::array wireCommands = {Command::sign, Command::settings, Command::quit};

QString wire(Command command) {
  const std::string_view name = wireName(command);
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

// A virtual object, to avoid generated code for three methods without arguments.
class SingleInstance::Receiver : public QDBusVirtualObject {
 public:
  std::function<void(Command)> handler;

  [[nodiscard]] QString introspect(const QString& /*path*/) const override {
    QString methods;
    for (const Command command : wireCommands)
      methods += QStringLiteral("<method name=\"%1\"/>").arg(wire(command));
    return QStringLiteral("<interface name=\"%1\">%2</interface>")
        .arg(QLatin1String(agentName), methods);
  }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    if (message.interface() != QLatin1String(agentName)) return false;
    const auto* const command =
        std::find_if(wireCommands.begin(), wireCommands.end(),
                     [&](Command known) { return message.member() == wire(known); });
    if (command == wireCommands.end()) return false;
    connection.send(message.createReply());
    if (handler) handler(*command);
    return true;
  }
};

SingleInstance::SingleInstance() : receiver_(std::make_unique<Receiver>()) {}

SingleInstance::~SingleInstance() {
  QDBusConnection::sessionBus().unregisterObject(QLatin1String(agentPath));
}

SingleInstance::Role SingleInstance::claim() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return Role::alone;
  // The object is registered first: a program that finds the name must find the object too.
  bus.registerVirtualObject(QLatin1String(agentPath), receiver_.get());
  return bus.registerService(QLatin1String(agentName)) ? Role::agent : Role::secondary;
}

void SingleInstance::onCommand(std::function<void(Command)> handler) {
  receiver_->handler = std::move(handler);
}

}  // namespace quillseal::linux
