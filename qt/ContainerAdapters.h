#pragma once

#include "forms/Frame.h"
#include "forms/UserControl.h"
#include "qt/Adapter.h"

namespace qt {

class Box;

class FrameAdapter : public Adapter {
 public:
  FrameAdapter(forms::Frame& frame, const Place& place);

 protected:
  void show() override;

 private:
  forms::Frame& frame_;
  Box* box_;
};

class UserControlAdapter : public Adapter {
 public:
  UserControlAdapter(forms::UserControl& control, const Place& place);

 protected:
  void show() override {}
};

}  // namespace qt
