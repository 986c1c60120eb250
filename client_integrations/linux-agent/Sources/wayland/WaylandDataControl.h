#pragma once

#include <memory>

#include "wayland/WaylandConnection.h"
#include "wlr-data-control-unstable-v1-client-protocol.h"

/// Access to the clipboard without a window. There are two protocols, wlroots's older one and
/// ext-data-control. They have the same requests and events in the same order under different
/// names, so the types of the older one are used for both.
namespace quillseal::linux::wayland {

struct DestroyDataControl {
  void operator()(zwlr_data_control_manager_v1* manager) const;
  void operator()(zwlr_data_control_device_v1* device) const;
  void operator()(zwlr_data_control_offer_v1* offer) const;
  void operator()(zwlr_data_control_source_v1* source) const;
};
using DataControlManager = std::unique_ptr<zwlr_data_control_manager_v1, DestroyDataControl>;
using DataControlDevice = std::unique_ptr<zwlr_data_control_device_v1, DestroyDataControl>;
using DataControlOffer = std::unique_ptr<zwlr_data_control_offer_v1, DestroyDataControl>;
using DataControlSource = std::unique_ptr<zwlr_data_control_source_v1, DestroyDataControl>;

/// Returns whether one of the two is offered, in a version with the primary selection.
[[nodiscard]] bool offersDataControl(const WaylandConnection& connection);

/// Binds the offered one; null when there is none.
[[nodiscard]] DataControlManager bindDataControl(const WaylandConnection& connection);

}  // namespace quillseal::linux::wayland
