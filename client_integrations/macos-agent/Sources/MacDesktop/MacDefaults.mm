#import "MacDesktop/MacDefaults.h"

#include <memory>

#import <Foundation/Foundation.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

/// Calls a block, on any thread, whenever the defaults change.
@interface QSDefaultsObserver : NSObject
- (instancetype)initWithKeys:(NSArray<NSString*>*)keys changed:(void (^)(void))changed;
- (void)stop;
@end

@implementation QSDefaultsObserver {
  NSArray<NSString*>* _keys;
  void (^_changed)(void);
}

- (instancetype)initWithKeys:(NSArray<NSString*>*)keys changed:(void (^)(void))changed {
  self = [super init];
  if (self != nil) {
    _keys = [keys copy];
    _changed = [changed copy];
    [NSNotificationCenter.defaultCenter addObserver:self
                                           selector:@selector(defaultsDidChange:)
                                               name:NSUserDefaultsDidChangeNotification
                                             object:nil];
    for (NSString* key in _keys) {
      [NSUserDefaults.standardUserDefaults addObserver:self forKeyPath:key options:0 context:nil];
    }
  }
  return self;
}

- (void)stop {
  [NSNotificationCenter.defaultCenter removeObserver:self];
  for (NSString* key in _keys) {
    [NSUserDefaults.standardUserDefaults removeObserver:self forKeyPath:key];
  }
  _keys = @[];
}

- (void)defaultsDidChange:(NSNotification*)__unused notification {
  _changed();
}

- (void)observeValueForKeyPath:(NSString*)__unused keyPath
                      ofObject:(id)__unused object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)__unused change
                       context:(void*)__unused context {
  _changed();
}

@end

namespace quillseal::mac {

std::optional<std::string> MacDefaults::string(std::string_view key) const {
  return callSystem([&]() -> std::optional<std::string> {
    id value = [NSUserDefaults.standardUserDefaults objectForKey:nsString(key)];
    if (![value isKindOfClass:NSString.class]) return std::nullopt;
    return utf8(value);
  });
}

bool MacDefaults::boolean(std::string_view key) const {
  return callSystem([&] {
    return static_cast<bool>([NSUserDefaults.standardUserDefaults boolForKey:nsString(key)]);
  });
}

void MacDefaults::setString(std::string_view key, std::string_view value) {
  const bool isStored = callSystem([&] {
    [NSUserDefaults.standardUserDefaults setObject:nsString(value) forKey:nsString(key)];
    return ::CFPreferencesAppSynchronize(kCFPreferencesCurrentApplication) != 0;
  });
  if (!isStored) log_.write("[settings] the setting " + std::string(key) + " could not be stored");
}

desktop::Ticket MacDefaults::observe(std::function<void()> changed) {
  return callSystem([&] {
    NSMutableArray<NSString*>* keys = [NSMutableArray array];
    for (const std::string& key : watchedKeys_) {
      [keys addObject:nsString(key)];
    }
    const auto observer = std::make_shared<std::function<void()>>(std::move(changed));
    const MacMainLoop::Poster poster = poster_;
    void (^notice)(void) = ^{
      poster.post([observer] {
        if (*observer) (*observer)();
      });
    };
    QSDefaultsObserver* source = [[QSDefaultsObserver alloc] initWithKeys:keys changed:notice];
    return desktop::Ticket([observer, source] {
      [source stop];
      *observer = nullptr;
    });
  });
}

}  // namespace quillseal::mac
