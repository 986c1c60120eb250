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

enum class AutoPaste { no, yes };

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
  sourceNotInFront,  ///< something else than the source would have got it
  documentChanged,   ///< the source shows another document than the one that was signed in
  sourceClosed,
  sourceUnknown,  ///< the desktop did not say where the text came from, and did not take the keys
  terminal,       ///< whose shell would run the block's lines as commands
};

/// Replaces the clipboard by the signed block and, if asked, brings the source application to the
/// front and pastes there; never into anything else that the desktop can tell from it.
/// Throws Error when the clipboard cannot be taken (nothing is written or pressed then), or when it
/// holds the block but the paste failed. REQUIRES: SignedBlock::isSafeIdentifier(signatureId).
[[nodiscard]] Task<Placement> injectSignedContent(Services services, Injection injection,
                                                  const CapturedContent& content);

}  // namespace quillseal::ClipboardManager
