#include "wayland/SwayHotkey.h"

#include <exception>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>
#include <unistd.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "core/text/Error.h"
#include "keyboard/KeyChords.h"
#include "wayland/SwayReports.h"

namespace quillseal::linux {
namespace {

using nlohmann::json;

/// The command in sway's report. Each agent has its own, so that one press starts one run.
std::string commandFor(std::string_view event) {
  return "nop quillseal " + std::to_string(getpid()) + " " + std::string(event);
}
constexpr std::string_view pressEvent = "pressed";
constexpr std::string_view releaseEvent = "released";

// Of several bindings to the same keys, sway obeys the one with fewer options, so any binding of
// the user's wins.
constexpr std::string_view options = "--no-warn --locked --inhibited ";

std::string_view nameInSway(Keysym modifier) {
  switch (modifier) {
    case XKB_KEY_Control_L:
      return "Control+";
    case XKB_KEY_Alt_L:
      return "Mod1+";
    default:
      return "Mod4+";
  }
}

[[noreturn]] void fail(int code, const std::string& description) {
  throw Error({.domain = "SwayHotkey", .code = code, .description = description});
}

std::string otherWays(std::string_view place) {
  return "bind the command “quillseal --sign” to a shortcut in " + std::string(place) +
         ". The menu item works in any case.";
}

}  // namespace

SwayHotkey::SwayHotkey(Services services)
    : ClaimedHotkey(services.notify), services_(std::move(services)) {}

SwayHotkey::~SwayHotkey() {
  watch_ = {};
  if (!isBound_) return;
  try {
    unbind();
  } catch (const std::exception&) {
    // The binding remains, without effect.
  }
}

void SwayHotkey::claim() {
  // New ones each time: sway may have ended the former ones.
  watch_ = {};
  commands_ = SwayIpc::open(services_.socket);
  events_ = SwayIpc::open(services_.socket);
  if (commands_ == nullptr || events_ == nullptr)
    fail(1, "This desktop gives programs no hotkey. To sign by keyboard, " +
                otherWays("the settings of your desktop"));
  layout_ = std::make_unique<WaylandLayout>(services_.connection, [this] {
    following_ = services_.loop.after({}, [this] { followLayout(); });
  });
  // The first round trip brings the seat, the second its keyboard.
  static_cast<void>(services_.connection.roundTrip() && services_.connection.roundTrip());
  key_ = keyInLayout();
  const std::string letter(1, desktop::letterOf(combination().key));
  const auto configuration = commands_->ask(SwayIpc::Request::getConfig, "");
  const json parsed = json::parse(configuration.value_or(""), nullptr, false);
  if (parsed.is_object() &&
      bindsAlready(textOf(parsed, "config"), {.symbol = letter, .code = key_}))
    fail(2, "Sway’s configuration already uses " + nameOf(combination()) +
                ". Free it there and turn on the hotkey in the settings of Quillseal, or " +
                otherWays("the configuration too"));
  if (!events_->ask(SwayIpc::Request::subscribe, R"(["binding","workspace"])") || !bind())
    fail(3, "Sway does not bind " + nameOf(combination()) +
                " for Quillseal. To sign by keyboard, " + otherWays("its configuration"));
  watch_ = services_.descriptors.watch(events_->descriptor(), Descriptors::Interest::reading,
                                       [this](Descriptors::Interest) { receive(); });
  setState({});
}

bool SwayHotkey::command(const std::string& text) {
  const auto answer =
      commands_ == nullptr ? std::nullopt : commands_->ask(SwayIpc::Request::runCommand, text);
  const json parsed = json::parse(answer.value_or(""), nullptr, false);
  return parsed.is_array() && parsed.size() == 1 && parsed[0].is_object() &&
         parsed[0].value("success", json()) == true;
}

std::uint32_t SwayHotkey::keyInLayout() const {
  const Keysym symbol = chordOf(combination()).back();
  return layout_->keyFor(symbol).value_or(usualKeyOf(symbol));
}

std::string SwayHotkey::chord() const {
  std::string text;
  std::vector<Keysym> modifiers = chordOf(combination());
  modifiers.pop_back();
  for (const Keysym modifier : modifiers)
    text += nameInSway(modifier);
  return text + std::to_string(key_);
}

bool SwayHotkey::bind() {
  const std::string press = "bindcode " + std::string(options) + chord() + " ";
  const std::string release = "bindcode --release " + std::string(options) + chord() + " ";
  isBound_ = command(press + commandFor(pressEvent)) && command(release + commandFor(releaseEvent));
  if (!isBound_) unbind();
  return isBound_;
}

void SwayHotkey::bindAgain() {
  key_ = keyInLayout();
  setState({.otherKeys = {}, .isOff = !bind()});
}

void SwayHotkey::unbind() {
  for (const char* kind : {"unbindcode ", "unbindcode --release "})
    static_cast<void>(command(kind + std::string(options) + chord()));
}

void SwayHotkey::followLayout() {
  // Without reports of sway, a binding would do nothing.
  if (keyInLayout() == key_ || !isBound_ || state().isOff) return;
  unbind();
  bindAgain();
}

void SwayHotkey::receive() {
  const auto messages = events_->receive();
  if (!messages) {
    watch_ = {};
    turnOff();
  }
  for (const SwayIpc::Message& message : messages.value_or(std::vector<SwayIpc::Message>()))
    handle(message);
}

void SwayHotkey::handle(const SwayIpc::Message& message) {
  const json event = json::parse(message.text, nullptr, false);
  if (!event.is_object()) return;
  // Sway drops all bindings when it reloads its configuration.
  if (textOf(event, "change") == "reload") bindAgain();
  const auto binding = event.find("binding");
  if (binding == event.end() || !binding->is_object()) return;
  const std::string reported = textOf(*binding, "command");
  if (reported == commandFor(pressEvent) && held_.press(services_.loop.now()))
    services_.loop.post(pressed());
  // Sway reports no release when another key was pressed meanwhile.
  if (reported == commandFor(releaseEvent)) held_.release();
}

}  // namespace quillseal::linux
