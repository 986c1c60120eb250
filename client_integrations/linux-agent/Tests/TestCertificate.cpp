#include "TestCertificate.h"

#include <cstdio>
#include <stdexcept>

#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include "core/text/UniqueHandle.h"

namespace quillseal::testing {
namespace {

using File = UniqueHandle<std::FILE, std::fclose>;

void addExtension(X509* certificate, int kind, const std::string& value) {
  const UniqueHandle<X509_EXTENSION, ::X509_EXTENSION_free> extension(
      X509V3_EXT_conf_nid(nullptr, nullptr, kind, value.c_str()));
  if (!extension || X509_add_ext(certificate, extension.get(), -1) != 1) {
    throw std::runtime_error("no certificate extension");
  }
}

}  // namespace

void writeCertificate(const std::filesystem::path& folder, const CertificateSubject& subject) {
  const UniqueHandle<EVP_PKEY, ::EVP_PKEY_free> key(EVP_EC_gen("P-256"));
  const UniqueHandle<X509, ::X509_free> certificate(X509_new());
  X509_set_version(certificate.get(), X509_VERSION_3);
  ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
  X509_gmtime_adj(X509_getm_notBefore(certificate.get()), subject.validFrom);
  X509_gmtime_adj(X509_getm_notAfter(certificate.get()), subject.validTo);
  X509_set_pubkey(certificate.get(), key.get());
  X509_NAME* name = X509_get_subject_name(certificate.get());
  X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_UTF8,
                             reinterpret_cast<const unsigned char*>("Test"), -1, -1, 0);
  X509_set_issuer_name(certificate.get(), name);
  addExtension(certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
  addExtension(certificate.get(), NID_subject_alt_name, "DNS:" + subject.host);
  X509_sign(certificate.get(), key.get(), EVP_sha256());

  const File certificateFile(std::fopen((folder / "certificate.pem").c_str(), "w"));
  const File keyFile(std::fopen((folder / "key.pem").c_str(), "w"));
  if (PEM_write_X509(certificateFile.get(), certificate.get()) != 1 ||
      PEM_write_PrivateKey(keyFile.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) != 1) {
    throw std::runtime_error("no certificate");
  }
}

}  // namespace quillseal::testing
