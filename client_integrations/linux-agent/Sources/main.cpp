// The agent for Linux desktops: parses options, connects to the display and runs the event loop.

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QWindow>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <xcb/xcb.h>

#include "LinuxDesktop.h"
#include "Quillseal/AppDelegate.h"
#include "keys/SecretBytes.h"
#include "session/CommandLine.h"
#include "session/Environment.h"
#include "session/IdleMemory.h"
#include "session/JournalLog.h"
#include "session/SessionTraits.h"
#include "session/SingleInstance.h"
#include "session/StartupChecks.h"
#include "session/TerminationSignals.h"
#include "systems/DesktopAccess.h"
#include "x11/XcbHandles.h"

namespace {

using quillseal::linux::Command;
using quillseal::linux::CommandLine;
using quillseal::linux::DesktopAccess;
using quillseal::linux::environmentVariable;

constexpr int failed = 1;
constexpr int wrongArguments = 2;

QIcon productIcon() {
  QIcon icon;
  for (const int size : {22, 24, 32, 48, 128})
    icon.addFile(QStringLiteral(":/icons/quillseal-%1.png").arg(size), {size, size});
  return icon;
}

void report(std::string_view sentence) {
  static_cast<void>(std::fprintf(stderr, "quillseal: %.*s\n", static_cast<int>(sentence.size()),
                                 sentence.data()));
}

bool hasWaylandPlugin() {
  const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QLatin1String("/platforms"));
  return !plugins.entryList({QStringLiteral("libqwayland-*")}).isEmpty();
}

/// Keeps Qt from loading OpenGL, with which these windows draw nothing and whose software renderer
/// takes 50 MB, unless the user has chosen a way to draw. Qt asks the variable once, for its first
/// window; programs that the agent starts must not find it.
void drawInSharedMemory() {
  constexpr const char* variable = "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION";
  if (qEnvironmentVariableIsSet(variable)) return;
  qputenv(variable, "none");
  // Otherwise Qt warns that there is no such thing.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
  QWindow first;
  first.setSurfaceType(QSurface::OpenGLSurface);
  first.create();
  QLoggingCategory::setFilterRules({});
  qunsetenv(variable);
}

void perform(Command command, quillseal::AppDelegate& agent) {
  switch (command) {
    case Command::sign:
      agent.menuBarManager().signText();
      break;
    case Command::settings:
      agent.menuBarManager().configureServer();
      break;
    case Command::quit:
      agent.menuBarManager().quitApp();
      break;
    default:
      break;
  }
}

/// Hands the command to the agent that runs already and returns the exit status; nothing when none
/// runs.
std::optional<int> handOverToAgent(Command command) {
  using quillseal::linux::Handover;
  constexpr std::chrono::seconds timeout{5};
  const std::string method(quillseal::linux::wireName(command));
  if (method.empty()) return std::nullopt;
  const Handover handover = quillseal::linux::handOver(method, timeout);
  if (handover == Handover::noAgent) return std::nullopt;
  if (handover == Handover::done) return 0;
  report("the running agent does not answer. End it and start again.");
  return failed;
}

int runAgent(const CommandLine& commandLine, quillseal::linux::SingleInstance& instance,
             DesktopAccess access) {
  const bool quiet = commandLine.command == Command::background;
  quillseal::linux::JournalLog log(quiet ? quillseal::linux::JournalLog::Echo::none
                                         : quillseal::linux::JournalLog::Echo::standardError);
  if (!quillseal::linux::lockMemoryOfSecrets())
    log.write("[start] memory cannot be locked: a PIN or passphrase may be written to swap");
  quillseal::linux::LinuxDesktop desktop(commandLine, log, std::move(access));
  quillseal::AppDelegate agent(desktop.services());
  agent.applicationDidFinishLaunching();
  const auto execute = [&](Command command) {
    if (command != Command::sign || desktop.isNewPress()) perform(command, agent);
  };
  instance.onCommand(execute);
  const quillseal::linux::TerminationSignals signals([] { QApplication::quit(); });
  execute(commandLine.command);
  log.write("[start] ready");
  const int status = QApplication::exec();
  instance.onCommand({});
  return status;
}

