#include "app/Answers.h"

#include <gtest/gtest.h>

#include "app/RunEnded.h"

namespace app {
namespace {

std::string refusalOf(const std::string& json) {
  try {
    const Answers answers(trellisar::Json::parse(json));
  } catch (const RunEnded& ended) {
    EXPECT_EQ(ended.status(), 2);
    return ended.what();
  }
  return "taken";
}

TEST(AnswersForm, takesEveryKeyAtItsLimits) {
  EXPECT_EQ(refusalOf("{}"), "taken");
  EXPECT_EQ(refusalOf(R"({
    "name": "12345678901234567890123456789012345678901234567890", "folder": "rooms",
    "display": {"device": "D", "rgb": "", "composite": "V",
                "relay": {"on_delay": 0, "off_delay": 999}},
    "audio": {"volume_knob": "master", "microphone": "when on", "mute_on_input_3": true},
    "power": {"control": "discrete", "on": "", "off": "Off",
              "second_off": {"command": "Off", "delay": 999}},
    "lockout": {"on": 0, "off": 999, "contact": "power off"},
    "screen": {"device": "S", "on": "Down", "off": "Up", "on_pulse": 655, "off_pulse": 0},
    "lift": {"device": "L"},
    "transmitters": [{"type": "A"}, {"type": "B", "label": "äöüß5678"}, {"type": "C"}],
    "three_input_receiver": false,
    "room": {"kestrum": true, "fenlet": true, "occupancy": true, "fenlet_password": " p ",
             "power_off_after": 546}
  })"),
            "taken");
  EXPECT_EQ(refusalOf(R"({"display": {"relay": {}}, "power": {"second_off": {}}})"), "taken");
}

TEST(AnswersForm, namesThePlaceAndWhatIsAllowedThere) {
  struct Case {
    const char* json;
    const char* refusal;
  };
  const Case cases[] = {
      {"[]", "must be an object"},
      {R"({"name": ""})", "name: must be a text of 1 to 50 characters"},
      {R"({"name": "äääääääääääääääääääääääääääääääääääääääääääääääääää"})",
       "name: must be a text of 1 to 50 characters"},
      {R"({"folder": null})", "folder: must be a text"},
      {R"({"display": {"relay": true}})", "display.relay: must be an object"},
      {R"({"display": {"relay": {"on_delay": 1000}}})",
       "display.relay.on_delay: must be a whole number from 0 to 999"},
      {R"({"display": {"relay": {"on_delay": -1}}})",
       "display.relay.on_delay: must be a whole number from 0 to 999"},
      {R"({"display": {"relay": {"off_delay": 5.0}}})",
       "display.relay.off_delay: must be a whole number from 0 to 999"},
      {R"({"lockout": {"on": 18446744073709551615}})",
       "lockout.on: must be a whole number from 0 to 999"},
      {R"({"lockout": {"contact": "opened"}})",
       R"(lockout.contact: "opened" is none of "unused", "power off", "continue")"},
      {R"({"lockout": {"contact": 1}})",
       R"(lockout.contact: must be one of "unused", "power off", "continue")"},
      {R"({"audio": {"mute_on_input_3": 1}})", "audio.mute_on_input_3: must be true or false"},
      {R"({"power": {"second_off": {"command": ""}}})",
       "power.second_off.command: must be a text that is not empty"},
      {R"({"screen": {"on": "Down"}})", "screen.device: is missing; it must be a text"},
      {R"({"lift": {"device": "L", "off_pulse": 656}})",
       "lift.off_pulse: must be a whole number from 0 to 655"},
      {R"({"transmitters": [{"type":"A"},{"type":"A"},{"type":"A"},{"type":"A"}]})",
       "transmitters: must be an array of at most 3 elements"},
      {R"({"transmitters": [{"type": "A"}, {"label": "L"}]})",
       "transmitters[1].type: is missing; it must be a text"},
      {R"({"transmitters": [{"type": "A", "label": "Lectern "}]})",
       "transmitters[0].label: must be a text of 1 to 8 characters without blanks at its ends"},
      {R"({"room": {"fenlet_password": "  "}})",
       "room.fenlet_password: must be a text of at most 20 characters, not of blanks alone and "
       "without control characters"},
      {R"({"room": {"fenlet_password": "a\tb"}})",
       "room.fenlet_password: must be a text of at most 20 characters, not of blanks alone and "
       "without control characters"},
      {R"({"room": {"power_off_after": 547}})",
       "room.power_off_after: must be a whole number from 0 to 546"},
      {R"({"room": {"Kestrum": true}})",
       R"(room.Kestrum: is no key; known here are "kestrum", "fenlet", "occupancy", )"
       R"("fenlet_password", "power_off_after")"},
  };
  for (const Case& bad : cases) EXPECT_EQ(refusalOf(bad.json), bad.refusal) << bad.json;
}

TEST(Answers, areFoundByTheirPathAndAreAbsentWhereLeftOut) {
  const Answers answers(trellisar::Json::parse(R"({"display": {"relay": {"on_delay": 5}}})"));
  ASSERT_TRUE(answers.find("display.relay.on_delay"));
  EXPECT_EQ(*answers.find("display.relay.on_delay"), 5);
  EXPECT_TRUE(answers.find("display.relay"));
  EXPECT_FALSE(answers.find("display.relay.off_delay"));
  EXPECT_FALSE(answers.find("power.second_off.delay"));
}

}  // namespace
}  // namespace app
