#pragma once

#include <string>

#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/Rows.h"
#include "host/ctlImage.h"

namespace steps {

/// What a hint's controls are called where a page has several of them or another sign.
struct HintNames {
  std::string strSign = "ctlImage";
  std::string strIndex{};  // "(0)" for the members of control arrays
};

/// What a hint says while there is no display to ask about.
std::string HintToAddDisplay(const std::string& strSubject);
/// What a hint says while a device isn't chosen yet.
std::string HintToChoose(const std::string& strDevice);

/// A framed hint with the information sign, which a page shows in the place of what it can't ask
/// yet. Its controls are named "frameInfo", "ctlImage", "lblInfo" and "lblBorder".
class HintFrame {
 public:
  explicit HintFrame(forms::Container& container, const std::string& strText = {},
                     const HintNames& names = {});

  void SetText(const std::string& strText) { lblInfo.setCaption(strText); }
  void Show(bool bShow) { frameInfo.setVisible(bShow); }
  /// Its place on a page.
  forms::Piece Place();
  /// After the page was laid out: the border goes round the hint.
  void PlaceBorder();

 private:
  forms::Frame frameInfo;
  host::ctlImage ctlImage;
  forms::Label lblInfo;
  forms::Label lblBorder;
};

}  // namespace steps
