#include <map>

#include "forms/Text.h"
#include "host/ErrorLog.h"
#include "tests/trellisar/World.h"
#include "trellisar/panels/PanelState.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using trellisar::readPanelProject;

class PanelTest : public HostTest {
 protected:
  PanelTest() {
    openTemplate();
    data().name = "Room";
    data().folder = folder.inside("");
    panel = window().AddInterface(host::modelFenlet, data().controlSystem, "");
    manager->SetTemplatePrefix("[Orlena]");
    manager->SetIncludeDefaultPages(false);
    manager->SetIncludeSharedPages(false);
    manager->get_Projects()->OnStartBuild.connect([this] { heard.push_back("start"); });
    manager->get_ErrorLog()->OnAboutToAddError.connect(
        [this](const std::shared_ptr<host::clsErrorItem>& item, bool&) {
          heard.push_back(item->get_Message());
        });
  }

  fs::path file() const { return folder / "Fenlet.tpj"; }
  trellisar::DeviceData& panelData() { return *data().panels.front(); }
  /// Saves the system and asks another host with this data.
  bool isBuiltInHostOf(const fs::path& dataFolder) {
    EXPECT_TRUE(window().FileSaveAs(folder.inside("Room\\Room"), "Orlena"));
    trellisar::Host other({.dataFolder = dataFolder, .library = shippedLibrary()});
    const auto opened = other.mainWindow()->FileOpen(folder.inside("Room\\Room.tsy"), true);
    return opened->get_Touchpanels()->Items().front()->get_ProjectBuilt();
  }

  std::shared_ptr<host::UIManager> manager = window().GetUIMgr();
  std::shared_ptr<host::Touchpanel> panel;
  std::vector<std::string> heard;
};

TEST_F(PanelTest, ProjectIsMadeFromTheTemplateAndTheRoom) {
  addDisplay();
  ASSERT_TRUE(window().CreateTouchpanels(panel));
  EXPECT_TRUE(panel->get_ProjectBuilt());
  ASSERT_GE(heard.size(), 2u);
  EXPECT_EQ(heard[0], "start");
  EXPECT_EQ(heard[1], "Making the project of \"Fenlet\"");

  auto project = readPanelProject(file());
  ASSERT_EQ(project.pages.size(), 2u) << "no default and no shared page";
  auto* page = project.findPage("[Equipment Room] [Receiver]");
  ASSERT_NE(page, nullptr);
  std::map<std::string, std::string> commands;
  for (const auto& object : page->objects) commands[object.text] = object.command;
  EXPECT_TRUE(commands.contains("INPUT\r\nSELECTED"));
  EXPECT_FALSE(commands.contains("INPUT 2\r\nSELECTED")) << "the receiver has one input";
  EXPECT_FALSE(commands.contains("SCREEN\r\nUP")) << "there is no screen";
  EXPECT_EQ(commands["DISPLAY\r\nON"], "Power_On");
  EXPECT_EQ(base::readFile(file()), trellisar::panelProjectText(project));

  manager->SetIncludeDefaultPages(true);
  manager->SetIncludeSharedPages(true);
  ASSERT_TRUE(window().CreateTouchpanels(panel));
  EXPECT_EQ(readPanelProject(file()).pages.size(), 4u);
}

TEST_F(PanelTest, DeviceWithoutAStandardCommandGivesAWarningInTheList) {
  const auto display = data().find(addDisplay());
  const auto lacking = std::make_shared<trellisar::Definition>(*display->definition);
  lacking->standardCommands.clear();
  display->definition = lacking;
  forms::Form form("frmAny");
  host::ErrorLog control(form, "ctlErrorLog");
  manager->get_ErrorLog()->put_AttachedControl(&control);
  ASSERT_TRUE(window().CreateTouchpanels(panel));
  ASSERT_EQ(control.Items().size(), 4u) << "no progress, and a warning for each button";
  EXPECT_EQ(control.Items().front()->get_Message(),
            "The button \"DISPLAY ON\" on the page \"[Equipment Room] [Receiver]\" does nothing: "
            "the device \"Display Device\" does not support the standard command \"On\".");
  manager->get_ErrorLog()->put_AttachedControl(nullptr);
  EXPECT_TRUE(window().CreateTouchpanels(panel));
}

