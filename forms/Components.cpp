#include "forms/Components.h"

#include <map>
#include <mutex>

#include "forms/UserControl.h"

namespace forms {
namespace {

template <typename Factory>
class Registry {
 public:
  void set(const std::string& programId, Factory factory) {
    const std::lock_guard lock(mutex_);
    factories_[programId] = std::move(factory);
  }

  void remove(const std::string& programId) {
    const std::lock_guard lock(mutex_);
    factories_.erase(programId);
  }

  Factory find(std::string_view programId) const {
    const std::lock_guard lock(mutex_);
    const auto found = factories_.find(programId);
    if (found != factories_.end()) return found->second;
    throw Error(errors::cannotCreateObject, "Can't create \"" + std::string(programId) +
                                                "\": no component is registered under this id.");
  }

 private:
  mutable std::mutex mutex_;
  std::map<std::string, Factory, std::less<>> factories_;
};

Registry<ObjectFactory>& objects() {
  static Registry<ObjectFactory> registry;
  return registry;
}

Registry<ControlFactory>& controls() {
  static Registry<ControlFactory> registry;
  return registry;
}

}  // namespace

void registerObject(const std::string& programId, ObjectFactory factory) {
  objects().set(programId, std::move(factory));
}

void registerControl(const std::string& programId, ControlFactory factory) {
  controls().set(programId, std::move(factory));
}

void unregister(const std::string& programId) {
  objects().remove(programId);
  controls().remove(programId);
}

std::shared_ptr<Object> createAnyObject(std::string_view programId) {
  return objects().find(programId)();
}

std::unique_ptr<UserControl> createControl(std::string_view programId, Container& container,
                                           const std::string& name) {
  return controls().find(programId)(container, name);
}

}  // namespace forms
