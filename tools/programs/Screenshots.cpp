#include "tools/programs/Screenshots.h"

#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/PagePrinter.h"
#include "forms/Application.h"
#include "forms/DropDownList.h"
#include "forms/ListView.h"
#include "forms/Paths.h"
#include "forms/TextBox.h"
#include "forms/ToolBar.h"
#include "forms/User.h"
#include "forms/UserControl.h"
#include "qt/QtDesktop.h"
#include "receiver/Server.h"
#include "trellisar/communication/PasswordDialog.h"
#include "trellisar/communication/TransferDialog.h"
#include "trellisar/compare/Compare.h"
#include "trellisar/dialogs/ComparisonDialog.h"
#include "trellisar/dialogs/RecoveryDialog.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/window/AddIns.h"
#include "trellisar/window/MainForm.h"

namespace tools {
namespace {

namespace fs = std::filesystem;

/// A window on which a script acts in the place of a person, and which can be drawn at any moment.
class DrawnDesktop : public qt::QtDesktop {
 public:
  using Script = std::function<void(forms::Form&)>;

  DrawnDesktop(int argc, char** argv, const fs::path& folder)
      : QtDesktop(argc, argv), folder_(folder) {}

  /// What is done with the forms of this name from now on.
  void act(const std::string& formName, Script script) { scripts_[formName] = std::move(script); }

  void draw(const forms::Form& form, const std::string& name) {
    processEvents();
    if (!saveScreenshot(form, folder_ / (name + ".png"))) {
      throw std::runtime_error("the picture \"" + name + "\" can't be written");
    }
  }

  const std::string& failure() const { return failure_; }

  /// The script of a form comes when the form has done its own work, and not at all to one that
  /// has closed by then.
  void runModal(forms::Form& form, forms::Form* owner) override {
    bool started = false;
    const auto subscription = form.activated.listen([&] {
      if (form.isVisible() && !std::exchange(started, true)) {
        runLater([this, &form] { play(form); });
      }
    });
    QtDesktop::runModal(form, owner);
  }
  forms::Answer showMessage(const forms::MessageBox& message) override {
    return forms::defaultAnswer(message.buttons);
  }

  /// Acts on the form, which then closes.
  void play(forms::Form& form) {
    try {
      scripts_.at(form.name())(form);
    } catch (const std::exception& error) {
      if (failure_.empty()) failure_ = form.name() + ": " + error.what();
    }
    if (form.isVisible()) form.hide();
  }

 private:
  fs::path folder_;
  std::map<std::string, Script> scripts_;
  std::string failure_;
};

/// A walk through the wizard that stops for a picture in every state that a step has.
class Walk {
 public:
  Walk(forms::Application& application, DrawnDesktop& desktop, trellisar::Host& host)
      : user_(application), desktop_(desktop), host_(host) {
    desktop_.act("frmAddIn", [this](forms::Form& wizard) { go(wizard); });
    desktop_.act("DeviceDialog", [this](forms::Form& dialog) { choose(dialog); });
    desktop_.act("DeviceProperties",
                 [this](forms::Form& dialog) { desktop_.draw(dialog, "device-properties"); });
    desktop_.act("frmPreview", [this](forms::Form& form) { desktop_.draw(form, preview_); });
    desktop_.act("ReportsDialog", [this](forms::Form& dialog) { drawReports(dialog); });
    for (const auto& [form, name] :
         {std::pair{"frmBuildPanels", "panels"}, std::pair{"RealTimeDialog", "audio-settings"},
          std::pair{"frmVideoTestPattern", "test-pattern"},
          std::pair{"AddressBookDialog", "address-book"},
          std::pair{"IPSettingsDialog", "ip-settings"},
          std::pair{"CompileDialog", "compile-errors"}, std::pair{"DoneDialog", "export-done"}}) {
      desktop_.act(form, [this, name](forms::Form& shown) { desktop_.draw(shown, name); });
    }
  }

