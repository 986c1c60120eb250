#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <array>
#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "session/QtDescriptors.h"
#include "session/QtMainLoop.h"
#include "x11/QtPasteboard.h"

namespace quillseal::linux {
namespace {

using namespace std::string_literals;

TEST(QtPasteboard, ReadsWhatProgramsOffer) {
  std::string program = "test";
  std::string option = "-platform";
  std::string platform = "minimal";  // a platform without X
  std::array<char*, 4> arguments{program.data(), option.data(), platform.data(), nullptr};
  int count = 3;
  const QGuiApplication application(count, arguments.data());
  QtMainLoop loop;
  QtDescriptors descriptors;
  QtPasteboard pasteboard({.loop = loop, .descriptors = descriptors});

  struct Row {
    std::string offered;
    std::optional<std::string> read;
  };
  for (const Row& row : {
           Row{"<p>é</p>\n\0"s, "<p>é</p>\n"}, Row{"\0<b>\0\0x\0"s, "<b>x"},
           Row{"\0"s, std::nullopt},
           Row{"\xFF\xFE<\0p\0>\0\0\0"s, "<p>"},  // UTF-16, as browsers send it
       }) {
    auto data = std::make_unique<QMimeData>();
    data->setData(QStringLiteral("text/html"), QByteArray::fromStdString(row.offered));
    if (row.offered.front() != '\xFF')
      data->setText(QString::fromUtf8(QByteArray::fromStdString(row.offered)));
    QGuiApplication::clipboard()->setMimeData(data.release());
    EXPECT_EQ(pasteboard.html(), row.read) << testing::PrintToString(row.offered);
    if (row.offered.front() != '\xFF') {
      EXPECT_EQ(pasteboard.plainText(), row.read);
    }
  }

  for (const char* hint : {"", "secret"}) {
    auto data = std::make_unique<QMimeData>();
    data->setData(QStringLiteral("x-kde-passwordManagerHint"), hint);
    data->setData(QStringLiteral("text/rtf"), QByteArray("{\0}", 3));
    QGuiApplication::clipboard()->setMimeData(data.release());
    std::optional<std::string> rtf = "not called";
    const auto ticket =
        pasteboard.fetchRtf([&](std::optional<std::string> bytes) { rtf = std::move(bytes); });
    EXPECT_EQ(rtf, *hint == 0 ? std::optional("{\0}"s) : std::nullopt);
  }
}

}  // namespace
}  // namespace quillseal::linux
