#include "vmAOR/Classes.h"

#include <memory>
#include <string>
#include <vector>

#include "addin/Pictures.h"
#include "addin/ProgramBuilder.h"
#include "addin/TouchpanelWindow.h"
#include "addin/WizardWindow.h"
#include "forms/Components.h"
#include "generator/Generate.h"
#include "shell/frmAddIn.h"
#include "shell/frmBuildPanels.h"
#include "steps/TabAudioControl.h"
#include "steps/TabDisplay.h"
#include "steps/TabDisplayOptions.h"
#include "steps/TabFinish.h"
#include "steps/TabLocation.h"
#include "steps/TabOrigination.h"
#include "steps/TabPower.h"
#include "steps/TabPowerOnOffLockout.h"
#include "steps/TabRoomOptions.h"
#include "steps/TabStart.h"
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

std::vector<ClassEntry> objectClasses() {
  return {
      objectClass<shell::frmAddIn, addin::WizardWindow>(addin::progIDWizardWindow),
      objectClass<shell::frmBuildPanels, addin::TouchpanelWindow>(addin::progIDTouchpanelWindow),
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
      step<steps::TabAudioControl>("AddInOrlena.TabAudioControl"),
      step<steps::TabPower>("AddInOrlena.TabPower"),
      step<steps::TabPowerOnOffLockout>("AddInOrlena.TabPowerOnOffLockout"),
      step<steps::TabDisplayOptions>("AddInOrlena.TabDisplayOptions"),
      step<steps::TabOrigination>("AddInOrlena.TabOrigination"),
      step<steps::TabRoomOptions>("AddInOrlena.TabRoomOptions"),
      step<steps::TabFinish>("AddInOrlena.TabFinish"),
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
