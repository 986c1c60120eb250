#include "session/QtFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "session/QtText.h"

namespace quillseal::linux {

std::string QtFiles::homeDirectory() const {
  return QDir::homePath().toStdString();
}

bool QtFiles::replace(const std::string& path, std::string_view contents) {
  const QString name = toQString(path);
  if (!QDir().mkpath(QFileInfo(name).path())) return false;
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (!file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) return false;
  const auto size = static_cast<qint64>(contents.size());
  return file.write(contents.data(), size) == size && file.commit();
}

}  // namespace quillseal::linux
