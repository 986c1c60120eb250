#pragma once

#include <string>

#include "FakeDesktop.h"
#include "core/text/Error.h"
#include "gnome/ShortcutSettings.h"

namespace quillseal::testing {

/// A user, whose keyboard settings are as the test says.
struct ScriptedUser : Record, linux::ShortcutSettings {
  FakeAlerts alerts{*this};
  FakeDefaults defaults{*this};
  linux::ShortcutState state = linux::ShortcutState::missing;
  std::string bound;  ///< the keys of the agent's shortcut
  bool canAdd = true;
  bool isBroken = false;  ///< GIO cannot be loaded
  int reads = 0;          ///< of the settings

  linux::ShortcutState stateOf(const linux::CustomShortcut& /*shortcut*/) override {
    ++reads;
    return state;
  }
  std::string keys() override {
    ++reads;
    if (isBroken) throw Error({.domain = "test", .code = 1, .description = "broken"});
    return bound;
  }
  bool add(const linux::CustomShortcut& shortcut) override {
    trace.push_back("add " + shortcut.keys + " " + shortcut.command);
    if (canAdd) bound = shortcut.keys;
    return canAdd;
  }
};

}  // namespace quillseal::testing
