#pragma once

#include "forms/Image.h"
#include "forms/Line.h"
#include "forms/ProgressBar.h"
#include "qt/Adapter.h"

namespace qt {

class PictureWidget;

class LineAdapter : public Adapter {
 public:
  LineAdapter(forms::Line& line, const Place& place);

 protected:
  void show() override;
};

class ImageAdapter : public Adapter {
 public:
  ImageAdapter(forms::Image& image, const Place& place);

 protected:
  void show() override;
  bool mouseReleased(QWidget& part, QMouseEvent& event) override;

 private:
  forms::Image& image_;
  PictureWidget* picture_;
};

class ProgressBarAdapter : public Adapter {
 public:
  ProgressBarAdapter(forms::ProgressBar& bar, const Place& place);

 protected:
  void show() override;

 private:
  forms::ProgressBar& bar_;
};

}  // namespace qt
