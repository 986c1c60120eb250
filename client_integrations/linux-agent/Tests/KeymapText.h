#pragma once

#include <cstdlib>
#include <string>

#include <xkbcommon/xkbcommon.h>

namespace quillseal::testing {

/// Returns the keymap text of a layout (xkeyboard-config(7)), as compositors send it.
inline std::string keymapText(const char* layout) {
  xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
  const xkb_rule_names names{
      .rules = nullptr, .model = nullptr, .layout = layout, .variant = nullptr, .options = nullptr};
  xkb_keymap* const keymap =
      xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
  char* const text = xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1);
  std::string result(text);
  std::free(text);
  xkb_keymap_unref(keymap);
  xkb_context_unref(context);
  return result;
}

}  // namespace quillseal::testing
