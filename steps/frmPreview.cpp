#include "steps/frmPreview.h"

namespace steps {
namespace {

struct Preview {
  const char* strFile;
  std::int16_t iWidth;  // pixels
  std::int16_t iHeight;
};

/// By picture number, the first at 0.
constexpr Preview previews[] = {{"preview-1.svg", 796, 534}, {"preview-2.svg", 600, 778}};

}  // namespace

frmPreview::frmPreview() : PictureForm("frmPreview") {
  for (const Preview& preview : previews) AddPicture(preview.strFile);
}

void frmPreview::Setup(const std::string& strCaption, std::int16_t iImage) {
  ShowPicture(strCaption, iImage);
  if (iImage < 1 || iImage > static_cast<std::int16_t>(std::size(previews))) return;
  const Preview& preview = previews[iImage - 1];
  SetSizeAround(preview.iWidth, preview.iHeight);
}

}  // namespace steps
