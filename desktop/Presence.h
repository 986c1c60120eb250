#pragma once

#include <functional>
#include <optional>

#include "core/text/Error.h"
#include "desktop/Prompt.h"
#include "desktop/Ticket.h"

namespace quillseal::desktop {

enum class PresencePolicy { biometrics, biometricsOrPassword };

enum class Biometry { none, touchId, faceId, other };

struct PresenceCapability {
  bool available = false;
  std::optional<Error> reason;  ///< why not, when the platform tells
};

/// Proof that the owner sits at the machine. Nothing is cached: every call asks the system anew.
class Presence {
 public:
  virtual ~Presence() = default;

  /// Whether `evaluate` with this policy could succeed. May block; called on a worker thread.
  [[nodiscard]] virtual PresenceCapability canEvaluate(PresencePolicy policy) const = 0;

  /// The kind of biometry the machine has. May block; called on a worker thread.
  [[nodiscard]] virtual Biometry biometry() const = 0;

  /// Prompts the person. `done` gets whether they passed; a cancelled prompt is an Error, not
  /// false. Main thread.
  [[nodiscard]] virtual Ticket evaluate(PresencePolicy policy, const Prompt& prompt,
                                        std::function<void(Outcome<bool>)> done) = 0;
};

}  // namespace quillseal::desktop
