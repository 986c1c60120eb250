#pragma once

#include "desktop/Alerts.h"
#include "desktop/Applications.h"
#include "desktop/BrowserTabs.h"
#include "desktop/Defaults.h"
#include "desktop/Files.h"
#include "desktop/Hotkey.h"
#include "desktop/HttpTransport.h"
#include "desktop/KeyEvents.h"
#include "desktop/KeyStore.h"
#include "desktop/Log.h"
#include "desktop/MachineIdentity.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"
#include "desktop/Presence.h"
#include "desktop/Program.h"
#include "desktop/StatusItem.h"
#include "desktop/WallClock.h"
#include "desktop/Window.h"
#include "desktop/Wording.h"

namespace quillseal::desktop {

/// Everything the agent asks of a desktop. A shell supplies one of each, in one place, and keeps
/// them until the agent's objects are gone and no worker runs. Any call may throw Error when the
/// desktop fails, unless its contract reports failures in another way.
struct Desktop {
  Alerts& alerts;
  Applications& applications;
  BrowserTabs& browserTabs;
  Defaults& defaults;
  Files& files;
  Hotkey& hotkey;
  HttpTransport& http;
  KeyEvents& keys;
  KeyStore& keyStore;
  Log& log;
  MachineIdentity& machine;
  MainLoop& loop;
  Pasteboard& pasteboard;
  Presence& presence;
  Program& program;
  StatusItem& statusItem;
  WallClock& wallClock;
  Windows& windows;
  Words& words;
};

}  // namespace quillseal::desktop
