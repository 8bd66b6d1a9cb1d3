#pragma once

#include <string>

#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/Rows.h"
#include "host/ctlImage.h"

namespace steps {

/// A framed hint with the information sign, which a page shows in the place of what it can't ask
/// yet. Its controls are named "frameInfo", "ctlImage", "lblInfo" and "lblBorder".
class HintFrame {
 public:
  explicit HintFrame(forms::Container& container, const std::string& strText = {});

  void SetText(const std::string& strText) { lblInfo.setCaption(strText); }
  void Show(bool bShow) { frameInfo.setVisible(bShow); }
  /// Its place on a page.
  forms::Piece Place();
  /// After the page was laid out: the border goes round the hint.
  void PlaceBorder();

 private:
  forms::Frame frameInfo;
  host::ctlImage ctlImage{frameInfo, "ctlImage"};
  forms::Label lblInfo{frameInfo, "lblInfo"};
  forms::Label lblBorder{frameInfo, "lblBorder"};
};

}  // namespace steps
