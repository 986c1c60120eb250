#import "MacDesktop/MacScriptRunner.h"

#import <Foundation/Foundation.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {
namespace {

using Result = Outcome<std::optional<std::string>>;

Result execute(NSString* source) {
  NSDictionary<NSString*, id>* failure = nil;
  NSAppleScript* script = [[NSAppleScript alloc] initWithSource:source];
  NSAppleEventDescriptor* result = [script executeAndReturnError:&failure];
  if (failure == nil && result != nil) return optionalUtf8(result.stringValue);
  id code = failure[NSAppleScriptErrorNumber];
  return Error({.domain = "NSAppleScript",
                .code = [code isKindOfClass:NSNumber.class] ? [code longLongValue] : 0,
                .description = utf8(failure.description)});
}

}  // namespace

MacScriptRunner::MacScriptRunner(desktop::MainLoop& loop)
    : loop_(loop),
      queue_(::dispatch_queue_create(
          "ai.kestle.quillseal.scripts",
          ::dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL_WITH_AUTORELEASE_POOL,
                                                    QOS_CLASS_USER_INITIATED, 0))) {}

desktop::Ticket MacScriptRunner::run(const std::string& source, std::function<void(Result)> done) {
  const Completion<Result> completion(std::move(done));
  NSString* text = nsString(source);
  desktop::MainLoop* loop = &loop_;
  ::dispatch_async(queue_, ^{
    const Result result = execute(text);
    loop->post([completion, result] { completion(result); });
  });
  return completion.ticket();
}

}  // namespace quillseal::mac
