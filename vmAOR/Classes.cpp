#include "vmAOR/Classes.h"

#include <memory>
#include <string>
#include <vector>

#include "addin/Pictures.h"
#include "addin/ProgramBuilder.h"
#include "addin/WizardWindow.h"
#include "forms/Components.h"
#include "generator/Generate.h"
#include "host/Numbers.h"
#include "shell/frmAddIn.h"
#include "steps/TabDisplay.h"
#include "steps/TabLocation.h"
#include "steps/TabPower.h"
#include "steps/TabStart.h"
#include "steps/WizardStep.h"
#include "steps/frmImages.h"
#include "steps/frmPreview.h"
#include "steps/frmVideoTestPattern.h"
#include "vmAOR/LivingObjects.h"

namespace vmAOR {
namespace {

struct ClassEntry {
  std::string programId;
  forms::ObjectFactory factory;
};

struct StepEntry {
  std::string programId;
  forms::ControlFactory factory;
};

/// The factory of a class that is asked for as the interface it implements.
template <typename Class, typename Interface>
ClassEntry objectClass(const char* programId) {
  return {programId, [] {
            std::shared_ptr<forms::Object> object =
                std::static_pointer_cast<Interface>(std::make_shared<Class>());
            livingObjects().add(object);
            return object;
          }};
}

template <typename Step>
StepEntry step(const char* programId) {
  return {programId, [](forms::Container& container, const std::string& name) {
            return std::make_unique<Step>(container, name);
          }};
}

StepEntry emptyStep(const char* programId, const char* tabName, std::int16_t helpTopic) {
  return {programId, [=](forms::Container& container, const std::string& name) {
            return std::make_unique<steps::TabEmpty>(container, name, tabName, helpTopic);
          }};
}

std::vector<ClassEntry> objectClasses() {
  return {
      objectClass<shell::frmAddIn, addin::WizardWindow>(addin::progIDWizardWindow),
      objectClass<generator::Generate, addin::ProgramBuilder>(addin::progIDProgramBuilder),
      objectClass<steps::frmImages, addin::PictureLists>(addin::progIDPictureLists),
      objectClass<steps::frmPreview, addin::PictureWindow>(addin::progIDPreview),
      objectClass<steps::frmVideoTestPattern, addin::PictureWindow>(addin::progIDVideoTestPattern),
  };
}

std::vector<StepEntry> stepClasses() {
  return {
      step<steps::TabStart>("AddInOrlena.TabStart"),
      step<steps::TabLocation>("AddInOrlena.TabLocation"),
      step<steps::TabDisplay>("AddInOrlena.TabDisplay"),
      emptyStep("AddInOrlena.TabAudioControl", "Audio Control", host::helpAudioControlTab),
      step<steps::TabPower>("AddInOrlena.TabPower"),
      emptyStep("AddInOrlena.TabPowerOnOffLockout", "Power On/Off Lockout",
                host::helpPowerOnOffLockout),
      emptyStep("AddInOrlena.TabDisplayOptions", "Display Options", host::helpDisplayOptionsTab),
      emptyStep("AddInOrlena.TabOrigination", "Orlena Transmitters", host::helpOriginationPointTab),
      emptyStep("AddInOrlena.TabRoomOptions", "Room Options", host::helpRoomOptions),
      emptyStep("AddInOrlena.TabFinish", "Finish", host::helpFinishTab),
  };
}

}  // namespace

void registerClasses() {
  for (auto& entry : objectClasses()) forms::registerObject(entry.programId, entry.factory);
  for (auto& entry : stepClasses()) forms::registerControl(entry.programId, entry.factory);
}

void unregisterClasses() {
  for (const auto& entry : objectClasses()) forms::unregister(entry.programId);
  for (const auto& entry : stepClasses()) forms::unregister(entry.programId);
}

}  // namespace vmAOR
