#pragma once

#include <memory>

namespace quillseal::linux::wayland {

/// Ends an object by the function that it has for that. Only for source files: most of those
/// functions are static ones of headers, and so is a type that names them.
template <auto destroy>
struct Destroyer {
  void operator()(auto* object) const { destroy(object); }
};

template <typename Object, auto destroy>
using Handle = std::unique_ptr<Object, Destroyer<destroy>>;

}  // namespace quillseal::linux::wayland
