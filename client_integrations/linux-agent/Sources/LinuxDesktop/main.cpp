// The agent for Linux desktops: chooses and joins its parts, and runs the event loop.

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <xcb/xcb.h>

#include "Desktop/Desktop.h"
#include "LinuxDesktop/CommandLine.h"
#include "LinuxDesktop/EntriesModule.h"
#include "LinuxDesktop/HttpModule.h"
#include "LinuxDesktop/IdleMemory.h"
#include "LinuxDesktop/JournalLog.h"
#include "LinuxDesktop/KeyFailure.h"
#include "LinuxDesktop/LinuxBrowserTabs.h"
#include "LinuxDesktop/LinuxKeyStore.h"
#include "LinuxDesktop/LinuxPresence.h"
#include "LinuxDesktop/LoadedDesktopEntries.h"
#include "LinuxDesktop/LoadedModule.h"
#include "LinuxDesktop/LoadedTransport.h"
#include "LinuxDesktop/PlatformWording.h"
#include "LinuxDesktop/QtAlerts.h"
#include "LinuxDesktop/QtDefaults.h"
#include "LinuxDesktop/QtDescriptors.h"
#include "LinuxDesktop/QtFiles.h"
#include "LinuxDesktop/QtMainLoop.h"
#include "LinuxDesktop/QtPasteboard.h"
#include "LinuxDesktop/QtPresencePrompt.h"
#include "LinuxDesktop/QtProgram.h"
#include "LinuxDesktop/QtSecretPrompt.h"
#include "LinuxDesktop/QtWindows.h"
#include "LinuxDesktop/Reach.h"
#include "LinuxDesktop/SecretBytes.h"
#include "LinuxDesktop/SessionBus.h"
#include "LinuxDesktop/SingleInstance.h"
#include "LinuxDesktop/SystemMachineIdentity.h"
#include "LinuxDesktop/SystemWallClock.h"
#include "LinuxDesktop/TerminationSignals.h"
#include "LinuxDesktop/TrayStatusItem.h"
#include "LinuxDesktop/WindowManager.h"
#include "LinuxDesktop/X11Applications.h"
#include "LinuxDesktop/X11Hotkey.h"
#include "LinuxDesktop/X11Keyboard.h"
#include "LinuxDesktop/XTestKeyEvents.h"
#include "LinuxDesktop/XcbHandles.h"
#include "Quillseal/AppDelegate.h"

namespace {

using quillseal::Command;
using quillseal::CommandLine;

constexpr int failed = 1;
constexpr int wrongArguments = 2;

std::string environment(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): before any thread
  return value == nullptr ? std::string() : std::string(value);
}

// Absolute, as XDG Base Directory demands.
std::string keyFolder() {
  const std::string data = environment("XDG_DATA_HOME");
  return (data.starts_with('/') ? data : environment("HOME") + "/.local/share") + "/quillseal";
}

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

// A compositor that was started from a console leaves the type of the session at "tty".
bool isWayland() {
  return environment("XDG_SESSION_TYPE") == "wayland" || !environment("WAYLAND_DISPLAY").empty();
}

bool isOnX() {
  return QApplication::platformName() == QLatin1String("xcb");
}

bool hasWaylandPlugin() {
  const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QLatin1String("/platforms"));
  return !plugins.entryList({QStringLiteral("libqwayland-*")}).isEmpty();
}

