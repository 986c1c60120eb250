#include "LinuxDesktop/QtDefaults.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaObject>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <thread>
#include <utility>
#include <vector>

#include "Quillseal/UnicodeText.h"

namespace quillseal {
namespace {

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr qsizetype largestFile = qsizetype{1024} * 1024;

QString fromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Whether every quotation ends. A backslash takes the next byte's meaning, in quotes and outside.
bool isBalanced(const QByteArray& line) {
  bool isQuoted = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    if (line[i] == '\\') {
      ++i;
    } else if (line[i] == '"') {
      isQuoted = !isQuoted;
    }
  }
  return !isQuoted;
}

/// QSettings writes nothing before the "=" for what follows the last slash of a key.
bool isKey(const QByteArray& lowercased) {
  return !lowercased.isEmpty() && !lowercased.endsWith('/') && !lowercased.endsWith('\\') &&
         !lowercased.endsWith("%2f");
}

bool isIniLine(const QByteArray& untrimmed) {
  const QByteArray line = untrimmed.trimmed();
  if (line.isEmpty() || line.startsWith(';') || line.startsWith('#')) return true;
  if (line.startsWith('[')) return line.endsWith(']');
  const qsizetype equals = line.indexOf('=');
  return equals > 0 && isKey(line.left(equals).trimmed().toLower()) && isBalanced(line);
}

/// Whether the bytes are lines of "key=value", "[section]", comments and blanks. QSettings itself
/// passes over anything else, and drops it when it writes.
bool isIni(QByteArray bytes) {
  if (bytes.size() > largestFile || bytes.contains('\0')) return false;
  if (bytes.startsWith("\xEF\xBB\xBF")) bytes.remove(0, 3);  // a byte-order mark
  const std::string text = bytes.toStdString();
  bytes.replace('\r', '\n');  // ends a line, with or without the other
  return unicode::wellFormed(text) == text && std::ranges::all_of(bytes.split('\n'), isIniLine);
}

void keepFromOthers(const QString& path) {
  constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                        QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  const QFileInfo file(path);
  if (file.isFile() && (file.permissions() & others) != 0) QFile::setPermissions(path, ownerOnly);
}

/// A value as text. An unquoted comma makes a list of what was meant as one text.
QString textOf(const QVariant& value) {
  return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u", ")
                                                  : value.toString();
}

}  // namespace

QtDefaults::QtDefaults(Options options)
    : options_(std::move(options)), path_(fromUtf8(options_.path)) {
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
  const Values values = read();
  const auto found = values.constFind(fromUtf8(key));
  if (found == values.constEnd()) return std::nullopt;
  return found->toStdString();
}

bool QtDefaults::boolean(std::string_view key) const {
  const std::string value = unicode::lowercased(unicode::trimmed(string(key).value_or("")));
  return value == "true" || value == "yes" || value == "on" || value == "1";
}

void QtDefaults::setString(std::string_view key, std::string_view value) {
  const QString name = fromUtf8(key);
  const QString text = fromUtf8(value);
  {
    const std::scoped_lock lock(mutex_);
    bool isSaved = false;
    if (prepareFile() == FileState::usable) {
      QSettings settings(path_, QSettings::IniFormat);
      settings.setValue(name, text);
      settings.sync();
      isSaved = settings.status() == QSettings::NoError;
    }
    if (isSaved) {
      unsaved_.remove(name);
    } else {
      unsaved_.insert(name, text);
      warn(QStringLiteral("The settings could not be saved in %1. They hold until Quillseal ends.")
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

QtDefaults::Values QtDefaults::read() const {
  const std::scoped_lock lock(mutex_);
  Values values;
  if (prepareFile() == FileState::usable) {
    // A new object looks at the file again.
    const QSettings settings(path_, QSettings::IniFormat);
    for (const QString& key : settings.childKeys())
      values[key] = textOf(settings.value(key));
  }
  for (auto unsaved = unsaved_.cbegin(); unsaved != unsaved_.cend(); ++unsaved) {
    values[unsaved.key()] = unsaved.value();
  }
  return values;
}

QtDefaults::FileState QtDefaults::prepareFile() const {
  // Each time, since an editor may have put a new file in its place.
  keepFromOthers(path_);
  QByteArray before;
  for (bool isSecondLook = false;; isSecondLook = true) {
    QFile file(path_);
    if (!file.exists()) return FileState::usable;
    if (!file.open(QFile::ReadOnly)) {
      if (!std::exchange(isWarned_, true)) {
        warn(QStringLiteral("The settings in %1 cannot be read. Check whose file that is.")
                 .arg(path_));
      }
      return FileState::unusable;
    }
    const QByteArray bytes = file.read(largestFile + 1);
    if (isIni(bytes)) return FileState::usable;
    if (isSecondLook && bytes == before) return setAside();
    before = bytes;
    std::this_thread::sleep_for(options_.editorsPatience);
  }
}

QtDefaults::FileState QtDefaults::setAside() const {
  constexpr int mostCopies = 100;
  for (int number = 1; number <= mostCopies; ++number) {
    const QString name = path_ + QStringLiteral(".damaged-%1").arg(number);
    if (!QFile::rename(path_, name)) continue;
    warn(QStringLiteral("The settings file was damaged. It was renamed %1, and the settings are "
                        "empty now.")
             .arg(name));
    return FileState::usable;
  }
  if (!std::exchange(isWarned_, true)) {
    warn(QStringLiteral("The settings file %1 is damaged. Rename or mend it.").arg(path_));
  }
  return FileState::unusable;
}

void QtDefaults::warn(const QString& sentence) const {
  QMetaObject::invokeMethod(
      receiver_.get(), [this, text = sentence.toStdString()] { options_.warn(text); },
      Qt::QueuedConnection);
}

void QtDefaults::watchFile() {
  // A file that was replaced is another one to the watcher.
  if (!watcher_.files().contains(path_) && QFile::exists(path_)) watcher_.addPath(path_);
}

void QtDefaults::compare() {
  Values values = read();
  if (values == seen_) return;
  seen_ = std::move(values);
  std::vector<std::uint64_t> ids;
  for (const auto& [id, changed] : *observers_)
    ids.push_back(id);
  for (const std::uint64_t id : ids) {
    // An observer may end any other, or itself.
    const auto found = observers_->find(id);
    if (found == observers_->end()) continue;
    const std::function<void()> changed = found->second;
    changed();
  }
}

}  // namespace quillseal
