#pragma once

#include <memory>

#include "host/UIManager.h"
#include "trellisar/operations/Session.h"
#include "trellisar/panels/PanelBuild.h"

namespace trellisar {

class TessraAppObject;
class PanelErrorLog;

/// The host's manager of panel projects.
class UIManagerObject : public host::UIManager {
 public:
  explicit UIManagerObject(std::shared_ptr<Session> session);

  /// Makes the panel's project in the system's folder. It raises OnStartBuild first, and its
  /// messages through the error log; False, with a message there, when it could not be made: then
  /// the panel has none.
  bool makeProject(const DevicePtr& panel);

  void SetIncludeDefaultPages(bool bInclude) override;
  void SetIncludeSharedPages(bool bInclude) override;
  void SetTemplatePrefix(const std::string& strPrefix) override;
  std::shared_ptr<host::TessraApp> get_TessraApp() const override;
  std::shared_ptr<host::Projects> get_Projects() const override { return projects_; }
  std::shared_ptr<host::TessraErrorLog> get_ErrorLog() const override;

 private:
  /// Those of the session's source.
  PanelPages& pages();

  std::shared_ptr<Session> session_;
  std::shared_ptr<TessraAppObject> tessra_;
  std::shared_ptr<host::Projects> projects_ = std::make_shared<host::Projects>();
  std::shared_ptr<PanelErrorLog> log_;
};

}  // namespace trellisar
