#import "MacDesktop/MacWallClock.h"

#import <Foundation/Foundation.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {
namespace {

/// The process caches the zone from its start, but a traveller's Mac changes it.
NSTimeZone* currentTimeZone() {
  [NSTimeZone resetSystemTimeZone];
  return NSTimeZone.localTimeZone;
}

}  // namespace

std::string MacWallClock::today() const {
  return callSystem([] {
    NSDateFormatter* formatter = [[NSDateFormatter alloc] init];
    formatter.locale = NSLocale.currentLocale;
    formatter.timeZone = currentTimeZone();
    formatter.dateFormat = @"yyyy-MM-dd";
    return utf8([formatter stringFromDate:NSDate.date]);
  });
}

desktop::TimeZone MacWallClock::timeZone() const {
  return callSystem([] {
    NSTimeZone* zone = currentTimeZone();
    return desktop::TimeZone{.identifier = utf8(zone.name),
                             .secondsFromGmt = static_cast<int>(zone.secondsFromGMT)};
  });
}

}  // namespace quillseal::mac
