#include "steps/TabStart.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "forms/Rows.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;

constexpr std::int32_t lLongTitle = 20;  // characters; a longer title takes two lines
constexpr forms::Size sizeOfBackground{2400, 3360};

}  // namespace

TabStart::TabStart(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Start", host::helpStartTab) {
  lblBanner.setCaption(gAddIn().IAddInContract_Title());
  lblBanner.setFont({.points = 20, .bold = true});
  lblVersion.setCaption("v" + gAddIn().GetVersion());
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
  if (length(lblBanner.caption()) > lLongTitle) {
    lblBanner.setBounds({lblBanner.bounds().left, 300, lblBanner.bounds().width, 1155});
  }
}

}  // namespace steps
