#pragma once

#include <filesystem>
#include <string>

namespace quillseal::testing {

/// The properties of a certificate.
struct CertificateSubject {
  std::string host;
  long validFrom = -3600;  ///< seconds from now
  long validTo = 3600;     ///< seconds from now
};

/// Writes a new self-signed certificate and its key (PEM) as "certificate.pem" and "key.pem".
void writeCertificate(const std::filesystem::path& folder, const CertificateSubject& subject);

}  // namespace quillseal::testing
