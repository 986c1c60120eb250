#include <utility>

#include <gmock/gmock.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "desktop/SigningHotkey.h"
#include "session/LinuxWording.h"
#include "x11/KeyChords.h"

namespace quillseal::linux {
namespace {

using desktop::Key;
using desktop::KeyPress;
using desktop::Modifiers;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr KeyPress copy{.key = Key::c, .modifiers = Modifiers::command};
constexpr KeyPress paste{.key = Key::v, .modifiers = Modifiers::command};
constexpr KeyPress selectAll{.key = Key::a, .modifiers = Modifiers::command};
constexpr KeyPress hotkey = desktop::signingHotkey;

TEST(KeyChordsTest, CommandIsControlUnlessControlIsThereToo) {
  EXPECT_THAT(chordOf(copy), ElementsAre(XKB_KEY_Control_L, XKB_KEY_c));
  EXPECT_THAT(chordOf(hotkey),
              ElementsAre(XKB_KEY_Control_L, XKB_KEY_Alt_L, XKB_KEY_Super_L, XKB_KEY_h));
  EXPECT_EQ(nameOf(hotkey), "Ctrl+Alt+Super+H");
  EXPECT_EQ(nameOf(hotkey), linuxWording({.key = KeyPlace::tpm}).hotkey);
  EXPECT_EQ(nameOf(Modifiers::command, ","), "Ctrl+,");
}

TEST(KeyChordsTest, NoTerminalEverGetsAnInterruptOrALineOfText) {
  const std::pair<const char*, const char*> terminals[] = {
      {"GTK;System;TerminalEmulator;", "Gnome-terminal"},
      {"System;TerminalEmulator;", "XTerm"},
      {"", "Alacritty"},
      {"", "kitty"},
      {"", "URxvt"}};
  for (const auto& [categories, windowClass] : terminals) {
    SCOPED_TRACE(windowClass);
    EXPECT_TRUE(isTerminal(categories, windowClass));
    EXPECT_NE(chordFor(copy, categories, windowClass), chordOf(copy));
    for (const KeyPress press : {paste, selectAll})
      EXPECT_THAT(chordFor(press, categories, windowClass), IsEmpty());
  }
}

TEST(KeyChordsTest, ApplicationsGetTheChordsTheyKnow) {
  EXPECT_THAT(chordFor(copy, "TerminalEmulator;", "Xfce4-terminal"),
              ElementsAre(XKB_KEY_Control_L, XKB_KEY_Shift_L, XKB_KEY_c));
  EXPECT_THAT(chordFor(copy, "", "XTerm"), IsEmpty());
  EXPECT_TRUE(copiesBySelecting("XTerm"));
  EXPECT_FALSE(copiesBySelecting("Xfce4-terminal"));
  EXPECT_EQ(chordFor(copy, "Utility;TextEditor;", "Mousepad"), chordOf(copy));
  EXPECT_EQ(chordFor(selectAll, "", ""), chordOf(selectAll));
  EXPECT_FALSE(isTerminal("Utility;TextEditor;", "Mousepad"));
}

}  // namespace
}  // namespace quillseal::linux
