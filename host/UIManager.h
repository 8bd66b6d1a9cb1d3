#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/Event.h"
#include "host/clsErrorItem.h"

namespace host {

class ErrorLog;

/// An object on a page of a panel project.
class PageObject {
 public:
  virtual ~PageObject() = default;
  virtual std::int32_t get_ID() const = 0;
  virtual std::string get_Text() const = 0;  // lines end with CR LF
};

/// The project of a panel.
class TessraProject {
 public:
  virtual ~TessraProject() = default;
  virtual std::string get_Name() const = 0;
};

/// The panel design application.
class TessraApp {
 public:
  virtual ~TessraApp() = default;
  /// The project of the panel that CreateTouchpanels made last; nothing when there is none.
  virtual std::shared_ptr<TessraProject> GetAssignedProject() const = 0;
  virtual void SetCurrentProject(const std::shared_ptr<TessraProject>& oProject) = 0;
  /// False: the current project has no such page.
  [[nodiscard]] virtual bool SetUsePage(const std::string& strPage) = 0;
  /// The objects of the page in use.
  virtual std::vector<std::shared_ptr<PageObject>> GetPageObjectList() const = 0;
  virtual void EditObject(std::int32_t lObjectID, const std::string& strText) = 0;
  virtual void SaveProject() = 0;
  virtual void CloseCurrentProject() = 0;
};

class Projects {
 public:
  virtual ~Projects() = default;
  forms::Event<> OnStartBuild;
};

/// The messages of a panel build. Not the control ErrorLog, which shows them while it is attached.
class TessraErrorLog {
 public:
  virtual ~TessraErrorLog() = default;
  virtual void Clear() = 0;
  /// Not owned; nothing when none is attached. Whoever attaches a control clears it before the
  /// control goes.
  virtual ErrorLog* get_AttachedControl() const = 0;
  virtual void put_AttachedControl(ErrorLog* oControl) = 0;

  /// Raised before an item is added; setting bIgnore keeps it out.
  forms::Event<const std::shared_ptr<clsErrorItem>&, bool&> OnAboutToAddError;
};

/// The host's manager of panel projects.
class UIManager {
 public:
  virtual ~UIManager() = default;
  virtual void SetIncludeDefaultPages(bool bInclude) = 0;
  virtual void SetIncludeSharedPages(bool bInclude) = 0;
  /// The pages of a template whose names begin with the prefix are taken.
  virtual void SetTemplatePrefix(const std::string& strPrefix) = 0;
  virtual std::shared_ptr<TessraApp> get_TessraApp() const = 0;
  virtual std::shared_ptr<Projects> get_Projects() const = 0;
  virtual std::shared_ptr<TessraErrorLog> get_ErrorLog() const = 0;
};

}  // namespace host
