#include <algorithm>
#include <map>
#include <set>

#include "base/FileIO.h"
#include "base/Json.h"
#include "forms/ListBox.h"
#include "forms/ProgressBar.h"
#include "host/Error.h"
#include "program/ProgramText.h"
#include "tests/trellisar/World.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/document/Provisioning.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using base::readFile;

class CompileTest : public HostTest {
 protected:
  CompileTest() {
    openTemplate();
    display = addDisplay();
    receiver = data().controlSystem;
    press(*preset("Display Power On"), display, "Power_On", "10");
    const auto inner = branch(*preset("System Power On"), receiver, "Powered_On");
    append(*inner, host::stepDelay, host::targetDevice, display, "", "500");
    append(*inner, host::stepCallPreset, host::targetPreset, preset("Display Power On")->get_ID(),
           "");
    saveAsRoom();
  }

  fs::path inRoom(const std::string& name) const { return folder / "Room" / name; }
  bool build() { return window().ShowCreateProgramDialog(cancelled); }

  std::int16_t display = 0;
  std::int16_t receiver = 0;
  bool cancelled = true;
};

TEST_F(CompileTest, StoresTheProgramAndSaysSoInTheSavedFile) {
  ASSERT_TRUE(build());
  EXPECT_FALSE(cancelled);
  const auto info = host.document()->get_SystemInfo();
  EXPECT_TRUE(info->get_ProgramIsCurrent());
  EXPECT_EQ(info->get_CompiledProgramFile(), folder.inside("Room\\Room.tsp"));
  EXPECT_FALSE(host.document()->get_Modified());

  const auto saved = trellisar::readSystemFile(inRoom("Room.tsy"), nullptr);
  EXPECT_TRUE(saved->programIsCurrent);
  EXPECT_EQ(trellisar::storedProgram(*saved), readFile(inRoom("Room.tsp")));
  EXPECT_EQ(trellisar::compileProgram(*saved), readFile(inRoom("Room.tsp")))
      << "the same system gives the same bytes";

  std::string text = readFile(inRoom("Room.tsp"));
  const auto program = base::Json::parse(text.substr(text.find('\n')));
  const auto& inner = program["presets"][0]["steps"][0];
  EXPECT_EQ(inner["when"]["unit"], program["receiver"]);
  EXPECT_EQ(inner["steps"][0].dump(), R"({"do":"wait","hundredths":500})");
  EXPECT_EQ(inner["steps"][1].dump(), R"({"do":"call","preset":2})");
  EXPECT_EQ(program["presets"][2]["name"], "Display Power On");
  const std::size_t unit = program["presets"][2]["steps"][0]["unit"];
  EXPECT_EQ(program["units"][unit]["name"], "Display Device");

  const std::string whole = text;
  text[text.size() / 2] ^= 1;
  writeFile(inRoom("Room.tsp"), text);
  EXPECT_FALSE(info->get_ProgramIsCurrent());
  EXPECT_THROW(static_cast<void>(trellisar::storedProgram(*saved)), host::Error);

  writeFile(inRoom("Room.tsp"), whole);
  EXPECT_TRUE(info->get_ProgramIsCurrent());
  data().find(display)->port = 3;
  info->put_ProgramIsCurrent(true);
  EXPECT_FALSE(info->get_ProgramIsCurrent()) << "a change that nobody has marked";
}

TEST_F(CompileTest, ProgramKnowsWhereEveryDeviceIsAndWhatFeedsASignal) {
  constexpr std::int16_t fallowmereRoll = 2002;
  add("Power Relay", host::entryPowerRelay);
  add("Screen", fallowmereRoll);
  const std::int16_t kestrum = add("Kestrum Interface", host::entryKestrum);
  window().SetDeviceIPAddress(data().find(kestrum)->handle, "127.0.0.1");
  const auto fed = signal(receiver, "", "Lock");
  fed->put_SourceType(host::sourceSignal);
  fed->put_SourceDeviceID(receiver);
  fed->put_SourceSignalName("Powered_On");

  const std::string text = trellisar::compileProgram(data());
  const auto program = base::Json::parse(text.substr(text.find('\n')));
  std::map<std::string, std::string> places;
  std::set<std::string> ports;
  for (const auto& unit : program["units"]) {
    const std::string port = unit["port"];
    places[unit["name"]] = port + " " + std::string(unit["address"]);
    EXPECT_TRUE(port.empty() || ports.insert(port).second) << port << " is taken twice";
  }
  EXPECT_EQ(places["Kestrum Interface"], "IP-ID 03 127.0.0.1");
  EXPECT_EQ(places["Power Relay"], "Relay 1 ");
  EXPECT_EQ(places["Screen"], "Relay 2 ");
  EXPECT_EQ(program["sources"].dump(),
            R"([{"unit":0,"input":"Lock","output":"","type":1,"from":0,"signal":"Powered_On"}])");
}