// Everything the agent asks of this desktop. Members are destroyed from the last to the first.
class LinuxDesktop {
 public:
  LinuxDesktop(const CommandLine& commandLine, quillseal::desktop::Log& log)
      : log_(log),
        keyboard_(isOnX() ? quillseal::X11Keyboard::open() : nullptr),
        limits_(quillseal::limitsOf({.isWayland = isWayland(),
                                     .hasXServer = isOnX(),
                                     .canPressKeys = keyboard_ != nullptr})),
        secretPrompt_(loop_, windowManager_),
        keyStore_(quillseal::makeKeyStore({.folder = keyFolder(), .tpm = commandLine.tpm},
                                          secretPrompt_)),
        alerts_(windowManager_, circumstances()),
        windows_(windowManager_, circumstances()),
        statusItem_(circumstances()),
        presencePrompt_(windowManager_),
        presence_(loop_, presencePrompt_),
        defaults_({.path = quillseal::QtDefaults::settingsFile(),
                   .warn = [this](const std::string& sentence) { warn(sentence); }}),
        http_(loop_, descriptors_,
              quillseal::LoadedModule(
                  {.places = quillseal::LoadedModule::usualPlaces(quillseal::HttpModule::fileName),
                   .version = QUILLSEAL_VERSION,
                   .duty = "talks to the server"})),
        pasteboard_({.loop = loop_, .descriptors = descriptors_}),
        entries_(quillseal::LoadedModule(
            {.places = quillseal::LoadedModule::usualPlaces(quillseal::EntriesModule::fileName),
             .version = QUILLSEAL_VERSION,
             .duty = "knows the installed applications"})),
        applications_(windowManager_, entries_, loop_),
        hotkey_(loop_, keyboard_.get(), limits_),
        keys_({.loop = loop_,
               .windows = windowManager_,
               .entries = entries_,
               .keyboard = keyboard_.get(),
               .pasteboard = pasteboard_,
               .explain = [this] { warn(limits_); }}),
        program_(windowManager_),
        browserTabs_({.loop = loop_, .descriptors = descriptors_, .log = log_}) {
    log_.write("[start] " + keyStore_->describe());
    if (limits_.empty()) return;
    // Not a window to close at the start of every session.
    if (commandLine.command == Command::background)
      alerts_.notify({.title = "Quillseal", .body = limits_});
    else
      warn(limits_);
  }

  // Workers use the services; some of them wait for an answer that nobody will give any more. From
  // one that a TPM or a system service keeps waiting nothing can be taken while the program lives.
  ~LinuxDesktop() {
    constexpr std::chrono::seconds patience{5};
    secretPrompt_.close();
    if (loop_.waitForWorkers(patience)) return;
    log_.write("[end] what works beside the program does not come to its end");
    std::_Exit(0);
  }

  LinuxDesktop(const LinuxDesktop&) = delete;
  LinuxDesktop& operator=(const LinuxDesktop&) = delete;

  [[nodiscard]] quillseal::desktop::Desktop services() {
    return {.alerts = alerts_,
            .applications = applications_,
            .browserTabs = browserTabs_,
            .defaults = defaults_,
            .files = files_,
            .hotkey = hotkey_,
            .http = http_,
            .keys = keys_,
            .keyStore = *keyStore_,
            .log = log_,
            .machine = machine_,
            .loop = loop_,
            .pasteboard = pasteboard_,
            .presence = presence_,
            .program = program_,
            .statusItem = statusItem_,
            .wallClock = wallClock_,
            .windows = windows_};
  }

 private:
  [[nodiscard]] quillseal::PlatformWording::CurrentCircumstances circumstances() {
    return [this] {
      auto now = quillseal::PlatformWording::withKeyIn(keyStore_->place());
      if (defaults_.boolean("DemoSigning")) now.proof = quillseal::PlatformWording::Proof::presence;
      return now;
    };
  }

  void warn(const std::string& sentence) {
    log_.write("[start] " + sentence);
    warning_ = alerts_.show({.title = "Quillseal", .body = sentence}, [] {});
  }

  quillseal::desktop::Log& log_;
  quillseal::QtMainLoop loop_;
  quillseal::QtDescriptors descriptors_;
  quillseal::WindowManager windowManager_;
  std::unique_ptr<quillseal::X11Keyboard> keyboard_;
  std::string limits_;
  quillseal::QtSecretPrompt secretPrompt_;
  std::unique_ptr<quillseal::LinuxKeyStore> keyStore_;
  quillseal::QtAlerts alerts_;
  quillseal::desktop::Ticket warning_;
  quillseal::QtWindows windows_;
  quillseal::TrayStatusItem statusItem_;
  quillseal::QtPresencePrompt presencePrompt_;
  quillseal::LinuxPresence presence_;
  quillseal::QtDefaults defaults_;
  quillseal::LoadedTransport http_;
  quillseal::QtPasteboard pasteboard_;
  quillseal::LoadedDesktopEntries entries_;
  quillseal::X11Applications applications_;
  quillseal::X11Hotkey hotkey_;
  quillseal::XTestKeyEvents keys_;
  quillseal::QtProgram program_;
  quillseal::QtFiles files_;
  quillseal::LinuxBrowserTabs browserTabs_;
  quillseal::SystemMachineIdentity machine_;
  quillseal::SystemWallClock wallClock_;
};

