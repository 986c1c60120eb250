#include "network/TransportErrors.h"

#include <array>

namespace quillseal::linux {
namespace {

namespace transport = desktop::transport;

struct Sentence {
  transport::ErrorCode code;
  const char* text;
};

constexpr std::array sentences{
    Sentence{transport::cancelled, "The request was cancelled."},
    Sentence{transport::badUrl,
             "The server address is not a valid URL. Correct it in the settings."},
    Sentence{transport::timedOut,
             "The server did not answer in time. Check the network connection and try again."},
    Sentence{transport::cannotFindHost,
             "The server’s name could not be found. Check the network connection and the server "
             "address in the settings."},
    Sentence{transport::cannotConnectToHost,
             "The server could not be reached. Check the server address in the settings, or try "
             "again later."},
    Sentence{transport::networkConnectionLost,
             "The connection to the server was lost before it answered. Try again."},
    Sentence{transport::notConnectedToInternet,
             "This computer seems to be offline. Connect it to the network and try again."},
    Sentence{
        transport::badServerResponse,
        "The answer did not come from a signing server. Check the server address in the settings, "
        "or try again later."},
    Sentence{transport::dataLengthExceedsMaximum,
             "The answer is too large for a signing server. Check the server address in the "
             "settings."},
    Sentence{transport::secureConnectionFailed,
             "A secure connection to the server could not be made. Check the server address in the "
             "settings, or ask the server’s administrator."},
    Sentence{transport::serverCertificateUntrusted,
             "The server’s certificate is not trusted, so nothing was sent. Check the date of this "
             "computer and the server address in the settings; somebody may be intercepting the "
             "connection."},
};

}  // namespace

Error transportError(desktop::transport::ErrorCode code) {
  const char* text =
      "The request to the server failed. Check the network connection and try again.";
  for (const Sentence& sentence : sentences) {
    if (sentence.code == code) text = sentence.text;
  }
  return Error({.domain = transport::errorDomain, .code = code, .description = text});
}

}  // namespace quillseal::linux