TEST_F(CompileTest, ProgramKnowsWhatItsMachineNeeds) {
  auto definition = std::make_shared<trellisar::Definition>(*data().find(display)->definition);
  definition->timing = {25, 90, 20};
  definition->commands.front().send = "\x02PON\r";
  data().find(display)->definition = definition;
  const auto own = std::make_shared<host::StandardCommand>();
  own->put_StandardID(host::scVideo1);
  own->put_CommandName("Composite");
  data().find(display)->standardCommands.push_back(own);
  auto panel = window().AddInterface(host::modelFenlet, receiver, "");
  ASSERT_TRUE(window().CreateTouchpanels(panel));

  const auto program = program::readProgram(trellisar::compileProgram(data()), "Room.tsp");
  std::map<std::string, const program::Unit*> units;
  for (const program::Unit& unit : program.units) units[unit.name] = &unit;
  const program::Unit& compiled = *units.at("Display Device");
  EXPECT_EQ(compiled.timing.coolDown, 90);
  EXPECT_EQ(compiled.inputs.front().send, "\x02PON\r");
  EXPECT_EQ(compiled.standardCommands.at(host::scVideo1), "Composite");
  EXPECT_EQ(compiled.standardCommands.at(host::scOn), "Power_On");

  std::map<std::string, program::Button> buttons;
  for (const program::Page& page : units.at("Fenlet")->pages) {
    for (const program::Button& button : page.buttons) buttons[button.text] = button;
  }
  EXPECT_EQ(&program.units.at(static_cast<std::size_t>(buttons["DISPLAY\r\nON"].unit)), &compiled);
  EXPECT_EQ(buttons["DISPLAY\r\nON"].command, "Power_On");
  EXPECT_EQ(buttons["SYSTEM\r\nON"].preset, 0);
}

TEST_F(CompileTest, EverythingThatIsNotThereIsAnErrorWithItsPlace) {
  const auto step = [this](const char* name, std::size_t place) -> trellisar::StepData& {
    return *data().findPreset(name)->steps.at(place);
  };
  const std::int16_t relay = add("Power Relay", host::entryPowerRelay);
  press(*preset("System Lock"), display, "Dance");
  append(*preset("System Lock"), host::stepAnalog, host::targetDevice, display, "Power_On", "1d");
  press(*preset("System Lock"), relay, "Relay_Open");
  step("System Lock", 2).target = 999;
  auto& inner = *step("System Power On", 0).branch;
  inner.steps[1]->target = 999;
  branch(*preset("System Unlock"), receiver, "No_Signal");
  branch(*preset("System Unlock"), 999, "Powered_On");
  branch(*preset("System Unlock"), receiver, "Powered_On");
  step("System Unlock", 2).condition.reset();
  press(*signal(receiver, "Powered_On")->GetEvent(host::eventLow)->get_Preset(), receiver, "Sing");
  auto& fed = *data().signal(*data().find(receiver), "", "Lock", host::signalDigital);
  fed.sourceType = host::sourceSignal;
  fed.sourceDevice = display;
  fed.sourceSignal = "Whistle";
  const auto module = std::make_shared<trellisar::DeviceData>();
  constexpr std::int16_t powerTimeout = 301;
  module->definition = shippedLibrary()->findModule(powerTimeout);
  module->shortName = "PWRTIMEOUT";
  const auto added = trellisar::addModule(data(), data().find(display), *module);
  added->slots.at(0)->command = "Power_On";
  added->slots.at(1)->command = "Hum";

  const std::vector<std::string> expected = {
      "preset \"System Power On\", step 1.2: it calls a preset that is not in the system.",
      "preset \"System Lock\", step 1: the device \"Display Device\" has no command \"Dance\".",
      "preset \"System Lock\", step 2: the device \"Display Device\" has no command \"Power_On\".",
      "preset \"System Lock\", step 3: its device is not in the system.",
      "preset \"System Unlock\", step 1: it tests \"No_Signal\", which the device \"Receiver\" "
      "does not have.",
      "preset \"System Unlock\", step 2: it tests a device that is not in the system.",
      "preset \"System Unlock\", step 3: it has no condition.",
      "event \"Powered_On\" of \"Receiver\" goes off, step 1: the device \"Receiver\" has no "
      "command \"Sing\".",
      "source of \"Lock\" of \"Receiver\": the device \"Display Device\" has no signal "
      "\"Whistle\".",
      "module \"Display Device/PWRTIMEOUT\", slot \"Power_Off\": the device \"Display Device\" has "
      "no command \"Hum\".",
  };
  EXPECT_EQ(trellisar::programErrors(data()), expected);

  const std::string old = readFile(inRoom("Room.tsy"));
  std::vector<std::string> shown;
  desktop.whenShown("CompileDialog", [&](forms::Form& form) {
    auto& list = in<forms::ListBox>(form, "lstErrors");
    for (std::int32_t i = 0; i < list.count(); ++i) shown.push_back(list.text(i));
    user.click(form.control("cmdClose"));
  });
  EXPECT_FALSE(build());
  EXPECT_FALSE(cancelled);
  EXPECT_EQ(shown, expected);
  EXPECT_EQ(readFile(inRoom("Room.tsy")), old);
  EXPECT_FALSE(fs::exists(inRoom("Room.tsp")));
}

