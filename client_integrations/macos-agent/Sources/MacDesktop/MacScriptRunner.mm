#import "MacDesktop/MacScriptRunner.h"

#import <Foundation/Foundation.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {
namespace {

using Result = Outcome<std::optional<std::string>>;

/// Returns `source` with a time limit for each answer of an application; AppleScript's default is
/// two minutes.
NSString* bounded(const std::string& source) {
  return [NSString stringWithFormat:@"with timeout of %d seconds\n%@\nend timeout",
                                    MacScriptRunner::longestWait, nsString(source)];
}

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

Result outcomeOf(NSString* source) {
  try {
    return callSystem([&] { return execute(source); });
  } catch (const Error& error) {
    return error;
  }
}

}  // namespace

desktop::Ticket MacScriptRunner::run(const std::string& source, std::function<void(Result)> done) {
  const Completion<Result> completion(std::move(done));
  NSString* text = callSystem([&] { return bounded(source); });
  poster_.post([completion, text] {
    if (completion.isPending()) completion(outcomeOf(text));
  });
  return completion.ticket();
}

}  // namespace quillseal::mac
