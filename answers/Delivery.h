#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "answers/Page.h"

namespace answers {

/// What is to become of a room once it is saved.
struct Delivery {
  std::optional<std::filesystem::path> archive;  // it is exported to this file
  std::optional<std::string> address;            // it is uploaded to this receiver
};

/// From now on the windows of the panels and of the compile are answered as by one who reads them:
/// what they list goes to the report, and they are closed.
void answerBuildWindows(UnattendedDesktop& desktop, const Report& report);

/// Clicks what the last page has for it, and waits for the end of the transfer and of the password.
/// Raises RunEnded, as refused, when one of them fails.
void deliver(const Page& lastPage, const Delivery& delivery);

}  // namespace answers
