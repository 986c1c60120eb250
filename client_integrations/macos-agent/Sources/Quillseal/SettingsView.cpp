#include "Quillseal/SettingsView.h"

#include <exception>
#include <utility>

#include "Quillseal/SecureEnclaveManager.h"
#include "Quillseal/ServerClient.h"
#include "core/signing/IdentityName.h"

namespace quillseal {
namespace {

using desktop::FormText;
using desktop::TextColour;
using desktop::TextFont;

FormText caption(std::string text, TextColour colour = TextColour::secondary) {
  return {.text = std::move(text), .font = TextFont::caption, .colour = colour};
}

FormText callout(std::string text, TextColour colour = TextColour::primary) {
  return {.text = std::move(text), .font = TextFont::callout, .colour = colour};
}

}  // namespace

SettingsView::SettingsView(Services services, SigningCoordinator& coordinator,
                           desktop::Window& window, Build build)
    : services_(services),
      coordinator_(coordinator),
      window_(window),
      build_(build),
      defaultsObserver_(services.defaults.observe([this] { render(); })) {
  render();
  tasks_.start(readEnrolled());
}

void SettingsView::render() {
  window_.render(form());
}

desktop::Form SettingsView::form() {
  desktop::Form form{.width = 460, .height = 400, .sections = {serverSection()}};
  if (services_.hotkey.state().isOff) form.sections.push_back(hotkeySection());
  form.sections.push_back(machineSection());
  return form;
}

desktop::FormSection SettingsView::serverSection() {
  if (build_ == Build::packaged) {
    FormText url =
        callout(ServerClient::effectiveServerURL(services_.defaults), TextColour::secondary);
    url.selectable = true;
    return {.header = "Server", .rows = {std::move(url)}};
  }
  desktop::FormField url = field("Server URL", Settings::serverURL);
  url.value = Settings::serverURL.value(services_.defaults);
  desktop::FormField key = field("Native API Key (from server log)", Settings::apiKey);
  key.masked = true;
  return {.header = "Server Configuration (development build)",
          .rows = {std::move(url), std::move(key),
                   caption("This key authorizes the app build. It is not proof of who you are — "
                           "that comes from the " +
                           services_.words.current().deviceKey + " below.")}};
}

desktop::FormField SettingsView::field(std::string label, Settings::Text setting) {
  return {.label = std::move(label),
          .value = setting.stored(services_.defaults).value_or(""),
          .masked = false,
          .changed = [&defaults = services_.defaults, setting](const std::string& text) {
            setting.store(defaults, text);
          }};
}

desktop::FormSection SettingsView::hotkeySection() {
  return {.header = "Hotkey",
          .rows = {desktop::FormStatus{
                       .symbol = "exclamationmark.triangle.fill",
                       .symbolColour = TextColour::orange,
                       .text = callout("The hotkey is off: it was not allowed, was removed, or is "
                                       "not available. Without it, sign by the menu.")},
                   desktop::FormButton{.label = "Turn On the Hotkey",
                                       .pressed = [this] { services_.hotkey.askAgain(); }}}};
}

desktop::FormSection SettingsView::machineSection() {
  const desktop::Wording words = services_.words.current();
  desktop::FormSection section{.header = "This " + words.machineInTitle, .rows = {}};
  if (!lookupFailure_.empty()) {
    section.rows.emplace_back(desktop::FormStatus{
        .symbol = "exclamationmark.triangle.fill",
        .symbolColour = TextColour::orange,
        .text = callout("Quillseal could not find out whether this " + words.machine +
                        " has a signing key: " + lookupFailure_)});
  } else if (isEnrolled_) {
    section.rows.emplace_back(desktop::FormStatus{.symbol = "checkmark.seal.fill",
                                                  .symbolColour = TextColour::green,
                                                  .text = callout(words.keyExists)});
  } else {
    section.rows.emplace_back(desktop::FormStatus{
        .symbol = "exclamationmark.triangle.fill",
        .symbolColour = TextColour::orange,
        .text = callout("Not set up yet. This happens automatically the first time you " +
                        (services_.hotkey.state().isOff ? "sign" : "press " + words.hotkey) +
                        " — there is nothing to do here.")});
  }
  const std::string identity = Settings::boundIdentity.value(services_.defaults);
  section.rows.emplace_back(
      identity.empty() ? caption("No verified identity is bound to this " + words.machine +
                                     ". Signatures will be shown to readers as \"anonymous human\" "
                                     "— proof that a person signed, but not who. "
                                     "That is not a basis for trusting a payment request.",
                                 TextColour::orange)
                       : caption("Signatures are attributed to " + IdentityName::shown(identity)));
  section.rows.emplace_back(
      desktop::FormButton{.label = isEnrolling_  ? "Enrolling…"
                                   : isEnrolled_ ? "Re-enrol This " + words.machineInTitle
                                                 : "Enrol This " + words.machineInTitle,
                          .enabled = !isEnrolling_,
                          .pressed = [this] { enrol(); }});
  if (isEnrolled_) {
    section.rows.emplace_back(caption(
        "Re-enrolling creates a NEW key. Signatures already made remain verifiable, but this " +
        words.machine + " must be re-enrolled on the server."));
  }
  std::string advice = services_.keyStore.advice();
  if (!advice.empty()) section.rows.emplace_back(caption(std::move(advice), TextColour::orange));
  std::string desktopAdvice = services_.words.desktopAdvice();
  if (!desktopAdvice.empty())
    section.rows.emplace_back(caption(std::move(desktopAdvice), TextColour::secondary));
  return section;
}

void SettingsView::enrol() {
  if (isEnrolling_) return;
  isEnrolling_ = true;
  render();
  tasks_.start(enrolDevice());
}

Task<> SettingsView::enrolDevice() {
  co_await coordinator_.enrolDevice();
  isEnrolling_ = false;
  co_await readEnrolled();
}

Task<> SettingsView::readEnrolled() {
  lookupFailure_.clear();
  try {
    isEnrolled_ = co_await SecureEnclaveManager::hasKey({.keyStore = services_.keyStore,
                                                         .log = services_.log,
                                                         .loop = services_.loop,
                                                         .words = services_.words});
  } catch (const std::exception& error) {
    isEnrolled_ = false;
    const std::string_view words = error.what();
    lookupFailure_ = words.empty() ? "the system gave no reason." : words;
  }
  render();
}

}  // namespace quillseal
