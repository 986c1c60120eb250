#import "MacDesktop/MacHttpTransport.h"

#include <memory>

#import <Foundation/Foundation.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace {

/// More than any answer of the server; what goes on longer is a fault or an attack.
constexpr NSUInteger maximumAnswer = 8U * 1024 * 1024;

}  // namespace

/// Collects one answer. Foundation calls it on a private queue, one call at a time.
@interface QSExchange : NSObject <NSURLSessionDataDelegate>
- (instancetype)initWithFinished:(void (^)(NSData*, NSURLResponse*, NSError*))finished;
@end

@implementation QSExchange {
  NSMutableData* _body;
  NSError* _failure;
  void (^_finished)(NSData*, NSURLResponse*, NSError*);
}

- (instancetype)initWithFinished:(void (^)(NSData*, NSURLResponse*, NSError*))finished {
  self = [super init];
  if (self != nil) {
    _body = [NSMutableData data];
    _finished = [finished copy];
  }
  return self;
}

- (void)URLSession:(NSURLSession*)__unused session
                          task:(NSURLSessionTask*)__unused task
    willPerformHTTPRedirection:(NSHTTPURLResponse*)__unused response
                    newRequest:(NSURLRequest*)__unused request
             completionHandler:(void (^)(NSURLRequest*))completionHandler {
  // A post is not safe to repeat elsewhere, and its body holds the API key: the redirect itself is
  // the answer.
  completionHandler(nil);
}

- (void)URLSession:(NSURLSession*)__unused session
          dataTask:(NSURLSessionDataTask*)task
    didReceiveData:(NSData*)data {
  if (_failure != nil) return;
  if (data.length > maximumAnswer - _body.length) {
    _failure = [NSError errorWithDomain:NSURLErrorDomain
                                   code:NSURLErrorDataLengthExceedsMaximum
                               userInfo:nil];
    [task cancel];
    return;
  }
  [_body appendData:data];
}

- (void)URLSession:(NSURLSession*)__unused session
                    task:(NSURLSessionTask*)task
    didCompleteWithError:(NSError*)error {
  _finished(_body, task.response, _failure != nil ? _failure : error);
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

MacHttpTransport::MacHttpTransport(desktop::MainLoop& loop)
    : loop_(loop),
      session_([NSURLSession
          sessionWithConfiguration:NSURLSessionConfiguration.defaultSessionConfiguration]) {}

MacHttpTransport::~MacHttpTransport() { [session_ invalidateAndCancel]; }

desktop::Ticket MacHttpTransport::send(const desktop::HttpPost& post,
                                       std::function<void(Answer)> done) {
  const Completion<Answer> completion(std::move(done));
  NSURL* url = urlFrom(post.url);
  if (url == nil) {
    completion(transportError(desktop::transport::badUrl));
    return {};
  }
  desktop::MainLoop* loop = &loop_;
  // The deadline is of use as long as the request is pending, and each of the two ends the other.
  const auto deadline = std::make_shared<desktop::Ticket>();
  NSURLSessionDataTask* task = [session_ dataTaskWithRequest:requestFrom(post, url)];
  task.delegate = [[QSExchange alloc]
      initWithFinished:^(NSData* body, NSURLResponse* response, NSError* error) {
        const Answer answer = answerFrom(body, response, error);
        loop->post([completion, deadline, answer] {
          *deadline = {};
          completion(answer);
        });
      }];
  // The request's own time-out starts again with every byte that arrives.
  *deadline = loop->after(post.timeout, [completion, task] {
    [task cancel];
    completion(transportError(desktop::transport::timedOut));
  });
  [task resume];
  return completion.ticket([deadline, task] {
    *deadline = {};
    [task cancel];
  });
}

Error MacHttpTransport::error(desktop::transport::ErrorCode code) const {
  return transportError(code);
}

}  // namespace quillseal::mac
