
#include "forms/ListView.h"
#include "forms/TextBox.h"
#include "tests/receiver/Running.h"
#include "tests/trellisar/World.h"
#include "trellisar/compile/CompiledProgram.h"

namespace tests {
namespace {

using forms::Icon;
using Kind = receiver::Outcome::Kind;

/// Lets others connect and never answers.
class Silent {
 public:
  std::string address() const {
    return "127.0.0.1:" + std::to_string(acceptor_.local_endpoint().port());
  }

 private:
  asio::io_context context_;
  asio::ip::tcp::acceptor acceptor_{context_, {asio::ip::make_address("127.0.0.1"), 0}};
};

class CommunicationTest : public HostTest {
 protected:
  CommunicationTest() {
    openTemplate();
    completed = link().OnTransferComplete.listen([this](std::int16_t) {
      calls.push_back(application.activeForm() ? "completed behind a window" : "completed");
      static_cast<void>(link().SetPassword(password));
    });
  }

  trellisar::Communication& link() { return *host.communication(); }
  std::int32_t handle() { return host.document()->get_SystemInfo()->get_UploadHandle(); }

  void build() {
    saveAsRoom();
    trellisar::storeCompiledProgram(data(), trellisar::compileProgram(data()));
  }
  void start(const std::string& address) {
    link().setAddress(address);
    link().StartTransfer(0, handle(), 2);
    calls.push_back("started");
  }
  void upload(const std::string& address) {
    start(address);
    application.processEvents();
  }
  Kind sendAgain() {
    link().StartTransfer(0, handle(), 2);
    application.processEvents();
    return link().transferOutcome()->kind;
  }
  std::string startError(std::int32_t deviceHandle) {
    return raisedBy([&] { link().StartTransfer(0, deviceHandle, 2); }).description();
  }

  forms::Control& control(const std::string& name) {
    return application.activeForm()->control(name);
  }
  void type(const std::string& box, const std::string& text) {
    user.replaceText(dynamic_cast<forms::TextBox&>(control(box)), text);
  }
  void click(const std::string& button) { user.click(control(button)); }
  /// Clicks, and is told a text that holds this.
  void clickRefused(const std::string& button, const std::string& text) {
    desktop.expectMessageWith(Icon::exclamation, text);
    click(button);
  }
  void inAddressBook(const std::function<void()>& acts) {
    desktop.whenShown("AddressBookDialog", [&](forms::Form&) { acts(); });
    window().ShowAddressBook(0);
  }
  void inIPSettings(const std::function<void()>& acts) {
    desktop.whenShown("IPSettingsDialog", [&](forms::Form&) { acts(); });
    std::int32_t hwnd = 0;
    link().ShowSetIPDialog(hwnd);
  }
  void addReceiver(const std::string& name, const std::string& address) {
    type("txtName", name);
    type("txtAddress", address);
    click("cmdAdd");
  }
  void select(std::int32_t row) {
    user.select(dynamic_cast<forms::ListView&>(control("lvwReceivers")), row);
  }

