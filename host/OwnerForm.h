#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/Document.h"
#include "host/UIManager.h"

namespace forms {
class Form;
}

namespace host {

/// The arguments of OwnerForm::AddDevice in their order; numbered ones have no meaning for an
/// add-in.
struct AddDeviceArguments {
  std::string strName;
  std::string strParentName;
  std::int16_t iModelID = 0;  // modelFromControlEntry: the library picks it
  std::int16_t iSlot = 0;
  bool bFlag5 = false;
  std::int32_t lNumber6 = 1;
  std::string strMaker;
  std::string strModel;
  std::int16_t iControlEntryID = 0;
  bool bFlag10 = false;
  bool bFlag11 = true;
  std::int16_t iDeviceID = 0;  // out: the new device's id
  std::string strText13;
  std::int16_t iNumber14 = 0;
  bool bFlag15 = false;
  std::string strError;  // out: why nothing was added
};

/// The arguments of OwnerForm::ShowAddReplaceDeviceDialog in their order.
struct DeviceDialogArguments {
  std::int16_t iParentID = 0;
  std::int32_t lDialogContext = 0;
  std::int16_t iDeviceID = 0;  // the device that is replaced; 0: none
  std::string strName;         // of the device in the system
  std::string strTitle;        // of the dialog
  std::string strCategory6;    // counts where strCategory12 is empty
  std::int16_t iNumber7 = 0;
  bool bFlag8 = false;
  std::string strText9;
  bool bFlag10 = false;
  bool bFlag11 = false;
  std::string strCategory12;
};

struct SystemManagerOptions {
  bool bFlag2 = false;
  std::int16_t iNumber3 = 0;
  bool bFlag4 = false;
};

/// The host's main window: the operations that an add-in calls by name. Paths have backslashes.
class OwnerForm {
 public:
  virtual ~OwnerForm() = default;

  /// The window itself; nothing where the host runs without one.
  virtual forms::Form* get_Form() const = 0;

  /// Opens a file, or asks for one when strFile is empty; bCancelled tells that the user chose
  /// none. Nothing on failure, which the user has been told, but for a file that is named and is
  /// not there: the caller says so. The open document is replaced only when the new one could be
  /// opened. bUseRecovery allows a recovery file in its place; False also opens the file as a
  /// template, which no save replaces without a question.
  virtual std::shared_ptr<Document> FileOpen(const std::string& strFile, bool bUseRecovery,
                                             bool& bCancelled) = 0;
  std::shared_ptr<Document> FileOpen(const std::string& strFile, bool bUseRecovery) {
    bool bCancelled = false;
    return FileOpen(strFile, bUseRecovery, bCancelled);
  }
  std::shared_ptr<Document> FileOpen(bool& bCancelled) { return FileOpen("", true, bCancelled); }

  /// Saves the open document as strFile with ".tsy" and makes the folders. Asks before another
  /// system's file is replaced. False: it was not saved, and the user has been told why.
  [[nodiscard]] virtual bool FileSaveAs(const std::string& strFile,
                                        const std::string& strApplication) = 0;
  /// The host forgets its document and its registration, if there is one.
  virtual void DestroyDoc() = 0;
  virtual std::string GetDefaultSystemsFolder() const = 0;  // ends in a backslash
  /// Makes the folder of a system. False, with a message: it can't be made, holds another system,
  /// or has no name.
  [[nodiscard]] virtual bool CreateProjectFolder(const std::string& strFolder) = 0;
  /// False, with a message: the name can't be a system's.
  virtual bool CheckValidSystemName(std::string& strName) = 0;
  /// The registration of what is open: a folder and a name.
  virtual void ResetApplicationStatus(const std::string& strPath, const std::string& strName) = 0;
  virtual void SetApplicationStatus(const std::string& strPath, const std::string& strName) = 0;

  /// A time text such as "0.1s" in hundredths of a second; 0 for a text that can't be read.
  virtual std::int32_t GetHSeconds(const std::string& strTime, std::int16_t iFormat) const = 0;

  [[nodiscard]] virtual bool AddDevice(AddDeviceArguments& arguments) = 0;
  /// deviceDialogNone, deviceDialogUnchanged, or the id of the chosen device.
  [[nodiscard]] virtual std::int16_t ShowAddReplaceDeviceDialog(
      DeviceDialogArguments& arguments) = 0;
  /// Nothing, with a text in the document's GetLastError, when it can't be added. An empty name
  /// takes the library's.
  virtual std::shared_ptr<Touchpanel> AddInterface(std::int16_t iModelID, std::int16_t iParentID,
                                                   const std::string& strName) = 0;
  virtual void SetDeviceIPAddress(std::int16_t iDeviceHandle, const std::string& strAddress) = 0;
  virtual std::string GetDeviceIPID(std::int16_t iDeviceHandle) const = 0;  // empty: none
  virtual std::string GetDevicePort(std::int16_t iDeviceHandle) const = 0;  // empty: none
  /// The handle of the iNumber-th power sensor of one of the models; 0: the library has none.
  virtual std::int16_t GetPowerSensorDeviceHandle(std::int16_t iNumber,
                                                  const std::vector<std::int16_t>& colModels) = 0;
  /// Shows the pages, given by their program ids; without any it shows nothing. Returns when the
  /// user has closed them.
  virtual void ShowControlledDeviceProperties(std::int16_t iDeviceID,
                                              const std::vector<std::string>& colTabs) = 0;

  /// False: cancelled, or the program has errors.
  [[nodiscard]] virtual bool ShowCreateProgramDialog(bool& bCancelled) = 0;
  virtual void Export(std::int32_t& hwnd) = 0;
  virtual void SetupSystemManager(std::int32_t& hwnd, const SystemManagerOptions& options) = 0;
  virtual void SetQueryResponse(std::int16_t iResponse) = 0;

  virtual std::shared_ptr<UIManager> GetUIMgr() = 0;
  /// Makes the panel's project; may replace the object in oPanel. False: the project could not be
  /// made.
  [[nodiscard]] virtual bool CreateTouchpanels(std::shared_ptr<Touchpanel>& oPanel) = 0;

  virtual void ShowPreferencesDialog() = 0;
  virtual void ShowReportsDialog(const std::string& strReports) = 0;
  virtual void ShowRealTimeDialog(std::int16_t& iDeviceID) = 0;
  virtual void ShowAddressBook(std::int32_t hwnd) = 0;
};

}  // namespace host