void obey(Command command, quillseal::AppDelegate& agent) {
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

int visit(Command command) {
  if (command == Command::background) return 0;
  if (quillseal::SingleInstance::handOver(command)) return 0;
  report("the agent that runs in this session does not answer. End it and start again.");
  return failed;
}

int runAgent(const CommandLine& commandLine, quillseal::SingleInstance& instance) {
  const bool quiet = commandLine.command == Command::background;
  quillseal::JournalLog log(quiet ? quillseal::JournalLog::Echo::none
                                  : quillseal::JournalLog::Echo::standardError);
  if (!quillseal::lockMemoryOfSecrets())
    log.write("[start] memory cannot be locked: a PIN or passphrase may reach the swap area");
  LinuxDesktop desktop(commandLine, log);
  quillseal::AppDelegate agent(desktop.services());
  agent.applicationDidFinishLaunching();
  instance.onCommand([&](Command command) { obey(command, agent); });
  const quillseal::TerminationSignals signals([] { QApplication::quit(); });
  obey(commandLine.command, agent);
  log.write("[start] ready");
  const int status = QApplication::exec();
  instance.onCommand({});
  return status;
}

int run(int argc, char** argv, const CommandLine& commandLine) {
  // Qt ends the program where it finds no display. This connection stays until Qt has its own: an X
  // server without another client may start anew, and refuse Qt, when its last one leaves.
  quillseal::x11::Connection xServer(xcb_connect(nullptr, nullptr));
  const quillseal::PlatformChoice choice =
      quillseal::platformFor({.hasXServer = xcb_connection_has_error(xServer.get()) == 0,
                              .hasWayland = !environment("WAYLAND_DISPLAY").empty(),
                              .hasWaylandPlugin = hasWaylandPlugin(),
                              .wantedPlatform = environment("QT_QPA_PLATFORM")});
  if (choice.platform.empty()) {
    report(choice.obstacle);
    return failed;
  }
  qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString(choice.platform));
  // The library of the TPM would write of every wrong PIN and, on request, all that it sends.
  qputenv("TSS2_LOG", "all+none");

  constexpr std::chrono::seconds patience{5};
  if (!quillseal::sessionBusAnswers(patience)) qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  // It has nothing to say to the agent, and Qt would wait for its first word without end.
  QApplication::setAttribute(Qt::AA_DisableSessionManager);

  QApplication application(argc, argv);
  xServer.reset();
  QApplication::setApplicationName(QStringLiteral("quillseal"));
  QApplication::setDesktopFileName(QStringLiteral("quillseal"));
  QApplication::setWindowIcon(productIcon());

  quillseal::SingleInstance instance;
  switch (instance.claim()) {
    case quillseal::SingleInstance::Role::visitor:
      return visit(commandLine.command);
    case quillseal::SingleInstance::Role::alone:
      report(
          "there is no session bus that answers: notifications and commands from other starts do "
          "not work.");
      break;
    case quillseal::SingleInstance::Role::agent:
      break;
  }
  if (commandLine.command == Command::quit) return 0;
  if (!quillseal::accessibilityAnswers(patience)) qputenv("AT_SPI_BUS_ADDRESS", "disabled:");
  return runAgent(commandLine, instance);
}

}  // namespace

int main(int argc, char** argv) {
  quillseal::shieldProcess();
  quillseal::returnLargeBlocks();
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  const CommandLine commandLine = quillseal::parseCommandLine(arguments);
  switch (commandLine.command) {
    case Command::help:
      static_cast<void>(std::fputs(std::string(quillseal::helpText()).c_str(), stdout));
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
