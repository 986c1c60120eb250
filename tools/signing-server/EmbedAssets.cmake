# Writes the assets as one C++ source: cmake -DOUTPUT=… -DDIRECTORY=… -DNAMES=a,b -P EmbedAssets.cmake
string(REPLACE "," ";" NAMES "${NAMES}")
set(entries "")
foreach(name IN LISTS NAMES)
  file(READ "${DIRECTORY}/${name}" content)
  string(APPEND entries "    File{\"${name}\", R\"asset(${content})asset\"},\n")
endforeach()
list(LENGTH NAMES count)
file(WRITE "${OUTPUT}" "#include \"Assets.h\"

#include <algorithm>
#include <array>

namespace quillseal::devserver {
namespace {

struct File {
  std::string_view name;
  std::string_view content;
};

constexpr std::array<File, ${count}> files{
${entries}};

}  // namespace

std::optional<std::string_view> asset(std::string_view name) {
  const auto* found = std::ranges::find(files, name, &File::name);
  if (found == files.end()) return std::nullopt;
  return found->content;
}

}  // namespace quillseal::devserver
")
