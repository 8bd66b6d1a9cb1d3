#include "qt/AdapterFactory.h"

#include "qt/ContainerAdapters.h"
#include "qt/DropDownListAdapter.h"
#include "qt/LabelAdapter.h"
#include "qt/ListBoxAdapter.h"
#include "qt/ListViewAdapter.h"
#include "qt/MarkedAdapters.h"
#include "qt/PushButtonAdapter.h"
#include "qt/ShapeAdapters.h"
#include "qt/TabStripAdapter.h"
#include "qt/TextBoxAdapter.h"
#include "qt/TextViewAdapter.h"
#include "qt/ToolBarAdapter.h"

namespace qt {
namespace {

template <typename AdapterType, typename ControlType>
std::unique_ptr<Adapter> make(forms::Control& control, const Place& place) {
  return std::make_unique<AdapterType>(dynamic_cast<ControlType&>(control), place);
}

}  // namespace

std::unique_ptr<Adapter> makeAdapter(forms::Control& control, const Place& place) {
  using forms::Kind;
  switch (control.kind()) {
    case Kind::label:
      return make<LabelAdapter, forms::Label>(control, place);
    case Kind::textBox:
      return make<TextBoxAdapter, forms::TextBox>(control, place);
    case Kind::checkBox:
      return make<CheckBoxAdapter, forms::CheckBox>(control, place);
    case Kind::optionButton:
      return make<OptionButtonAdapter, forms::OptionButton>(control, place);
    case Kind::commandButton:
      return make<PushButtonAdapter, forms::CommandButton>(control, place);
    case Kind::frame:
      return make<FrameAdapter, forms::Frame>(control, place);
    case Kind::line:
      return make<LineAdapter, forms::Line>(control, place);
    case Kind::image:
      return make<ImageAdapter, forms::Image>(control, place);
    case Kind::listBox:
      return make<ListBoxAdapter, forms::ListBox>(control, place);
    case Kind::dropDownList:
      return make<DropDownListAdapter, forms::DropDownList>(control, place);
    case Kind::listView:
      return make<ListViewAdapter, forms::ListView>(control, place);
    case Kind::textView:
      return make<TextViewAdapter, forms::TextView>(control, place);
    case Kind::progressBar:
      return make<ProgressBarAdapter, forms::ProgressBar>(control, place);
    case Kind::toolBar:
      return make<ToolBarAdapter, forms::ToolBar>(control, place);
    case Kind::tabStrip:
      return make<TabStripAdapter, forms::TabStrip>(control, place);
    case Kind::userControl:
      break;
  }
  return make<UserControlAdapter, forms::UserControl>(control, place);
}

}  // namespace qt
