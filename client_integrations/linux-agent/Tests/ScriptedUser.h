#pragma once

#include <string>

#include "FakeDesktop.h"
#include "gnome/ShortcutSettings.h"

namespace quillseal::testing {

/// A user, whose keyboard settings are as the test says.
struct ScriptedUser : Record, linux::ShortcutSettings {
  FakeAlerts alerts{*this};
  FakeDefaults defaults{*this};
  linux::ShortcutState state = linux::ShortcutState::missing;
  std::string bound;  ///< the keys of the agent's shortcut
  bool canAdd = true;

  linux::ShortcutState stateOf(const linux::CustomShortcut& /*shortcut*/) override { return state; }
  std::string keys() override { return bound; }
  bool add(const linux::CustomShortcut& shortcut) override {
    trace.push_back("add " + shortcut.keys + " " + shortcut.command);
    if (canAdd) bound = shortcut.keys;
    return canAdd;
  }
};

}  // namespace quillseal::testing
