#include "steps/TabStart.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "forms/Rows.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;

constexpr forms::Size sizeOfBackground{2400, 3360};

}  // namespace

TabStart::TabStart(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Start", host::helpStartTab) {
  MakeTitle(lblBanner);
  const std::string strVersion = gAddIn().GetVersion();
  lblVersion.setCaption("v" + strVersion);
  lblDescription.setCaption(gAddIn().GetDescription());
  lblContinue.setFont({.bold = true});
  lblPreview.setLink(true);
  forms::ignoringErrors([this] {
    forms::Application& application = forms::Application::current();
    imgBackground.setPicture(application.loadPicture(common::AddBackslash(application.folder()) +
                                                     "pictures\\wizard-banner.svg"));
  });

  lblPreview.click.connect([this] { lblPreview_Click(); });
  offer("SetData", [this] { SetData(); });
  LayOut();
}

void TabStart::lblPreview_Click() {
  gAddIn().put_iPreviewImage(addin::previewProduct);
  gAddIn().IAddInContract_ShowPreview();
}

void TabStart::LayOut() {
  using namespace forms;
  layOut(pageArea, {
                       gap(240),
                       row({
                           column({
                               rest(lblBanner),
                               item(lblVersion),
                               gap(150),
                               rest(lblDescription),
                               gap(150),
                               item(lblPreview),
                               gap(600),
                               item(lblContinue),
                           }),
                           item(imgBackground, sizeOfBackground),
                       }),
                   });
  FitTitle(lblBanner);
}

}  // namespace steps
