#include <algorithm>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Application.h"
#include "host/iTab.h"

namespace addin {
namespace {

constexpr std::int16_t iNoPage = -1;
constexpr std::int16_t iDisplayPage = 2;
constexpr std::int16_t iPowerPage = 4;
constexpr std::int16_t iOptionsPage = 6;
constexpr std::int16_t iTransmittersPage = 7;
constexpr std::int16_t iRoomPage = 8;

}  // namespace

/// A display's commands are chosen on two pages: those for the power, and those for the inputs.
std::int16_t IAddIn::PlaceOfPage(const host::ProgramPlace& place) const {
  const auto Is = [&place](std::int16_t iDeviceID) {
    return IsInSystem(iDeviceID) && iDeviceID == place.iDeviceID;
  };
  const bool bPower = place.strPreset.find("Power") != std::string::npos;
  if (Is(m_cast.iDisplayDevice)) return bPower ? iPowerPage : iDisplayPage;
  if (Is(m_cast.iPowerRelay)) return iDisplayPage;
  if (Is(m_cast.iScreenDevice) || Is(m_cast.iLiftDevice)) return iOptionsPage;
  if (Is(m_cast.iKestrum) || Is(m_cast.iFenlet) || Is(m_cast.iOccupancySensor)) return iRoomPage;
  if (std::ranges::any_of(m_cast.iOriginationPoint, Is)) return iTransmittersPage;
  return bPower ? iPowerPage : iNoPage;
}

std::string IAddIn::PageOf(const host::ProgramPlace& place) const {
  const std::int16_t iPage = PlaceOfPage(place);
  if (iPage == iNoPage || !m_frmAddIn) return {};
  return host::AsTab(*m_frmAddIn->GetControls().at(static_cast<std::size_t>(iPage)))
      .iTab_GetTabName();
}

void IAddIn::ShowPageOf(const host::ProgramPlace& place) {
  const std::int16_t iPage = PlaceOfPage(place);
  if (iPage == iNoPage) return;
  forms::Application::current().runLater([weak = weak_from_this(), iPage] {
    const auto self = weak.lock();
    if (self && self->m_frmAddIn) self->m_frmAddIn->ShowStep(iPage);
  });
}

}  // namespace addin