 private:
  static constexpr int display = 2;
  static constexpr int power = 4;
  static constexpr int lockout = 5;
  static constexpr int options = 6;
  static constexpr int transmitters = 7;
  static constexpr int room = 8;
  static constexpr int finish = 9;

  void go(forms::Form& wizard) {
    wizard_ = &wizard;
    draw("0-start");
    preview_ = "preview-product";
    click(0, "lblPreview");
    for (const char* name : {"1-location", "2-display-none", "3-audio", "4-power-no-display",
                             "5-lockout", "6-options", "7-transmitters", "8-room", "9-finish"}) {
      user_.click(wizard.control("cmdNext"));
      draw(name);
    }
    drawDisplay();
    drawPower();
    drawLockout();
    drawOptions();
    drawTransmitters();
    drawRoom();
    drawFinish();
    drawCompileErrors();
  }

  void drawDisplay() {
    enterStep(display);
    chooseDisplay("Bravonne P2200");
    draw("2-display-chosen");
    click(display, "chkPowerRelay");
    draw("2-display-relay");
    click(display, "cmdProperties");
  }

  void drawPower() {
    enterStep(power);
    draw("4-power-discrete");
    click(power, "chkSecondOff");
    draw("4-power-second-off");
    click(power, "optPower(0)");
    draw("4-power-none");
    preview_ = "preview-wiring";
    click(power, "lblDiagram");
    enterStep(display);
    chooseDisplay("Quenlowe K32");
    enterStep(power);
    draw("4-power-sensing");
  }

  void drawLockout() {
    enterStep(lockout);
    draw("5-lockout-active");
    click(lockout, "chkContact");
    draw("5-lockout-contact");
    enterStep(power);
    click(power, "optPower(0)");
    enterStep(lockout);
    draw("5-lockout-no-power-control");
  }

  void drawOptions() {
    enterStep(options);
    click(options, "chkInclude(0)");
    click(options, "chkInclude(1)");
    draw("6-options-included");
    chooseDevice(options, "cmdChoose(0)", "Drapewick Mixed 240");
    chooseDevice(options, "cmdChoose(1)", "Hoistrel HL-60");
    draw("6-options-chosen");
  }

  void drawTransmitters() {
    enterStep(transmitters);
    click(transmitters, "cmdAdd");
    draw("7-transmitters-one");
    click(transmitters, "cmdAdd");
    click(transmitters, "cmdAdd");
    draw("7-transmitters-three");
    click(transmitters, "cmdRename");
    draw("7-transmitters-rename");
  }

  void drawRoom() {
    enterStep(room);
    for (const char* box : {"chkInclude(0)", "chkInclude(1)", "chkOccupancy", "chkPowerTimeout"}) {
      click(room, box);
    }
    draw("8-room-included");
  }

  /// With a display that has no standard command, so that the panel window has something to tell.
  void drawFinish() {
    enterStep(display);
    chooseDisplay("Quenlowe K55 Hotel");
    enterStep(finish);
    for (const char* button : {"cmdExport", "cmdReports", "cmdSettings", "cmdTestPattern"}) {
      click(finish, button);
    }
    host_.preferences().setAddressBook(
        {{{"Lecture Hall", "tcp 192.168.4.20"}, {"Seminar Room 2", "seminar-2.campus:41800"}}});
    click(finish, "tbrComm");
    user_.choose(dynamic_cast<forms::ToolBar&>(page(finish).control("tbrComm")), "IP");
  }

  void drawReports(forms::Form& dialog) {
    auto& reports = dynamic_cast<forms::DropDownList&>(dialog.control("cboReport"));
    for (std::int32_t place = 0; place < reports.count(); ++place) {
      user_.select(reports, place);
      desktop_.draw(dialog, "report-" + std::to_string(place + 1));
    }
  }

