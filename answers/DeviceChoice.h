#pragma once

#include "answers/Page.h"

namespace answers {

/// While it lives, the host's device dialog gets the answer's device. One that the dialog does not
/// offer ends the run with status 2, and the dialog is cancelled.
class DeviceChoice {
 public:
  DeviceChoice(const Page& page, const Answer& answer);
  ~DeviceChoice();
  DeviceChoice(const DeviceChoice&) = delete;
  DeviceChoice& operator=(const DeviceChoice&) = delete;

 private:
  UnattendedDesktop& desktop_;
};

}  // namespace answers
