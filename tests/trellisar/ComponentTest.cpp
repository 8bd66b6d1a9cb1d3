#include <dlfcn.h>

#include <cstdlib>
#include <thread>

#include "forms/Components.h"
#include "forms/Paths.h"
#include "tests/trellisar/World.h"
#include "trellisar/window/AddIns.h"

namespace tests {
namespace {

constexpr const char* addInClass = "AddInOrlena.IAddIn";

/// The host beside a registration of its own.
class ComponentTest : public HostTest {
 protected:
  ComponentTest() { setenv("TRELLISAR_SYSTEMS", folder.path().c_str(), 1); }
  ~ComponentTest() override { unsetenv("TRELLISAR_SYSTEMS"); }

  std::filesystem::path registration() const { return folder / "components.json"; }

  void givenRegistered(const std::string& className, const std::string& library) {
    givenRegistration(R"({"class": ")" + className + R"(", "library": ")" + library + "\"}");
  }
  void givenRegistration(const std::string& components) {
    writeFile(
        registration(),
        R"({"format": "trellisar-components", "version": 1, "components": [)" + components + "]}");
  }

  void expectFailure(const std::string& part, const std::string& className = addInClass) {
    const std::string failure =
        raisedBy([&] { trellisar::createAddIn(registration(), className); }).description();
    expectHas(failure, part);
  }

  /// Whether the component is in the process's memory.
  static bool isInMemory() {
    void* handle = dlopen(ORLENA_COMPONENT, RTLD_NOW | RTLD_NOLOAD);
    if (handle) dlclose(handle);
    return handle != nullptr;
  }

  /// Turns one page and leaves the wizard.
  void expectWizard() {
    desktop.whenShown("frmAddIn", [this](forms::Form& wizard) {
      user.click(wizard.control("cmdNext"));
      host.document()->SetModified(false, true, true);
      user.close(wizard);
    });
  }

  /// The wizard finds its template in the program's folder.
  forms::Application program{desktop, forms::fromMachinePath(dataFolder())};
  forms::User user{program};
};

TEST_F(ComponentTest, WhatCantBeUsedAndADamagedRegistrationAreToldWithTheReason) {
  expectFailure("components.json");
  givenRegistration("");
  expectFailure("No component is registered for the class \"AddInOrlena.IAddIn\"");
  givenRegistered(addInClass, "missing.so");
  expectFailure("missing.so\" can't be used: there is no such file");
  folder.write("text.so", "no library");
  givenRegistered(addInClass, "text.so");
  expectFailure("text.so\" can't be used: it can't be loaded (");
  givenRegistered(addInClass, ORLENA_PLAIN_LIBRARY);
  expectFailure("a library but no component, for it has no entry point DllRegisterServer");
  givenRegistered("AddInOrlena.Other", ORLENA_COMPONENT);
  expectFailure("it has no class \"AddInOrlena.Other\"", "AddInOrlena.Other");

  writeFile(registration(),
            R"({"format": "trellisar-components", "version": 2, "components": []})");
  expectFailure("components.json: version");
  givenRegistration(R"({"class": "A.B"})");
  expectFailure("components[0].library: is missing");
  givenRegistration(R"({"class": "A.B", "library": "a"}, {"class": "A.B", "library": "b"})");
  expectFailure("components[1]: the class \"A.B\" is registered twice");
}

TEST_F(ComponentTest, OneThatIsMissingIsToldAndTheOthersAreListed) {
  givenRegistration(R"({"class": "Other.AddIn", "library": "missing.so"},
                       {"class": "AddInOrlena.IAddIn", "library": ")" ORLENA_COMPONENT "\"}");
  desktop.expectMessageWith(forms::Icon::exclamation, "missing.so");
  const auto addIns = trellisar::createAddIns(registration());
  ASSERT_EQ(addIns.size(), 1U);
  EXPECT_EQ(addIns[0]->IAddInContract_ClassName(), addInClass);
}

TEST_F(ComponentTest, RunsUnloadsAndRunsAgain) {
  givenRegistered(addInClass, ORLENA_COMPONENT);
  for (int round = 0; round < 2; ++round) {
    auto addIn = trellisar::createAddIn(registration(), addInClass);
    for (int run = 0; run < 2; ++run) {
      expectWizard();
      trellisar::runOnNewSystem(*addIn, host);
      EXPECT_EQ(host.document(), nullptr);
    }
    EXPECT_FALSE(trellisar::unloadComponents()) << "an object of it lives";
    EXPECT_NE(forms::createAnyObject("AddInOrlena.frmPreview"), nullptr);
    addIn.reset();
    EXPECT_TRUE(trellisar::unloadComponents());
    EXPECT_FALSE(isInMemory());
    EXPECT_THROW(forms::createAnyObject("AddInOrlena.frmPreview"), forms::Error);
  }
}

TEST_F(ComponentTest, ThreadsCreateWhileOthersUnload) {
  givenRegistered(addInClass, ORLENA_COMPONENT);
  const auto createAndUnload = [this] {
    ScriptedDesktop ownDesktop;
    forms::Application own(ownDesktop, "\\program");
    for (int i = 0; i < 20; ++i) {
      const auto addIn = trellisar::createAddIn(registration(), addInClass);
      trellisar::unloadComponents();
      EXPECT_EQ(addIn->IAddInContract_Title(), "Orlena");
    }
  };
  {
    std::jthread first(createAndUnload);
    std::jthread second(createAndUnload);
    std::jthread third(createAndUnload);
  }
  EXPECT_TRUE(trellisar::unloadComponents());
}

}  // namespace
}  // namespace tests
