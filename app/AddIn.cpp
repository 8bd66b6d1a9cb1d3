#include "app/AddIn.h"

#include "host/Error.h"
#include "vmAOR/EntryPoints.h"

namespace app {
namespace {

constexpr const char* className = "AddInOrlena.IAddIn";

std::shared_ptr<host::IAddInContract> create() {
  static const bool registered = DllRegisterServer();
  std::shared_ptr<forms::Object> object;
  const bool created = registered && DllGetClassObject(className, object);
  auto contract = std::dynamic_pointer_cast<host::IAddInContract>(object);
  if (created && contract) return contract;
  throw host::Error(host::errCannotCreate,
                    std::string("The add-in \"") + className + "\" can't be created.");
}

}  // namespace

AddIn::AddIn(trellisar::Host& host) : host_(host), contract_(create()) {}

void AddIn::runOnNewSystem() { run(false); }

void AddIn::runOnOpenSystem() { run(true); }

void AddIn::run(bool useOpenFile) {
  contract_->IAddInContract_Load(host_.document(), host_.libraryManager(), host_.communication(),
                                 host_.smallPictures(), host_.largePictures(), host_.mainWindow());
  contract_->IAddInContract_UseOpenFile(useOpenFile);
  contract_->IAddInContract_Run(host_.mainWindow());
}

}  // namespace app
