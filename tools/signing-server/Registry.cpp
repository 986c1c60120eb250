#include "Registry.h"

#include <mutex>

#include <SQLiteCpp/SQLiteCpp.h>
#include <SQLiteCpp/VariadicBind.h>
#include <sqlite3.h>

namespace quillseal::devserver {
namespace {

constexpr int schemaVersion = 1;
constexpr int applicationId = 0x516C5372;  // marks this server's files: "QlSr"
constexpr int busyTimeoutMilliseconds = 5000;

constexpr const char* schema = R"sql(
CREATE TABLE devices (
  device_id   TEXT PRIMARY KEY,
  public_key  TEXT NOT NULL,
  identity    TEXT NOT NULL,
  enrolled_at INTEGER NOT NULL
) STRICT;
CREATE TABLE signatures (
  id               TEXT PRIMARY KEY,
  kind             INTEGER NOT NULL,
  text_digest      TEXT NOT NULL,
  snapshot_digest  TEXT NOT NULL,
  image_digest     TEXT NOT NULL,
  issued           TEXT NOT NULL,
  scope            TEXT NOT NULL,
  method           TEXT NOT NULL,
  identity         TEXT NOT NULL,
  device_id        TEXT NOT NULL,
  expires          TEXT NOT NULL,
  commitment       TEXT NOT NULL,
  nonce            TEXT NOT NULL,
  timezone         TEXT NOT NULL,
  tz_offset        INTEGER NOT NULL,
  public_key       TEXT NOT NULL,
  device_signature TEXT NOT NULL,
  recorded_at      INTEGER NOT NULL
) STRICT;
CREATE UNIQUE INDEX signature_nonce ON signatures (nonce) WHERE nonce <> '';
CREATE TABLE handoffs (
  id              TEXT PRIMARY KEY,
  text_digest     TEXT NOT NULL,
  snapshot_digest TEXT NOT NULL,
  image_digest    TEXT NOT NULL,
  issued          TEXT NOT NULL,
  scope           TEXT NOT NULL,
  created_at      INTEGER NOT NULL,
  state           INTEGER NOT NULL,
  signature_id    TEXT NOT NULL
) STRICT;
)sql";

void insertSignature(SQLite::Database& database, const Signature& signature) {
  SQLite::Statement insert(database,
                           "INSERT INTO signatures VALUES "
                           "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
  SQLite::bind(insert, signature.id, static_cast<int>(signature.kind), signature.textDigest,
               signature.snapshotDigest, signature.imageDigest, signature.issued, signature.scope,
               signature.method, signature.identity, signature.deviceId, signature.expires,
               signature.commitment, signature.nonce, signature.timezone,
               signature.utcOffsetMinutes, signature.publicKey, signature.deviceSignature,
               signature.recordedAt);
  insert.exec();
}

/// Returns whether the database is empty. Throws RegistryError when it belongs to another program.
/// Does not write.
bool isNew(SQLite::Database& database) {
  const auto number = [&](const char* query) { return database.execAndGet(query).getInt(); };
  const int application = number("PRAGMA application_id");
  const int version = number("PRAGMA user_version");
  if (application == 0 && version == 0 && number("SELECT count(*) FROM sqlite_schema") == 0) {
    return true;
  }
  if (application != applicationId) throw RegistryError("belongs to another program");
  if (version != schemaVersion) throw RegistryError("was made by another version of this server");
  return false;
}

/// Ends a handoff. Returns whether it was open.
bool settle(SQLite::Database& database, const std::string& handoffId, HandoffState state,
            const std::string& signatureId) {
  SQLite::Statement update(
      database, "UPDATE handoffs SET state = ?, signature_id = ? WHERE id = ? AND state = ?");
  SQLite::bind(update, static_cast<int>(state), signatureId, handoffId,
               static_cast<int>(HandoffState::open));
  return update.exec() == 1;
}

}  // namespace

class Registry::Database {
 public:
  explicit Database(const std::string& path)
      : connection_(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, busyTimeoutMilliseconds) {
    // Checked before the first change, since the file may belong to another program.
    (void)isNew(connection_);
    // With the write-ahead log, writes do not block readers. It is synced at every commit, since an
    // acknowledged signature must survive a power failure.
    connection_.exec("PRAGMA journal_mode = WAL");
    connection_.exec("PRAGMA synchronous = FULL");
    SQLite::Transaction transaction(connection_, SQLite::TransactionBehavior::IMMEDIATE);
    if (isNew(connection_)) {
      connection_.exec(schema);
      connection_.exec("PRAGMA application_id = " + std::to_string(applicationId));
      connection_.exec("PRAGMA user_version = " + std::to_string(schemaVersion));
    }
    transaction.commit();
  }

  /// Runs `operation` on the connection, under the lock.
  template <typename Operation>
  auto use(Operation operation) {
    const std::scoped_lock lock(mutex_);
    try {
      return operation(connection_);
    } catch (const SQLite::Exception& error) {
      throw RegistryError(error.what());
    }
  }

