#include "wayland/WaylandDataControl.h"

#include <cstdint>

namespace quillseal::linux::wayland {
namespace {

// The version of the older protocol that equals version 1 of the newer one.
constexpr std::uint32_t wlrootsVersion = 2;

wl_interface standardInterface() {
  wl_interface interface = zwlr_data_control_manager_v1_interface;
  interface.name = "ext_data_control_manager_v1";
  interface.version = 1;
  return interface;
}

}  // namespace

void DestroyDataControl::operator()(zwlr_data_control_manager_v1* manager) const {
  zwlr_data_control_manager_v1_destroy(manager);
}
void DestroyDataControl::operator()(zwlr_data_control_device_v1* device) const {
  zwlr_data_control_device_v1_destroy(device);
}
void DestroyDataControl::operator()(zwlr_data_control_offer_v1* offer) const {
  zwlr_data_control_offer_v1_destroy(offer);
}
void DestroyDataControl::operator()(zwlr_data_control_source_v1* source) const {
  zwlr_data_control_source_v1_destroy(source);
}

bool offersDataControl(const WaylandConnection& connection) {
  return connection.versionOf(standardInterface().name) > 0 ||
         connection.versionOf(zwlr_data_control_manager_v1_interface.name) >= wlrootsVersion;
}

DataControlManager bindDataControl(const WaylandConnection& connection) {
  // Static, because objects that are made with it refer to it.
  static const wl_interface standard = standardInterface();
  auto* manager = connection.bind<zwlr_data_control_manager_v1>(standard, 1);
  if (manager == nullptr)
    manager = connection.bind<zwlr_data_control_manager_v1>(zwlr_data_control_manager_v1_interface,
                                                            wlrootsVersion);
  return DataControlManager(manager);
}

}  // namespace quillseal::linux::wayland
