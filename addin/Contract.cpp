#include <exception>

#include "addin/IAddIn.h"
#include "addin/Pictures.h"
#include "addin/modGlobals.h"
#include "common/modHTMLHelp.h"
#include "forms/Application.h"
#include "forms/Components.h"
#include "forms/Guard.h"
#include "forms/Numbers.h"

namespace addin {
namespace {

constexpr forms::Color colorMask = 0xFF00FF;

void CopyPictures(const forms::ImageList& from, forms::ImageList& to) {
  for (std::int16_t i = 1; i <= from.count(); ++i) to.add(from.item(i));
  to.setMaskColor(colorMask);
}

void ShowPicture(const char* strProgID, const std::string& strCaption, std::int16_t iImage) {
  const auto frmPicture = forms::createObject<PictureWindow>(strProgID);
  frmPicture->Setup(strCaption, iImage);
  frmPicture->ShowModal();
}

}  // namespace

IAddIn::IAddIn() {
  AddInCreated();
  forms::Application::current().setTitle(IAddInContract_Title());
  m_iPreviewImage = previewProduct;
  ResetSettings();
}

IAddIn::~IAddIn() {
  try {
    if (IsLibraryManagerSet()) gLibraryManager().get_DeviceTypes()->put_DeviceFilter({});
  } catch (const std::exception&) {
    // Nobody can be told any more, of whatever kind it is: memory may have run out.
  }
  m_frmAddIn.reset();
  AddInEnded();
}

void IAddIn::IAddInContract_Load(const std::shared_ptr<host::Document>& clsDocument,
                                 const std::shared_ptr<host::LibraryManager>& clsLibraryManager,
                                 const std::shared_ptr<host::CommObject>& clsCommObject,
                                 const forms::ImageList& clsListImagesSmall,
                                 const forms::ImageList& clsListImagesLarge,
                                 const std::shared_ptr<host::OwnerForm>& oOwnerForm) {
  SetDocument(clsDocument);
  SetLibraryManager(clsLibraryManager);
  SetCommObject(clsCommObject);

  m_clsComm = clsCommObject;
  m_onDisplayHelp.end();
  m_onTransferComplete.end();
  if (m_clsComm) {
    m_onDisplayHelp = m_clsComm->DisplayHelp.listen(
        [this](std::int32_t lTopicID) { m_clsComm_DisplayHelp(lTopicID); });
    m_onTransferComplete = m_clsComm->OnTransferComplete.listen(
        [this](std::int16_t iHandles) { m_clsComm_OnTransferComplete(iHandles); });
  }

  LoadImages(clsListImagesSmall, clsListImagesLarge);
  SetOwnerForm(oOwnerForm);
}

void IAddIn::LoadImages(const forms::ImageList& clsListImagesSmall,
                        const forms::ImageList& clsListImagesLarge) {
  PictureLists& lists = frmImages();
  if (lists.get_ImageList().count() > 0) return;
  CopyPictures(clsListImagesSmall, lists.get_ImageList());
  CopyPictures(clsListImagesLarge, lists.get_ImageListLarge());
}

void IAddIn::IAddInContract_Run(const std::shared_ptr<host::OwnerForm>& oOwnerForm) {
  SetAddIn(shared_from_this());
  forms::Application::current().setTitle(IAddInContract_Title());

  const forms::AtEnd closed([this] {
    m_frmAddIn.reset();
    SetDocument(nullptr);
    m_onDisplayHelp.end();
    m_onTransferComplete.end();
    m_clsComm.reset();
  });
  m_frmAddIn = forms::createObject<WizardWindow>(progIDWizardWindow);
  m_frmAddIn->ShowModal(oOwnerForm ? oOwnerForm->get_Form() : nullptr);
  RemoveTriedFolders();
}

void IAddIn::IAddInContract_ShowPreview() { ShowPicture(progIDPreview, "Orlena", m_iPreviewImage); }

void IAddIn::IAddInContract_UseOpenFile(bool bUseOpenFile) {
  m_bUseOpenFile = bUseOpenFile;
  if (bUseOpenFile || !IsDocumentSet()) return;
  gDocument().MarkUnchanged();
  SetDocument(nullptr);
}

std::int32_t IAddIn::IAddInContract_HwndAddIn() const {
  return m_frmAddIn ? m_frmAddIn->Hwnd() : 0;
}

std::string IAddIn::GetDescription() const {
  return "Create an Orlena room solution. Use this Wizard for a low cost room solution to control "
         "a display device, "
         "adjust the room volume, provide AV source selection and help desk capabilities, and "
         "more.";
}

std::vector<std::string> IAddIn::GetTabProgIDs() const {
  return {"AddInOrlena.TabStart",          "AddInOrlena.TabLocation",
          "AddInOrlena.TabDisplay",        "AddInOrlena.TabAudioControl",
          "AddInOrlena.TabPower",          "AddInOrlena.TabPowerOnOffLockout",
          "AddInOrlena.TabDisplayOptions", "AddInOrlena.TabOrigination",
          "AddInOrlena.TabRoomOptions",    "AddInOrlena.TabFinish"};
}

void IAddIn::ShowPreferences() { gOwnerForm().ShowPreferencesDialog(); }

void IAddIn::ShowTestPattern() {
  ShowPicture(progIDVideoTestPattern, IAddInContract_Title() + " Video Test Pattern", 1);
}

std::int32_t IAddIn::GetActiveWindowHandle() const {
  std::int32_t hwnd = 0;
  forms::ignoringErrors([&] {
    const forms::Form* frmActive = forms::Application::current().activeForm();
    if (frmActive) hwnd = frmActive->windowHandle();
  });
  return hwnd;
}

void IAddIn::m_clsComm_DisplayHelp(std::int32_t lTopicID) {
  common::ShowHelpTopic(GetActiveWindowHandle(), forms::toInt16(lTopicID));
}

}  // namespace addin
