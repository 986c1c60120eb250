#pragma once

#include <memory>

#include "wayland/WaylandConnection.h"
#include "wlr-data-control-unstable-v1-client-protocol.h"

/// Access to the clipboard without a window. There are two protocols for it, the older one of
/// wlroots and ext-data-control: the same requests and events in the same order under other names,
/// so that the objects of the older one stand for both.
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

/// Whether one of the two is offered, in a version that knows the primary selection.
[[nodiscard]] bool offersDataControl(const WaylandConnection& connection);

/// Null where none is.
[[nodiscard]] DataControlManager bindDataControl(const WaylandConnection& connection);

}  // namespace quillseal::linux::wayland
