#include "steps/frmPictures.h"

#include "addin/Enumerations.h"
#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "host/Numbers.h"

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
  forms::ignoringErrors([&] {
    const forms::Application& application = forms::Application::current();
    imgList.add(application.loadPicture(common::AddBackslash(application.folder()) + "pictures\\" +
                                        strFile));
  });
}

void PictureForm::ShowPicture(const std::string& strCaption, std::int16_t iImage) {
  setCaption(strCaption);
  forms::ignoringErrors([&] { setPicture(imgList.item(iImage)); });
}

void PictureForm::SetSizeInPixels(std::int16_t iWidth, std::int16_t iHeight) {
  setSize({common::PixelsToTwipsX(iWidth), common::PixelsToTwipsY(iHeight)});
}

frmPreview::frmPreview() : PictureForm("frmPreview") {
  AddPicture("preview-1.svg");
  AddPicture("preview-2.svg");
}

void frmPreview::Setup(const std::string& strCaption, std::int16_t iImage) {
  ShowPicture(strCaption, iImage);
  if (iImage == addin::previewProduct) SetSizeInPixels(796 + iBesidePicture, 534 + iBelowPicture);
  if (iImage == addin::previewWiring) SetSizeInPixels(600 + iBesidePicture, 778 + iBelowPicture);
}

frmVideoTestPattern::frmVideoTestPattern() : PictureForm("frmVideoTestPattern") {
  imgList.setImageSize(640, 480);
  AddPicture("test-pattern.svg");
  SetSizeInPixels(static_cast<std::int16_t>(imgList.imageWidth() + iBesidePicture),
                  static_cast<std::int16_t>(imgList.imageHeight() + iBelowPicture));
  setHelpContext(host::helpVideoTestPattern);
}

void frmVideoTestPattern::Setup(const std::string& strCaption, std::int16_t iImage) {
  ShowPicture(strCaption, iImage);
}

}  // namespace steps
