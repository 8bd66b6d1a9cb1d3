#include <algorithm>

#include "forms/DropDownList.h"
#include "forms/ListView.h"
#include "tests/trellisar/World.h"
#include "trellisar/reports/Report.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using Row = std::vector<std::string>;

class ReportTest : public HostTest {
 protected:
  ReportTest() {
    openTemplate();
    data().name = "R&D <1>";
    data().folder = folder.inside("");
    const auto display = data().find(addDisplay());
    display->label = "\"Big\" screen's";
    add("Power Relay", host::entryPowerRelay);
    const auto kestrum = data().find(add("Kestrum Interface", host::entryKestrum));
    kestrum->address = "10.0.0.9";
    panel = window().AddInterface(host::modelFenlet, data().controlSystem, "")->get_ID();
  }

  static bool has(const trellisar::Report& report, const Row& row) {
    return std::find(report.rows.begin(), report.rows.end(), row) != report.rows.end();
  }

  std::int16_t panel = 0;
};

TEST_F(ReportTest, ConnectionSheetNamesEveryTerminalAndItsUse) {
  const auto sensed = data().find(add("Sensed", host::entryMotionDetector));
  sensed->port = 0;
  sensed->sensorHandle = 7;
  sensed->sensorFormat = "i4";
  constexpr std::int16_t entryOfLiftWithTwoRelays = 2302;
  add("Lift", entryOfLiftWithTwoRelays);
  const std::int16_t mute =
      data().findByName(trellisar::DeviceData::Kind::device, "Digital Input 3", "Receiver")->id;
  const auto contact = signal(mute, "dig_input_1");
  const std::int16_t receiver = data().controlSystem;
  press(*contact->GetEvent(host::eventHigh)->get_Preset(), receiver, "Volume_Mute_On");
  press(*branch(*contact->GetEvent(host::eventLow)->get_Preset(), receiver, "Powered_On"), receiver,
        "Volume_Mute_Off");
  const auto sheet = trellisar::connectionSheet(data());
  for (const Row& row : std::vector<Row>{
           {"Serial Port 1", "Serial", "Display Device", "Bravonne P2200", "control",
            "\"Big\" screen's", "9600 baud"},
           {"Relay 1", "Relay", "Power Relay", "Power Relay", "mains of the display", "", ""},
           {"Relay 2", "Relay", "Lift", "Hoistrel HL-60", "Down", "", ""},
           {"Relay 3", "Relay", "Lift", "Hoistrel HL-60", "Up", "", ""},
           {"IP-ID 03", "Network", "Kestrum Interface", "Kestrum Interface", "help desk", "",
            "10.0.0.9"},
           {"Network", "Network", "Fenlet", "Fenlet", "panel", "", ""},
           {"Digital Input 2", "Contact", "Digital Input 2", "Digital Input", "", "", ""},
           {"Digital Input 3", "Contact", "Digital Input 3", "Digital Input",
            "closes: Volume_Mute_On; opens: Volume_Mute_Off", "", ""},
           {"Digital Input 4", "Sensor", "Receiver", "Power Sensor", "mains current of the display",
            "", ""}}) {
    EXPECT_TRUE(has(sheet, row)) << testing::PrintToString(row);
  }
}

TEST_F(ReportTest, RevisionIsAnotherWhenTheRoomIs) {
  const std::string revision = trellisar::revisionOf(data());
  EXPECT_EQ(trellisar::revisionOf(data()), revision);
  const auto display =
      data().findByName(trellisar::DeviceData::Kind::device, "Display Device", "Receiver");
  const auto change = [&](auto& value, const auto& other) {
    const auto old = std::exchange(value, other);
    EXPECT_NE(trellisar::revisionOf(data()), revision);
    value = old;
  };
  change(display->label, "Another");
  change(display->port, 2);
  change(*display->findProperty("Baud Rate"), "19200");
  change(data().settings, decltype(data().settings){{"Orlena", "A=1;"}});
  EXPECT_EQ(trellisar::revisionOf(data()), revision);
}

