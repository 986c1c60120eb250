#pragma once

#include <string>

#include "Quillseal/AccessibilityManager.h"
#include "core/signing/SignedBlock.h"
#include "core/tasks/Task.h"
#include "desktop/Applications.h"
#include "desktop/KeyEvents.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"

/// Puts the signed block where the text came from.
namespace quillseal::ClipboardManager {

using SignedBlock::readableDate;

struct Services {
  desktop::Applications& applications;
  desktop::KeyEvents& keys;
  desktop::Log& log;
  desktop::MainLoop& loop;
  desktop::Pasteboard& pasteboard;
};

enum class AutoPaste {
  no,
  yes,
  tooLate,  ///< no, since the person may have gone to another window meanwhile
};

struct Injection {
  std::string signatureId;
  std::string issuedDate;
  std::string scope;  ///< the scope that was signed
  std::string server;
  AutoPaste autoPaste = AutoPaste::yes;
};

/// Where the signed block ended up: in the source, or on the clipboard alone, and why.
enum class Placement {
  pasted,
  leftAsAsked,       ///< AutoPaste::no
  leftLate,          ///< AutoPaste::tooLate, in a known source that is no terminal
  notOnClipboard,    ///< nor in the source: the desktop did not take it
  sourceNotInFront,  ///< another window than the source would have got it
  keyboardTaken,     ///< something else has the keyboard, as a menu or the screen lock may
  keysHeld,          ///< the person still held the keys of the hotkey
  notAllowed,        ///< the desktop does not let this program press keys
  documentChanged,   ///< the source shows another document than the one that was signed in
  sourceClosed,
  sourceUnknown,  ///< the desktop did not say where the text came from, and did not take the keys
  terminal,       ///< whose shell would run the block's lines as commands
  maybeTerminal,  ///< the desktop did not say what kind of application it came from
};

struct Injected {
  Placement placement = Placement::pasted;
  std::string cause;  ///< of `notOnClipboard`, in a sentence for the user; empty when not known
};

/// Replaces the clipboard by the signed block and, if asked, brings the source application to the
/// front and pastes there. Pastes nowhere else, as far as the desktop tells windows apart. Waits up
/// to a second for the desktop to take the block, and presses no key before that.
/// Throws Error when the clipboard holds the block but the paste failed.
/// REQUIRES: SignedBlock::isSafeIdentifier(signatureId).
[[nodiscard]] Task<Injected> injectSignedContent(Services services, Injection injection,
                                                 const CapturedContent& content);

}  // namespace quillseal::ClipboardManager
