#include "trellisar/UIManagerObject.h"

#include <optional>
#include <utility>

#include "host/Error.h"
#include "host/ErrorLog.h"
#include "host/Numbers.h"
#include "trellisar/FileIO.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

class TessraProjectObject : public host::TessraProject {
 public:
  TessraProjectObject(std::string name, fs::path file)
      : name_(std::move(name)), file_(std::move(file)) {}
  std::string get_Name() const override { return name_; }
  const fs::path& file() const { return file_; }

 private:
  std::string name_;
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
class TessraAppObject : public host::TessraApp {
 public:
  explicit TessraAppObject(std::shared_ptr<Journal> journal) : journal_(std::move(journal)) {}

  void assign(std::shared_ptr<TessraProjectObject> project) { assigned_ = std::move(project); }

  std::shared_ptr<host::TessraProject> GetAssignedProject() const override { return assigned_; }

  void SetCurrentProject(const std::shared_ptr<host::TessraProject>& oProject) override {
    CloseCurrentProject();
    const auto project = std::dynamic_pointer_cast<TessraProjectObject>(oProject);
    if (!project) {
      throw host::Error(host::errBadArgument, "There is no panel project to be opened.");
    }
    project_ = readPanelProject(project->file());
    file_ = project->file();
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
    replaceFile(file_, panelProjectText(current()));
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
  mutable std::optional<PanelProject> project_;
  fs::path file_;
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

void UIManagerObject::SetIncludeDefaultPages(bool bInclude) {
  session_->journal->note(std::string("SetIncludeDefaultPages ") + word(bInclude));
  pages_.includesDefault = bInclude;
}

void UIManagerObject::SetIncludeSharedPages(bool bInclude) {
  session_->journal->note(std::string("SetIncludeSharedPages ") + word(bInclude));
  pages_.includesShared = bInclude;
}

void UIManagerObject::SetTemplatePrefix(const std::string& strPrefix) {
  session_->journal->note("SetTemplatePrefix " + strPrefix);
  pages_.prefix = strPrefix;
}

std::shared_ptr<host::TessraApp> UIManagerObject::get_TessraApp() const { return tessra_; }

std::shared_ptr<host::TessraErrorLog> UIManagerObject::get_ErrorLog() const { return log_; }

bool UIManagerObject::makeProject(DeviceData& panel) {
  const DocumentData& document = *session_->data();
  const auto say = [this](std::int16_t severity, const std::string& text) {
    log_->add(severity, text);
  };
  tessra_->assign(nullptr);
  projects_->OnStartBuild.raise();
  try {
    const PanelTemplate from =
        findPanelTemplate(session_->panelTemplates, panel.definition->modelId);
    const PanelProject project = buildPanelProject(document, panel, from, pages_, say);
    const fs::path file = panelProjectFile(document, panel);
    replaceFile(file, panelProjectText(project));
    tessra_->assign(std::make_shared<TessraProjectObject>(panel.name, file));
  } catch (const host::Error& error) {
    say(host::severityWarning, error.description());
    return false;
  }
  panel.projectBuilt = true;
  return true;
}

}  // namespace trellisar