/// The numbers of an attribute, in the order of the drawing.
std::vector<int> numbers(const std::string& svg, const std::string& before) {
  std::vector<int> found;
  for (std::size_t at = svg.find(before); at != std::string::npos; at = svg.find(before, at + 1)) {
    found.push_back(std::stoi(svg.substr(at + before.size())));
  }
  return found;
}

TEST_F(ReportTest, DrawingHasALevelLineForEachWireAndAPictureForEachDevice) {
  const auto drawing = trellisar::drawWiring(data(), dataFolder() / "pictures");
  for (const char* text :
       {"Display Device", "serial, 9600 baud", "Serial Port 1", "Power Relay",
        "mains of the display", "Kestrum Interface", "10.0.0.9", "IP-ID 03", "Fenlet", "OL-RX1"}) {
    expectHas(drawing.svg, text);
  }
  EXPECT_EQ(drawing.svg.find("Digital Input 2"), std::string::npos) << "nothing uses it";
  EXPECT_EQ(numbers(drawing.svg, "<g transform=\"translate(").size(), 5u)
      << "the receiver, display, relay, monitoring and panel";
  std::vector<int> lines = numbers(drawing.svg, "<circle cx=\"390\" cy=\"");
  EXPECT_EQ(lines.size(), 2u) << "Kestrum and Fenlet on the left";
  EXPECT_EQ(std::adjacent_find(lines.begin(), lines.end()), lines.end()) << "no line over another";
  EXPECT_EQ(trellisar::drawWiring(data(), dataFolder() / "pictures").svg, drawing.svg);
  expectHas(trellisar::drawWiring(data(), {}).svg, "Serial Port 1");
}

TEST_F(ReportTest, BillNamesEntriesAndTheirFurtherParts) {
  const auto bill = host.document()->get_Reports()->get_BillOfMaterials();
  bill->Item(data().bill.front()->key)->get_Parts()->Add(host::partPowerSensor, 1);
  ASSERT_TRUE(bill->AddItem(host::modelFenlet, 0, 20751, panel));
  ASSERT_TRUE(bill->AddItem(0, 0, 77777, data().devices.back()->id));
  const auto report = trellisar::billOfMaterials(data());
  std::string starts;
  for (const Row& row : report.rows) starts += row[0] + " " + row[2] + " " + row[4] + "; ";
  EXPECT_EQ(starts,
            "20701 Receiver OL-RX1; 366 Receiver Power Sensor; 20751 Fenlet Fenlet; "
            "77777 Kestrum Interface ; ");
}

TEST_F(ReportTest, HtmlIsEscapedAndTheSameEachTime) {
  const fs::path out = folder / "out" / "reports";
  const trellisar::ReportOptions options{.date = "2026-03-31"};
  const auto files = trellisar::writeReports(data(), out, options);
  ASSERT_EQ(files.size(), 2u);
  EXPECT_EQ(files[1], out / "R&D <1> - Connection Sheet.html");
  const std::string sheet = base::readFile(files[1]);
  expectHas(sheet, "<title>Connection Sheet - R&amp;D &lt;1&gt;</title>");
  expectHas(sheet, "<td>&quot;Big&quot; screen&#39;s</td>");
  expectHas(sheet, "Date: 2026-03-31<br>Revision of the answers: " + trellisar::revisionOf(data()));
  trellisar::writeReports(data(), out, options);
  EXPECT_EQ(base::readFile(files[1]), sheet);
}

