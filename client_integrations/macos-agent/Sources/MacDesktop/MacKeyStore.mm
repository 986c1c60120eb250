#import "MacDesktop/MacKeyStore.h"

#include <string>
#include <utility>

#import <CryptoTokenKit/CryptoTokenKit.h>
#import <Foundation/Foundation.h>
#import <LocalAuthentication/LocalAuthentication.h>
#import <Security/Security.h>

#include "MacDesktop/CfHandle.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {
namespace {

NSData* tagData() {
  return [nsString(desktop::KeyStore::applicationTag) dataUsingEncoding:NSUTF8StringEncoding];
}

/// Returns the query that finds the key.
NSMutableDictionary* keyQuery() {
  return [@{
    (__bridge id)kSecClass : (__bridge id)kSecClassKey,
    (__bridge id)kSecAttrApplicationTag : tagData(),
    (__bridge id)kSecUseDataProtectionKeychain : @YES,
  } mutableCopy];
}

/// Converts the error that a function of the Security framework returned.
Error errorFrom(CfHandle<CFErrorRef> error) {
  return mac::errorFrom((__bridge_transfer NSError*)error.release());
}

[[noreturn]] void throwCreationFailure(const Error& error) {
  if (error.code() != errSecMissingEntitlement) throw error;
  throw desktop::KeyStoreError(
      desktop::KeyStoreError::Reason::missingEntitlement,
      {.domain = error.domain(), .code = error.code(), .description = error.what()});
}

class EnclaveKey final : public desktop::DeviceKey {
 public:
  /// `context`, possibly nil, is the one that the key was looked up with; it holds the prompt's
  /// text.
  EnclaveKey(CfHandle<SecKeyRef> key, LAContext* context)
      : key_(std::move(key)), context_(context) {}

  [[nodiscard]] std::optional<std::vector<std::uint8_t>> publicKey() const override {
    return callSystem([this]() -> std::optional<std::vector<std::uint8_t>> {
      const CfHandle<SecKeyRef> key(::SecKeyCopyPublicKey(key_.get()));
      if (!key) return std::nullopt;
      const CfHandle<CFDataRef> data(::SecKeyCopyExternalRepresentation(key.get(), nullptr));
      if (!data) return std::nullopt;
      return bytes(data.get());
    });
  }

  [[nodiscard]] std::vector<std::uint8_t> sign(
      const std::array<std::uint8_t, 32>& digest) override {
    return callSystem([&] {
      const CfHandle<CFDataRef> data(
          ::CFDataCreate(kCFAllocatorDefault, digest.data(), static_cast<CFIndex>(digest.size())));
      CfHandle<CFErrorRef> failure;
      const CfHandle<CFDataRef> signature(
          ::SecKeyCreateSignature(key_.get(), kSecKeyAlgorithmECDSASignatureDigestX962SHA256,
                                  data.get(), failure.receive()));
      if (!signature) throw errorFrom(std::move(failure));
      return bytes(signature.get());
    });
  }

 private:
  static std::vector<std::uint8_t> bytes(CFDataRef data) {
    const UInt8* first = ::CFDataGetBytePtr(data);
    return {first, first + ::CFDataGetLength(data)};
  }

  CfHandle<SecKeyRef> key_;
  [[maybe_unused]] LAContext* context_;  // lives as long as the key that uses it
};

}  // namespace

bool MacKeyStore::meansNoKey(std::int64_t status) noexcept {
  // A build without the entitlement has no keychain that could hold a key.
  return status == errSecItemNotFound || status == errSecMissingEntitlement;
}

bool MacKeyStore::isAvailable() const {
  return callSystem([] {
    // The Enclave is a token; its variants have identifiers with this prefix.
    NSString* enclave = (__bridge NSString*)kSecAttrTokenIDSecureEnclave;
    for (NSString* token in [[TKTokenWatcher alloc] init].tokenIDs) {
      if ([token hasPrefix:enclave]) return true;
    }
    return false;
  });
}

std::unique_ptr<desktop::DeviceKey> MacKeyStore::create() {
  remove();
  return callSystem([] {
    CfHandle<CFErrorRef> failure;
    const CfHandle<SecAccessControlRef> access(::SecAccessControlCreateWithFlags(
        kCFAllocatorDefault, kSecAttrAccessibleWhenUnlockedThisDeviceOnly,
        kSecAccessControlPrivateKeyUsage | kSecAccessControlBiometryCurrentSet, failure.receive()));
    if (!access) {
      const Error error = errorFrom(std::move(failure));
      throw Error({.domain = error.domain(),
                   .code = error.code(),
                   .description = "could not build access control"});
    }
    NSDictionary* attributes = @{
      (__bridge id)kSecAttrKeyType : (__bridge id)kSecAttrKeyTypeECSECPrimeRandom,
      (__bridge id)kSecAttrKeySizeInBits : @256,
      (__bridge id)kSecAttrTokenID : (__bridge id)kSecAttrTokenIDSecureEnclave,
      (__bridge id)kSecUseDataProtectionKeychain : @YES,
      (__bridge id)kSecPrivateKeyAttrs : @{
        (__bridge id)kSecAttrIsPermanent : @YES,
        (__bridge id)kSecAttrApplicationTag : tagData(),
        (__bridge id)kSecAttrAccessControl : (__bridge id)access.get(),
      },
    };
    CfHandle<SecKeyRef> key(
        ::SecKeyCreateRandomKey((__bridge CFDictionaryRef)attributes, failure.receive()));
    if (!key) throwCreationFailure(errorFrom(std::move(failure)));
    return std::make_unique<EnclaveKey>(std::move(key), nil);
  });
}

std::unique_ptr<desktop::DeviceKey> MacKeyStore::load(std::optional<desktop::Prompt> prompt) const {
  return callSystem([&]() -> std::unique_ptr<desktop::DeviceKey> {
    NSMutableDictionary* query = keyQuery();
    query[(__bridge id)kSecAttrKeyType] = (__bridge id)kSecAttrKeyTypeECSECPrimeRandom;
    query[(__bridge id)kSecReturnRef] = @YES;
    LAContext* context = nil;
    if (prompt) {
      context = [[LAContext alloc] init];
      context.localizedReason = nsString(prompt->reason);
      query[(__bridge id)kSecUseAuthenticationContext] = context;
    }
    CfHandle<CFTypeRef> found;
    const OSStatus status = ::SecItemCopyMatching((__bridge CFDictionaryRef)query, found.receive());
    if (meansNoKey(status)) return nullptr;
    if (status != errSecSuccess) throw errorFromStatus(status);
    if (!found) return nullptr;
    CfHandle<SecKeyRef> key((SecKeyRef) const_cast<void*>(found.release()));
    return std::make_unique<EnclaveKey>(std::move(key), context);
  });
}

void MacKeyStore::remove() noexcept {
  callGuarded([this] {
    const OSStatus status = ::SecItemDelete((__bridge CFDictionaryRef)keyQuery());
    if (status == errSecSuccess || meansNoKey(status)) return;
    const Error error = errorFromStatus(status);
    log_.write("[sign] deleting the signing key failed: " + error.domain() + " " +
               std::to_string(error.code()) + " " + error.what());
  });
}

}  // namespace quillseal::mac