  /// A display whose second Power Off the former one's command is still sent for.
  void drawCompileErrors() {
    enterStep(display);
    chooseDisplay("Bravonne P2200");
    enterStep(power);
    click(power, "optPower(2)");
    click(power, "chkSecondOff");
    user_.type(dynamic_cast<forms::TextBox&>(page(power).control("txtSecondOff")), "3");
    enterStep(display);
    chooseDisplay("Orvistel X31");
    enterStep(finish);
    click(finish, "cmdUpload");
  }

  forms::UserControl& tabs() const {
    return dynamic_cast<forms::UserControl&>(wizard_->control("ctlTabs"));
  }

  forms::UserControl& page(int step) const {
    return dynamic_cast<forms::UserControl&>(tabs().control("ctl" + std::to_string(step)));
  }

  void click(int step, const std::string& control) { user_.click(page(step).control(control)); }

  /// Goes back as far as it can and then forward to the step.
  void enterStep(int step) {
    while (wizard_->control("cmdBack").isEnabled()) user_.click(wizard_->control("cmdBack"));
    for (int i = 0; i < step; ++i) user_.click(wizard_->control("cmdNext"));
  }

  void chooseDevice(int step, const std::string& button, const std::string& device) {
    device_ = device;
    click(step, button);
  }

  void chooseDisplay(const std::string& device) { chooseDevice(display, "cmdChoose", device); }

  void choose(forms::Form& dialog) {
    auto& list = dynamic_cast<forms::ListView&>(dialog.control("lvwDevices"));
    for (std::int32_t row = 0; row < list.rowCount(); ++row) {
      if (list.text(row, 0) == device_) user_.select(list, row);
    }
    desktop_.draw(dialog, "device-dialog");
    user_.click(dialog.control("cmdOK"));
  }

  void draw(const std::string& name) { desktop_.draw(*wizard_, name); }

  forms::User user_;
  DrawnDesktop& desktop_;
  trellisar::Host& host_;
  forms::Form* wizard_ = nullptr;
  std::string device_;
  std::string preview_;
};

/// The walk leaves a folder behind, as every wizard that goes past its second step; here it is a
/// temporary one.
class TemporarySystems {
 public:
  TemporarySystems() {
    std::string pattern = (fs::temp_directory_path() / "orlena-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder can be made");
    folder_ = pattern;
    setenv("TRELLISAR_SYSTEMS", pattern.c_str(), 1);
  }
  ~TemporarySystems() {
    std::error_code failure;
    fs::remove_all(folder_, failure);
  }
  const fs::path& folder() const { return folder_; }
  TemporarySystems(const TemporarySystems&) = delete;
  TemporarySystems& operator=(const TemporarySystems&) = delete;

 private:
  fs::path folder_;
};

/// The one that nobody sees is too small for windows in a large font.
void useLargeScreen(const fs::path& configuration) {
  std::ofstream(configuration) << R"({"windowFrameMargins": false, "screens": [{"name": "large",
    "x": 0, "y": 0, "width": 1920, "height": 1080, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
  setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + configuration.string()).c_str(), 1);
}

/// The main window without a system, with one to read, and with one that has gone.
void drawMainWindow(DrawnDesktop& desktop, trellisar::Host& host) {
  desktop.act("Preferences",
              [&](forms::Form& dialog) { desktop.draw(dialog, "main-preferences"); });
  const auto draw = [&](const std::string& name, const std::string& button) {
    trellisar::MainForm window(host, trellisar::createAddIns(app::componentsFile()));
    desktop.act("MainForm", [&](forms::Form& form) {
      desktop.draw(form, name);
      forms::User user(forms::Application::current());
      if (!button.empty()) user.click(form.control(button));
    });
    window.run();
  };
  draw("main-empty", "cmdPreferences");
  for (const char* system : {"Orlena TEMPLATE", "Orlena EXAMPLE"}) {
    const fs::path file =
        app::dataFolder() / "TemplateSystems" / system / (std::string(system) + ".tsy");
    host.preferences().remember(forms::fromMachinePath(file));
  }
  draw("main-system", "");
  host.preferences().remember("\\Rooms\\Lecture Hall\\Lecture Hall.tsy");
  draw("main-missing", "");
}