TEST_F(ReportTest, ReportsReplaceThoseOfTheirOwnSystemAlone) {
  data().ownFile = "/one/Room.tsy";
  const auto files = trellisar::writeReports(data(), folder.path());
  data().ownFile = "/other/Room.tsy";
  const std::string first = base::readFile(files[0]);
  const std::string refusal =
      raisedBy([&] { trellisar::writeReports(data(), folder.path()); }).description();
  EXPECT_TRUE(refusal.starts_with("The file \"" + files[0].string() + "\" is there already"));
  EXPECT_EQ(base::readFile(files[0]), first);
  fs::remove(files[0]);
  EXPECT_NE(raisedBy([&] { trellisar::writeReports(data(), folder.path()); }).number(), 0);
  EXPECT_FALSE(fs::exists(files[0])) << "all are written, or none";
  trellisar::writeReports(data(), folder.path(), {}, nullptr, /*replace=*/true);
  EXPECT_NE(base::readFile(files[0]), first);
}

TEST_F(ReportTest, DialogShowsSavesAndTellsAFailure) {
  desktop.whenShown("ReportsDialog", [&](forms::Form& form) {
    auto& list = in<forms::ListView>(form, "lvwReport");
    EXPECT_EQ(list.columns().front(), "Part");
    user.select(in<forms::DropDownList>(form, "cboReport"), 1);
    EXPECT_EQ(list.columns().front(), "Terminal");
    EXPECT_FALSE(form.control("cmdPrint").isVisible());
    desktop.expectSaveDialog("Save Report", folder.inside("Sheet.html"));
    user.click(form.control("cmdSave"));
    desktop.expectSaveDialog("Save Report", folder.inside("none\\Sheet.html"));
    desktop.expectMessageWith(forms::Icon::exclamation, "its folder does not exist");
    user.click(form.control("cmdSave"));
    user.press(forms::keys::escape);
  });
  window().ShowReportsDialog(host::reportsAll);
  const std::string saved = base::readFile(folder / "Sheet.html");
  expectHas(saved, "<td>Serial Port 1</td>");
  expectHas(saved, "<br>Date: 2");
  window().ShowReportsDialog("Anything Else");
}

/// Notes what it is given.
struct NotingPrinter : trellisar::ReportPrinter {
  void print(const std::string& title, const std::string&) override { printed += title + "; "; }
  void writePdf(const fs::path& file, const std::string& title, const std::string&) override {
    printed += file.filename().string() + ": " + title;
  }
  std::string printed;
};

TEST_F(ReportTest, DialogWithAPrinterPrintsAndSavesPdf) {
  NotingPrinter printer;
  folder.write("Room.tsy", trellisar::systemFileText(data()));
  trellisar::Host other(
      {.dataFolder = dataFolder(), .library = shippedLibrary(), .printer = &printer});
  ASSERT_TRUE(other.mainWindow()->FileOpen(folder.inside("Room.tsy"), false));
  desktop.whenShown("ReportsDialog", [&](forms::Form& form) {
    user.click(form.control("cmdPrint"));
    desktop.expectSaveDialog("Save Report", folder.inside("Bill.pdf"));
    user.click(form.control("cmdSave"));
    user.press(forms::keys::escape);
  });
  other.mainWindow()->ShowReportsDialog(host::reportsAll);
  EXPECT_EQ(printer.printed, "Bill of Materials; Bill.pdf: Bill of Materials");
}

TEST_F(ReportTest, RealTimeDialogShowsTheAudioSettingsOfAReceiver) {
  std::int16_t receiver = data().controlSystem;
  host.document()->get_ControlSystem()->put_RealTimeProgID(host::progIDRealTimeAudio);
  *data().find(receiver)->findProperty("Mic Mode Control") = "1d";
  desktop.whenShown("RealTimeDialog", [&](forms::Form& form) {
    const auto& list = in<forms::ListView>(form, "lvwSettings");
    EXPECT_EQ(list.text(0, 1) + ", " + list.text(1, 1), "Program volume, Always active");
    user.press(forms::keys::escape);
  });
  window().ShowRealTimeDialog(receiver);
}

}  // namespace
}  // namespace tests
