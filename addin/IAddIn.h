#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "addin/Cast.h"
#include "addin/Enumerations.h"
#include "addin/ProgramBuilder.h"
#include "addin/StoredSettings.h"
#include "addin/WizardWindow.h"
#include "forms/Event.h"
#include "forms/MessageBox.h"
#include "host/IAddInContract.h"
#include "host/Numbers.h"
#include "host/ProgramGuide.h"
#include "host/UIManager.h"
#include "host/UnsavedWork.h"

namespace addin {

/// The add-in's one creatable class: the contract with the host, the settings of the wizard, the
/// system file, and the devices of the room. Each concern has a file of its own.
///
/// The host creates it by the name that IAddInContract_ClassName gives, calls IAddInContract_Load
/// and then IAddInContract_Run, which returns when the wizard has closed; both may be called again
/// on the same object.
class IAddIn : public host::IAddInContract,
               public host::ProgramGuide,
               public host::UnsavedWork,
               public std::enable_shared_from_this<IAddIn> {
 public:
  IAddIn();
  ~IAddIn() override;

  // The contract with the host: Contract.cpp.
  void IAddInContract_Load(const std::shared_ptr<host::Document>& clsDocument,
                           const std::shared_ptr<host::LibraryManager>& clsLibraryManager,
                           const std::shared_ptr<host::CommObject>& clsCommObject,
                           const forms::ImageList& clsListImagesSmall,
                           const forms::ImageList& clsListImagesLarge,
                           const std::shared_ptr<host::OwnerForm>& oOwnerForm) override;
  void IAddInContract_Run(const std::shared_ptr<host::OwnerForm>& oOwnerForm) override;
  std::string IAddInContract_Title() const override { return "Orlena"; }
  std::string IAddInContract_ClassName() const override { return "AddInOrlena.IAddIn"; }
  std::string IAddInContract_GroupName() const override { return ""; }
  std::string IAddInContract_Description() const override { return GetDescription(); }
  std::int16_t IAddInContract_Icon() const override { return host::pictureSmallAddIn; }
  bool IAddInContract_PreviewAvailable() const override { return true; }
  void IAddInContract_ShowPreview() override;
  bool IAddInContract_ShowOnNewSystem() const override { return true; }
  std::string IAddInContract_GetHelpFile() const override { return "Orlena.chm"; }
  bool IAddInContract_EditInCorvaner() const override { return m_bEditInCorvaner; }
  std::int16_t IAddInContract_StartupMode() const override { return m_iStartupMode; }
  void IAddInContract_StartupMode(std::int16_t iMode) override { m_iStartupMode = iMode; }
  void IAddInContract_UseOpenFile(bool bUseOpenFile) override;
  std::int32_t IAddInContract_HwndAddIn() const override;

  // What the host asks when the program has a fault: ProgramPages.cpp.
  std::string PageOf(const host::ProgramPlace& place) const override;
  void ShowPageOf(const host::ProgramPlace& place) override;

  // What the host keeps for the case that the program ends before a save: Unsaved.cpp.
  host::UnsavedAnswers GetUnsavedAnswers() const override;
  void Resume(const host::Whereabouts& whereabouts) override { m_resumed = whereabouts; }
  /// The window has its system: it goes on where the user was, where there is such a place.
  void ResumeInWindow();

  std::string GetVersion() const { return "3.06.09"; }
  std::string GetDescription() const;
  /// The word that marks a system as the wizard's.
  std::string GetApplicationName() const { return "Orlena"; }
  /// The program ids of the ten steps in their order.
  std::vector<std::string> GetTabProgIDs() const;
  void ShowPreferences();
  void ShowTestPattern();
  /// The handle of the application's active form; 0 when there is none.
  std::int32_t GetActiveWindowHandle() const;
  void put_iPreviewImage(std::int16_t iImage) { m_iPreviewImage = iImage; }

  // The answers that are stored with the system: Settings.cpp. Times are whole seconds but for the
  // pulse times; check box values are 1 and 0, and writing any other number stores 0.
  bool get_VolumeKnobControl() const { return m_settings.strVolumeKnobControl == "1d"; }
  void put_VolumeKnobControl(bool bMaster);
  bool get_MicModeControl() const { return m_settings.strMicModeControl == "1d"; }
  void put_MicModeControl(bool bAlwaysActive);
  std::int16_t get_bMuteOnDigInp3() const { return m_settings.bMuteOnDigInp3 ? 1 : 0; }
  void put_bMuteOnDigInp3(std::int16_t iValue) { m_settings.bMuteOnDigInp3 = iValue == 1; }
  std::int16_t get_bUse3OLReceiver() const { return m_settings.bUse3OLReceiver ? 1 : 0; }
  void put_bUse3OLReceiver(std::int16_t iValue) { m_settings.bUse3OLReceiver = iValue == 1; }
  std::int16_t get_bSecondPowerOff() const { return m_settings.bSecondPowerOff ? 1 : 0; }
  void put_bSecondPowerOff(std::int16_t iValue) { m_settings.bSecondPowerOff = iValue == 1; }
  const std::string& get_sSecondPowerOff() const { return m_settings.sSecondPowerOff; }
  void put_sSecondPowerOff(const std::string& sCommand) { m_settings.sSecondPowerOff = sCommand; }
  std::int16_t get_iSecondPowerOff() const { return m_settings.iSecondPowerOff; }
  void put_iSecondPowerOff(std::int16_t iSeconds) { m_settings.iSecondPowerOff = iSeconds; }
  std::int16_t get_PowerRelayOnDelay() const { return m_settings.iPowerRelayOnDelay; }
  void put_PowerRelayOnDelay(std::int16_t iSeconds) { m_settings.iPowerRelayOnDelay = iSeconds; }
  std::int16_t get_PowerRelayOffDelay() const { return m_settings.iPowerRelayOffDelay; }
  void put_PowerRelayOffDelay(std::int16_t iSeconds) { m_settings.iPowerRelayOffDelay = iSeconds; }
  /// The two lockout times store the absolute value.
  std::int16_t get_PowerOnLockoutTime() const { return m_settings.iPowerOnLockoutTime; }
  void put_PowerOnLockoutTime(std::int16_t iSeconds);
  std::int16_t get_PowerOffLockoutTime() const { return m_settings.iPowerOffLockoutTime; }
  void put_PowerOffLockoutTime(std::int16_t iSeconds);
  /// One of enumContactClosure.
  std::int16_t get_PowerContactClosureOption() const {
    return m_settings.iPowerContactClosureOption;
  }
  void put_PowerContactClosureOption(std::int16_t iOption) {
    m_settings.iPowerContactClosureOption = iOption;
  }
  /// Seconds, kept in hundredths; `intOption` 0 is the screen, 1 the lift. Writing stores the
  /// absolute value.
  float get_PowerOnPulseTime(std::int16_t intOption) const;
  void put_PowerOnPulseTime(std::int16_t intOption, float sngSeconds);
  float get_PowerOffPulseTime(std::int16_t intOption) const;
  void put_PowerOffPulseTime(std::int16_t intOption, float sngSeconds);
  /// Empty: no password. Writing removes the blanks at both ends.
  const std::string& get_FenletPassword() const { return m_settings.strFenletPassword; }
  void put_FenletPassword(const std::string& strPassword);
  /// 0: the room isn't powered off without motion.
  std::int16_t get_MotionSensorTimeout() const { return m_settings.iMotionSensorTimeout; }
  void put_MotionSensorTimeout(std::int16_t iSeconds) {
    m_settings.iMotionSensorTimeout = iSeconds;
  }

  // The devices of the room, by their ids in the document; not IsInSystem where there is none. They
  // are not stored but found again by name.
  std::int16_t get_ReceiverID() const { return m_cast.iReceiver; }
  std::int16_t get_DisplayDeviceID() const { return m_cast.iDisplayDevice; }
  std::int16_t get_PowerRelayID() const { return m_cast.iPowerRelay; }
  std::int16_t get_KestrumID() const { return m_cast.iKestrum; }
  std::int16_t get_OccupancySensorID() const { return m_cast.iOccupancySensor; }
  std::int16_t get_FenletID() const { return m_cast.iFenlet; }
  std::int16_t get_ScreenDeviceID() const { return m_cast.iScreenDevice; }
  std::int16_t get_LiftDeviceID() const { return m_cast.iLiftDevice; }
  /// `intIndex` is the port, 1 to 3.
  std::int16_t get_OriginationPointID(std::int16_t intIndex) const;
  bool HasScreenControl() const { return true; }
  bool HasLiftControl() const { return true; }

  /// The system's folder has been accepted since it last changed.
  bool get_FolderChecksOK() const { return m_bFolderChecksOK; }
  void put_FolderChecksOK(bool bOK) { m_bFolderChecksOK = bOK; }

  // The settings and the document: Persistence.cpp. All answer True.
  void ResetSettings();
  bool FileOpen();
  bool LoadAttributes();
  bool SaveAttributes();

  // The system file: SystemFile.cpp. False is a failure that the user has been told of, or his own
  // refusal.
  bool StartSystem();
  bool NewSystem();
  bool OpenCurrentSystem();
  bool OpenSystemFile(bool& bCancelled);
  /// Writes steps, settings and program into the document and saves it. `bShowWarnings` shows the
  /// generator's warnings.
  bool SaveSystem(bool bShowWarnings, bool bSaveAs);
  /// The form of SaveSystem that the save button and the question on closing use.
  bool SaveSystemAs() { return SaveSystem(false, true); }
  bool CheckSystemLocation();
  /// Makes a folder that a system may be saved in. It is removed again when the wizard closes, as
  /// far as it has stayed empty. False: the host refuses it and has told the user.
  bool TrySystemFolder(const std::string& strFolder);
  /// Offers to save what would be lost, an open edit included. True: the caller may go on.
  /// `iResponse` takes the answer when there was a question; only Yes looks at what the steps hold.
  bool QueryCloseSystem(forms::Answer& iResponse);
  std::string GetTemplatePath() const;
  void SetLibraryFilter();
  bool BuildProgram(bool bShowWarnings, std::string& sError);

  // From the finished room to the receiver: BuildAndUpload.cpp. `hwnd` is the window that asked.
  // While one of the two chains runs, the Finish button is disabled. What goes wrong has been
  // shown.
  /// True: there is a compiled program and it may be sent. A current one is left as it is.
  bool CreateProgram();
  void BuildAndUpload(std::int32_t& hwnd);
  void ExportProgram(std::int32_t& hwnd);
  /// Starts sending what was compiled last and returns at once.
  void UploadProgram(std::int32_t& hwnd);
  void ShowReports();

  // The projects of the touch panels: Touchpanels.cpp.
  /// Makes those that are missing, in a window of its own. Always True.
  bool BuildTouchpanels();
  bool HasPanelsToBuild() const;
  /// The work of that window. False: a project could not be made, and the ones after it were not
  /// tried.
  bool CreateTouchpanelProjects();

  // The devices of the room: Devices.cpp. A failure is shown with the host's text.
  void AddPowerRelay();
  void RemovePowerRelay();
  void AddKestrum();
  void RemoveKestrum();
  void AddOccupancySensor();
  void RemoveOccupancySensor();
  void AddFenlet();
  void RemoveFenlet();
  bool AddDigitalInput(std::int16_t iInput);
  /// True also when the input isn't there.
  bool RemoveDigitalInput(std::int16_t iInput);
  /// 0 when the input isn't there.
  std::int16_t GetDigitalInputID(std::int16_t iInput) const;
  void HideDevice(std::int16_t iDeviceID);
  /// Assigning a device also gives it its standard commands, and the display its starting power
  /// mode; a display that can't send a second Power Off unticks it. 0 clears.
  void put_DisplayDeviceID(std::int16_t iDeviceID);
  void put_ScreenDeviceID(std::int16_t iDeviceID);
  void put_LiftDeviceID(std::int16_t iDeviceID);
  std::string GetAuxiliaryDeviceName(std::int16_t eDeviceType) const;
  /// False: there is no such device.
  bool SetDeviceLabel(std::int16_t iDeviceID, const std::string& strLabel);
  std::int16_t GetStandardCommandIDForPowerControl(std::int16_t ePowerOnOrOff) const;
  /// The host's device dialog; the answer is one of host::enumDeviceDialogResult or a device id.
  std::int16_t ShowAddReplaceDeviceDialog(host::DeviceDialogArguments& arguments);

  // The transmitters at the receiver's ports, 1 to 3: OriginationPoints.cpp. Each is a device and
  // a row of the bill of materials; what fails is shown and stops nothing.
  /// The usable transmitter types of the library, in its order.
  std::vector<std::shared_ptr<host::LibraryDevice>> GetLibraryOriginationPoints() const;
  /// Puts a transmitter at a port, in the place of one of another type. One of the same type stays
  /// and takes the label. `strName` is the type's name, a blank and the port ("OL1"), `iModelID` 0
  /// lets the library choose the model by `iControlEntryID`. Only a device that the host refuses
  /// leaves the port free.
  void AddOriginationPoint(std::int16_t intIndex, const std::string& strName, std::int16_t iModelID,
                           std::int16_t iControlEntryID, const std::string& strLabel);
  /// The port is free afterwards, whatever fails.
  void RemoveOriginationPoint(std::int16_t intIndex);

 private:
  void LoadImages(const forms::ImageList& clsListImagesSmall,
                  const forms::ImageList& clsListImagesLarge);
  void m_clsComm_DisplayHelp(std::int32_t lTopicID);
  void m_clsComm_OnTransferComplete(std::int16_t iVnxHandlesSent);
  /// Saves and writes panels where needed, compiles, and then does `Send`.
  void BuildAnd(const std::function<void()>& Send);
  bool SetPagePrefix();
  void LabelInputButtons(host::TessraApp& oTessraApp) const;

  void FindOriginationPoints();
  std::int16_t& OriginationPoint(std::int16_t intIndex);
  void RelabelOriginationPoint(host::Device& oDevice, const std::string& strLabel);
  void AddToBillOfMaterials(std::int16_t intIndex, const std::string& strName,
                            const host::Device& oDevice);
  void ChooseNewSystemName();
  void RemoveTriedFolders();
  /// In a message box, or else in the record of a run that keeps one.
  void TellWarnings(const ErrorItems& colErrorItems, bool bShow) const;

  /// Adds a device below the receiver. On False the host's text has been shown and `iDeviceID` is
  /// what it was.
  bool AddDevice(const LibraryEntry& entry, const std::string& strName, std::int16_t& iDeviceID);
  /// As AddDevice, for one that the tree doesn't show.
  bool AddCastMember(const CastMember& member, std::int16_t& iDeviceID);
  bool RemoveDevice(std::int16_t iDeviceID);
  /// From 0; -1 where none of the pages mends it.
  std::int16_t PlaceOfPage(const host::ProgramPlace& place) const;
  void SetUpPower(std::int16_t iDeviceID);
  void SetUpAuxiliaryDevice(std::int16_t iDeviceID);

  std::shared_ptr<WizardWindow> m_frmAddIn;
  std::shared_ptr<host::CommObject> m_clsComm;
  forms::Subscription m_onDisplayHelp;
  forms::Subscription m_onTransferComplete;
  std::int16_t m_iStartupMode = 0;
  bool m_bUseOpenFile = false;
  bool m_bEditInCorvaner = false;
  std::int16_t m_iPreviewImage = previewProduct;
  bool m_bFolderChecksOK = false;
  std::vector<std::string> m_colTriedFolders;  // those that were made, the outer before the inner

  std::optional<host::Whereabouts> m_resumed;  // until the window has gone on there

  StoredSettings m_settings;

  CastIDs m_cast;
};

}  // namespace addin
