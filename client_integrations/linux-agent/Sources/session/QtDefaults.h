#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "desktop/Defaults.h"
#include "session/SettingsText.h"

namespace quillseal::linux {

/// The settings in a file (SettingsText) that users and other programs may edit at any time. Only
/// its owner may read it, since it holds the API key. Create and destroy on the main thread.
/// REQUIRES: a QCoreApplication lives longer.
///
/// A file that cannot be parsed is renamed, with ".damaged-" and a number added to its name, and
/// counts as empty.
class QtDefaults final : public desktop::Defaults {
 public:
  struct Options {
    std::string path;  ///< absolute; usually `settingsFile()`
    /// Receives a sentence for the user when the file is damaged or cannot be used. Called on the
    /// main thread, never from inside another call.
    std::function<void(const std::string&)> warn;
    /// How long to wait before a damaged file is renamed, since an editor may still be writing it.
    std::chrono::milliseconds settlingTime{100};
  };

  explicit QtDefaults(Options options);
  ~QtDefaults() override;

  /// "Quillseal/Quillseal.conf" in `$XDG_CONFIG_HOME`, or in `.config` in the home directory when
  /// that is unset or relative (XDG Base Directory 0.8).
  [[nodiscard]] static std::string settingsFile();

  [[nodiscard]] std::optional<std::string> string(std::string_view key) const override;
  [[nodiscard]] bool boolean(std::string_view key) const override;
  void setString(std::string_view key, std::string_view value) override;
  [[nodiscard]] desktop::Ticket observe(std::function<void()> changed) override;

 private:
  using Observers = std::map<std::uint64_t, std::function<void()>>;

  [[nodiscard]] SettingsText::Values read() const;
  /// Nothing when the file cannot be used, after a warning.
  [[nodiscard]] std::optional<SettingsText> fileContents() const;
  [[nodiscard]] std::optional<SettingsText> setAside() const;
  void warn(const QString& sentence) const;
  void watchFile();
  void compare();

  Options options_;
  QString path_;
  mutable std::mutex mutex_;  // guards the members below; reads come from any thread
  mutable bool isWarned_ = false;
  SettingsText::Values unsaved_;  // values that could not be written; valid in this process

  // Main thread only.
  SettingsText::Values seen_;
  std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
  std::uint64_t lastObserver_ = 0;
  QFileSystemWatcher watcher_;
  std::unique_ptr<QObject> receiver_ = std::make_unique<QObject>();
};

}  // namespace quillseal::linux
