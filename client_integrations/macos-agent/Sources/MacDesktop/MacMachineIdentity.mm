#import "MacDesktop/MacMachineIdentity.h"

#import <Foundation/Foundation.h>
#import <IOKit/IOKitLib.h>

#include "MacDesktop/CfHandle.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {

std::optional<std::string> MacMachineIdentity::platformUuid() const {
  // The lookup consumes the matching dictionary.
  const IoHandle expert(::IOServiceGetMatchingService(
      kIOMainPortDefault, ::IOServiceMatching("IOPlatformExpertDevice")));
  if (!expert) return std::nullopt;
  const CfHandle<CFTypeRef> property(::IORegistryEntryCreateCFProperty(
      expert.get(), CFSTR(kIOPlatformUUIDKey), kCFAllocatorDefault, 0));
  if (!property || ::CFGetTypeID(property.get()) != ::CFStringGetTypeID()) return std::nullopt;
  return callSystem([&] { return utf8((__bridge NSString*)property.get()); });
}

}  // namespace quillseal::mac
