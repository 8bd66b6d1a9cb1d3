#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "forms/ImageList.h"
#include "forms/Object.h"
#include "host/CommObject.h"
#include "host/Document.h"
#include "host/Library.h"
#include "host/OwnerForm.h"

namespace host {

/// What the host asks of an add-in, made by its class name. The listing members answer at any time.
class IAddInContract : public forms::Object {
 public:
  virtual void IAddInContract_Load(const std::shared_ptr<Document>& clsDocument,
                                   const std::shared_ptr<LibraryManager>& clsLibraryManager,
                                   const std::shared_ptr<CommObject>& clsCommObject,
                                   const forms::ImageList& clsListImagesSmall,
                                   const forms::ImageList& clsListImagesLarge,
                                   const std::shared_ptr<OwnerForm>& oOwnerForm) = 0;
  /// Returns when the add-in's window has closed.
  virtual void IAddInContract_Run(const std::shared_ptr<OwnerForm>& oOwnerForm) = 0;
  virtual std::string IAddInContract_Title() const = 0;
  virtual std::string IAddInContract_ClassName() const = 0;
  virtual std::string IAddInContract_GroupName() const = 0;
  virtual std::string IAddInContract_Description() const = 0;
  virtual std::int16_t IAddInContract_Icon() const = 0;  // place in the small list of pictures
  virtual bool IAddInContract_PreviewAvailable() const = 0;
  virtual void IAddInContract_ShowPreview() = 0;
  virtual bool IAddInContract_ShowOnNewSystem() const = 0;
  virtual std::string IAddInContract_GetHelpFile() const = 0;
  virtual bool IAddInContract_EditInCorvaner() const = 0;
  virtual std::int16_t IAddInContract_StartupMode() const = 0;
  virtual void IAddInContract_StartupMode(std::int16_t iMode) = 0;
  /// True: the next run works on the document that was handed over; False: it starts a new one.
  virtual void IAddInContract_UseOpenFile(bool bUseOpenFile) = 0;
  virtual std::int32_t IAddInContract_HwndAddIn() const = 0;  // 0: there is no window
};

}  // namespace host
