#include "answers/Answers.h"

#include <gtest/gtest.h>

#include "answers/RunEnded.h"

namespace answers {
namespace {

std::string refusalOf(const std::string& json) {
  try {
    const Answers answers(json);
  } catch (const RunEnded& ended) {
    EXPECT_EQ(ended.cause(), RunEnded::wrongInput);
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
    "lockout": {"on": 0.0, "off": 99.9e1, "contact": "power off"},
    "screen": {"device": "S", "on": "Down", "off": "Up", "on_pulse": 655, "off_pulse": 0},
    "lift": {"device": "L"},
    "transmitters": [{"type": "A"}, {"type": "B", "label": "äöüß5678"}, {"type": "C"}],
    "three_input_receiver": false,
    "room": {"kestrum": true, "fenlet": true, "occupancy": true, "fenlet_password": " p ",
             "power_off_after": 546}
  })"),
            "taken");
  EXPECT_EQ(refusalOf(R"({"display": {"relay": {}}, "power": {"second_off": {}}})"), "taken");
  EXPECT_EQ(refusalOf(R"({"$schema": [1], "display": {"relay": null}, "screen": null})"), "taken");
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
      {R"({"display": {"relay": true}})", "display.relay: must be an object, or null"},
      {R"({"display": {"relay": {"on_delay": 1000}}})",
       "display.relay.on_delay: must be a whole number from 0 to 999"},
      {R"({"display": {"relay": {"off_delay": 5.5}}})",
       "display.relay.off_delay: must be a whole number from 0 to 999"},
      {R"({"lockout": {"on": 18446744073709551615}})",
       "lockout.on: must be a whole number from 0 to 999"},
      {R"({"lockout": {"contact": "opened"}})",
       R"(lockout.contact: "opened" is none of "unused", "power off", "continue")"},
      {R"({"audio": {"mute_on_input_3": 1}})", "audio.mute_on_input_3: must be true or false"},
      {R"({"power": {"second_off": {"command": ""}}})",
       "power.second_off.command: must be a text that is not empty"},
      {R"({"screen": {"on": "Down"}})", "screen.device: is missing; it must be a text"},
      {R"({"transmitters": [{"type":"A"},{"type":"A"},{"type":"A"},{"type":"A"}]})",
       "transmitters: must be an array of at most 3 elements"},
      {R"({"transmitters": [{"type": "A"}, {"label": "L"}]})",
       "transmitters[1].type: is missing; it must be a text"},
      {R"({"transmitters": [{"type": "A", "label": "Lectern "}]})",
       "transmitters[0].label: must be a text of 1 to 8 characters without blanks at its ends"},
      {R"({"room": {"fenlet_password": "a\tb"}})",
       "room.fenlet_password: must be a text of at most 20 characters, not of blanks alone and "
       "without control characters"},
      {R"({"room": {"Kestrum": true}})",
       R"(room.Kestrum: is no key; known here are "kestrum", "fenlet", "occupancy", )"
       R"("fenlet_password", "power_off_after"; did you mean "kestrum"?)"},
      {R"({"room": {"": true}})",
       R"(room."": is no key; known here are "kestrum", "fenlet", "occupancy", )"
       R"("fenlet_password", "power_off_after")"},
      {R"({"transmiters": []})",
       R"(transmiters: is no key; known here are "transmitters", "name", )"
       R"("folder" and 8 more; did you mean "transmitters"?)"},
  };
  for (const Case& bad : cases) EXPECT_EQ(refusalOf(bad.json), bad.refusal) << bad.json;
}

/// The faults as they are told, without the file.
std::string faultsOf(const std::string& json) {
  std::string all;
  try {
    const Answers answers(json);
  } catch (const RunEnded& ended) {
    for (const base::Fault& fault : ended.faults()) {
      all += std::to_string(fault.line) + ": " + fault.text() + "\n";
    }
  }
  return all;
}

TEST(AnswersForm, isToldWholeWithItsLines) {
  EXPECT_EQ(faultsOf(R"({
  // the hall
  "name": "Hall", # and its name
  "lockout": {
    "on": 1000
    ,
    "contact": "power of", /* either
                              way */
  },
  "screen": {},
  "transmitters": [
    {"type": "A", "label": "Ninechars"},
    17
  ],
  "": 0,
  "name": "http://hall, ]"
})"),
            "2: there are no comments in JSON\n"
            "3: there are no comments in JSON\n"
            "5: lockout.on: must be a whole number from 0 to 999\n"
            "7: there are no comments in JSON\n"
            "7: a comma with nothing behind it; take it away\n"
            "7: lockout.contact: \"power of\" is none of \"unused\", \"power off\", \"continue\"; "
            "did you mean \"power off\"?\n"
            "10: screen.device: is missing; it must be a text\n"
            "12: transmitters[0].label: must be a text of 1 to 8 characters without blanks at its "
            "ends\n"
            "13: transmitters[1]: must be an object\n"
            "15: \"\": is no key; known here are \"name\", \"lift\", \"room\" and 8 more\n"
            "16: name: the key stands twice\n");
}

TEST(AnswersForm, thatIsNoJsonIsToldInPlainWords) {
  struct Case {
    const char* json;
    const char* fault;
  };
  const std::string deep = std::string(11, '[');
  const Case cases[] = {
      {"", "1: the file ends too early: a bracket or a brace is not closed\n"},
      {"{\n\"name\": \"Hall\"\n",
       "2: the file ends too early: a bracket or a brace is not closed\n"},
      {"{\n'name': 1}", "2: texts and keys stand in double quotation marks\n"},
      {"{\n\"name\": “Hall”}", "2: texts and keys stand in straight quotation marks\n"},
      {"{\n\"name\": Hall}",
       "2: texts stand in quotation marks; true, false and null in small letters\n"},
      {"{\n\"name\": \"Hall\n\"}", "2: a text ends on its line, with a quotation mark\n"},
      {"{\"name\": \"Hall\"\n\"folder\": \"\"}", "2: a comma is missing before this\n"},
      {"{\"name\"\n\"Hall\"}", "2: a colon is missing behind the key\n"},
      {"{name: 1}", "1: a key in quotation marks is missing here\n"},
      {"{\"name\": \"\xff\"}", "1: the text is not written in UTF-8\n"},
      {"{}\n}", "2: nothing may stand behind the closing brace\n"},
      {deep.c_str(), "1: [0][0][0][0][0][0][0][0][0][0]: is nested more than 10 deep\n"},
  };
  for (const Case& bad : cases) EXPECT_EQ(faultsOf(bad.json), bad.fault) << bad.json;
}

}  // namespace
}  // namespace answers
