#include "answers/AnswersShape.h"

#include <algorithm>

#include "forms/Text.h"

namespace answers {
namespace {

Shape delaySeconds() { return integer(0, 999); }
Shape pulseSeconds() { return integer(0, 655); }

Shape auxiliaryDevice() {
  return orNull(object({{"device", text(), Key::required},
                        {"on", text()},
                        {"off", text()},
                        {"on_pulse", pulseSeconds()},
                        {"off_pulse", pulseSeconds()}}));
}

Shape transmitterLabel() {
  const auto isTrimmed = [](const std::string& label) { return forms::trimmed(label) == label; };
  return text(1, 8, isTrimmed, " without blanks at its ends");
}

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }

/// A receiver takes no password with a control character, and says so only after the transfer.
Shape password() {
  const auto canBeSet = [](const std::string& password) {
    const bool hasControls = std::any_of(password.begin(), password.end(), isControl);
    return password.empty() || (!forms::trimmed(password).empty() && !hasControls);
  };
  return text(0, 20, canBeSet, ", not of blanks alone and without control characters");
}

Shape makeShape() {
  return object({
      {"$schema", anything()},
      {"name", text(1, 50)},
      {"folder", text()},
      {"display", object({{"device", text()},
                          {"rgb", text()},
                          {"composite", text()},
                          {"relay", orNull(object({{"on_delay", delaySeconds()},
                                                   {"off_delay", delaySeconds()}}))}})},
      {"audio", object({{"volume_knob", word({"program", "master"})},
                        {"microphone", word({"when on", "always"})},
                        {"mute_on_input_3", boolean()}})},
      {"power",
       object({{"control", word({"none", "sensing", "discrete"})},
               {"on", text()},
               {"off", text()},
               {"second_off", orNull(object({{"command", text(1)}, {"delay", delaySeconds()}}))}})},
      {"lockout", object({{"on", delaySeconds()},
                          {"off", delaySeconds()},
                          {"contact", word({"unused", "power off", "continue"})}})},
      {"screen", auxiliaryDevice()},
      {"lift", auxiliaryDevice()},
      {"transmitters",
       array(3, object({{"type", text(), Key::required}, {"label", transmitterLabel()}}))},
      {"three_input_receiver", boolean()},
      {"room", object({{"kestrum", boolean()},
                       {"fenlet", boolean()},
                       {"occupancy", boolean()},
                       {"fenlet_password", password()},
                       {"power_off_after", integer(0, 546)}})},
  });
}

}  // namespace

const Shape& answersShape() {
  static const Shape shape = makeShape();
  return shape;
}

}  // namespace answers
