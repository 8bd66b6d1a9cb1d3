#include <utility>

#include "host/Error.h"
#include "host/Numbers.h"
#include "trellisar/objects/ProgramObjects.h"

namespace trellisar {
namespace {

class Event : public host::SignalEvent {
 public:
  Event(DocumentPtr document, std::shared_ptr<PresetData> preset)
      : document_(std::move(document)), preset_(std::move(preset)) {}
  std::shared_ptr<host::Preset> get_Preset() const override {
    return makePresetObject(document_, preset_);
  }

 private:
  DocumentPtr document_;
  std::shared_ptr<PresetData> preset_;
};

class Options : public host::SignalOptions {
 public:
  explicit Options(std::shared_ptr<SignalData> signal) : signal_(std::move(signal)) {}
  void EnableEvents(std::int16_t iEvents, bool bEnable) override {
    const int enabled = signal_->enabledEvents;
    signal_->enabledEvents =
        static_cast<std::int16_t>(bEnable ? (enabled | iEvents) : (enabled & ~iEvents));
  }

 private:
  std::shared_ptr<SignalData> signal_;
};

class SignalObject : public host::Signal {
 public:
  SignalObject(DocumentPtr document, std::shared_ptr<SignalData> data)
      : document_(std::move(document)), data_(std::move(data)) {}

  std::int16_t get_DeviceID() const override { return data_->deviceId; }
  std::string get_OutputName() const override { return data_->row.output; }
  std::string get_InputName() const override { return data_->row.input; }
  std::int16_t get_SignalType() const override { return data_->row.type; }

  std::shared_ptr<host::SignalEvent> GetEvent(std::int16_t iEvent) const override {
    if (iEvent != host::eventHigh && iEvent != host::eventLow) {
      throw host::Error(host::errBadArgument,
                        "A signal has no event " + std::to_string(iEvent) + ".");
    }
    auto preset = document_->eventPreset(*data_, static_cast<std::size_t>(iEvent));
    return std::make_shared<Event>(document_, std::move(preset));
  }

  std::shared_ptr<host::SignalOptions> get_Options() const override {
    return data_->row.hasOptions ? std::make_shared<Options>(data_) : nullptr;
  }

  void ClearSource() override {
    put_SourceType(host::sourceEvents);
    put_SourceDeviceID(0);
    put_SourceSignalName({});
  }

  std::int16_t get_SourceType() const override { return data_->sourceType; }
  void put_SourceType(std::int16_t iType) override { set(data_->sourceType, iType); }
  std::int16_t get_SourceDeviceID() const override { return data_->sourceDevice; }
  void put_SourceDeviceID(std::int16_t iDeviceID) override { set(data_->sourceDevice, iDeviceID); }
  std::string get_SourceSignalName() const override { return data_->sourceSignal; }
  void put_SourceSignalName(const std::string& strName) override {
    set(data_->sourceSignal, strName);
  }

 private:
  template <typename T>
  void set(T& field, const T& value) {
    if (field == value) return;
    field = value;
    document_->markProgramChanged();
  }

  DocumentPtr document_;
  std::shared_ptr<SignalData> data_;
};

class SignalListObject : public host::SignalList {
 public:
  explicit SignalListObject(DocumentPtr document) : document_(std::move(document)) {}

  std::shared_ptr<host::Signal> Find(std::int16_t iDeviceID, const std::string& strOutputName,
                                     const std::string& strInputName,
                                     std::int16_t iSignalType) const override {
    const DevicePtr device = document_->find(iDeviceID);
    if (!device) return nullptr;
    auto signal = document_->signal(*device, strOutputName, strInputName, iSignalType);
    return signal ? std::make_shared<SignalObject>(document_, std::move(signal)) : nullptr;
  }

 private:
  DocumentPtr document_;
};

}  // namespace

std::shared_ptr<host::SignalList> makeSignalList(const DocumentPtr& document) {
  return std::make_shared<SignalListObject>(document);
}

}  // namespace trellisar
