#include "session/QtDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaObject>
#include <QSaveFile>
#include <QStandardPaths>
#include <thread>
#include <utility>
#include <vector>

#include "core/text/UnicodeText.h"
#include "session/QtText.h"

namespace quillseal::linux {
namespace {

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

void keepFromOthers(const QString& path) {
  constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                        QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  const QFileInfo file(path);
  if (file.isFile() && (file.permissions() & others) != 0) QFile::setPermissions(path, ownerOnly);
}

/// Replaces the file atomically with `text`.
bool replaceFile(const QString& path, const std::string& text) {
  QSaveFile file(path);
  return file.open(QFile::WriteOnly | QFile::Unbuffered) && file.setPermissions(ownerOnly) &&
         file.write(text.data(), static_cast<qsizetype>(text.size())) ==
             static_cast<qsizetype>(text.size()) &&
         file.commit();
}

}  // namespace

QtDefaults::QtDefaults(Options options)
    : options_(std::move(options)), path_(toQString(options_.path)) {
  const QFileInfo file(path_);
  QDir().mkpath(file.absolutePath());
  seen_ = read();
  watcher_.addPath(file.absolutePath());
  watchFile();
  const auto soon = [this] {
    watchFile();
    compare();
  };
  QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, receiver_.get(), soon,
                   Qt::QueuedConnection);
  QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, receiver_.get(), soon,
                   Qt::QueuedConnection);
}

QtDefaults::~QtDefaults() = default;

std::string QtDefaults::settingsFile() {
  return (QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
          QStringLiteral("/Quillseal/Quillseal.conf"))
      .toStdString();
}

std::optional<std::string> QtDefaults::string(std::string_view key) const {
  const SettingsText::Values values = read();
  const auto found = values.find(key);
  if (found == values.end()) return std::nullopt;
  return found->second;
}

bool QtDefaults::boolean(std::string_view key) const {
  const std::string value = unicode::lowercased(unicode::trimmed(string(key).value_or("")));
  return value == "true" || value == "yes" || value == "on" || value == "1";
}

void QtDefaults::setString(std::string_view key, std::string_view value) {
  {
    const std::scoped_lock lock(mutex_);
    std::optional<SettingsText> settings = fileContents();
    const bool isSaved =
        settings && settings->set(key, value) && replaceFile(path_, settings->text());
    if (isSaved) {
      unsaved_.erase(std::string(key));
    } else {
      unsaved_.insert_or_assign(std::string(key), unicode::wellFormed(value));
      warn(QStringLiteral("The settings could not be saved in %1. They apply until Quillseal ends.")
               .arg(path_));
    }
  }
  QMetaObject::invokeMethod(
      receiver_.get(), [this] { compare(); }, Qt::QueuedConnection);
}

desktop::Ticket QtDefaults::observe(std::function<void()> changed) {
  const std::uint64_t id = ++lastObserver_;
  observers_->emplace(id, std::move(changed));
  return desktop::Ticket([observers = observers_, id] { observers->erase(id); });
}

SettingsText::Values QtDefaults::read() const {
  const std::scoped_lock lock(mutex_);
  SettingsText::Values values;
  if (const std::optional<SettingsText> settings = fileContents()) values = settings->values();
  for (const auto& [key, value] : unsaved_)
    values.insert_or_assign(key, value);
  return values;
}

std::optional<SettingsText> QtDefaults::fileContents() const {
  // Every time, since an editor may have replaced the file.
  keepFromOthers(path_);
  std::string before;
  for (bool isSecondLook = false;; isSecondLook = true) {
    QFile file(path_);
    if (!file.exists()) return SettingsText();
    if (!file.open(QFile::ReadOnly)) {
      if (!std::exchange(isWarned_, true)) {
        warn(QStringLiteral("The settings in %1 cannot be read. Check who owns the file.")
                 .arg(path_));
      }
      return std::nullopt;
    }
    std::string bytes = file.read(SettingsText::largest + 1).toStdString();
    if (auto settings = SettingsText::parsed(bytes)) return settings;
    if (isSecondLook && bytes == before) return setAside();
    before = std::move(bytes);
    std::this_thread::sleep_for(options_.settlingTime);
  }
}

std::optional<SettingsText> QtDefaults::setAside() const {
  constexpr int mostCopies = 100;
  for (int number = 1; number <= mostCopies; ++number) {
    const QString name = path_ + QStringLiteral(".damaged-%1").arg(number);
    if (!QFile::rename(path_, name)) continue;
    warn(QStringLiteral("The settings file was damaged. It was renamed to %1, and all settings are "
                        "empty now.")
             .arg(name));
    return SettingsText();
  }
  if (!std::exchange(isWarned_, true)) {
    warn(QStringLiteral("The settings file %1 is damaged. Rename or correct it.").arg(path_));
  }
  return std::nullopt;
}

void QtDefaults::warn(const QString& sentence) const {
  QMetaObject::invokeMethod(
      receiver_.get(), [this, text = sentence.toStdString()] { options_.warn(text); },
      Qt::QueuedConnection);
}

void QtDefaults::watchFile() {
  // The watcher does not follow a file that was replaced.
  if (!watcher_.files().contains(path_) && QFile::exists(path_)) watcher_.addPath(path_);
}

void QtDefaults::compare() {
  SettingsText::Values values = read();
  if (values == seen_) return;
  seen_ = std::move(values);
  std::vector<std::uint64_t> ids;
  for (const auto& [id, changed] : *observers_)
    ids.push_back(id);
  for (const std::uint64_t id : ids) {
    // An observer may remove any observer, also itself.
    const auto found = observers_->find(id);
    if (found == observers_->end()) continue;
    const std::function<void()> changed = found->second;
    changed();
  }
}

}  // namespace quillseal::linux
