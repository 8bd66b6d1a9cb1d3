#include <algorithm>

#include "forms/DropDownList.h"
#include "forms/ListView.h"
#include "forms/Paths.h"
#include "host/Error.h"
#include "tests/trellisar/World.h"
#include "trellisar/FileIO.h"
#include "trellisar/Report.h"

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

TEST_F(ReportTest, ConnectionSheetNamesThePortOfEveryDevice) {
  const auto sensed = data().find(add("Sensed", host::entryMotionDetector));
  sensed->port = 0;
  sensed->sensorHandle = 7;
  sensed->sensorFormat = "i4";
  const auto sheet = trellisar::connectionSheet(data());
  EXPECT_TRUE(has(sheet, {"Serial Port 1", "Serial", "Display Device", "Bravonne P2200",
                          "\"Big\" screen's", "", "Receiver"}));
  EXPECT_TRUE(has(sheet, {"Relay 1", "Relay", "Power Relay", "Power Relay", "", "", "Receiver"}));
  EXPECT_TRUE(has(sheet, {"IP-ID 03", "Network", "Kestrum Interface", "Kestrum Interface", "",
                          "10.0.0.9", "Receiver"}));
  EXPECT_TRUE(
      has(sheet, {"Digital Input 4", "Sensor", "Receiver", "Power Sensor", "", "", "Receiver"}));
  EXPECT_EQ(sheet.rows.back(), (Row{"", "", "Fenlet", "Fenlet", "", "", "Receiver"}));
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
  const fs::path out = folder.path() / "out" / "reports";
  const auto files = trellisar::writeReports(data(), out);
  ASSERT_EQ(files.size(), 2u);
  EXPECT_EQ(files[1], out / "Connection Sheet.html");
  const std::string sheet = trellisar::readFile(files[1]);
  EXPECT_NE(sheet.find("<title>Connection Sheet - R&amp;D &lt;1&gt;</title>"), std::string::npos);
  EXPECT_NE(sheet.find("<td>&quot;Big&quot; screen&#39;s</td>"), std::string::npos);
  trellisar::writeReports(data(), out);
  EXPECT_EQ(trellisar::readFile(files[1]), sheet);
}

TEST_F(ReportTest, DialogShowsSavesAndTellsAFailure) {
  desktop.whenShown("ReportsDialog", [&](forms::Form& form) {
    auto& list = dynamic_cast<forms::ListView&>(form.control("lvwReport"));
    EXPECT_EQ(list.columns().front(), "Part");
    user.select(dynamic_cast<forms::DropDownList&>(form.control("cboReport")), 1);
    EXPECT_EQ(list.columns().front(), "Port");
    EXPECT_FALSE(form.control("cmdPrint").isVisible());
    desktop.expectSaveDialog("Save Report", folder.inside("Sheet.html"));
    user.click(form.control("cmdSave"));
    desktop.expectSaveDialog("Save Report", folder.inside("none\\Sheet.html"));
    desktop.expectMessageWith(forms::Icon::exclamation, "its folder does not exist");
    user.click(form.control("cmdSave"));
    user.press(forms::keys::escape);
  });
  window().ShowReportsDialog(host::reportsAll);
  EXPECT_EQ(trellisar::readFile(folder.path() / "Sheet.html"),
            reportHtml(trellisar::connectionSheet(data())));
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
  writeFile(folder.path() / "Room.tsy", trellisar::systemFileText(data()));
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
    const auto& list = dynamic_cast<forms::ListView&>(form.control("lvwSettings"));
    EXPECT_EQ(list.text(0, 1) + ", " + list.text(1, 1), "Program volume, Always active");
    user.press(forms::keys::escape);
  });
  window().ShowRealTimeDialog(receiver);
}

}  // namespace
}  // namespace tests
