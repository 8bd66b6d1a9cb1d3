#include "trellisar/window/MainForm.h"

#include "tests/trellisar/World.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

/// An add-in that notes what it is asked to do.
class NotingAddIn : public host::IAddInContract {
 public:
  std::string calls;
  std::function<void()> whileRunning = [] {};
  bool makesNew = true;

  void IAddInContract_Load(const std::shared_ptr<host::Document>& clsDocument,
                           const std::shared_ptr<host::LibraryManager>&,
                           const std::shared_ptr<host::CommObject>&, const forms::ImageList&,
                           const forms::ImageList&,
                           const std::shared_ptr<host::OwnerForm>&) override {
    calls += clsDocument ? "load " + clsDocument->get_Name() + ", " : "load nothing, ";
  }
  void IAddInContract_Run(const std::shared_ptr<host::OwnerForm>& oOwnerForm) override {
    calls += oOwnerForm->get_Form() ? "run; " : "run without a window; ";
    forms::Application::current().setTitle("Orlena");
    whileRunning();
    oOwnerForm->DestroyDoc();
  }
  std::string IAddInContract_Title() const override { return "Orlena"; }
  std::string IAddInContract_ClassName() const override { return "Test.AddIn"; }
  std::string IAddInContract_GroupName() const override { return "Rooms"; }
  std::string IAddInContract_Description() const override { return "Makes rooms."; }
  std::int16_t IAddInContract_Icon() const override { return host::pictureSmallAddIn; }
  bool IAddInContract_PreviewAvailable() const override { return true; }
  void IAddInContract_ShowPreview() override { calls += "preview; "; }
  bool IAddInContract_ShowOnNewSystem() const override { return makesNew; }
  std::string IAddInContract_GetHelpFile() const override { return ""; }
  bool IAddInContract_EditInCorvaner() const override { return false; }
  std::int16_t IAddInContract_StartupMode() const override { return 0; }
  void IAddInContract_StartupMode(std::int16_t) override {}
  void IAddInContract_UseOpenFile(bool bUseOpenFile) override {
    calls += bUseOpenFile ? "open file, " : "new file, ";
  }
  std::int32_t IAddInContract_HwndAddIn() const override { return 0; }
};

class MainFormTest : public HostTest {
 protected:
  std::shared_ptr<NotingAddIn> addIn = std::make_shared<NotingAddIn>();

  void givenSaved(const std::string& name, const std::string& word = "Orlena") {
    openTemplate();
    EXPECT_TRUE(window().FileSaveAs(folder.inside(name), word));
    window().DestroyDoc();
  }

  /// Shows the window and closes it with Escape after the script.
  void inWindow(const std::function<void(trellisar::MainForm&)>& script,
                const std::string& system = {}) {
    trellisar::MainForm form(host, {addIn});
    desktop.whenShown("MainForm", [&](forms::Form&) {
      script(form);
      user.press(forms::keys::escape);
    });
    form.run(system);
  }
};

TEST_F(MainFormTest, ListsAddInsAsTheyDescribeThemselvesAndStartsThem) {
  inWindow([&](trellisar::MainForm& form) {
    EXPECT_TRUE(form.lvwAddIns.shownText().starts_with("Orlena | Rooms | Yes"));
    EXPECT_EQ(form.lblDescription.caption(), "Makes rooms.");
    EXPECT_FALSE(form.imgAddIn.picture().isEmpty());
    EXPECT_FALSE(form.cmdEdit.isEnabled()) << "there is no system yet";
    user.click(form.cmdPreview);
    addIn->whileRunning = [&] { givenSaved("New Hall"); };
    user.click(form.lvwAddIns);
    user.press(forms::keys::enter);
    EXPECT_EQ(addIn->calls, "preview; load nothing, new file, run; ");
    EXPECT_EQ(application.title(), "Trellisar") << "the host's own again";
    EXPECT_EQ(form.lvwRecent.text(0, 0), "New Hall");
    EXPECT_EQ(form.lvwRecent.text(0, 1), folder.path().string());
    expectHas(form.txtSystem.text(), "New Hall");
  });
  EXPECT_EQ(window().get_Form(), nullptr);
}

TEST_F(MainFormTest, OneThatMakesNoNewSystemsIsNotStartedOnOne) {
  addIn->makesNew = false;
  inWindow([&](trellisar::MainForm& form) {
    EXPECT_FALSE(form.cmdNew.isEnabled());
    user.doubleClick(form.lvwAddIns, 0);
    EXPECT_EQ(addIn->calls, "");
  });
}

