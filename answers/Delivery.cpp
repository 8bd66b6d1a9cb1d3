#include "answers/Delivery.h"

#include "answers/Report.h"
#include "forms/Application.h"
#include "forms/ListBox.h"
#include "host/ErrorLog.h"

namespace answers {
namespace {

[[noreturn]] void fail(const std::string& what) { throw RunEnded(RunEnded::refused, what); }

void click(const Page& page, const char* button) {
  page.user().click(page.control<forms::Control>(button));
  forms::Application::current().processEvents();
  page.hands().desktop.throwIfEnded();
}

void exportRoom(const Page& page, const std::filesystem::path& archive) {
  const std::filesystem::path folder = std::filesystem::absolute(archive).parent_path();
  page.hands().made.expect(folder);
  std::error_code failure;  // the export tells
  std::filesystem::create_directories(folder, failure);
  click(page, "cmdExport");
  if (page.hands().host.exportedFile().empty()) {
    fail("the system was saved, but not exported to " + archive.string());
  }
}

void upload(const Page& page, const std::string& address) {
  trellisar::Communication& communication = *page.hands().host.communication();
  communication.setAddress(address);
  click(page, "cmdUpload");
  const std::string prefix = "the system was saved, but ";
  const auto& transfer = communication.transferOutcome();
  if (!transfer) fail(prefix + "not uploaded to " + address);
  if (!*transfer) fail(prefix + "not uploaded: " + transfer->message);
  const auto& password = communication.passwordOutcome();
  if (!password || !*password) {
    fail("the system was uploaded, but its password was not set: " +
         (password ? password->message : "the receiver was not asked"));
  }
}

}  // namespace

void answerBuildWindows(UnattendedDesktop& desktop, const Report& report) {
  desktop.answerForms("frmBuildPanels", [&](forms::Form& window) {
    const auto& log = dynamic_cast<host::ErrorLog&>(window.control("ctlErrorLog"));
    for (const auto& item : log.Items()) report.line(item->get_Message());
    forms::User(forms::Application::current()).click(window.control("cmdClose"));
  });
  desktop.answerForms("CompileDialog", [&](forms::Form& window) {
    const auto& errors = dynamic_cast<forms::ListBox&>(window.control("lstErrors"));
    for (std::int32_t i = 0; i < errors.count(); ++i) report.line(errors.text(i));
    forms::User(forms::Application::current()).click(window.control("cmdClose"));
  });
}

void deliver(const Page& lastPage, const Delivery& delivery) {
  if (delivery.archive) exportRoom(lastPage, *delivery.archive);
  if (delivery.address) upload(lastPage, *delivery.address);
}

}  // namespace answers
