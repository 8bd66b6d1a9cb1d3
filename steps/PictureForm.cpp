#include "steps/PictureForm.h"

#include "common/CommonFunctions.h"
#include "forms/Application.h"

namespace steps {
namespace {

/// What a window has over its picture, in pixels.
constexpr std::int16_t iBesidePicture = 5;
constexpr std::int16_t iBelowPicture = 50;

}  // namespace

PictureForm::PictureForm(const std::string& strName) : Form(strName) {
  setBackColor(forms::colors::white);
  setKeyPreview(true);
  keyDown.connect([this](forms::KeyDown& key) {
    if (key.code == forms::keys::escape) hide();
  });
}

void PictureForm::AddPicture(const std::string& strFile) {
  const forms::Application& application = forms::Application::current();
  forms::Picture picture;
  forms::ignoringErrors([&] {
    picture = application.loadPicture(common::AddBackslash(application.folder()) + "pictures\\" +
                                      strFile);
  });
  imgList.add(picture);
}

void PictureForm::ShowPicture(const std::string& strCaption, std::int16_t iImage) {
  setCaption(strCaption);
  forms::ignoringErrors([&] { setPicture(imgList.item(iImage)); });
}

void PictureForm::SetSizeAround(std::int16_t iWidth, std::int16_t iHeight) {
  setSize({common::PixelsToTwipsX(static_cast<std::int16_t>(iWidth + iBesidePicture)),
           common::PixelsToTwipsY(static_cast<std::int16_t>(iHeight + iBelowPicture))});
}

}  // namespace steps
