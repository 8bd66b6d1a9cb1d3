#include <gtest/gtest.h>

#include "host/Numbers.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::Icon;

class OriginationPointsTest : public testing::Test, public tests::Wizard {
 protected:
  void add(std::int16_t port, const std::string& type, const std::string& label = "A") {
    for (const auto& entry : addIn->GetLibraryOriginationPoints()) {
      if (entry->get_Name() != type) continue;
      addIn->AddOriginationPoint(port, type + " OL" + std::to_string(port), 0,
                                 entry->get_ControlEntryID(), label);
    }
  }
  std::int16_t idAt(std::int16_t port) { return addIn->get_OriginationPointID(port); }
  /// The part of the bill's row for the device at a port; 0 without one.
  std::int32_t partAt(std::int16_t port) {
    const auto entry = bill().Item(-std::int32_t{idAt(port)});
    return entry ? entry->get_MainItem().get_PartID() : 0;
  }
  host::BillOfMaterials& bill() {
    bill_ = document().get_Reports()->get_BillOfMaterials();
    return *bill_;
  }

 private:
  std::shared_ptr<host::BillOfMaterials> bill_;
};

TEST_F(OriginationPointsTest, BillFollowsEachPort) {
  run([&] {
    const std::size_t rows = bill().Items().size();
    add(1, "Wall Plate Transmitter");
    add(2, "Table Box Transmitter");
    const std::int32_t wallPlate = partAt(1), tableBox = partAt(2);
    EXPECT_TRUE(wallPlate > 0 && tableBox > 0 && wallPlate != tableBox);
    EXPECT_FALSE(device("Wall Plate Transmitter OL1")->get_ShowInTree());
    add(1, "Table Box Transmitter");
    EXPECT_EQ(partAt(1), tableBox);
    EXPECT_FALSE(device("Wall Plate Transmitter OL1"));
    EXPECT_EQ(bill().Items().size(), rows + 2);
    addIn->RemoveOriginationPoint(1);
    EXPECT_EQ(idAt(1), 0);
    EXPECT_EQ(bill().Items().size(), rows + 1);
  });
}

TEST_F(OriginationPointsTest, TypeWithoutAPartTakesItsPortAndIsTold) {
  run([&] {
    desktop.expectMessage(
        "Orlena",
        "Unknown Orlena transmitter (Guest Transmitter) will not be added to the Bill of "
        "Materials.",
        forms::Buttons::ok, Icon::exclamation);
    add(2, "Guest Transmitter");
    EXPECT_NE(idAt(2), 0);
    add(2, "Guest Transmitter");  // nothing is said again
    desktop.expectMessage("Orlena",
                          "Error removing Orlena transmitter on port OL2 from Bill of Materials.",
                          forms::Buttons::ok, Icon::exclamation);
    addIn->RemoveOriginationPoint(2);
    EXPECT_EQ(idAt(2), 0);
  });
}

TEST_F(OriginationPointsTest, FailedAddInThePlaceOfAnotherTypeFreesThePort) {
  run([&] {
    add(1, "Wall Plate Transmitter");
    device("Digital Input 4")->put_Name("Table Box Transmitter OL1");
    desktop.expectMessageWith(Icon::exclamation, "Table Box Transmitter OL1");
    add(1, "Table Box Transmitter");
    EXPECT_EQ(idAt(1), 0);
    EXPECT_FALSE(device("Wall Plate Transmitter OL1"));
  });
}

}  // namespace
