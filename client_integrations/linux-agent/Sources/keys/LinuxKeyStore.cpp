#include "keys/LinuxKeyStore.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

#include "keys/FileKeyStore.h"
#include "keys/TpmKeyStore.h"

namespace quillseal::linux {

namespace {

/// Says what choosing `target` means for an existing key, and why the media before it were skipped.
std::string noticeFor(const KeyMedium& target, const KeyMedium* present,
                      const std::string& obstacles) {
  if (present == nullptr) return obstacles;
  std::string notice = present == &target
                           ? "The existing key will be replaced."
                           : "Your present key is in " + present->name() +
                                 ". It will be replaced by a new one in " + target.name() + ".";
  return obstacles.empty() ? notice : obstacles + ' ' + notice;
}

/// Unlocks the device during its lifetime.
class Unlocked {
 public:
  explicit Unlocked(std::unique_lock<std::mutex>& lock) : lock_(lock) { lock_.unlock(); }
  Unlocked(const Unlocked&) = delete;
  Unlocked& operator=(const Unlocked&) = delete;
  ~Unlocked() { lock_.lock(); }

 private:
  std::unique_lock<std::mutex>& lock_;
};

SecretBytes askForNew(SecretPrompt& prompt, NewSecretRequest request) {
  for (;;) {
    std::optional<SecretBytes> secret = prompt.askForNew(request);
    if (!secret) throw Cancelled();
    request.problem = objectionTo(request.kind, *secret);
    if (request.problem.empty()) return std::move(*secret);
  }
}

}  // namespace

/// A key in a medium. Asks for its secret when it is used.
class LinuxKeyStore::Key final : public desktop::DeviceKey {
 public:
  Key(const LinuxKeyStore& store, const KeyMedium& medium, std::optional<desktop::Prompt> prompt)
      : store_(store), medium_(medium), prompt_(std::move(prompt)) {}

  [[nodiscard]] std::optional<std::vector<std::uint8_t>> publicKey() const override {
    const std::lock_guard lock(store_.device_);
    try {
      const P256::Point point = medium_.publicKey();
      return std::vector<std::uint8_t>(point.begin(), point.end());
    } catch (const KeyFailure&) {
      return std::nullopt;
    }
  }

  [[nodiscard]] std::vector<std::uint8_t> sign(const P256::Digest& digest) override {
    std::unique_lock lock(store_.device_);
    const KeyMedium::Readiness kept = medium_.requireUsableKey();
    const P256::Point publicKey = medium_.publicKey();
    const std::string secretName(nameOf(medium_.secretKind()));
    SecretRequest request{.kind = medium_.secretKind(),
                          .reason = prompt_ ? prompt_->reason : std::string(),
                          .destination = prompt_ ? prompt_->medium : std::string(),
                          .medium = medium_.describe(),
                          .problem = {},
                          .attempt = 1,
                          .attempts = attempts};
    for (; request.attempt <= attempts; ++request.attempt) {
      const std::optional<SecretBytes> secret = [&] {
        const Unlocked unlocked(lock);
        return store_.prompt_.ask(request);
      }();
      if (!secret) throw KeyFailure("no " + secretName + " was entered.");
      if (auto signature = medium_.sign(digest, *secret)) {
        // Also detects a key that was replaced while the question was open.
        if (!P256::verifies({.publicKey = publicKey, .digest = digest, .signature = *signature}))
          throw KeyFailure(
              "the signature does not match the key. Enrol this computer again in "
              "Settings.");
        return std::move(*signature);
      }
      request.problem = "This " + secretName + " is wrong.";
    }
    throw KeyFailure("the " + secretName + " was wrong three times.");
  }