TEST_F(PanelTest, TextsOfThePageInUseAreWrittenIntoTheProject) {
  const auto tessra = [this] { return manager->get_TessraApp(); };
  EXPECT_EQ(tessra()->GetAssignedProject(), nullptr);
  EXPECT_THROW(tessra()->SaveProject(), host::Error);
  ASSERT_TRUE(window().CreateTouchpanels(panel));
  tessra()->SetCurrentProject(tessra()->GetAssignedProject());
  EXPECT_FALSE(tessra()->SetUsePage("[Equipment Room] [receiver]"));
  EXPECT_TRUE(tessra()->GetPageObjectList().empty());
  ASSERT_TRUE(tessra()->SetUsePage("[Equipment Room] [Receiver]"));
  std::int32_t edited = 0;
  for (const auto& object : tessra()->GetPageObjectList()) {
    if (object->get_Text() == "INPUT\r\nSELECTED") edited = object->get_ID();
  }
  tessra()->EditObject(edited, "LAPTOP\r\nSELECTED");
  EXPECT_THROW(tessra()->EditObject(9999, ""), host::Error);
  EXPECT_NE(readPanelProject(file()).findObject(edited)->text, "LAPTOP\r\nSELECTED");
  tessra()->SaveProject();
  tessra()->CloseCurrentProject();
  EXPECT_EQ(readPanelProject(file()).findObject(edited)->text, "LAPTOP\r\nSELECTED");
  EXPECT_THROW(tessra()->SetUsePage("[Room]"), host::Error);
}

TEST_F(PanelTest, ProjectCountsAsBuiltWhileItWouldBeMadeTheSame) {
  const std::int16_t display = addDisplay();
  ASSERT_TRUE(window().CreateTouchpanels(panel));
  data().find(display)->shown = false;
  add("Power Relay", host::entryPowerRelay);
  EXPECT_TRUE(panel->get_ProjectBuilt()) << "no page shows these";
  const auto tessra = manager->get_TessraApp();
  const auto device = host.document()->get_Devices()->Item(display);
  bool wasChanged = false;
  std::string problem;
  constexpr std::int16_t drapewickTrigger = 2201;
  const std::vector<std::pair<const char*, std::function<void()>>> changes = {
      {"the system's name", [&] { data().name = "Hall"; }},
      {"the folder", [&] { saveAsRoom(); }},
      {"a device", [&] { add("Screen", drapewickTrigger); }},
      {"a command", [&] { device->SetCommandName("166", "Power_Off", wasChanged); }},
      {"a label", [&] { device->put_Label("WALL"); }},
      {"the receiver",
       [&] {
         host.document()->ChangeControlSystem(host::modelReceiverThreeInputs, "", 0, problem);
       }},
      {"the pages", [&] { manager->SetIncludeSharedPages(true); }},
      {"its file is gone", [&] { fs::remove(trellisar::panelProjectFile(data(), panelData())); }},
      {"its file is damaged",
       [&] { writeFile(trellisar::panelProjectFile(data(), panelData()), "{}"); }},
      {"its labels were never written",
       [&] { tessra->SetCurrentProject(tessra->GetAssignedProject()); }},
      {"the add-in says so", [&] { panel->put_ProjectBuilt(false); }},
  };
  for (const auto& [what, change] : changes) {
    change();
    EXPECT_FALSE(panel->get_ProjectBuilt()) << what;
    EXPECT_THROW(trellisar::requireBuiltProjects(data()), host::Error) << what;
    ASSERT_TRUE(window().CreateTouchpanels(panel));
    EXPECT_TRUE(panel->get_ProjectBuilt()) << what;
  }
  tessra->SetCurrentProject(tessra->GetAssignedProject());
  tessra->SaveProject();
  EXPECT_TRUE(panel->get_ProjectBuilt());
  EXPECT_TRUE(isBuiltInHostOf(dataFolder())) << "where no add-in has asked for pages yet";
  const fs::path other = folder / "data";
  fs::create_directory(other);
  fs::copy(dataFolder() / "PanelTemplates", other / "PanelTemplates");
  const std::string text = base::readFile(other / "PanelTemplates/Fenlet.json");
  writeFile(other / "PanelTemplates/Fenlet.json",
            forms::replacedAll(text, "ROOM CONTROL", "THIS ROOM"));
  EXPECT_FALSE(isBuiltInHostOf(other)) << "the template is another one";
}

TEST_F(PanelTest, ProjectThatCantBeMadeIsToldInTheList) {
  const auto refusal = [this] {
    heard.clear();
    EXPECT_FALSE(window().CreateTouchpanels(panel));
    EXPECT_FALSE(panel->get_ProjectBuilt());
    EXPECT_EQ(manager->get_TessraApp()->GetAssignedProject(), nullptr);
    EXPECT_THROW(trellisar::requireProjectFiles(data()), host::Error);
    return heard.back();
  };
  ASSERT_TRUE(window().CreateTouchpanels(panel));
  manager->SetTemplatePrefix("[Other]");
  expectHas(refusal(), "has no page whose name begins with \"[Other]\"");
  manager->SetTemplatePrefix("[Orlena]");
  data().folder = folder.inside("none\\");
  expectHas(refusal(), "its folder does not exist");
  constexpr std::int16_t plainTouchPanel = 52;
  panel = window().AddInterface(plainTouchPanel, data().controlSystem, "");
  expectHas(refusal(), "has no project template for panels of model 52");
}

}  // namespace
}  // namespace tests
