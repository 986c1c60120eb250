#import "MacDesktop/MacDefaults.h"

#import <Foundation/Foundation.h>

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
  id value = [NSUserDefaults.standardUserDefaults objectForKey:nsString(key)];
  if (![value isKindOfClass:NSString.class]) return std::nullopt;
  return utf8(value);
}

bool MacDefaults::boolean(std::string_view key) const {
  return [NSUserDefaults.standardUserDefaults boolForKey:nsString(key)];
}

void MacDefaults::setString(std::string_view key, std::string_view value) {
  [NSUserDefaults.standardUserDefaults setObject:nsString(value) forKey:nsString(key)];
  if (!::CFPreferencesAppSynchronize(kCFPreferencesCurrentApplication)) {
    services_.log.write("[settings] the setting " + std::string(key) + " could not be stored");
  }
}

desktop::Ticket MacDefaults::observe(std::function<void()> changed) {
  NSMutableArray<NSString*>* keys = [NSMutableArray array];
  for (const std::string& key : watchedKeys_) {
    [keys addObject:nsString(key)];
  }
  const auto observer = std::make_shared<std::function<void()>>(std::move(changed));
  desktop::MainLoop* loop = &services_.loop;
  QSDefaultsObserver* source = [[QSDefaultsObserver alloc] initWithKeys:keys
                                                                changed:^{
                                                                  loop->post([observer] {
                                                                    if (*observer) (*observer)();
                                                                  });
                                                                }];
  return desktop::Ticket([observer, source] {
    [source stop];
    *observer = nullptr;
  });
}

}  // namespace quillseal::mac
