#include "trellisar/window/AddIns.h"
#include "trellisar/dialogs/Messages.h"

#include <map>
#include <mutex>
#include <utility>

#include "forms/Guard.h"
#include "host/Error.h"
#include "trellisar/window/Component.h"
#include "trellisar/window/ComponentRegistration.h"
#include "trellisar/window/Host.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

/// The components of the process. A component is asked whether it can be unloaded, but an object
/// that ends on another thread is still at the end of the component's code when it no longer
/// counts there. So objects are counted here too, until their last instruction.
class LoadedComponents {
 public:
  /// They stay to the end of the process, and go after all that could use them.
  static LoadedComponents& ofProcess() {
    static auto* components = new LoadedComponents;
    return *components;
  }

  std::shared_ptr<host::IAddInContract> create(const fs::path& library,
                                               const std::string& className) {
    const std::lock_guard lock(mutex_);
    Entry& entry = load(library);
    auto addIn = entry.component.create(className);
    auto* contract = addIn.get();
    auto use = std::make_shared<Use>(*this, entry, std::move(addIn));
    return {std::move(use), contract};
  }

  bool unloadUnused() {
    const std::lock_guard lock(mutex_);
    std::erase_if(components_, [](const auto& loaded) {
      return loaded.second->uses == 0 && loaded.second->component.canUnload();
    });
    return components_.empty();
  }

 private:
  struct Entry {
    explicit Entry(const fs::path& library) : component(library) {}
    Component component;
    int uses = 0;
  };

  /// An object that was handed out.
  class Use {
   public:
    Use(LoadedComponents& all, Entry& entry, std::shared_ptr<host::IAddInContract> addIn)
        : all_(all), entry_(entry), addIn_(std::move(addIn)) {
      ++entry_.uses;
    }
    ~Use() {
      addIn_.reset();
      const std::lock_guard lock(all_.mutex_);
      --entry_.uses;
    }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

   private:
    LoadedComponents& all_;
    Entry& entry_;
    std::shared_ptr<host::IAddInContract> addIn_;
  };

  Entry& load(const fs::path& library) {
    const fs::path file = fs::absolute(library).lexically_normal();
    auto found = components_.find(file);
    if (found == components_.end()) {
      found = components_.emplace(file, std::make_unique<Entry>(file)).first;
    }
    return *found->second;
  }

  std::mutex mutex_;
  std::map<fs::path, std::unique_ptr<Entry>> components_;
};

std::shared_ptr<host::IAddInContract> create(const RegisteredClass& registered) {
  return LoadedComponents::ofProcess().create(registered.library, registered.name);
}

template <typename Action>
void tellingFailures(Action action) {
  try {
    action();
  } catch (const host::Error& error) {
    showFailure("An add-in is missing.\r\n\r\n" + error.description());
  }
}

void run(host::IAddInContract& addIn, Host& host, bool useOpenFile) {
  addIn.IAddInContract_Load(host.document(), host.libraryManager(), host.communication(),
                            host.smallPictures(), host.largePictures(), host.mainWindow());
  addIn.IAddInContract_UseOpenFile(useOpenFile);
  host.mainWindow()->setGuide(dynamic_cast<host::ProgramGuide*>(&addIn));
  host.mainWindow()->setUnsavedWork(dynamic_cast<host::UnsavedWork*>(&addIn));
  const forms::AtEnd ended([&] {
    host.mainWindow()->setGuide(nullptr);
    host.mainWindow()->setUnsavedWork(nullptr);
  });
  addIn.IAddInContract_Run(host.mainWindow());
}

}  // namespace

std::shared_ptr<host::IAddInContract> createAddIn(const fs::path& registration,
                                                  const std::string& className) {
  for (const RegisteredClass& registered : readRegistration(registration)) {
    if (registered.name == className) return create(registered);
  }
  throw host::Error(host::errCannotCreate, "No component is registered for the class \"" +
                                               className + "\" in \"" + registration.string() +
                                               "\".");
}

std::vector<std::shared_ptr<host::IAddInContract>> createAddIns(const fs::path& registration) {
  std::vector<std::shared_ptr<host::IAddInContract>> addIns;
  tellingFailures([&] {
    for (const RegisteredClass& registered : readRegistration(registration)) {
      tellingFailures([&] { addIns.push_back(create(registered)); });
    }
  });
  return addIns;
}

bool unloadComponents() { return LoadedComponents::ofProcess().unloadUnused(); }

void runOnNewSystem(host::IAddInContract& addIn, Host& host) {
  run(addIn, host, /*useOpenFile=*/false);
}

void runOnOpenSystem(host::IAddInContract& addIn, Host& host) {
  run(addIn, host, /*useOpenFile=*/true);
}

}  // namespace trellisar
