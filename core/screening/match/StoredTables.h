// The format of compiled tables: arrays one after the other, each preceded by its length and
// aligned.
//
// Algorithm: one `transfer` function names the arrays of a table, for writing and for reading.
// Reading makes spans over the stored bytes and copies nothing, so the tables can be constant data
// of the program. They are trusted: they come from the compiler of the same build, in this
// machine's byte order, and are not checked.
// Bound: opening takes one step for each array, whatever its size.
// Tests: every test of ScreeningEngine compiles tables and reads them back.

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>
#include <vector>

/// Tables that are compiled when the program is built, and read in place when it runs. A table is a
/// struct template over the way its arrays are held, which names them once for both:
///
///     template <template <typename> typename Array>
///     struct Example {
///       Array<std::uint16_t> numbers;
///       void transfer(auto& archive) { archive(numbers); }
///     };
///
/// `Example<Owned>` is filled by the compiler, and `Example<Stored>` shows the stored bytes.
namespace quillseal::screening {

template <typename T>
using Owned = std::vector<T>;
template <typename T>
using Stored = std::span<const T>;

/// What can be stored as it stands in memory. Padding cannot: its content would be arbitrary.
template <typename T>
concept Storable = std::is_trivially_copyable_v<T> && std::has_unique_object_representations_v<T>;

/// Every part begins at a multiple of this many bytes.
inline constexpr std::size_t tableAlignment = 16;
static_assert(tableAlignment <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);  // also in a std::vector

constexpr std::size_t alignedTableSize(std::size_t size) {
  return (size + tableAlignment - 1) / tableAlignment * tableAlignment;
}

/// Appends the arrays and single values of tables, in the byte order of this machine.
class TableWriter {
 public:
  void operator()(const auto&... parts) { (write(parts), ...); }

  [[nodiscard]] const std::vector<std::byte>& bytes() const { return bytes_; }

 private:
  template <Storable T>
  void write(const std::vector<T>& array) {
    write(std::uint64_t{array.size()});
    append(std::as_bytes(std::span(array)));
  }
  template <Storable T>
  void write(const T& value) {
    append(std::as_bytes(std::span(&value, 1)));
  }

  void append(std::span<const std::byte> content) {
    bytes_.insert(bytes_.end(), content.begin(), content.end());
    bytes_.resize(alignedTableSize(bytes_.size()));
  }

  std::vector<std::byte> bytes_;
};

/// Finds them again, in the order written. REQUIRES: bytes of a `TableWriter`, aligned to
/// `tableAlignment`; they must outlive the arrays.
class TableReader {
 public:
  explicit TableReader(std::span<const std::byte> bytes) : rest_(bytes) {}

  void operator()(auto&... parts) { (read(parts), ...); }

 private:
  template <Storable T>
  void read(std::span<const T>& array) {
    static_assert(alignof(T) <= tableAlignment);
    std::uint64_t count = 0;
    read(count);
    array = {reinterpret_cast<const T*>(take(count * sizeof(T))), count};
  }
  template <Storable T>
  void read(T& value) {
    std::memcpy(&value, take(sizeof value), sizeof value);
  }

  const std::byte* take(std::size_t size) {
    const std::byte* const part = rest_.data();
    rest_ = rest_.subspan(alignedTableSize(size));
    return part;
  }

  std::span<const std::byte> rest_;
};

}  // namespace quillseal::screening
