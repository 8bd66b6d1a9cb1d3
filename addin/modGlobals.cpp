#include "addin/modGlobals.h"

#include "addin/IAddIn.h"
#include "forms/Application.h"
#include "forms/Components.h"
#include "host/Error.h"
#include "host/Numbers.h"

namespace addin {
namespace {

struct Globals {
  int nAddIns = 0;
  std::weak_ptr<IAddIn> clsAddIn;
  std::shared_ptr<host::Document> clsDocument;
  std::shared_ptr<host::LibraryManager> clsLibraryManager;
  std::shared_ptr<host::CommObject> clsCommObject;
  std::shared_ptr<host::OwnerForm> oOwnerForm;
  std::shared_ptr<PictureLists> frmImages;
};

Globals& Current() { return forms::Application::current().local<Globals>(); }

template <typename Object>
Object& Require(const std::shared_ptr<Object>& oObject, const char* strMissing) {
  if (!oObject) throw host::Error(forms::errors::objectNotSet, strMissing);
  return *oObject;
}

}  // namespace

void AddInCreated() { ++Current().nAddIns; }

void AddInEnded() {
  if (!forms::Application::exists() || Current().nAddIns == 0) return;
  if (--Current().nAddIns == 0) forms::Application::current().endLocal<Globals>();
}

IAddIn& gAddIn() { return Require(Current().clsAddIn.lock(), "The wizard isn't running."); }
void SetAddIn(const std::shared_ptr<IAddIn>& clsAddIn) { Current().clsAddIn = clsAddIn; }

host::Document& gDocument() { return Require(Current().clsDocument, "No system is open."); }
bool IsDocumentSet() { return Current().clsDocument != nullptr; }
void SetDocument(std::shared_ptr<host::Document> clsDocument) {
  Current().clsDocument = std::move(clsDocument);
}

host::LibraryManager& gLibraryManager() {
  return Require(Current().clsLibraryManager, "There is no device library.");
}
bool IsLibraryManagerSet() {
  return forms::Application::exists() && Current().clsLibraryManager != nullptr;
}
void SetLibraryManager(std::shared_ptr<host::LibraryManager> clsLibraryManager) {
  Current().clsLibraryManager = std::move(clsLibraryManager);
}

host::CommObject& gCommObject() {
  return Require(Current().clsCommObject, "There is no connection to a receiver.");
}
void SetCommObject(std::shared_ptr<host::CommObject> clsCommObject) {
  Current().clsCommObject = std::move(clsCommObject);
}

host::OwnerForm& gOwnerForm() {
  return Require(Current().oOwnerForm, "The main window of Trellisar isn't there.");
}
void SetOwnerForm(std::shared_ptr<host::OwnerForm> oOwnerForm) {
  Current().oOwnerForm = std::move(oOwnerForm);
}

PictureLists& frmImages() {
  auto& frmShared = Current().frmImages;
  if (!frmShared) frmShared = forms::createObject<PictureLists>(progIDPictureLists);
  return *frmShared;
}

std::int16_t GetDeviceSlot() { return host::slotReceiverPorts; }

std::string GetDefaultSystemsFolder() { return gOwnerForm().GetDefaultSystemsFolder(); }

}  // namespace addin
