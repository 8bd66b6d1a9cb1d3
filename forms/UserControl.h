#pragma once

#include <algorithm>
#include <any>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "forms/Form.h"
#include "forms/Root.h"

namespace forms {

using Value =
    std::variant<std::monostate, bool, std::int16_t, std::int32_t, std::uint32_t, std::string>;

/// The property store of a control on a form: what was set when the form was designed.
class PropertyBag {
 public:
  /// The stored value, or `byDefault` when there is none of that type.
  template <typename T>
  T read(const std::string& name, const T& byDefault) const {
    const auto found = values_.find(name);
    if (found == values_.end() || !std::holds_alternative<T>(found->second)) return byDefault;
    return std::get<T>(found->second);
  }

  /// Stores the value, unless it is the default.
  template <typename T>
  void write(const std::string& name, const T& value, const T& byDefault) {
    if (std::find(order_.begin(), order_.end(), name) == order_.end()) order_.push_back(name);
    if (value == byDefault) {
      values_.erase(name);
    } else {
      values_[name] = value;
    }
  }

  /// The names in the order in which they were first written, defaults included.
  const std::vector<std::string>& order() const { return order_; }
  bool isStored(const std::string& name) const { return values_.contains(name); }

 private:
  std::map<std::string, Value> values_;
  std::vector<std::string> order_;
};

/// A custom event as the extender passes it on: a name, and parameters by place.
struct ObjectEvent {
  std::string name;
  std::vector<Value> parameters;
};

/// A control that is composed of controls. It is its own extender: position, visibility and tab
/// stop are those of the `Control` that it is, and `objectEvent` is the extender's generic event.
/// Where its tab stop is False, Tab passes all that it holds.
class UserControl : public Control, public Root {
 public:
  UserControl(Container& container, std::string name);

  Kind kind() const override { return Kind::userControl; }
  Control* asControl() override { return this; }
  Container* asContainer() override { return this; }
  Form* ownerForm() override { return form(); }
  FormView* formView() override { return root().formView(); }

  /// The last step of its creation, one of the two: without stored properties, or with those of
  /// `bag`. `Root::addControl` calls the first; whoever declares the control as a member calls the
  /// one that it needs.
  virtual void initProperties() {}
  virtual void readProperties(const PropertyBag& /*bag*/) {}
  virtual void writeProperties(PropertyBag& /*bag*/) const {}

  /// Calls a member by its name; an argument that comes back is named in the call:
  /// `call<bool&>("BeforeTabChange", b)`. Raises Error 438 when the control has no such member,
  /// Error 13 when it takes other arguments, and what the member raises.
  template <typename... Arguments>
  void call(std::string_view member, Arguments... arguments) {
    using Member = std::function<void(Arguments...)>;
    const auto* function = std::any_cast<Member>(&findMember(member));
    if (!function) throw Error(errors::typeMismatch, "Type mismatch: " + std::string(member));
    (*function)(std::forward<Arguments>(arguments)...);
  }

  Event<> resized;
  Event<> painted;
  Event<const ObjectEvent&> objectEvent;
  /// A property was changed that is stored with the form; the argument is its name.
  Event<const std::string&> propertyChanged;

 protected:
  /// Makes a member callable by name, with exactly these arguments:
  ///
  ///     offer("SetData", [this] { SetData(); });
  ///     offer<bool&>("BeforeTabChange", [this](bool& bCancel) { BeforeTabChange(bCancel); });
  template <typename... Arguments>
  void offer(std::string member, std::type_identity_t<std::function<void(Arguments...)>> function) {
    members_[std::move(member)] = std::move(function);
  }

 private:
  const std::any& findMember(std::string_view member) const;
  void boundsChanged(const Rect& before) override;

  std::map<std::string, std::any, std::less<>> members_;
};

}  // namespace forms
