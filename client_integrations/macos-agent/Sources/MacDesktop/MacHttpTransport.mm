#import "MacDesktop/MacHttpTransport.h"

#include <mutex>
#include <unordered_map>
#include <utility>

#import <Foundation/Foundation.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace {

/// Larger than any valid answer; a longer one is a fault or an attack.
constexpr NSUInteger maximumAnswer = 8U * 1024 * 1024;

/// A pending answer.
struct Exchange {
  void (^finished)(NSData*, NSURLResponse*, NSError*);
  NSMutableData* body = [NSMutableData data];
  NSError* failure = nil;
};

}  // namespace

/// Collects the answers of one session. Foundation calls it on a serial queue.
@interface QSExchanges : NSObject <NSURLSessionDataDelegate>
/// Starts `task`. `finished` is called once, on that queue.
- (void)start:(NSURLSessionDataTask*)task
     finished:(void (^)(NSData*, NSURLResponse*, NSError*))finished;
@end

@implementation QSExchanges {
  std::mutex _mutex;
  std::unordered_map<NSUInteger, Exchange> _exchanges;  ///< by task identifier
}

- (void)start:(NSURLSessionDataTask*)task
     finished:(void (^)(NSData*, NSURLResponse*, NSError*))finished {
  {
    const std::lock_guard lock(_mutex);
    _exchanges.emplace(task.taskIdentifier, Exchange{.finished = [finished copy]});
  }
  [task resume];
}

- (void)URLSession:(NSURLSession*)__unused session
                          task:(NSURLSessionTask*)__unused task
    willPerformHTTPRedirection:(NSHTTPURLResponse*)__unused response
                    newRequest:(NSURLRequest*)__unused request
             completionHandler:(void (^)(NSURLRequest*))completionHandler {
  // A POST must not be repeated elsewhere, and its body holds the API key, so the redirect is
  // returned as the answer.
  completionHandler(nil);
}

- (void)URLSession:(NSURLSession*)__unused session
          dataTask:(NSURLSessionDataTask*)task
    didReceiveData:(NSData*)data {
  const std::lock_guard lock(_mutex);
  const auto found = _exchanges.find(task.taskIdentifier);
  if (found == _exchanges.end() || found->second.failure != nil) return;
  Exchange& exchange = found->second;
  if (data.length > maximumAnswer - exchange.body.length) {
    exchange.failure = [NSError errorWithDomain:NSURLErrorDomain
                                           code:NSURLErrorDataLengthExceedsMaximum
                                       userInfo:nil];
    [task cancel];
    return;
  }
  [exchange.body appendData:data];
}

- (void)URLSession:(NSURLSession*)__unused session
                    task:(NSURLSessionTask*)task
    didCompleteWithError:(NSError*)error {
  std::unique_lock lock(_mutex);
  const auto ended = _exchanges.extract(task.taskIdentifier);
  lock.unlock();
  if (ended.empty()) return;
  const Exchange& exchange = ended.mapped();
  exchange.finished(exchange.body, task.response,
                    exchange.failure != nil ? exchange.failure : error);
}

@end

namespace quillseal::mac {
namespace {

using Answer = Outcome<desktop::HttpResponse>;

Error transportError(desktop::transport::ErrorCode code) {
  return errorFrom([NSError errorWithDomain:NSURLErrorDomain code:code userInfo:nil]);
}

NSURLRequest* requestFrom(const desktop::HttpPost& post, NSURL* url) {
  NSMutableURLRequest* request =
      [NSMutableURLRequest requestWithURL:url
                              cachePolicy:NSURLRequestUseProtocolCachePolicy
                          timeoutInterval:static_cast<NSTimeInterval>(post.timeout.count())];
  request.HTTPMethod = @"POST";
  for (const auto& [name, value] : post.headers) {
    [request setValue:nsString(value) forHTTPHeaderField:nsString(name)];
  }
  request.HTTPBody = [NSData dataWithBytes:post.body.data() length:post.body.size()];
  return request;
}

Answer answerFrom(NSData* body, NSURLResponse* response, NSError* error) {
  if (error != nil) return errorFrom(error);
  desktop::HttpResponse answer{.status = 400, .body = {}};
  if ([response isKindOfClass:NSHTTPURLResponse.class]) {
    answer.status = static_cast<int>(((NSHTTPURLResponse*)response).statusCode);
  }
  answer.body.assign(static_cast<const char*>(body.bytes), body.length);
  return answer;
}

}  // namespace

MacHttpTransport::MacHttpTransport(const MacMainLoop& loop) : poster_(loop.poster()) {}

MacHttpTransport::~MacHttpTransport() {
  for (const auto& [limit, session] : sessions_) {
    [session invalidateAndCancel];
  }
}

NSURLSession* MacHttpTransport::sessionFor(std::chrono::seconds limit) {
  auto& session = sessions_[limit];
  if (session == nil) {
    NSURLSessionConfiguration* configuration =
        NSURLSessionConfiguration.defaultSessionConfiguration;
    // The request's own time-out restarts with every byte that arrives.
    configuration.timeoutIntervalForResource = static_cast<NSTimeInterval>(limit.count());
    session = [NSURLSession sessionWithConfiguration:configuration
                                            delegate:[[QSExchanges alloc] init]
                                       delegateQueue:nil];
  }
  return session;
}

desktop::Ticket MacHttpTransport::send(const desktop::HttpPost& post,
                                       std::function<void(Answer)> done) {
  const Completion<Answer> completion(std::move(done));
  NSURL* url = callSystem([&] { return urlFrom(post.url); });
  if (url == nil) {
    completion(transportError(desktop::transport::badUrl));
    return {};
  }
  const MacMainLoop::Poster poster = poster_;
  void (^finished)(NSData*, NSURLResponse*, NSError*) =
      ^(NSData* body, NSURLResponse* response, NSError* error) {
        const Answer answer = answerFrom(body, response, error);
        poster.post([completion, answer] { completion(answer); });
      };
  return callSystem([&] {
    NSURLSession* session = sessionFor(post.timeout);
    NSURLSessionDataTask* task = [session dataTaskWithRequest:requestFrom(post, url)];
    [(QSExchanges*)session.delegate start:task finished:finished];
    return completion.ticket([task] { [task cancel]; });
  });
}

Error MacHttpTransport::error(desktop::transport::ErrorCode code) const {
  return transportError(code);
}

}  // namespace quillseal::mac
