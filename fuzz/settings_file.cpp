#include <QCoreApplication>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "Fuzzer.h"
#include "core/text/UnicodeText.h"
#include "session/QtDefaults.h"

namespace {

using namespace quillseal::linux;
namespace fs = std::filesystem;

/// Temporary settings, on a memory file system where there is one.
struct Scratch {
  int count = 1;
  char name[5] = "fuzz";
  char* arguments[2] = {name, nullptr};
  QCoreApplication application{count, arguments};
  fs::path folder = (fs::is_directory("/dev/shm") ? "/dev/shm" : fs::temp_directory_path()) /
                    ("quillseal-fuzz-" + std::to_string(application.applicationPid()));
  fs::path file = folder / "Quillseal.conf";
  fs::path damaged = folder / "Quillseal.conf.damaged-1";
  QtDefaults defaults{
      {.path = file.string(), .warn = [](const std::string&) {}, .settlingTime = {}}};
  ~Scratch() { fs::remove_all(folder); }
};

}  // namespace

/// A file of any bytes is read, or renamed unchanged. A value that is set can be read back, and no
/// other setting changes.
void quillseal::fuzz::check(std::string_view bytes) {
  static Scratch scratch;
  std::ofstream(scratch.file, std::ios::binary) << bytes;
  fs::remove(scratch.damaged);

  const std::optional<std::string> server = scratch.defaults.string("ServerURL");
  static_cast<void>(scratch.defaults.boolean("ConfirmBeforeSigning"));
  if (!fs::exists(scratch.file)) require(!server && fs::file_size(scratch.damaged) == bytes.size());

  const std::string value = unicode::wellFormed(bytes.substr(0, 200));
  const bool fitsALine = value.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
  scratch.defaults.setString("BoundIdentity", value);
  require(!fs::exists(scratch.file) || fs::file_size(scratch.file) > 0);
  require(scratch.defaults.string("BoundIdentity") == value);
  require(scratch.defaults.string("ServerURL") == server);
  if (fitsALine) {
    std::ifstream file(scratch.file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    require(text.find("BoundIdentity=" + value) != std::string::npos);
  }
  QCoreApplication::processEvents();
}
