#pragma once

#include <cstdint>
#include <string>

#include "steps/PictureForm.h"

namespace steps {

/// The picture with which a user adjusts a display.
class frmVideoTestPattern : public PictureForm {
 public:
  frmVideoTestPattern();
  void Setup(const std::string& strCaption, std::int16_t iImage) override;
};

}  // namespace steps