  TemporaryFolder place;
  std::vector<std::string> calls;
  std::string password = "1234";
  forms::Subscription completed;
};

TEST_F(CommunicationTest, TransferEndsLaterAndThenThePasswordIsSet) {
  build();
  const Running running(optionsFor(place));
  *data().find(data().controlSystem)->findProperty("Volume Knob Control") = "1d";
  start(running.address().text());
  EXPECT_TRUE(link().isSending());
  expectHas(startError(handle()), "is being sent");
  application.processEvents();
  EXPECT_EQ(calls, (std::vector<std::string>{"started", "completed"}));
  EXPECT_FALSE(link().isSending());
  EXPECT_EQ(link().transferOutcome()->kind, Kind::done);
  EXPECT_EQ(link().passwordOutcome()->kind, Kind::done);
  EXPECT_EQ(lastWords, "Sent to the receiver at " + running.address().text() + ", running.");

  const receiver::Holdings holdings = holdingsOf(running.address());
  EXPECT_EQ(holdings.program->name, "Room");
  EXPECT_EQ(holdings.program->size, trellisar::storedProgram(data()).size());
  EXPECT_TRUE(holdings.passwordSet);
  EXPECT_EQ(holdings.properties,
            (receiver::Properties{{"Volume Knob Control", "1d"}, {"Mic Mode Control", "0d"}}));

  EXPECT_TRUE(link().SetPassword(""));
  EXPECT_FALSE(holdingsOf(running.address()).passwordSet);
  completed.end();
  upload(running.address().text());
  EXPECT_EQ(link().transferOutcome()->kind, Kind::done);
  EXPECT_FALSE(link().passwordOutcome()) << "a closed wizard hears no end";
}

TEST_F(CommunicationTest, CancelledTransferIsToldAndCompletesNothingAndAPasswordCanBeCancelled) {
  build();
  const Silent silent;
  for (const bool byCloseBox : {false, true}) {
    start(silent.address());
    application.runLater([&] {
      byCloseBox ? void(user.close(*application.activeForm())) : user.press(forms::keys::escape);
    });
    desktop.expectMessage("Trellisar",
                          "The transfer to the receiver at " + silent.address() +
                              " was cancelled. The receiver keeps the program that it had.",
                          forms::Buttons::ok, Icon::exclamation);
    application.processEvents();
    EXPECT_EQ(link().transferOutcome()->kind, Kind::cancelled);
    EXPECT_FALSE(link().passwordOutcome());
  }
  EXPECT_EQ(calls, (std::vector<std::string>{"started", "started"}));

  application.runLater([&] { user.press(forms::keys::escape); });
  EXPECT_FALSE(link().SetPassword("1234"));
  EXPECT_EQ(link().passwordOutcome()->kind, Kind::cancelled);
}

TEST_F(CommunicationTest, FailedTransferIsToldAndTheNextOneWorks) {
  build();
  receiver::Server::Options full = optionsFor(place);
  full.connections = 0;
  std::optional<Running> busy(full);
  desktop.expectMessageWith(Icon::exclamation,
                            "The system could not be sent to the receiver.\r\n\r\n");
  upload(busy->address().text());
  EXPECT_FALSE(link().SetPassword("1"));
  expectHas(link().passwordOutcome()->message, busy->address().text());
  EXPECT_EQ(link().transferOutcome()->kind, Kind::failed);

  busy.reset();
  const Running running(optionsFor(place));
  password = std::string(200, 'x');
  upload(running.address().text());
  EXPECT_EQ(link().transferOutcome()->kind, Kind::done) << "a refused password leaves the program";
  EXPECT_EQ(link().passwordOutcome()->kind, Kind::failed);
  EXPECT_TRUE(holdingsOf(running.address()).program);
  EXPECT_FALSE(holdingsOf(running.address()).passwordSet);
  EXPECT_EQ(calls, (std::vector<std::string>{"started", "started", "completed"}));
}

TEST_F(CommunicationTest, WhatHindersTheStartIsRaised) {
  expectHas(startError(handle()), "Build the system first");
  build();
  expectHas(startError(handle()), "address book");
  EXPECT_FALSE(link().SetPassword(""));
  expectHas(startError(9999), "is not in the system \"Room\"");
  expectHas(startError(70000), "is not in the system \"Room\"");
  link().SetDefaultAddress("tcp 1.2.3");
  expectHas(startError(handle()), "\"tcp 1.2.3\" is not the address");
  EXPECT_THROW(link().setAddress("a b"), host::Error);
  host.document()->Close();
  EXPECT_NE(startError(1), "");
  EXPECT_FALSE(link().isSending());
}

TEST_F(CommunicationTest, DefaultAddressCountsWhileTheUserHasGivenNone) {
  link().SetDefaultAddress("tcp 192.168.1.20");
  EXPECT_EQ(link().address(), "tcp 192.168.1.20");
  host.preferences().setIPSettings({"", "", "", "hall"});
  EXPECT_EQ(link().address(), "hall");
  host.preferences().setIPSettings({"10.0.0.7", "", "", "hall"});
  EXPECT_EQ(link().address(), "10.0.0.7");
  host.preferences().setAddressBook({{{"Hall", "10.0.0.8"}, {"Lab", "10.0.0.9:5000"}}, 1});
  EXPECT_EQ(link().address(), "10.0.0.9:5000");
  link().setAddress("127.0.0.1:1");
  EXPECT_EQ(link().address(), "127.0.0.1:1");
}

TEST_F(CommunicationTest, AddressThatNobodyChoseIsAskedAbout) {
  build();
  const Running running(optionsFor(place));
  const std::string there = running.address().text();
  link().SetDefaultAddress(there);
  const auto uploadAnswering = [&](forms::Answer answer) {
    desktop.expectMessage(
        "Trellisar",
        "No receiver has been chosen yet. The system would be sent to " + there +
            ".\r\n\r\nDo you want to choose the receiver first? Yes opens the address book; No "
            "sends the system to " +
            there + ", which is put into the address book.",
        forms::Buttons::yesNoCancel, Icon::question, answer);
    return sendAgain();
  };
  EXPECT_EQ(uploadAnswering(forms::Answer::cancel), Kind::cancelled);
  desktop.whenShown("AddressBookDialog", [&](forms::Form&) { user.press(forms::keys::escape); });
  EXPECT_EQ(uploadAnswering(forms::Answer::yes), Kind::cancelled);
  desktop.whenShown("AddressBookDialog", [&](forms::Form&) {
    addReceiver("Hall", there);
    click("cmdOK");
  });
  EXPECT_EQ(uploadAnswering(forms::Answer::yes), Kind::done);
  EXPECT_EQ(lastWords, "Sent to \"Hall\" at " + there + ", running.");
  host.preferences().setAddressBook({});
  EXPECT_EQ(uploadAnswering(forms::Answer::no), Kind::done);
  EXPECT_EQ(sendAgain(), Kind::done) << "and is not asked about again";
}

TEST_F(CommunicationTest, AddressBookIsKeptWithTheReceiverInUse) {
  const std::filesystem::path file = folder / "preferences.json";
  host.preferences() = trellisar::Preferences(file);
  inAddressBook([&] {
    clickRefused("cmdAdd", "has no name");
    type("txtName", " Hall ");
    type("txtAddress", "10.0.0.256");
    clickRefused("cmdOK", "\"10.0.0.256\" is not the address of a receiver");
    EXPECT_TRUE(control("txtAddress").hasFocus());
    type("txtAddress", "10.0.0.7");
    click("cmdOK");
  });
  EXPECT_EQ(link().address(), "10.0.0.7") << "what was typed into the empty book is taken";

  inAddressBook([&] {
    type("txtName", "HALL");
    clickRefused("cmdAdd", "\"HALL\" is in the list already");
    clickRefused("cmdOK", "Click Add to put it there, or Change");
    click("cmdChange");
    addReceiver("Lab", "lab.example:5000");
    addReceiver("Store", "[fe80::1]:5000");
    select(1);
    click("cmdUse");
    click("cmdOK");
  });
  const trellisar::AddressBook expected = {
      {{"HALL", "10.0.0.7"}, {"Lab", "lab.example:5000"}, {"Store", "[fe80::1]:5000"}}, 1};
  EXPECT_EQ(trellisar::Preferences(file).addressBook(), expected);

  inAddressBook([&] {
    select(0);
    click("cmdRemove");
    user.press(forms::keys::escape);
  });
  EXPECT_EQ(host.preferences().addressBook(), expected) << "Cancel keeps the list";
  inAddressBook([&] {
    select(0);
    click("cmdRemove");
    click("cmdOK");
  });
  EXPECT_EQ(link().address(), "lab.example:5000") << "the one in use stays in use";
}

TEST_F(CommunicationTest, IPSettingsAreCheckedAndKept) {
  const std::filesystem::path file = folder / "preferences.json";
  host.preferences() = trellisar::Preferences(file);
  inIPSettings([&] {
    type("txtMask", "255.255.255.0");
    clickRefused("cmdOK", "without the receiver's IP address");
    for (const char* wrong : {"10.0.0.256", "0.0.0.1", "224.0.0.1", "hall"}) {
      type("txtAddress", wrong);
      clickRefused("cmdOK", std::string("\"") + wrong + "\" is not the IP address of a receiver");
    }
    type("txtAddress", "10.0.0.7");
    type("txtGateway", "10.0.1.1");
    clickRefused("cmdOK", "does not reach the gateway 10.0.1.1");
    type("txtMask", "255.0.255.0");
    clickRefused("cmdOK", "\"255.0.255.0\" is not a subnet mask");
    type("txtMask", "");
    clickRefused("cmdOK", "needs the network's subnet mask");
    type("txtMask", "255.255.0.0");
    type("txtHostName", "hall_1:80");
    clickRefused("cmdOK", "\"hall_1:80\" is not a host name");
    EXPECT_TRUE(control("txtHostName").hasFocus());
    type("txtHostName", "hall-1");
    click("cmdOK");
  });
  const trellisar::IPSettings expected{"10.0.0.7", "255.255.0.0", "10.0.1.1", "hall-1"};
  EXPECT_EQ(trellisar::Preferences(file).ipSettings(), expected);
}

}  // namespace
}  // namespace tests
