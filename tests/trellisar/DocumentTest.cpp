#include "forms/Components.h"
#include "tests/trellisar/World.h"

namespace tests {
namespace {

class DocumentTest : public HostTest {
 protected:
  DocumentTest() { openTemplate(); }

  trellisar::Document& document() { return *host.document(); }
  std::int16_t receiver() { return data().controlSystem; }

  /// "modified, current" and so on, after both marks were set to "unmodified, current" and `act`
  /// has run.
  template <typename Act>
  std::string marksAfter(Act&& act) {
    data().isModified = false;
    data().programIsCurrent = true;
    act();
    return std::string(data().isModified ? "modified" : "unmodified") + ", " +
           (data().programIsCurrent ? "current" : "not current");
  }

  std::int16_t addModule(const std::string& shortName, std::shared_ptr<host::Device>& device) {
    host::ModuleList list;
    for (const auto& entry : host.libraryManager()->get_Modules()) {
      if (entry->get_ShortName() != shortName) continue;
      auto draft = forms::createObject<host::Device>(host::progIDDevice);
      draft->CreateFromLibrary(entry, device->get_ID());
      list.Add(draft, shortName);
    }
    return document().AddModules(list, device);
  }
};

TEST_F(DocumentTest, MarksWhatWasChanged) {
  const std::string nothing = "unmodified, current", label = "modified, current",
                    program = "unmodified, not current", structure = "modified, not current";
  std::int16_t display = 0;
  EXPECT_EQ(marksAfter([&] { display = addDisplay(); }), structure);
  const auto device = document().get_Devices()->Item(display);
  EXPECT_EQ(marksAfter([&] { device->put_Label("LABEL"); }), label);
  EXPECT_EQ(marksAfter([&] { device->put_Label("LABEL"); }), nothing);
  EXPECT_EQ(marksAfter([&] {
              device->put_ShowInTree(false);
              device->put_PowerControlType(host::powerDiscrete);
              document().put_Name("Other");
              document().put_Path("\\other\\");
              document().get_SystemInfo()->SetAddInAttributes("Orlena", "x");
              document().get_SystemInfo()->put_LastApplication("Orlena");
              window().SetDeviceIPAddress(device->get_DeviceHandle(), "127.0.0.1");
              signal(receiver(), "Powered_On")->get_Options()->EnableEvents(host::eventsAll, true);
              static_cast<void>(document().get_Reports()->get_BillOfMaterials()->RemoveItem(99));
            }),
            nothing);

  const auto on = preset("System Power On");
  EXPECT_EQ(marksAfter([&] { on->ClearSteps(); }), nothing) << "it was empty";
  EXPECT_EQ(marksAfter([&] { press(*on, display, "Power_On"); }), program);
  const auto knob = document().get_ControlSystem()->get_Properties()->Item("Volume Knob Control");
  EXPECT_EQ(marksAfter([&] { EXPECT_TRUE(knob->SetValue("0d")); }), nothing);
  EXPECT_EQ(marksAfter([&] { EXPECT_TRUE(knob->SetValue("1d")); }), program);
  EXPECT_EQ(marksAfter([&] { EXPECT_FALSE(knob->SetValue("2d")); }), nothing);

  std::string message;
  const auto change = [&] { document().ChangeControlSystem(841, "", 0, message); };
  EXPECT_EQ(marksAfter(change), structure);
  EXPECT_EQ(marksAfter(change), nothing);
  EXPECT_EQ(marksAfter([&] {
              static_cast<void>(document().RemoveDevice(display, host::removalOfDevice));
            }),
            structure);
  EXPECT_EQ(marksAfter([&] { document().SetModified(true, false, true); }), label);
  EXPECT_EQ(marksAfter([&] { document().MarkChanged(); }), structure);
  EXPECT_EQ(marksAfter([&] {
              document().MarkChanged();
              document().MarkUnchanged();
            }),
            program);
}

TEST_F(DocumentTest, RemovedDeviceTakesAllThatNamesItAlong) {
  const std::int16_t display = addDisplay();
  auto device = document().get_Devices()->ItemByID(display);
  ASSERT_EQ(addModule("PWRTIMEOUT", device), 1);
  const std::int16_t module = device->get_Modules().front()->get_ID();
  const std::int16_t relay = add("Power Relay", host::entryPowerRelay);

  const auto on = preset("System Power On");
  press(*on, relay, "Relay_Close");
  press(*on, display, "Power_On");
  append(*on, host::stepDelay, 0, module, "", "100");
  const auto outer = branch(*on, receiver(), "Powered_On");
  press(*outer, display, "Power_On");
  const auto tested = branch(*outer, module, "Warming_Up");
  press(*tested, relay, "Relay_Open");
  const auto event = signal(receiver(), "Powered_On")->GetEvent(0)->get_Preset();
  press(*event, display, "Power_On");
  const auto fed = signal(receiver(), "", "Lock");
  fed->put_SourceType(host::sourceSignal);
  fed->put_SourceDeviceID(module);
  fed->put_SourceSignalName("Warming_Up");
  press(*signal(module, "Warming_Up")->GetEvent(0)->get_Preset(), relay, "Relay_Open");
  auto bill = document().get_Reports()->get_BillOfMaterials();
  EXPECT_TRUE(bill->AddItem(0, 0, 4711, display));

  EXPECT_TRUE(document().RemoveDevice(display, host::removalOfDevice));

  EXPECT_EQ(trellisar::listing(data())["presets"][0]["steps"].dump(),
            R"([{"kind":1,"target_type":0,"target":"Power Relay","signal":"Relay_Close"},)"
            R"({"kind":9,"when":{"device":"Receiver","type":5,"signal":"Powered_On","state":"",)"
            R"("compare":0,"value":1},"steps":[{"kind":1,"target_type":0,"target":"Power Relay",)"
            R"("signal":"Relay_Open"}]}])");
  EXPECT_EQ(event->get_StepCount(), 0);
  EXPECT_EQ(fed->get_SourceType(), host::sourceEvents);
  EXPECT_EQ(document().get_Devices()->ItemByID(module), nullptr);
  EXPECT_NE(bill->Item(-display), nullptr) << "the bill is left alone";
  EXPECT_EQ(device->get_ID(), 0);
  EXPECT_THROW(static_cast<void>(device->get_Name()), host::Error);
  EXPECT_GT(addDisplay(), module) << "an id is never given twice";

  EXPECT_FALSE(document().RemoveDevice(0, host::removalOfDevice));
  EXPECT_EQ(document().GetLastError(), "Device 0 is not in the system.");
  EXPECT_FALSE(document().RemoveDevice(receiver(), host::removalOfDevice));
  EXPECT_EQ(document().GetLastError(), "\"Receiver\" is the control system and can't be removed.");
}

TEST_F(DocumentTest, StepsAreRefusedOnlyWithoutTheirTarget) {
  const auto on = preset("System Power On");
  EXPECT_FALSE(press(*on, 999, "Power_On"));
  EXPECT_FALSE(append(*on, host::stepCallPreset, host::targetPreset, 999, ""));
  EXPECT_FALSE(append(*on, host::stepDigital, host::targetTouchpanel, receiver(), "Lock"));
  EXPECT_FALSE(append(*on, 2, host::targetDevice, receiver(), "Lock"));
  EXPECT_TRUE(press(*on, receiver(), "No_Such_Command"));
  on->ClearSteps();

  const auto step = forms::createObject<host::Step>(host::progIDStep);
  EXPECT_TRUE(step->Init(host::stepDigital, host::targetDevice, 0, 999, "x")) << "in no preset yet";
  EXPECT_FALSE(on->InsertStep(1, step));
  EXPECT_FALSE(on->InsertStep(2, forms::createObject<host::Step>(host::progIDStep)));
  const auto free = forms::createObject<host::Step>(host::progIDStep);
  EXPECT_TRUE(on->InsertStep(1, free));
  EXPECT_FALSE(on->InsertStep(1, free)) << "it stands there already";

  auto deep = preset("System Power Off");
  for (int depth = 0; depth < 20; ++depth) deep = branch(*deep, receiver(), "Powered_On");
  EXPECT_FALSE(append(*deep, host::stepConditional, host::targetNone, 0, ""));
  EXPECT_NO_THROW(trellisar::systemFileText(data()));
}

TEST_F(DocumentTest, CommandNamesComeFromTheMapBeforeTheDriver) {
  const auto device = document().get_Devices()->Item(addDisplay());
  const std::string driver = device->GetDefaultCommandName(host::scOn);
  ASSERT_FALSE(driver.empty());
  EXPECT_EQ(device->GetCommandName("166"), driver);

  const auto entry = std::make_shared<host::StandardCommand>();
  entry->put_StandardID(host::scOn);
  std::string warning;
  device->AddStandardCommand(entry, warning);
  EXPECT_FALSE(warning.empty());
  EXPECT_EQ(device->GetCommandName("166"), "") << "an empty entry answers empty";
  EXPECT_EQ(device->GetDefaultCommandName(host::scOn), driver);

  entry->put_CommandName("Menu");
  device->AddStandardCommand(entry, warning);
  EXPECT_EQ(warning, "");
  bool changed = true;
  device->SetCommandName("166", "Menu", changed);
  EXPECT_FALSE(changed);
  device->SetCommandName("165", "Freeze", changed);
  EXPECT_TRUE(changed);
  EXPECT_EQ(device->GetCommandName("165"), "Freeze");
}

TEST_F(DocumentTest, ControlSystemChangesItsModelAndNothingElse) {
  const auto before = document().get_ControlSystem();
  const std::int16_t handle = before->get_DeviceHandle();
  std::string message;
  document().ChangeControlSystem(host::modelReceiverThreeInputs, "", 0, message);
  EXPECT_EQ(message, "");
  EXPECT_EQ(before->get_ModelID(), host::modelReceiverThreeInputs);
  EXPECT_EQ(before->get_DeviceHandle(), handle);
  press(*signal(receiver(), "Input3_Error")->GetEvent(0)->get_Preset(), receiver(), "Lock");
  press(*preset("System Lock"), receiver(), "Sing");
  press(*preset("System Lock"), receiver(), "Select_Input_3");

  document().ChangeControlSystem(host::modelReceiverOneInput, "", 0, message);
  EXPECT_EQ(message,
            "The program uses what the receiver's model OL-RX1 does not have:\r\n\r\npreset "
            "\"System Lock\", step 2: the device \"Receiver\" has no command \"Select_Input_3\".");
  EXPECT_FALSE(before->HasSignal("Input3_Error", host::directionOutput, host::signalDigital));

  document().ChangeControlSystem(7, "", 0, message);
  expectHas(message, "no receiver of model 7");
  EXPECT_EQ(before->get_ModelID(), host::modelReceiverOneInput);
}

TEST_F(DocumentTest, BillAndPanelsTellWhatTheyCantAdd) {
  const auto bill = document().get_Reports()->get_BillOfMaterials();
  const std::int16_t display = addDisplay();
  const auto refusal = [&](std::int32_t part, std::int16_t device) {
    EXPECT_FALSE(bill->AddItem(0, 0, part, device));
    return document().GetLastError();
  };
  expectHas(refusal(0, display), "\"Display Device\" can't be added");
  expectHas(refusal(20711, 999), "there is no device 999");
  EXPECT_TRUE(bill->AddItem(0, 0, 20711, display));
  EXPECT_EQ(refusal(20711, display), "\"Display Device\" is in the bill of materials already.");
  EXPECT_EQ(window().AddInterface(7, receiver(), ""), nullptr);
  EXPECT_EQ(document().GetLastError(), "The device library has no user interface of model 7.");
  EXPECT_EQ(window().AddInterface(host::modelFenlet, 999, ""), nullptr);
  expectHas(document().GetLastError(), "there is no device 999");
  EXPECT_TRUE(bill->RemoveItem(-display));
}

}  // namespace
}  // namespace tests
