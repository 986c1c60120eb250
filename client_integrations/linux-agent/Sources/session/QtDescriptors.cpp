#include "session/QtDescriptors.h"

#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <memory>
#include <utility>

namespace quillseal::linux {
namespace {

using Interest = Descriptors::Interest;
using Ready = std::shared_ptr<const std::function<void(Interest)>>;

/// A notifier may be released from inside its own signal, while its function still runs.
struct DeleteLater {
  void operator()(QSocketNotifier* notifier) const {
    notifier->setEnabled(false);
    notifier->deleteLater();
  }
};
using Notifier = std::unique_ptr<QSocketNotifier, DeleteLater>;

Notifier notifierFor(int descriptor, QSocketNotifier::Type type, Interest interest,
                     const Ready& ready) {
  Notifier notifier(new QSocketNotifier(descriptor, type));
  QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                   [ready, interest] { (*ready)(interest); });
  return notifier;
}

}  // namespace

desktop::Ticket QtDescriptors::watch(int descriptor, Interest interest,
                                     std::function<void(Interest)> ready) {
  const auto shared = std::make_shared<const std::function<void(Interest)>>(std::move(ready));
  const auto notifiers = std::make_shared<std::array<Notifier, 2>>();
  if (interest != Interest::writing) {
    (*notifiers)[0] = notifierFor(descriptor, QSocketNotifier::Read, Interest::reading, shared);
  }
  if (interest != Interest::reading) {
    (*notifiers)[1] = notifierFor(descriptor, QSocketNotifier::Write, Interest::writing, shared);
  }
  return desktop::Ticket([notifiers] {
    for (Notifier& notifier : *notifiers)
      notifier.reset();
  });
}

}  // namespace quillseal::linux
