#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "host/OwnerForm.h"
#include "host/ProgramGuide.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/operations/Session.h"

namespace trellisar {

class UIManagerObject;
struct UnsavedSystem;

/// The operations of the host's main window. Messages and dialogs go to the thread's
/// forms::Application.
class MainWindowOperations : public host::OwnerForm {
 public:
  explicit MainWindowOperations(std::shared_ptr<Session> session) : session_(std::move(session)) {}

  /// The window that stands behind the operations; null where the host runs without one.
  void setForm(forms::Form* form) { form_ = form; }

  /// The add-in that is running, where it can tell its pages; null: nobody can.
  void setGuide(host::ProgramGuide* guide) { guide_ = guide; }
  /// The same, where it can tell what it has not stored yet.
  void setUnsavedWork(host::UnsavedWork* work) { session_->recovery->setWork(work); }

  bool keepsUnsaved() const { return !session_->recovery->options().folder.empty(); }
  /// Offers, one after the other, what programs that run no longer left unsaved, but what the user
  /// has put off. True: he has had one restored, which is the open system.
  bool offerUnsaved();

  using host::OwnerForm::FileOpen;

  forms::Form* get_Form() const override { return form_; }

  std::shared_ptr<host::Document> FileOpen(const std::string& strFile, bool bUseRecovery,
                                           bool& bCancelled) override;
  bool FileSaveAs(const std::string& strFile, const std::string& strApplication) override;
  void DestroyDoc() override;
  std::string GetDefaultSystemsFolder() const override;
  bool CreateProjectFolder(const std::string& strFolder) override;
  bool CheckValidSystemName(std::string& strName) override;
  void ResetApplicationStatus(const std::string& strPath, const std::string& strName) override;
  void SetApplicationStatus(const std::string& strPath, const std::string& strName) override;

  std::int32_t GetHSeconds(const std::string& strTime, std::int16_t iFormat) const override;

  bool AddDevice(host::AddDeviceArguments& arguments) override;
  std::int16_t ShowAddReplaceDeviceDialog(host::DeviceDialogArguments& arguments) override;
  std::shared_ptr<host::Touchpanel> AddInterface(std::int16_t iModelID, std::int16_t iParentID,
                                                 const std::string& strName) override;
  void SetDeviceIPAddress(std::int16_t iDeviceHandle, const std::string& strAddress) override;
  std::string GetDeviceIPID(std::int16_t iDeviceHandle) const override;
  std::string GetDevicePort(std::int16_t iDeviceHandle) const override;
  std::int16_t GetPowerSensorDeviceHandle(std::int16_t iNumber,
                                          const std::vector<std::int16_t>& colModels) override;
  void ShowControlledDeviceProperties(std::int16_t iDeviceID,
                                      const std::vector<std::string>& colTabs) override;

  bool ShowCreateProgramDialog(bool& bCancelled) override;
  void Export(std::int32_t& hwnd) override;
  void SetupSystemManager(std::int32_t& hwnd, const host::SystemManagerOptions& options) override;
  void SetQueryResponse(std::int16_t iResponse) override;

  std::shared_ptr<host::UIManager> GetUIMgr() override;
  bool CreateTouchpanels(std::shared_ptr<host::Touchpanel>& oPanel) override;

  void ShowPreferencesDialog() override;
  void ShowReportsDialog(const std::string& strReports) override;
  void ShowRealTimeDialog(std::int16_t& iDeviceID) override;
  void ShowAddressBook(std::int32_t hwnd) override;

 private:
  bool offerUnsavedOf(const std::filesystem::path& file);
  bool offer(const std::shared_ptr<RecoverySlot>& slot, const std::filesystem::path& ownFile);
  bool restore(const std::shared_ptr<RecoverySlot>& slot, const UnsavedSystem& unsaved);
  /// Makes it the open system, in the place of one that is open.
  void openDocument(const DocumentPtr& data);
  void note(const std::string& call) const { session_->journal->note(call); }
  std::string chooseFile() const;
  /// Asks where the system of an archive goes, and answers its file; empty: the user cancelled.
  std::filesystem::path unpack(const std::filesystem::path& archive) const;
  /// How a save may deal with the file, after asking where that is needed; nothing: not at all.
  std::optional<Overwriting> mayOverwrite(const std::filesystem::path& file) const;
  /// Whether the document's own file may be written. A user who wishes so is shown what changes
  /// where its program is built.
  bool mayReplaceProgram(const std::filesystem::path& file) const;
  void save(const std::string& path, const std::string& application, Overwriting overwriting);
  const std::shared_ptr<UIManagerObject>& uiManager();
  std::int16_t chooseDevice(host::DeviceDialogArguments& arguments, const DefinitionPtr& chosen);

  std::shared_ptr<Session> session_;
  std::set<std::filesystem::path> putOff_;  // recovery files
  forms::Form* form_ = nullptr;
  host::ProgramGuide* guide_ = nullptr;
  std::shared_ptr<UIManagerObject> uiManager_;  // made when it is first asked for
};

}  // namespace trellisar
