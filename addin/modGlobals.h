#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "addin/Pictures.h"
#include "host/CommObject.h"
#include "host/Document.h"
#include "host/Library.h"
#include "host/OwnerForm.h"

/// One instance of each for the thread: they hang from its Application. The accessors raise
/// host::Error 91 while theirs is empty, so that a click without a system is a message.
namespace addin {

class IAddIn;

/// Each add-in object of the thread calls these at its start and at its end. The last one takes all
/// that the globals hold with it, so that the component can be unloaded.
void AddInCreated();
void AddInEnded();

/// The add-in that runs, or ran last; it is not kept alive.
IAddIn& gAddIn();
void SetAddIn(const std::shared_ptr<IAddIn>& clsAddIn);

host::Document& gDocument();
bool IsDocumentSet();
/// Null clears it.
void SetDocument(std::shared_ptr<host::Document> clsDocument);

host::LibraryManager& gLibraryManager();
bool IsLibraryManagerSet();
void SetLibraryManager(std::shared_ptr<host::LibraryManager> clsLibraryManager);

host::CommObject& gCommObject();
void SetCommObject(std::shared_ptr<host::CommObject> clsCommObject);

host::OwnerForm& gOwnerForm();
void SetOwnerForm(std::shared_ptr<host::OwnerForm> oOwnerForm);

/// Created on first use.
PictureLists& frmImages();

/// The slot that every added device and interface passes.
std::int16_t GetDeviceSlot();
/// The host's folder for systems; it ends in a backslash.
std::string GetDefaultSystemsFolder();

}  // namespace addin
