#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/Json.h"
#include "trellisar/compile/Piece.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// The document by name and in stable order: what tools, goldens and messages of failed tests look
/// at.
base::Json listing(const DocumentData& document);

/// The same for reading: devices, bill of materials and the control program in words.
std::string readableText(const DocumentData& document);

/// A line of it, without its end, and the piece of the document that it tells; null: none.
struct TextLine {
  std::string text;
  Piece piece = nullptr;
};
std::vector<TextLine> readableLines(const DocumentData& document);

/// An event whose preset has steps.
struct ProgrammedEvent {
  std::string device;  // its shown name
  std::string signal;
  std::int16_t event;
  const PresetData* preset;
  const SignalData* data;
};

/// Ordered by device, signal and event.
std::vector<ProgrammedEvent> programmedEvents(const DocumentData& document);

/// The signals that are fed directly, device by device, each with the shown name of its device.
std::vector<std::pair<std::string, const SignalData*>> fedSignals(const DocumentData& document);

/// The devices without modules, the control system first.
std::vector<DevicePtr> listedDevices(const DocumentData& document);

/// The library device that was chosen for a device; empty for the parts that every room is made of.
std::string chosenType(const DeviceData& device);

/// The name of the device that a bill entry stands for; empty when it has gone.
std::string billDevice(const DocumentData& document, const BillEntryData& entry);

}  // namespace trellisar