 private:
  const LinuxKeyStore& store_;
  const KeyMedium& medium_;
  std::optional<desktop::Prompt> prompt_;
};

LinuxKeyStore::LinuxKeyStore(std::vector<std::unique_ptr<KeyMedium>> media, SecretPrompt& prompt)
    : media_(std::move(media)), prompt_(prompt) {}

KeyMedium* LinuxKeyStore::holder() const noexcept {
  const auto found = std::find_if(media_.begin(), media_.end(),
                                  [](const auto& medium) { return medium->holdsKey(); });
  return found == media_.end() ? nullptr : found->get();
}

const KeyMedium& LinuxKeyStore::evidentMedium() const {
  if (const KeyMedium* medium = holder()) return *medium;
  const auto found = std::find_if(media_.begin(), media_.end(), [](const auto& medium) {
    return medium->evidentObstacle().empty();
  });
  return found == media_.end() ? *media_.back() : **found;
}

bool LinuxKeyStore::isAvailable() const {
  const std::lock_guard lock(device_);
  return std::any_of(media_.begin(), media_.end(),
                     [](const auto& medium) { return medium->obstacle().empty(); });
}

std::unique_ptr<desktop::DeviceKey> LinuxKeyStore::create() {
  KeyMedium* target = nullptr;
  NewSecretRequest request{};
  {
    const std::lock_guard lock(device_);
    std::string obstacles;
    for (const auto& medium : media_) {
      const std::string obstacle = medium->obstacle();
      if (obstacle.empty()) {
        target = medium.get();
        break;
      }
      obstacles += (obstacles.empty() ? "" : " ") + capitalised(obstacle);
    }
    if (target == nullptr) throw KeyFailure(obstacles);
    request = {.kind = target->secretKind(),
               .medium = target->describe(),
               .notice = noticeFor(*target, holder(), obstacles),
               .problem = {}};
  }
  const SecretBytes secret = askForNew(prompt_, std::move(request));

  const std::lock_guard lock(device_);
  target->create(secret);
  for (const auto& medium : media_)
    if (medium.get() != target) medium->remove();
  return std::make_unique<Key>(*this, *target, std::nullopt);
}

std::unique_ptr<desktop::DeviceKey> LinuxKeyStore::load(
    std::optional<desktop::Prompt> prompt) const {
  const KeyMedium* medium = holder();
  if (medium == nullptr) return nullptr;
  return std::make_unique<Key>(*this, *medium, std::move(prompt));
}

void LinuxKeyStore::remove() noexcept {
  const std::lock_guard lock(device_);
  for (const auto& medium : media_)
    medium->remove();
}

std::string LinuxKeyStore::advice() const {
  if (const KeyMedium* medium = holder()) {
    if (const std::string obstacle = medium->evidentObstacle(); !obstacle.empty())
      return capitalised(obstacle);
    try {
      static_cast<void>(medium->publicKey());
    } catch (const KeyFailure& failure) {
      return capitalised(failure.what());
    }
  }
  if (place() == KeyPlace::tpmSimulator) return describe();
  if (std::string weakness = evidentMedium().weakness(); !weakness.empty()) return weakness;
  return media_.front()->holdsKey() ? std::string()
                                    : capitalised(media_.front()->evidentObstacle());
}

KeyPlace LinuxKeyStore::place() const {
  return evidentMedium().place();
}

std::string LinuxKeyStore::describe() const {
  return evidentMedium().describe();
}

std::unique_ptr<LinuxKeyStore> makeKeyStore(const KeyStoreOptions& options, SecretPrompt& prompt) {
  const std::filesystem::path folder(options.folder);
  const std::string name(desktop::KeyStore::applicationTag);
  std::vector<std::unique_ptr<KeyMedium>> media;
  if (options.tpm != "none") {
    // The TCTI loader would load a library named after any other scheme.
    if (!options.tpm.empty() && !options.tpm.starts_with("swtpm:") &&
        !options.tpm.starts_with("mssim:"))
      throw KeyFailure("“" + options.tpm + "” names no TPM. Use none, swtpm:… or mssim:….");
    media.push_back(std::make_unique<TpmKeyStore>(TpmKeyStore::Options{
        .path = folder / (name + ".tpm.pem"),
        .device = options.tpm.empty() ? TpmKeyStore::systemDevice : options.tpm}));
  }
  media.push_back(std::make_unique<FileKeyStore>(
      FileKeyStore::Options{.path = folder / (name + ".pem"), .cost = {}}));
  return std::make_unique<LinuxKeyStore>(std::move(media), prompt);
}

}  // namespace quillseal::linux
