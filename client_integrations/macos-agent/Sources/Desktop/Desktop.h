#pragma once

#include "Desktop/Alerts.h"
#include "Desktop/Applications.h"
#include "Desktop/BrowserTabs.h"
#include "Desktop/Defaults.h"
#include "Desktop/Files.h"
#include "Desktop/Hotkey.h"
#include "Desktop/HttpTransport.h"
#include "Desktop/KeyEvents.h"
#include "Desktop/KeyStore.h"
#include "Desktop/Log.h"
#include "Desktop/MachineIdentity.h"
#include "Desktop/MainLoop.h"
#include "Desktop/Pasteboard.h"
#include "Desktop/Presence.h"
#include "Desktop/Program.h"
#include "Desktop/StatusItem.h"
#include "Desktop/WallClock.h"
#include "Desktop/Window.h"

namespace quillseal::desktop {

/// Everything the agent asks of a desktop. A shell supplies one of each, in one place, and keeps
/// them until the agent's objects are gone and no worker runs any more. Any call may throw Error
/// when the desktop fails it, unless its contract gives another way to say so.
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
};

}  // namespace quillseal::desktop
