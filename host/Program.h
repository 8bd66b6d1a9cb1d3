#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/Object.h"
#include "host/StepCondition.h"

namespace host {

/// A step of a preset, made with forms::createObject<Step>(progIDStep), inserted and then
/// initialised. Before it is in a preset it keeps what it is given, and its target is looked at
/// when it is inserted.
class Step : public forms::Object {
 public:
  /// False, with the step unchanged: the target is not in the document, or the kind or target type
  /// is none of enumStepKind and enumTargetType. A command that the target lacks is taken.
  virtual bool Init(std::int16_t iKind, std::int16_t iTargetType, std::int16_t iReserved,
                    std::int32_t lTargetID, const std::string& strSignalName) = 0;
  virtual std::int16_t get_Kind() const = 0;
  virtual std::int16_t get_TargetType() const = 0;
  virtual std::int32_t get_TargetID() const = 0;
  virtual std::string get_SignalName() const = 0;
  virtual std::string get_Value() const = 0;  // empty: none was set
  virtual void put_Value(const std::string& strValue) = 0;
  virtual std::int16_t get_ValueFormat() const = 0;
  virtual void put_ValueFormat(std::int16_t iFormat) = 0;
  /// Of a conditional step; nothing for others. The group that is put is copied.
  virtual std::shared_ptr<StepConditionGroup> get_Conditions() const = 0;
  virtual void put_Conditions(const std::shared_ptr<StepConditionGroup>& oConditions) = 0;
  /// Id of the branch's preset, found through PresetList::ItemByID; 0 while the step is in no
  /// preset.
  virtual std::int32_t get_SubPresetID() const = 0;
};

/// An ordered list of steps: a named one, the one of a signal's event, or the branch of a
/// conditional step.
class Preset {
 public:
  virtual ~Preset() = default;
  virtual std::int32_t get_ID() const = 0;
  virtual std::string get_Name() const = 0;  // empty for events and branches
  virtual std::string get_Comment() const = 0;
  virtual void put_Comment(const std::string& strComment) = 0;
  virtual std::int16_t get_StepCount() const = 0;
  virtual std::vector<std::shared_ptr<Step>> get_Steps() const = 0;
  /// iIndex counts from 1; a step that stands there moves back, and StepCount + 1 appends. False,
  /// with nothing changed: the index is out of range, the step stands in a preset already, or its
  /// target is not in the document.
  virtual bool InsertStep(std::int16_t iIndex, const std::shared_ptr<Step>& oStep) = 0;
  virtual void ClearSteps() = 0;
};

/// All presets of a document; the iteration gives the named ones in their order.
class PresetList {
 public:
  virtual ~PresetList() = default;
  /// Nothing when absent; compared exactly.
  virtual std::shared_ptr<Preset> FindByName(const std::string& strName) const = 0;
  /// Also events' presets and branches; nothing when absent.
  virtual std::shared_ptr<Preset> ItemByID(std::int32_t lPresetID) const = 0;
  virtual std::vector<std::shared_ptr<Preset>> Items() const = 0;
};

/// What a signal of a device output does when it changes.
class SignalEvent {
 public:
  virtual ~SignalEvent() = default;
  virtual std::shared_ptr<Preset> get_Preset() const = 0;
};

class SignalOptions {
 public:
  virtual ~SignalOptions() = default;
  virtual void EnableEvents(std::int16_t iEvents, bool bEnable) = 0;
};

/// A row of a device's signal table.
class Signal {
 public:
  virtual ~Signal() = default;
  virtual std::int16_t get_DeviceID() const = 0;
  virtual std::string get_OutputName() const = 0;  // empty for an input alone
  virtual std::string get_InputName() const = 0;   // empty for an output alone
  virtual std::int16_t get_SignalType() const = 0;
  /// iEvent is one of enumSignalEvent.
  virtual std::shared_ptr<SignalEvent> GetEvent(std::int16_t iEvent) const = 0;
  /// Nothing where the output takes no options.
  virtual std::shared_ptr<SignalOptions> get_Options() const = 0;
  virtual void ClearSource() = 0;
  virtual std::int16_t get_SourceType() const = 0;  // enumSourceType
  virtual void put_SourceType(std::int16_t iType) = 0;
  virtual std::int16_t get_SourceDeviceID() const = 0;
  virtual void put_SourceDeviceID(std::int16_t iDeviceID) = 0;
  virtual std::string get_SourceSignalName() const = 0;
  virtual void put_SourceSignalName(const std::string& strName) = 0;
};

class SignalList {
 public:
  virtual ~SignalList() = default;
  /// An output is looked up with an empty input name, an input with an empty output name, a signal
  /// with both sides with both. Nothing when absent.
  virtual std::shared_ptr<Signal> Find(std::int16_t iDeviceID, const std::string& strOutputName,
                                       const std::string& strInputName,
                                       std::int16_t iSignalType) const = 0;
};

}  // namespace host
