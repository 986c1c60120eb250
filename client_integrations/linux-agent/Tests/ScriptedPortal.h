#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

#include "BusServices.h"
#include "portal/Portal.h"

namespace quillseal::testing {

/// The portal of a desktop on the session bus.
class ScriptedPortal : public BusServices {
 public:
  /// What the owner of the clipboard does when it is asked for text.
  enum class Owner { writes, isReplaced, isSilent, writesTooMuch, closes, givesNoFile };

  struct Script {
    linux::PortalOffer offer{.remoteDesktop = 2, .globalShortcuts = 2, .clipboard = 1};
    bool answers = true;        ///< to what the user is asked
    bool opensSessions = true;  ///< else nothing comes, not even an error
    std::uint32_t answer = 0;   ///< 1 or 2 when the user refuses
    std::uint32_t devices = 1;  ///< that the user allows
    bool allowsClipboard = true;
    std::string token = "next";  ///< for the next session
    std::string knownToken{};    ///< the only one that is understood; any when empty
    bool closesSession = false;  ///< with a token that is not, instead of an error; before it binds
    bool isMalformed = false;    ///< all answers have wrong types
    std::string keys = "Press <Control><Alt><Super>h";  ///< none when empty; or "unlisted"
    Owner owner = Owner::writes;
    int takenSelections = 9;  ///< before one is refused
  };

  static constexpr const char* session = "/org/freedesktop/portal/desktop/session/s";

  explicit ScriptedPortal(Script script)
      : BusServices(::sd_bus_open_user, {linux::Portal::service},
                    [this](sd_bus_message* call, const std::string& method, sd_bus_error* error) {
                      return answer(*call, method, error);
                    }),
        script_(std::move(script)) {}
  ~ScriptedPortal() {
    static_cast<void>(end());
    for (const int file : files_)
      ::close(file);
  }

  /// Emits a signal of the portal or of its session.
  template <typename... Arguments>
  void emit(const std::string& interface, const std::string& name, const std::string& types,
            Arguments... arguments) {
    post([=](sd_bus* bus) {
      const bool isOfSession = interface == "Session";
      ::sd_bus_emit_signal(bus, isOfSession ? session : linux::Portal::path,
                           ("org.freedesktop.portal." + interface).c_str(), name.c_str(),
                           types.c_str(), arguments...);
    });
  }

  /// The ways in which portals report a copy.
  enum class Report { documented, nested, ofTheAgent, malformed };
  void copy(const std::vector<std::string>& formats, Report report = Report::documented) {
    post([=](sd_bus* bus) {
      sd_bus_message* made = nullptr;
      ::sd_bus_message_new_signal(bus, &made, linux::Portal::path,
                                  "org.freedesktop.portal.Clipboard", "SelectionOwnerChanged");
      const linux::DesktopBus::Message signal(made);
      ::sd_bus_message_append(made, "o", session);
      if (report == Report::documented)
        static_cast<void>(linux::Portal::append(*made, {{"mime_types", formats}}));
      else if (report == Report::nested)
        ::sd_bus_message_append(made, "a{sv}", 1, "mime_types", "(as)", 1, formats.at(0).c_str());
      else if (report == Report::ofTheAgent)
        ::sd_bus_message_append(made, "a{sv}", 2, "mime_types", "as", 1, formats.at(0).c_str(),
                                "session_is_owner", "b", 1);
      else
        ::sd_bus_message_append(made, "a{sv}", 1, "mime_types", "s", formats.at(0).c_str());
      ::sd_bus_send(bus, made, nullptr);
    });
  }

  /// Allows what was asked for and not answered.
  void allow() {
    post([this](sd_bus*) {
      respond(*pending_, "os", "ua{sv}", 0U, 2, "devices", "u", script_.devices,
              "clipboard_enabled", "b", 1);
    });
  }

  /// Of `calls`, which have the arguments that matter.
  [[nodiscard]] bool hasCall(const std::string& call) {
    return std::ranges::count(calls(), call) > 0;
  }

