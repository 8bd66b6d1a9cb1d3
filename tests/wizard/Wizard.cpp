#include "tests/wizard/Wizard.h"

#include <cstdlib>

#include "addin/modGlobals.h"
#include "forms/DropDownList.h"
#include "forms/ListView.h"
#include "forms/Paths.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "host/iTab.h"
#include "tests/support/Shipped.h"
#include "trellisar/compile/CompiledProgram.h"
#include "vmAOR/EntryPoints.h"

namespace tests {
namespace {

std::shared_ptr<addin::IAddIn> createAddIn() {
  DllRegisterServer();
  std::shared_ptr<forms::Object> object;
  DllGetClassObject("AddInOrlena.IAddIn", object);
  return std::dynamic_pointer_cast<addin::IAddIn>(object);
}

std::int32_t rowOf(const forms::ListView& list, const std::string& text) {
  for (std::int32_t row = 0; row < list.rowCount(); ++row) {
    if (list.text(row, 0) == text) return row;
  }
  throw std::runtime_error("The dialog does not offer " + text);
}

}  // namespace

Wizard::Wizard(trellisar::RecoveryOptions recovery)
    : application(desktop, forms::fromMachinePath(dataFolder())) {
  setenv("TRELLISAR_SYSTEMS", systems_.path().c_str(), 1);
  host = std::make_unique<trellisar::Host>(trellisar::HostOptions{
      .dataFolder = dataFolder(), .library = shippedLibrary(), .recovery = std::move(recovery)});
  addIn = createAddIn();
  load(nullptr);
}

Wizard::~Wizard() = default;

void Wizard::givenOpenSystem(const std::filesystem::path& file) {
  host->mainWindow()->FileOpen(forms::fromMachinePath(file), false);
  givenOpenDocument();
}

void Wizard::givenOpenDocument() {
  load(host->document());
  addIn->IAddInContract_UseOpenFile(true);
}

void Wizard::load(const std::shared_ptr<host::Document>& document) {
  addIn->IAddInContract_Load(document, host->libraryManager(), host->communication(),
                             host->smallPictures(), host->largePictures(), host->mainWindow());
}

void Wizard::run(const std::function<void()>& script) {
  desktop.whenShown("frmAddIn", [this, script](forms::Form& form) {
    window_ = &form;
    script();
    if (form.isVisible()) {
      addin::SetDocument(nullptr);  // so that it asks nothing
      form.unload();
    }
    window_ = nullptr;
  });
  host->mainWindow()->setUnsavedWork(addIn.get());
  addIn->IAddInContract_Run(host->mainWindow());
  host->mainWindow()->setUnsavedWork(nullptr);
}

forms::UserControl& Wizard::step(const std::string& name) const {
  auto& tabs = inWindow<forms::UserControl>("ctlTabs");
  for (std::int16_t i = 0; i < 10; ++i) {
    auto& step = dynamic_cast<forms::UserControl&>(tabs.control("ctl" + std::to_string(i)));
    if (dynamic_cast<host::iTab&>(step).iTab_GetTabName() == name) return step;
  }
  throw std::runtime_error("There is no step " + name);
}

std::string Wizard::currentStep() const {
  return inWindow<forms::UserControl>("ctlTabs").control("tabControl").shownText();
}

void Wizard::goTo(const std::string& name) {
  auto& list = inWindow<forms::UserControl>("ctlSteps");
  for (std::int16_t i = 0; i < 10; ++i) {
    auto& entry = list.control("cmdStep(" + std::to_string(i) + ")");
    if (entry.shownText() == name) return user.click(entry);
  }
  throw std::runtime_error("The list has no step " + name);
}

void Wizard::saveAndCompile() {
  clickInWindow("cmdSave");
  trellisar::DocumentData& data = host->document()->data();
  trellisar::storeCompiledProgram(data, trellisar::compileProgram(data));
}

void Wizard::enter(const std::string& textBox, const std::string& text) {
  user.replaceText(control<forms::TextBox>(textBox), text);
}

void Wizard::chooseDisplay(const std::string& device, const std::string& button) {
  desktop.whenShown("DeviceDialog", [this, device](forms::Form& dialog) {
    auto& list = dynamic_cast<forms::ListView&>(dialog.control("lvwDevices"));
    user.select(list, rowOf(list, device));
    user.click(dialog.control("cmdOK"));
  });
  click(button);
}

void Wizard::selectCommand(const std::string& selector, const std::string& command) {
  auto& list = dynamic_cast<forms::DropDownList&>(
      control<forms::UserControl>(selector).control("cboCommands"));
  user.select(list, command.empty() ? 0 : list.find(command));
}

std::shared_ptr<host::Device> Wizard::device(const std::string& name) const {
  return document().get_Devices()->FindByName(name, document().get_ControlSystem()->get_Name());
}

std::string Wizard::settingsBlock() const {
  return document().get_SystemInfo()->GetAddInAttributes("Orlena");
}

std::filesystem::path Wizard::systemFile(const std::string& name) const {
  return systemsFolder() / name / (name + ".tsy");
}

}  // namespace tests
