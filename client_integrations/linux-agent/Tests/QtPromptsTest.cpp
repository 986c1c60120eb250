#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QGroupBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <algorithm>
#include <array>
#include <chrono>
#include <future>
#include <optional>
#include <stdexcept>

#include <gmock/gmock.h>

#include "session/QtMainLoop.h"
#include "windows/OwnWindows.h"
#include "windows/QtAlerts.h"
#include "windows/QtPresencePrompt.h"
#include "windows/QtSecretPrompt.h"
#include "windows/QtWindows.h"
#include "windows/SecretField.h"
#include "windows/TrayStatusItem.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;

/// Where no other program has windows.
class ShownWindows : public OwnWindows {
 public:
  void bringToFront(QWidget& window) const override {
    window.show();
    window.activateWindow();
  }
};

class QtPromptsTest : public ::testing::Test {
 protected:
  static void await(const std::function<bool()>& condition) {
    if (!QTest::qWaitFor(condition, 20'000)) throw std::runtime_error("nothing happened");
  }

  /// Returns the open dialog.
  static QWidget& dialog() {
    await([] { return QApplication::activeModalWidget() != nullptr; });
    return *QApplication::activeModalWidget();
  }

  /// Everything that it says, none of it as markup or in an endless line.
  static std::string saidIn(const QWidget& window) {
    QStringList texts;
    for (const QLabel* label : window.findChildren<QLabel*>())
      if (label->textFormat() == Qt::PlainText && (label->wordWrap() || label->text().size() < 3))
        texts += label->text();
    for (const QLineEdit* field : window.findChildren<QLineEdit*>())
      texts += field->placeholderText() + field->accessibleName();
    return texts.join(QLatin1Char('\n')).toStdString();
  }
  static std::string said() { return saidIn(dialog()); }
  static void expectSaid(const std::vector<std::string_view>& parts) {
    for (const std::string_view part : parts)
      EXPECT_THAT(said(), HasSubstr(std::string(part)));
  }

  static QWidget* focused() {
    QWidget* widget = dialog().focusWidget();
    return widget != nullptr ? widget : &dialog();
  }
  static void press(Qt::Key key) { QTest::keyClick(focused(), key); }
  static void type(const QString& text) { QTest::keyClicks(focused(), text); }
  static bool canAccept() {
    const auto buttons = dialog().findChildren<QPushButton*>();
    const auto first = std::ranges::find_if(buttons, &QPushButton::isDefault);
    return first != buttons.end() && (*first)->isEnabled();
  }
  static void cancel() {
    for (QPushButton* button : dialog().findChildren<QPushButton*>())
      if (button->text() == QStringLiteral("Cancel")) return button->click();
    ADD_FAILURE() << "no such button";
  }

  /// Asks a question from a worker thread, as key stores do.
  void ask(const std::function<std::optional<SecretBytes>()>& question) {
    pending = std::async(std::launch::async, question);
  }
  std::optional<std::string> answer() {
    await(
        [this] { return pending.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    const std::optional<SecretBytes> secret = pending.get();
    return secret ? std::optional<std::string>(secret->text()) : std::nullopt;
  }
  void TearDown() override {
    prompt.close();
    // Deletes closed dialogs, which a running event loop would do.
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  std::future<std::optional<SecretBytes>> pending;
  std::string words[3] = {"test", "-platform", "offscreen"};
  std::array<char*, 4> arguments{words[0].data(), words[1].data(), words[2].data(), nullptr};
  int count = 3;
  QApplication application{count, arguments.data()};
  QtMainLoop loop;
  const ShownWindows windows;
  QtSecretPrompt prompt{loop, windows};
  const SecretRequest request{.kind = SecretKind::pin,
                              .reason = "Sign “x” as Ada",
                              .destination = "LinkedIn Post",
                              .medium = "The key is in the TPM.",
                              .problem = "This PIN is wrong.",
                              .attempt = 2,
                              .attempts = 3};
};

TEST_F(QtPromptsTest, TheSecretIsAskedForWithWhatItIsFor) {
  ask([this] { return prompt.ask(request); });
  expectSaid({"Enter the PIN", "Sign “x” as Ada", "Medium: LinkedIn Post", "The key is in the TPM.",
              "This PIN is wrong. Try 2 of 3."});
  EXPECT_FALSE(canAccept());
  type(QStringLiteral("13579"));
  QTest::keyClick(focused(), Qt::Key_U, Qt::ControlModifier);
  type(QStringLiteral("24681x"));
  QTest::keyClick(focused(), Qt::Key_J, Qt::ControlModifier);  // means nothing
  press(Qt::Key_Backspace);
  EXPECT_TRUE(canAccept());
  EXPECT_THAT(said(), Not(HasSubstr("24681")));
  press(Qt::Key_Return);
  EXPECT_EQ(answer(), "24681");
}

TEST_F(QtPromptsTest, ANewSecretIsTypedTwice) {
  const auto question = [this] {
    return prompt.askForNew({.kind = SecretKind::passphrase,
                             .medium = "In a file.",
                             .notice = "The old one goes.",
                             .problem = {}});
  };
  ask(question);
  cancel();
  EXPECT_EQ(answer(), std::nullopt);
  ask(question);
  expectSaid({"In a file.", "The old one goes.", rulesFor(SecretKind::passphrase)});
  const auto good = QStringLiteral("correct horse battery");
  type(good);
  EXPECT_FALSE(canAccept());
  press(Qt::Key_Tab);
  type(QStringLiteral("correct horse batterx"));
  EXPECT_FALSE(canAccept());
  EXPECT_THAT(said(), HasSubstr("differ"));
  press(Qt::Key_Backspace);
  type(QStringLiteral("y"));
  QTest::keyClick(focused(), Qt::Key_Backtab);
  type(QStringLiteral("x"));
  EXPECT_FALSE(canAccept());
  press(Qt::Key_Backspace);
  EXPECT_TRUE(canAccept());
  press(Qt::Key_Return);
  EXPECT_EQ(answer(), good.toStdString());
}

TEST_F(QtPromptsTest, ASecretMayBePastedOrComposedAndHasALongestLength) {
  SecretField field;
  int edits = 0;
  field.onEdit = [&] { ++edits; };
  const auto paste = [&](const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keySequence(&field, QKeySequence::Paste);
  };
  const auto state = [&] {
    return std::string(field.secret().text()) + " " + std::to_string(field.text().size()) + " " +
           std::to_string(std::exchange(edits, 0));
  };
  paste(QStringLiteral("pä"));
  for (const char* text : {"ü😀", "\n", ""}) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(&field, &event);
  }
  EXPECT_EQ(state(), "päü😀 2 2");
  for (const char* left : {"pä 1 1", " 0 1", " 0 0"}) {
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(state(), left);
  }
  paste(QString(1025, QLatin1Char('x')));
  EXPECT_EQ(state(), " 0 1");
  paste(QString(1024, QLatin1Char('x')));
  QTest::keyClicks(&field, QStringLiteral("x"));
  EXPECT_EQ(field.take().size(), 1024);
}

TEST_F(QtPromptsTest, NoAnswerWithoutThePerson) {
  const std::function<void()> endings[] = {[] { press(Qt::Key_Escape); }, cancel,
                                           [this] { prompt.close(); }};
  for (const auto& end : endings) {
    ask([this] { return prompt.ask(request); });
    type(QStringLiteral("24681"));
    end();
    EXPECT_EQ(answer(), std::nullopt);
  }
  ask([this] { return prompt.ask(request); });
  EXPECT_EQ(answer(), std::nullopt) << "the agent is about to quit";
}

TEST_F(QtPromptsTest, PresenceIsAskedForWithWhatItIsFor) {
  QtPresencePrompt presence(windows);
  std::optional<bool> goesOn;
  const auto window = presence.open({.reason = "Sign “x”",
                                     .medium = "LinkedIn Post",
                                     .instruction = "Touch the reader.",
                                     .needsConsent = true},
                                    [&](bool answer) { goesOn = answer; });
  window->setInstruction("Touch it again.");
  expectSaid({"Sign “x”", "Medium: LinkedIn Post", "Touch it again."});
  press(Qt::Key_Return);
  await([&] { return goesOn.has_value(); });
  EXPECT_EQ(goesOn, true);
}

TEST_F(QtPromptsTest, AConfirmationBeginsWithWhatTheAgentProposes) {
  QtAlerts alerts(windows);
  const auto confirm = [&](const std::function<void()>& act) {
    std::optional<desktop::ConfirmationEntry> entry;
    const auto ticket = alerts.confirm({.question = {.title = "Sign this?",
                                                     .body = "The <b>text</b> & more",
                                                     .style = desktop::AlertStyle::informational,
                                                     .confirm = "Sign",
                                                     .cancel = "Cancel"},
                                        .choices = {"Letter", "Mail", "Post"},
                                        .selectedChoice = 1,
                                        .fieldPlaceholder = "To",
                                        .note = "A note."},
                                       [&](auto given) { entry = given; });
    expectSaid({"Sign this?", "The <b>text</b> & more", "ToRecipient", "A note."});
    act();
    return entry ? entry->choice + " to " + entry->field : "none";
  };
  EXPECT_EQ(confirm([] {
              type(QStringLiteral("Ada"));
              press(Qt::Key_Return);
            }),
            "Mail to Ada");
  EXPECT_EQ(confirm(cancel), "none");
}

TEST_F(QtPromptsTest, AQuestionFitsTheScreenAndEndsWithItsTicket) {
  QtAlerts alerts(windows);
  std::string answers;
  const auto ask = [&](const std::string& body) {
    return alerts.ask(
        {.title = "Sign?", .body = body, .confirm = "Sign & Go", .cancel = "Cancel"},
        [&](auto given) { answers += given == desktop::Answer::confirmed ? "y" : "n"; });
  };
  desktop::Ticket ticket = ask("Short.\n\n");
  EXPECT_EQ(said(), "Sign?\nShort.") << "no empty lines at the end";
  const QSize small = dialog().size();
  EXPECT_FALSE(dialog().findChild<QLabel*>()->pixmap().isNull());
  press(Qt::Key_Return);
  ticket = ask(QString("A line.\n").repeated(200).toStdString());
  const QWidget& shown = dialog();
  EXPECT_GT(shown.height(), small.height());
  EXPECT_LT(shown.height(), shown.screen()->availableSize().height());
  EXPECT_GT(shown.width(), small.width()) << "has no room for the scroll bar";
  const auto& scroll = *shown.findChild<QScrollArea*>();
  EXPECT_EQ(scroll.widget()->width(), scroll.viewport()->width());
  cancel();
  ticket = ask("Short.");
  ticket = {};
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(answers, "yn");
}

// The rest is here because it needs the same toolkit.
TEST_F(QtPromptsTest, AWindowFollowsItsForm) {
  using desktop::TextColour;
  std::string events;
  const auto field = [&](const char* value, bool isMasked) {
    return desktop::FormField{.label = "Address",
                              .value = value,
                              .masked = isMasked,
                              .changed = [&](const std::string& text) { events += text + ";"; }};
  };
  const auto button = [&](bool isEnabled) {
    return desktop::FormButton{
        .label = "Save & Close", .enabled = isEnabled, .pressed = [&] { events += "pressed;"; }};
  };
  const auto text = [](const char* said) { return desktop::FormText{.text = said}; };
  const auto status = [&](const char* symbol, desktop::TextColour colour) {
    return desktop::FormStatus{.symbol = symbol, .symbolColour = colour, .text = text("is")};
  };
  const auto window = QtWindows(windows).make({.title = "Settings", .width = 300, .height = 200});
  window->render({.sections = {{.header = "Server", .rows = {text("<b>old"), field("a", true)}}}});
  window->bringToFront();
  window->render({.sections = {{.header = "Key", .rows = {text("none")}},
                               {.header = "", .rows = {field("b", true), button(false)}}}});
  await([] { return QApplication::activeWindow() != nullptr; });
  QWidget& shown = *QApplication::activeWindow();
  EXPECT_FALSE(shown.findChild<QPushButton*>()->isEnabled());
  EXPECT_EQ(shown.findChild<QLineEdit*>()->echoMode(), QLineEdit::Password);
  window->render(
      {.width = 320,
       .height = 10,
       .sections = {{.header = "Key",
                     .rows = {text("<b>new"), status("checkmark.seal.fill", TextColour::green),
                              status("exclamationmark.triangle.fill", TextColour::orange),
                              status("", TextColour::secondary)}},
                    {.header = "", .rows = {field("c", false), button(true)}}}});
  EXPECT_EQ(saidIn(shown), "<b>new\n✔︎\nis\n⚠︎\nis\n•\nis\nAddress\n");
  std::vector<std::string> colours;
  for (const QLabel* label : shown.findChildren<QLabel*>())
    if (label->text() != QStringLiteral("is"))
      colours.push_back(
          label->palette().color(QPalette::WindowText).name(QColor::HexArgb).toStdString());
  const QPalette usual;
  const std::string plain = usual.color(QPalette::WindowText).name(QColor::HexArgb).toStdString();
  const std::string faint =
      usual.color(QPalette::PlaceholderText).name(QColor::HexArgb).toStdString();
  EXPECT_THAT(colours, ElementsAre(plain, "#ff15803d", "#ffb45309", faint, plain));
  EXPECT_EQ(shown.width(), 320);
  EXPECT_EQ(shown.minimumWidth(), 320);
  EXPECT_EQ(shown.findChild<QGroupBox*>()->title(), QStringLiteral("Key"));
  auto& edit = *shown.findChild<QLineEdit*>();
  EXPECT_EQ(edit.text(), QStringLiteral("c"));
  EXPECT_EQ(edit.echoMode(), QLineEdit::Normal);
  QTest::keyClicks(&edit, QStringLiteral("d"));
  shown.findChild<QPushButton*>()->click();
  EXPECT_EQ(events, "cd;pressed;");
}

TEST_F(QtPromptsTest, TheMenuOfTheShieldIsShownAsItIsDescribed) {
  using desktop::MenuItem;
  using desktop::Modifiers;
  std::vector<std::string> lines;
  const auto item = [&lines](MenuItem::Kind kind, const char* title, const char* key) {
    return MenuItem{.kind = kind,
                    .title = title,
                    .keyEquivalent = key,
                    .keyModifiers = Modifiers::command,
                    .action = [&lines] { lines.emplace_back("chosen:"); }};
  };
  MenuItem sign = item(MenuItem::Kind::action, "Sign Selected Text (Ctrl+Alt+Super+H)", "h");
  sign.keyModifiers = Modifiers::command | Modifiers::option | Modifiers::control;
  TrayStatusItem tray;
  tray.show({.symbol = "shield.fill",
             .symbolDescription = "Quill Seal",
             .title = " 🛡️ Quillseal",
             .items = {sign, item(MenuItem::Kind::separator, "", ""),
                       item(MenuItem::Kind::label, "Server: a", ""),
                       item(MenuItem::Kind::action, "Quit Quill Seal", "q")}});
  tray.setItemTitle(2, "Server: https://b.example/?x&y");

  const QMenu* menu = nullptr;
  for (const QWidget* widget : QApplication::allWidgets())
    if (const auto* found = qobject_cast<const QMenu*>(widget)) menu = found;
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions()) {
    action->trigger();
    const std::string shortcut =
        action->shortcut().toString(QKeySequence::PortableText).toStdString();
    lines.push_back(action->isSeparator() ? "---"
                                          : action->text().toStdString() + " [" + shortcut +
                                                (action->isEnabled() ? "]" : "] disabled"));
  }
  EXPECT_THAT(lines, ElementsAre("chosen:", "Sign Selected Text (Ctrl+Alt+Super+H) []", "---",
                                 "Server: https://b.example/?x&&y [] disabled",
                                 "chosen:", "Quit Quill Seal [Ctrl+Q]"));
}

}  // namespace
}  // namespace quillseal::linux