 private:
  std::mutex mutex_;
  SQLite::Database connection_;
};

Registry::Registry(const std::string& path) try : database_(std::make_unique<Database>(path)) {
} catch (const SQLite::Exception& error) {
  throw RegistryError(path + ": " + error.what());
} catch (const RegistryError& error) {
  throw RegistryError(path + ": " + error.what());
}

Registry::~Registry() = default;

void Registry::enrol(const Device& device, std::int64_t now) {
  database_->use([&](SQLite::Database& database) {
    SQLite::Statement insert(database, "INSERT OR REPLACE INTO devices VALUES (?, ?, ?, ?)");
    SQLite::bind(insert, device.deviceId, device.publicKey, device.identity, now);
    insert.exec();
  });
}

std::optional<Device> Registry::device(const std::string& deviceId) const {
  return database_->use([&](SQLite::Database& database) -> std::optional<Device> {
    SQLite::Statement query(database,
                            "SELECT public_key, identity FROM devices WHERE device_id = ?");
    query.bind(1, deviceId);
    if (!query.executeStep()) return std::nullopt;
    return Device{.deviceId = deviceId,
                  .publicKey = query.getColumn("public_key"),
                  .identity = query.getColumn("identity")};
  });
}

bool Registry::record(const Signature& signature) {
  return database_->use([&](SQLite::Database& database) {
    try {
      insertSignature(database, signature);
      return true;
    } catch (const SQLite::Exception& error) {
      if (error.getExtendedErrorCode() == SQLITE_CONSTRAINT_UNIQUE) return false;
      throw;
    }
  });
}

std::optional<Signature> Registry::signature(const std::string& id) const {
  return database_->use([&](SQLite::Database& database) -> std::optional<Signature> {
    SQLite::Statement query(database, "SELECT * FROM signatures WHERE id = ?");
    query.bind(1, id);
    if (!query.executeStep()) return std::nullopt;
    return Signature{.id = id,
                     .kind = static_cast<SignatureKind>(query.getColumn("kind").getInt()),
                     .textDigest = query.getColumn("text_digest"),
                     .snapshotDigest = query.getColumn("snapshot_digest"),
                     .imageDigest = query.getColumn("image_digest"),
                     .issued = query.getColumn("issued"),
                     .scope = query.getColumn("scope"),
                     .method = query.getColumn("method"),
                     .identity = query.getColumn("identity"),
                     .deviceId = query.getColumn("device_id"),
                     .expires = query.getColumn("expires"),
                     .commitment = query.getColumn("commitment"),
                     .nonce = query.getColumn("nonce"),
                     .timezone = query.getColumn("timezone"),
                     .utcOffsetMinutes = query.getColumn("tz_offset").getInt64(),
                     .publicKey = query.getColumn("public_key"),
                     .deviceSignature = query.getColumn("device_signature"),
                     .recordedAt = query.getColumn("recorded_at").getInt64()};
  });
}

void Registry::open(const Handoff& handoff) {
  database_->use([&](SQLite::Database& database) {
    SQLite::Statement insert(database, "INSERT INTO handoffs VALUES (?, ?, ?, ?, ?, ?, ?, ?, '')");
    SQLite::bind(insert, handoff.id, handoff.textDigest, handoff.snapshotDigest,
                 handoff.imageDigest, handoff.issued, handoff.scope, handoff.createdAt,
                 static_cast<int>(HandoffState::open));
    insert.exec();
  });
}

std::optional<Handoff> Registry::handoff(const std::string& id) const {
  return database_->use([&](SQLite::Database& database) -> std::optional<Handoff> {
    SQLite::Statement query(database, "SELECT * FROM handoffs WHERE id = ?");
    query.bind(1, id);
    if (!query.executeStep()) return std::nullopt;
    return Handoff{.id = id,
                   .textDigest = query.getColumn("text_digest"),
                   .snapshotDigest = query.getColumn("snapshot_digest"),
                   .imageDigest = query.getColumn("image_digest"),
                   .issued = query.getColumn("issued"),
                   .scope = query.getColumn("scope"),
                   .createdAt = query.getColumn("created_at").getInt64(),
                   .state = static_cast<HandoffState>(query.getColumn("state").getInt()),
                   .signatureId = query.getColumn("signature_id")};
  });
}

bool Registry::complete(const std::string& handoffId, const Signature& signature) {
  return database_->use([&](SQLite::Database& database) {
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    if (!settle(database, handoffId, HandoffState::complete, signature.id)) return false;
    insertSignature(database, signature);
    transaction.commit();
    return true;
  });
}

bool Registry::decline(const std::string& handoffId) {
  return database_->use([&](SQLite::Database& database) {
    return settle(database, handoffId, HandoffState::declined, "");
  });
}

}  // namespace quillseal::devserver