/// Qt ends the program when it finds no display, so the display is checked first. Connects to the X
/// server only where needed, since that starts Xwayland.
quillseal::linux::PlatformChoice choosePlatform(const DesktopAccess& access,
                                                quillseal::linux::x11::Connection& xServer) {
  const bool isReached =
      access.reachesApplicationsByCompositor() || access.reachesApplicationsByPortal();
  if (!isReached || !hasWaylandPlugin()) xServer.reset(xcb_connect(nullptr, nullptr));
  return quillseal::linux::platformFor(
      {.hasXServer = xServer && xcb_connection_has_error(xServer.get()) == 0,
       .reachesApplicationsByWayland = isReached,
       .hasWayland = !environmentVariable("WAYLAND_DISPLAY").empty(),
       .hasWaylandPlugin = hasWaylandPlugin(),
       .wantedPlatform = environmentVariable("QT_QPA_PLATFORM")});
}

int run(int argc, char** argv, const CommandLine& commandLine) {
  quillseal::linux::shieldProcess();
  if (const auto status = handOverToAgent(commandLine.command)) return *status;
  constexpr std::chrono::seconds timeout{5};
  if (!quillseal::linux::sessionBusAnswers(timeout))
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  DesktopAccess access =
      quillseal::linux::findDesktopAccess(commandLine.command == Command::background);
  // Open until Qt has its own connection: an X server may reset when its last client leaves, and
  // refuse Qt meanwhile.
  quillseal::linux::x11::Connection xServer;
  const quillseal::linux::PlatformChoice choice = choosePlatform(access, xServer);
  if (choice.platform.empty()) {
    report(choice.obstacle);
    return failed;
  }
  qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString(choice.platform));
  // The TPM library would log every wrong PIN and, if asked to, everything that it sends.
  qputenv("TSS2_LOG", "all+none");

  // The session manager is not needed, and Qt waits for its first answer without a time-out.
  QApplication::setAttribute(Qt::AA_DisableSessionManager);

  QApplication application(argc, argv);
  xServer.reset();
  if (QGuiApplication::platformName() == QLatin1String("wayland")) drawInSharedMemory();
  QApplication::setApplicationName(QStringLiteral("quillseal"));
  QApplication::setDesktopFileName(QStringLiteral("quillseal"));
  QApplication::setWindowIcon(productIcon());

  quillseal::linux::SingleInstance instance;
  switch (instance.claim()) {
    case quillseal::linux::SingleInstance::Role::secondary:
      return handOverToAgent(commandLine.command).value_or(0);
    case quillseal::linux::SingleInstance::Role::alone:
      report(
          "there is no session bus that answers: notifications and commands from other starts do "
          "not work.");
      break;
    case quillseal::linux::SingleInstance::Role::agent:
      break;
  }
  if (commandLine.command == Command::quit) return 0;
  if (!quillseal::linux::accessibilityAnswers(timeout)) qputenv("AT_SPI_BUS_ADDRESS", "disabled:");
  return runAgent(commandLine, instance, std::move(access));
}

}  // namespace

int main(int argc, char** argv) {
  // A child inherits an ignored SIGCHLD from the program that started it, and would then lose the
  // exit status of its own children.
  static_cast<void>(std::signal(SIGCHLD, SIG_DFL));
  quillseal::linux::returnLargeBlocks();
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  const CommandLine commandLine = quillseal::linux::parseCommandLine(arguments);
  switch (commandLine.command) {
    case Command::help:
      static_cast<void>(std::fputs(std::string(quillseal::linux::helpText()).c_str(), stdout));
      return 0;
    case Command::version:
      std::puts("quillseal " QUILLSEAL_VERSION);
      return 0;
    case Command::wrong:
      report(commandLine.problem + "; see quillseal --help");
      return wrongArguments;
    default:
      break;
  }
  try {
    return run(argc, argv, commandLine);
  } catch (const std::exception& failure) {
    report(failure.what());
    return failed;
  }
}