/// What a room has more than the template that it comes from, to read and before a save.
void drawComparison(DrawnDesktop& desktop) {
  const fs::path systems = app::dataFolder() / "TemplateSystems";
  const fs::path before = systems / "Orlena TEMPLATE" / "Orlena TEMPLATE.tsy";
  const fs::path after = systems / "Orlena EXAMPLE" / "Orlena EXAMPLE.tsy";
  const trellisar::Differences differences = trellisar::compare(
      *trellisar::readSystemFile(before, nullptr), *trellisar::readSystemFile(after, nullptr));
  std::string name = "comparison";
  desktop.act("ComparisonDialog", [&](forms::Form& form) { desktop.draw(form, name); });
  trellisar::showComparison(before, after, differences);
  name = "comparison-before-saving";
  trellisar::confirmChanges("Orlena EXAMPLE", differences);
}

/// What is asked about a system that was never saved, and about one whose file has changed.
void drawRecovery(DrawnDesktop& desktop) {
  const std::string what =
      "The room \"Lecture Hall\" was not saved when the program ended at 14:02.";
  for (const auto& [name, where] :
       {std::pair{"recovery-new", "It has never been saved."},
        std::pair{"recovery-changed",
                  "Its file \"/Rooms/Building 4/Lecture Hall/Lecture "
                  "Hall.tsy\" has been changed since. A save asks before it replaces it."}}) {
    trellisar::RecoveryDialog dialog({what, where});
    desktop.act("RecoveryDialog", [&](forms::Form& form) { desktop.draw(form, name); });
    dialog.run();
  }
}

/// On its way to a receiver that listens and never answers.
void drawTransfer(DrawnDesktop& desktop, const fs::path& folder) {
  receiver::Server::Options options;
  options.listen = {"127.0.0.1", 0};
  options.folder = folder;
  const receiver::Server silent(options);
  trellisar::TransferDialog dialog(silent.address(), {"Lecture Hall", "program", {}});
  desktop.act("TransferDialog", [&](forms::Form& form) {
    dialog.prgProgress.setMaximum(3);
    dialog.prgProgress.setValue(2);
    desktop.draw(form, "transfer");
  });
  desktop.runLater([&] { desktop.play(dialog); });  // while the transfer is at its work
  dialog.run();

  receiver::Request request = receiver::passwordRequest(silent.address(), "");
  trellisar::PasswordDialog password(silent.address(), request);
  desktop.act("PasswordDialog", [&](forms::Form& form) { desktop.draw(form, "password"); });
  desktop.runLater([&] { desktop.play(password); });
  password.run();
}

}  // namespace

void drawWindows(const ScreenshotOptions& options) {
  const fs::path& folder = options.out;
  fs::create_directories(folder);
  const TemporarySystems systems;
  useLargeScreen(systems.folder() / "screen.json");
  char name[] = "orlena";
  char* arguments[] = {name, nullptr};
  DrawnDesktop desktop(1, arguments, folder);
  desktop.wear({.isDark = options.isDark, .fontPoints = options.fontPoints});
  forms::Application application(desktop, forms::fromMachinePath(app::dataFolder()));
  trellisar::Host host({.dataFolder = app::dataFolder(),
                        .exportFile = systems.folder() / "Room.tsa",
                        .printer = app::reportPrinter()});
  const Walk walk(application, desktop, host);
  drawMainWindow(desktop, host);
  drawComparison(desktop);
  drawRecovery(desktop);
  drawTransfer(desktop, systems.folder() / "receiver");
  app::AddIn(host).runOnNewSystem();
  if (!desktop.failure().empty()) throw std::runtime_error(desktop.failure());
}

}  // namespace tools
