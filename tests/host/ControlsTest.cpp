#include <gtest/gtest.h>

#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/User.h"
#include "host/Error.h"
#include "host/ErrorLog.h"
#include "host/Numbers.h"
#include "host/ctlSteps.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedDesktop.h"

namespace tests {
namespace {

class ControlsTest : public testing::Test {
 protected:
  ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
  forms::User user{application};
  forms::Form form{"Form"};
};

TEST_F(ControlsTest, StepListReportsTheIndexOfAnyStepAndMarksTheCurrentOne) {
  host::ctlSteps steps(form, "ctlSteps");
  steps.put_StepCount(1);
  steps.SetStepText("Start", 0);
  steps.SetStepText("Middle", 1);
  steps.SetStepText("Finish", 2);
  steps.SetCurrentStep(1);
  std::vector<std::int16_t> clicked;
  steps.OnStepClicked.connect([&](std::int16_t& step) { clicked.push_back(step); });
  desktop.whenShown("Form", [&](forms::Form& shown) {
    user.click(steps.control("cmdStep(2)"));
    user.moveFocus(steps.control("cmdStep(1)"));
    user.press(forms::keys::up);
    user.press(forms::keys::enter);
    user.press(forms::keys::up);
    user.press(forms::keys::space);
    shown.hide();
  });
  form.showModal(nullptr);
  EXPECT_EQ(clicked, (std::vector<std::int16_t>{2, 0, 0}));
  EXPECT_TRUE(steps.control("cmdStep(1)").font().bold);
  EXPECT_FALSE(steps.control("cmdStep(2)").font().bold);
  EXPECT_THROW(steps.SetCurrentStep(3), forms::Error);
  EXPECT_THROW(steps.SetCurrentStep(-1), forms::Error);
}

TEST_F(ControlsTest, ErrorLogShowsWarningsAndWritesWhatItShows) {
  host::ErrorLog log(form, "ctlErrorLog");
  const auto item = [&](std::int16_t severity, const char* message) {
    auto made = std::make_shared<host::clsErrorItem>();
    made->put_Severity(severity);
    made->put_Message(message);
    log.Add(made);
  };
  item(host::severityProgress, "Building...");
  EXPECT_FALSE(log.HasItems()) << "progress is no item of the list";
  item(host::severityWarning, "No command\r\nfor the button.");
  EXPECT_TRUE(log.HasItems());

  const TemporaryFolder folder;
  const std::string path = folder.inside("messages.txt");
  log.SaveToFile(path, false);
  log.SaveToFile(path, true);
  const std::string line = "Warning\tNo command for the button.\r\n";
  EXPECT_EQ(fileText(folder.path() / "messages.txt"), line + line);
  EXPECT_THROW(log.SaveToFile(path + "\\deeper", false), host::Error);
  log.Clear();
  EXPECT_FALSE(log.HasItems());
}

}  // namespace
}  // namespace tests
