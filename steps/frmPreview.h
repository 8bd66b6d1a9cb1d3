#pragma once

#include <cstdint>
#include <string>

#include "steps/PictureForm.h"

namespace steps {

/// What the wizard makes (picture 1), and how a room is wired (picture 2).
class frmPreview : public PictureForm {
 public:
  frmPreview();
  void Setup(const std::string& strCaption, std::int16_t iImage) override;
};

}  // namespace steps
