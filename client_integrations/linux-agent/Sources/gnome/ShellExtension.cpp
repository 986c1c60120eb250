#include "gnome/ShellExtension.h"

#include <charconv>
#include <string_view>

#include "applications/ProcessExecutable.h"
#include "applications/WindowDocument.h"

namespace quillseal::linux {
namespace {

constexpr const char* shell = "org.gnome.Shell";

constexpr DesktopBus::Method method(const char* name) {
  return {.service = shell,
          .path = "/com/quillseal/FrontWindow",
          .interface = "com.quillseal.FrontWindow1",
          .name = name};
}

/// The major version of the Shell; 0 when it does not say.
int versionOfShell(DesktopBus& bus) {
  const DesktopBus::Message answer =
      bus.call(propertyOf(shell, "/org/gnome/Shell"), "ss", shell, "ShellVersion");
  const char* version = nullptr;
  if (answer == nullptr || ::sd_bus_message_read(answer.get(), "v", "s", &version) <= 0) return 0;
  const std::string_view text(version);
  int major = 0;
  std::from_chars(text.data(), text.data() + text.size(), major);
  return major;
}

constexpr int newestVersion = QUILLSEAL_NEWEST_SHELL;

}  // namespace

template <typename... Arguments>
DesktopBus::Message ShellExtension::ask(const char* name, const char* types,
                                        Arguments... arguments) const {
  const auto begin = std::chrono::steady_clock::now();
  if (begin < silentUntil_) return nullptr;
  DesktopBus::Message answer = bus_.call(method(name), types, arguments...);
  const auto end = std::chrono::steady_clock::now();
  // An error comes at once.
  if (answer == nullptr && end - begin >= DesktopBus::timeout) silentUntil_ = end + pause_;
  return answer;
}

std::optional<ShellFront> ShellExtension::front() const {
  const DesktopBus::Message answer = ask("Front", "");
  ShellFront front;
  int hasKeys = 0;
  int holdsModifiers = 0;
  const char* desktopFile = nullptr;
  const char* windowClass = nullptr;
  std::uint32_t process = 0;
  const char* document = nullptr;
  if (answer == nullptr || ::sd_bus_message_read(answer.get(), "tbbssusu", &front.window, &hasKeys,
                                                 &holdsModifiers, &desktopFile, &windowClass,
                                                 &process, &document, &front.clipboardChanges) <= 0)
    return std::nullopt;
  front.hasKeys = hasKeys != 0;
  front.holdsModifiers = holdsModifiers != 0;
  std::string identifier = desktopFile;
  if (identifier.ends_with(".desktop")) identifier.resize(identifier.rfind('.'));
  front.traits = {.windowClass = windowClass,
                  .gtkApplicationId = identifier,
                  .executable = process == 0 ? "" : executableOf(process)};
  front.document = documentName({.title = document, .focus = 0});
  return front;
}

std::string ShellExtension::advice() const {
  if (front() || !bus_.hasOwner(shell).value_or(false)) return {};
  const std::string state =
      "On this desktop Quillseal does not see which window you write in, so it leaves the signed "
      "text on the clipboard for you to paste. ";
  if (const int version = versionOfShell(bus_); version > newestVersion)
    return state + "Quillseal’s extension for GNOME Shell supports versions up to " +
           std::to_string(newestVersion) + ", and yours is " + std::to_string(version) +
           ". A newer Quillseal may bring one.";
  return state +
         "Log out and in again after installing Quillseal, then enable the extension “Quillseal "
         "front window” in the Extensions application: Quillseal then copies from the window you "
         "write in and pastes there, and nowhere else.";
}

void ShellExtension::activate(std::uint64_t window) const {
  static_cast<void>(ask("Activate", "t", window));
}

std::optional<bool> ShellExtension::activateApplication(const std::string& desktopFile) const {
  const DesktopBus::Message answer = ask("ActivateApplication", "s", desktopFile.c_str());
  int isFound = 0;
  if (answer == nullptr || ::sd_bus_message_read(answer.get(), "b", &isFound) <= 0)
    return std::nullopt;
  return isFound != 0;
}

}  // namespace quillseal::linux
