#include "trellisar/operations/UIManagerObject.h"

#include "trellisar/library/HostErrors.h"

#include <optional>
#include <utility>

#include "base/FileIO.h"
#include "host/Error.h"
#include "host/ErrorLog.h"
#include "host/Numbers.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

class TessraProjectObject : public host::TessraProject {
 public:
  TessraProjectObject(DevicePtr panel, fs::path file)
      : panel_(std::move(panel)), file_(std::move(file)) {}
  std::string get_Name() const override { return panel_->name; }
  DeviceData& panel() const { return *panel_; }
  const fs::path& file() const { return file_; }

 private:
  DevicePtr panel_;
  fs::path file_;
};

class PageObjectCopy : public host::PageObject {
 public:
  explicit PageObjectCopy(const PanelObject& object) : id_(object.id), text_(object.text) {}
  std::int32_t get_ID() const override { return id_; }
  std::string get_Text() const override { return text_; }

 private:
  std::int32_t id_;
  std::string text_;
};

const char* word(bool value) { return value ? "True" : "False"; }

}  // namespace

/// Works on one project at a time, which it holds from SetCurrentProject to CloseCurrentProject.
/// From there to SaveProject the project counts as unfinished: what breaks off in between leaves
/// one that is made anew.
class TessraAppObject : public host::TessraApp {
 public:
  explicit TessraAppObject(std::shared_ptr<Journal> journal) : journal_(std::move(journal)) {}

  void assign(std::shared_ptr<TessraProjectObject> project) { assigned_ = std::move(project); }

  std::shared_ptr<host::TessraProject> GetAssignedProject() const override { return assigned_; }

  void SetCurrentProject(const std::shared_ptr<host::TessraProject>& oProject) override {
    CloseCurrentProject();
    const auto object = std::dynamic_pointer_cast<TessraProjectObject>(oProject);
    if (!object) {
      throw host::Error(host::errBadArgument, "There is no panel project to be opened.");
    }
    object->panel().projectBuilt = false;
    project_ = readPanelProject(object->file());
    object_ = object;
  }

  bool SetUsePage(const std::string& strPage) override {
    journal_->note("SetUsePage " + strPage);
    page_ = current().findPage(strPage) ? strPage : std::string();
    return !page_.empty();
  }

  std::vector<std::shared_ptr<host::PageObject>> GetPageObjectList() const override {
    std::vector<std::shared_ptr<host::PageObject>> list;
    const PanelPage* page = page_.empty() ? nullptr : current().findPage(page_);
    if (!page) return list;
    for (const PanelObject& object : page->objects) {
      list.push_back(std::make_shared<PageObjectCopy>(object));
    }
    return list;
  }

  void EditObject(std::int32_t lObjectID, const std::string& strText) override {
    journal_->note("EditObject " + std::to_string(lObjectID) + " " + strText);
    PanelObject* object = current().findObject(lObjectID);
    if (!object) {
      throw host::Error(host::errUnknownKey, "The project of \"" + current().panel +
                                                 "\" has no object " + std::to_string(lObjectID) +
                                                 ".");
    }
    object->text = strText;
  }

  void SaveProject() override {
    journal_->note("SaveProject");
    const PanelProject& project = current();
    raisingHostErrors([&] { base::replaceFile(object_->file(), panelProjectText(project)); });
    object_->panel().projectBuilt = true;
  }

  void CloseCurrentProject() override {
    project_.reset();
    page_.clear();
  }

 private:
  PanelProject& current() const {
    if (project_) return *project_;
    throw host::Error(host::errBadArgument, "No panel project is open.");
  }

  std::shared_ptr<Journal> journal_;
  std::shared_ptr<TessraProjectObject> assigned_;
  std::shared_ptr<TessraProjectObject> object_;  // of the open project
  mutable std::optional<PanelProject> project_;
  std::string page_;  // the one in use; empty: none
};

class PanelErrorLog : public host::TessraErrorLog {
 public:
  void Clear() override {
    if (control_) control_->Clear();
  }
  host::ErrorLog* get_AttachedControl() const override { return control_; }
  void put_AttachedControl(host::ErrorLog* oControl) override { control_ = oControl; }

  void add(std::int16_t severity, const std::string& text) {
    const auto item = std::make_shared<host::clsErrorItem>();
    item->put_Severity(severity);
    item->put_Message(text);
    bool isIgnored = false;
    OnAboutToAddError.raise(item, isIgnored);
    if (!isIgnored && control_) control_->Add(item);
  }

 private:
  host::ErrorLog* control_ = nullptr;
};

UIManagerObject::UIManagerObject(std::shared_ptr<Session> session)
    : session_(std::move(session)),
      tessra_(std::make_shared<TessraAppObject>(session_->journal)),
      log_(std::make_shared<PanelErrorLog>()) {}

PanelPages& UIManagerObject::pages() {
  std::optional<PanelPages>& pages = session_->panelSource->pages;
  return pages ? *pages : pages.emplace();
}

void UIManagerObject::SetIncludeDefaultPages(bool bInclude) {
  session_->journal->note(std::string("SetIncludeDefaultPages ") + word(bInclude));
  pages().includesDefault = bInclude;
}

void UIManagerObject::SetIncludeSharedPages(bool bInclude) {
  session_->journal->note(std::string("SetIncludeSharedPages ") + word(bInclude));
  pages().includesShared = bInclude;
}

void UIManagerObject::SetTemplatePrefix(const std::string& strPrefix) {
  session_->journal->note("SetTemplatePrefix " + strPrefix);
  pages().prefix = strPrefix;
}

std::shared_ptr<host::TessraApp> UIManagerObject::get_TessraApp() const { return tessra_; }

std::shared_ptr<host::TessraErrorLog> UIManagerObject::get_ErrorLog() const { return log_; }

bool UIManagerObject::makeProject(const DevicePtr& panel) {
  const DocumentData& document = *session_->data();
  const fs::path file = panelProjectFile(document, *panel);
  const auto say = [this](std::int16_t severity, const std::string& text) {
    log_->add(severity, text);
  };
  tessra_->assign(nullptr);
  projects_->OnStartBuild.raise();
  panel->projectBuilt = false;
  try {
    const PanelTemplate from =
        findPanelTemplate(session_->panelSource->templates, panel->definition->modelId);
    const PanelProject project = buildPanelProject(document, *panel, from, pages(), say);
    raisingHostErrors([&] { base::replaceFile(file, panelProjectText(project)); });
  } catch (const host::Error& error) {
    std::error_code ignored;
    fs::remove(file, ignored);  // what is there does not fit the system
    say(host::severityWarning, error.description());
    return false;
  }
  tessra_->assign(std::make_shared<TessraProjectObject>(panel, file));
  panel->projectBuilt = true;
  return true;
}

}  // namespace trellisar