TEST_F(MainFormTest, EditsASystemWithTheAddInThatItBelongsTo) {
  givenSaved("Hall");
  givenSaved("Lobby");
  givenSaved("Foreign", "Another");
  inWindow([&](trellisar::MainForm& form) {
    ASSERT_EQ(form.lvwRecent.rowCount(), 3);
    user.select(form.lvwRecent, 1);
    expectHas(form.txtSystem.text(), "Lobby");
    EXPECT_EQ(form.lvwRecent.selectedRow(), 1) << "looking at a system leaves the order";
    user.click(form.lvwRecent);
    user.press(forms::keys::enter);
    EXPECT_EQ(addIn->calls, "load Lobby, open file, run; ");
    EXPECT_EQ(form.lvwRecent.text(0, 0), "Lobby");

    addIn->calls.clear();
    desktop.expectOpenDialog("Open System", folder.inside("Hall.tsy"));
    user.click(form.cmdOpen);
    EXPECT_EQ(addIn->calls, "load Hall, open file, run; ");

    addIn->calls.clear();
    desktop.expectOpenDialog("Open System", folder.inside("Foreign.tsy"));
    desktop.expectMessageWith(forms::Icon::exclamation, "saved last by \"Another\"");
    user.click(form.cmdOpen);
    EXPECT_EQ(addIn->calls, "");
    EXPECT_EQ(host.document(), nullptr);
    expectHas(form.txtSystem.text(), "Foreign");

    desktop.expectOpenDialog("Open System", "");
    user.click(form.cmdOpen);
    EXPECT_EQ(form.lvwRecent.rowCount(), 3);
  });
}

TEST_F(MainFormTest, ComparesASystemWithAnotherOne) {
  givenSaved("Hall");
  openTemplate();
  addDisplay();
  EXPECT_TRUE(window().FileSaveAs(folder.inside("Lobby"), "Orlena"));
  folder.write("Damaged.tsy", "{");
  const auto compareWith = [&](trellisar::MainForm& form, const std::string& name) {
    desktop.expectOpenDialog("Compare With", name.empty() ? "" : folder.inside(name));
    user.click(form.cmdCompare);
  };
  std::string shown;
  desktop.wheneverShown("ComparisonDialog", [&](forms::Form& form) {
    shown = form.control("lblSystems").shownText() + "\n" + form.control("txtWords").shownText();
    user.press(forms::keys::enter);
  });
  inWindow([&](trellisar::MainForm& form) {
    user.select(form.lvwRecent, 1);
    compareWith(form, "Lobby.tsy");
    EXPECT_LT(shown.find("Hall.tsy"), shown.find("Lobby.tsy"));
    expectHas(shown, "Display Device is new: Bravonne P2200");
    compareWith(form, "Hall.tsy");
    expectHas(shown, "No device and no step of the program differs.");
    compareWith(form, "");
    desktop.expectMessageWith(forms::Icon::exclamation, "Damaged.tsy");
    compareWith(form, "Damaged.tsy");
    fs::remove(folder / "Hall.tsy");
    desktop.expectMessageWith(forms::Icon::exclamation, "Hall.tsy\" is no longer there");
    user.click(form.cmdCompare);
    EXPECT_EQ(form.lvwRecent.rowCount(), 1);
  });
}

TEST_F(MainFormTest, OpensTheSystemThatItIsShownFor) {
  givenSaved("Hall");
  inWindow(
      [&](const trellisar::MainForm&) {
        application.processEvents();
        EXPECT_EQ(addIn->calls, "load Hall, open file, run; ");
      },
      folder.inside("Hall.tsy"));
}

TEST_F(MainFormTest, ASystemThatIsGoneIsToldAndDroppedAndADamagedOneIsShownAsThat) {
  givenSaved("Hall");
  givenSaved("Gone");
  folder.write("Hall.tsy", "{");
  fs::remove(folder / "Gone.tsy");
  inWindow([&](trellisar::MainForm& form) {
    expectHas(form.txtSystem.text(), "no longer there");
    desktop.expectMessageWith(forms::Icon::exclamation, "Gone.tsy\" is no longer there");
    user.doubleClick(form.lvwRecent, 0);
    ASSERT_EQ(form.lvwRecent.rowCount(), 1);
    expectHas(form.txtSystem.text(), "can't be read");
    desktop.expectMessageWith(forms::Icon::critical, "Hall.tsy");
    user.click(form.cmdEdit);
    EXPECT_EQ(addIn->calls, "");
  });
}

}  // namespace
}  // namespace tests
