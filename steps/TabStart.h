#pragma once

#include "forms/Image.h"
#include "forms/Label.h"
#include "steps/WizardStep.h"

namespace steps {

/// The first page: it greets, and shows what the wizard makes. It has no data.
class TabStart : public WizardStep {
 public:
  TabStart(forms::Container& container, std::string strName);

  bool SetData() { return false; }
  bool iTab_SaveData() override { return false; }
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override {}

 private:
  void lblPreview_Click();
  void LayOut();

  forms::Image imgBackground{*this, "imgBackground"};
  forms::Label lblBanner{*this, "lblBanner"};
  forms::Label lblVersion{*this, "lblVersion"};
  forms::Label lblDescription{*this, "lblDescription"};
  forms::Label lblPreview{*this, "lblPreview", "Show Preview..."};
  forms::Label lblContinue{*this, "lblContinue", "To continue, click Next."};
};

}  // namespace steps
