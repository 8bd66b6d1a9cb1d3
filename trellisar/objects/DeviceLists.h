#pragma once

#include <memory>

#include "host/DeviceList.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

std::shared_ptr<host::DeviceList> makeDeviceList(const DocumentPtr& document);
std::shared_ptr<host::TouchpanelList> makeTouchpanelList(const DocumentPtr& document);

/// Nothing for nothing.
std::shared_ptr<host::Touchpanel> makeTouchpanel(const DocumentPtr& document,
                                                 const DevicePtr& panel);

/// What both AddModules do.
std::int16_t addModules(const DocumentPtr& document, const host::ModuleList& modules,
                        std::shared_ptr<host::Device>& device);

}  // namespace trellisar
