#include "trellisar/objects/SystemInfoObject.h"

#include <utility>

#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/document/SystemNames.h"

namespace trellisar {
namespace {

std::string withBackslash(const std::string& folder) {
  return folder.ends_with('\\') ? folder : folder + "\\";
}

class SystemInfoObject : public host::SystemInfo {
 public:
  explicit SystemInfoObject(DocumentPtr document) : document_(std::move(document)) {}

  std::string GetAddInAttributes(const std::string& strTitle) const override {
    for (const auto& [title, text] : document_->settings) {
      if (title == strTitle) return text;
    }
    return {};
  }

  void SetAddInAttributes(const std::string& strTitle, const std::string& strText) override {
    document_->putSettings(strTitle, strText);
  }

  std::string get_SystemName() const override { return document_->name; }
  std::int16_t get_MaxNameLength() const override { return maximumNameLength; }
  std::string get_LastApplication() const override { return document_->application; }
  void put_LastApplication(const std::string& strApplication) override {
    document_->application = strApplication;
  }
  bool get_ProgramIsCurrent() const override { return isProgramCurrent(*document_); }
  void put_ProgramIsCurrent(bool bCurrent) override { document_->programIsCurrent = bCurrent; }

  std::string get_CompiledProgramFile() const override {
    if (document_->compiledProgram.empty()) return {};
    return withBackslash(document_->folder) + document_->compiledProgram;
  }

  std::int16_t get_ControlSystemID() const override { return document_->controlSystem; }
  std::int32_t get_UploadHandle() const override {
    return document_->find(document_->controlSystem)->handle;
  }

 private:
  DocumentPtr document_;
};

}  // namespace

std::shared_ptr<host::SystemInfo> makeSystemInfo(const DocumentPtr& document) {
  return std::make_shared<SystemInfoObject>(document);
}

}  // namespace trellisar
