#import "MacDesktop/MacError.h"

#include <exception>

#import <Security/Security.h>
#import <os/log.h>

#include "MacDesktop/CfHandle.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {

Error errorFrom(NSError* error) {
  if (error == nil) return Error({});
  return Error({.domain = utf8(error.domain),
                .code = error.code,
                .description = utf8(error.localizedDescription)});
}

Error errorFromStatus(OSStatus status) {
  const CfHandle<CFStringRef> message(::SecCopyErrorMessageString(status, nullptr));
  return Error({.domain = utf8(NSOSStatusErrorDomain),
                .code = status,
                .description = utf8((__bridge NSString*)message.get())});
}

Error errorFromException(NSException* exception) {
  NSString* words = exception.reason;
  return Error({.domain = utf8(exception.name),
                .code = 0,
                .description = words.length > 0 ? utf8(words) : utf8(exception.name)});
}

void callGuarded(const std::function<void()>& work) noexcept {
  try {
    callSystem(work);
  } catch (const std::exception& error) {
    os_log_fault(OS_LOG_DEFAULT, "An exception reached the event loop: %{public}s", error.what());
  } catch (...) {
    os_log_fault(OS_LOG_DEFAULT, "An exception of unknown type reached the event loop");
  }
}

}  // namespace quillseal::mac