  /// What was read from the agent's selection.
  [[nodiscard]] std::string received() const {
    std::string text(1000, ' ');
    const ssize_t count = ::read(files_.back(), text.data(), text.size());
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(0, count)));
    return text;
  }
  void stopReading() { ::close(std::exchange(files_.back(), -1)); }

 private:
  int refuse(sd_bus_error* error) {
    return ::sd_bus_error_set(error, "org.freedesktop.portal.Error.Failed", "no");
  }

  /// Answers a request by its signal.
  template <typename... Results>
  int respond(sd_bus_message& call, const char* before, const char* types, Results... results) {
    const std::string token =
        linux::textOption(call, {.name = "handle_token", .before = before}).value_or("");
    std::string sender = ::sd_bus_message_get_sender(&call) + 1;
    std::ranges::replace(sender, '.', '_');
    const std::string path = std::string(linux::Portal::path) + "/request/" + sender + "/" + token;
    ::sd_bus_reply_method_return(&call, "o", path.c_str());
    constexpr const char* interface = "org.freedesktop.portal.Request";
    sd_bus* const bus = ::sd_bus_message_get_bus(&call);
    if (script_.isMalformed)
      return ::sd_bus_emit_signal(bus, path.c_str(), interface, "Response", "sb", "a", 1);
    return ::sd_bus_emit_signal(bus, path.c_str(), interface, "Response", types, results...);
  }

  int answer(sd_bus_message& call, const std::string& member, sd_bus_error* error) {
    const std::string interface = ::sd_bus_message_get_interface(&call);
    if (member == "Get") return property(call, error);
    if (member.starts_with("NotifyKeyboard")) {
      int key = 0;
      std::uint32_t state = 0;
      ::sd_bus_message_skip(&call, "oa{sv}");
      ::sd_bus_message_read(&call, "iu", &key, &state);
      note(std::to_string(key) + (state != 0 ? "+" : "-"));
      return ::sd_bus_reply_method_return(&call, "");
    }
    if (member == "SelectDevices") {
      const std::string token =
          linux::textOption(call, {.name = "restore_token", .before = "o"}).value_or("");
      const bool isKept =
          linux::enterOption(call, {.name = "persist_mode", .type = "u", .before = "o"});
      note(member + (isKept ? " kept " : " ") + token);
      if (!token.empty() && !script_.knownToken.empty() && token != script_.knownToken) {
        if (!script_.closesSession) return refuse(error);
        respond(call, "o", "ua{sv}", 2U, 0);
        return ::sd_bus_emit_signal(::sd_bus_message_get_bus(&call), session,
                                    "org.freedesktop.portal.Session", "Closed", "");
      }
      return respond(call, "o", "ua{sv}", 0U, 0);
    }
    if (member == "Close")
      note(interface.substr(interface.rfind('.') + 1) + "." + member);
    else if (member == "Register" || member == "SelectionWriteDone")
      note(member + " " + lastOf(call));
    else
      note(member);
    const char* format = nullptr;
    if (member == "SetSelection" &&
        linux::enterOption(call, {.name = "mime_types", .type = "as", .before = "o"}) &&
        ::sd_bus_message_enter_container(&call, 'a', "s") > 0)
      while (::sd_bus_message_read(&call, "s", &format) > 0)
        note("offers " + std::string(format));
    if (member == "BindShortcuts") {
      ::sd_bus_message_skip(&call, "o");
      ::sd_bus_message_enter_container(&call, 'a', "(sa{sv})");
      ::sd_bus_message_enter_container(&call, 'r', "sa{sv}");
      ::sd_bus_message_skip(&call, "s");
      note("trigger " + linux::textOption(call, {.name = "preferred_trigger"}).value_or("none"));
    }
    if (member == "CreateSession" && !script_.opensSessions)
      return ::sd_bus_reply_method_return(&call, "o", "/later");
    if (member == "CreateSession")
      return respond(call, "", "ua{sv}", 0U, 1, "session_handle", "s", session);
    if ((member == "Start" || member == "BindShortcuts") && !script_.answers) {
      pending_.reset(::sd_bus_message_ref(&call));
      return ::sd_bus_reply_method_return(&call, "o", "/later");
    }
    if (member == "Start")
      return respond(call, "os", "ua{sv}", script_.answer, script_.token.empty() ? 2 : 3, "devices",
                     "u", script_.devices, "clipboard_enabled", "b",
                     static_cast<int>(script_.allowsClipboard), "restore_token", "s",
                     script_.token.c_str());
    if (member == "BindShortcuts" && script_.closesSession)
      ::sd_bus_emit_signal(::sd_bus_message_get_bus(&call), session,
                           "org.freedesktop.portal.Session", "Closed", "");
    if (member == "BindShortcuts" && script_.keys == "unlisted")
      return respond(call, "oa(sa{sv})s", "ua{sv}", script_.answer, 0);
    if (member == "BindShortcuts" && script_.keys.empty())
      return respond(call, "oa(sa{sv})s", "ua{sv}", script_.answer, 1, "shortcuts", "a(sa{sv})", 1,
                     "sign", 0);
    if (member == "BindShortcuts")
      return respond(call, "oa(sa{sv})s", "ua{sv}", script_.answer, 1, "shortcuts", "a(sa{sv})", 2,
                     "other", 0, "sign", 1, "trigger_description", "s", script_.keys.c_str());
    if (member == "SelectionRead") return read(call, error);
    if (member == "SelectionWrite") {
      std::array<int, 2> ends{};
      if (::pipe(ends.data()) != 0) return refuse(error);
      files_.push_back(ends[0]);
      const int result = ::sd_bus_reply_method_return(&call, "h", ends[1]);
      ::close(ends[1]);
      return result;
    }
    if (member == "SetSelection" && script_.takenSelections-- == 0) return refuse(error);
    return ::sd_bus_reply_method_return(&call, "");
  }

  static std::string lastOf(sd_bus_message& call) {
    const char* text = nullptr;
    int isTrue = 0;
    std::uint32_t serial = 0;
    if (::sd_bus_message_has_signature(&call, "sa{sv}") > 0) {
      ::sd_bus_message_read(&call, "s", &text);
      return text;
    }
    ::sd_bus_message_skip(&call, "o");
    ::sd_bus_message_read(&call, "ub", &serial, &isTrue);
    return isTrue != 0 ? "done" : "failed";
  }

  int property(sd_bus_message& call, sd_bus_error* error) {
    const char* interface = nullptr;
    const char* name = nullptr;
    ::sd_bus_message_read(&call, "ss", &interface, &name);
    const std::string which = interface;
    std::uint32_t version = which.ends_with("RemoteDesktop") ? script_.offer.remoteDesktop
                            : which.ends_with("Clipboard")   ? script_.offer.clipboard
                                                             : script_.offer.globalShortcuts;
    if (version == 0) return refuse(error);
    if (script_.isMalformed) return ::sd_bus_reply_method_return(&call, "v", "s", "2");
    if (std::string(name) != "version") version = script_.devices;
    return ::sd_bus_reply_method_return(&call, "v", "u", version);
  }

  int read(sd_bus_message& call, sd_bus_error* error) {
    const char* format = nullptr;
    ::sd_bus_message_skip(&call, "o");
    ::sd_bus_message_read(&call, "s", &format);
    std::array<int, 2> ends{};
    if (script_.owner == Owner::givesNoFile || ::pipe(ends.data()) != 0) return refuse(error);
    if (script_.owner == Owner::isReplaced)
      ::sd_bus_emit_signal(::sd_bus_message_get_bus(&call), linux::Portal::path,
                           "org.freedesktop.portal.Clipboard", "SelectionOwnerChanged", "oa{sv}",
                           session, 0);
    const int result = ::sd_bus_reply_method_return(&call, "h", ends[0]);
    ::close(ends[0]);
    const std::string text = std::string(format) == "x-kde-passwordManagerHint" ? "secret" : format;
    if (script_.owner == Owner::writes || script_.owner == Owner::isReplaced)
      static_cast<void>(::write(ends[1], text.data(), text.size()) < 0);
    if (script_.owner == Owner::writesTooMuch) {
      const std::string much(std::size_t{32} * 1024, 'x');
      static_cast<void>(::write(ends[1], much.data(), much.size()) < 0);
    }
    if (script_.owner == Owner::isSilent)
      files_.push_back(ends[1]);
    else
      ::close(ends[1]);
    return result;
  }

  Script script_;
  linux::DesktopBus::Message pending_;
  std::vector<int> files_;
};

}  // namespace quillseal::testing