TEST_F(CompileTest, AnErrorNamesThePageThatMendsItAndLeadsThere) {
  struct Guide : host::ProgramGuide {
    std::string PageOf(const host::ProgramPlace& place) const override {
      return place.iDeviceID == 0 ? "" : "Page of " + place.strPreset;
    }
    void ShowPageOf(const host::ProgramPlace& place) override { shown = place; }
    host::ProgramPlace shown;
  } guide;
  window().setGuide(&guide);
  press(*preset("System Lock"), display, "Dance");
  press(*preset("System Lock"), display, "Dance");
  for (const auto& one : data().presets) {
    if (one->name == "System Lock") one->steps.back()->target = 999;
  }
  desktop.whenShown("CompileDialog", [&](forms::Form& form) {
    auto& list = in<forms::ListBox>(form, "lstErrors");
    const std::string first =
        "preset \"System Lock\", step 1: the device \"Display Device\" has no command \"Dance\". "
        "It is mended on the page \"Page of System Lock\".";
    EXPECT_EQ(list.text(0), first);
    user.click(form.control("cmdCopy"));
    EXPECT_EQ(desktop.copiedText(), first + "\n" + list.text(1) + "\n");
    user.select(list, 1);
    EXPECT_FALSE(form.control("cmdGoTo").isVisible()) << "none of the pages mends it";
    user.select(list, 0);
    user.click(form.control("cmdGoTo"));
  });
  EXPECT_FALSE(build());
  EXPECT_EQ(guide.shown, (host::ProgramPlace{.iDeviceID = display, .strPreset = "System Lock"}));
}

TEST_F(CompileTest, CancelAndAFailedWriteLeaveEverythingAsItWas) {
  ASSERT_TRUE(build());
  press(*preset("System Lock"), receiver, "Lock");
  const std::string system = readFile(inRoom("Room.tsy"));
  const std::string program = readFile(inRoom("Room.tsp"));
  application.runLater([&] { user.press(forms::keys::escape); });
  EXPECT_FALSE(build());
  EXPECT_TRUE(cancelled);

  // A folder in the place of the system's file: the program can be written, the system can't.
  fs::rename(inRoom("Room.tsy"), inRoom("Room.old"));
  fs::create_directory(inRoom("Room.tsy"));
  desktop.whenShown("CompileDialog", [&](forms::Form& form) {
    expectHas(in<forms::ListBox>(form, "lstErrors").text(0), "a folder stands where the file");
    user.press(forms::keys::escape);
  });
  EXPECT_FALSE(build());
  EXPECT_FALSE(cancelled);
  EXPECT_FALSE(data().programIsCurrent);
  EXPECT_EQ(readFile(inRoom("Room.old")), system);
  EXPECT_EQ(readFile(inRoom("Room.tsp")), program);
}

TEST_F(CompileTest, ProgramThatStayedBehindIsMadeAnew) {
  ASSERT_TRUE(build());
  ASSERT_TRUE(window().FileSaveAs(folder.inside("Hall\\Hall"), "Orlena"));
  EXPECT_FALSE(data().programIsCurrent) << "the program lies in the old folder";
  fs::remove(inRoom("Room.tsp"));
  window().FileOpen(folder.inside("Room\\Room.tsy"), true);
  EXPECT_FALSE(data().programIsCurrent);
  EXPECT_THROW(static_cast<void>(trellisar::storedProgram(data())), host::Error);
}

}  // namespace
}  // namespace tests
