#include "common/modBrowsePath.h"

#include "forms/Application.h"

namespace common {

std::string BrowseForFolder(std::int32_t hwndOwner, const std::string& sTitle,
                            const std::string& sInitialFolder) {
  forms::Application& application = forms::Application::current();
  return application.desktop().chooseFolder(
      {.ownerHandle = hwndOwner,
       .title = sTitle,
       .initialFolder = sInitialFolder.empty() ? application.folder() : sInitialFolder});
}

}  // namespace common
