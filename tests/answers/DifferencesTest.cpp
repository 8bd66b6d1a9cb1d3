#include "answers/Differences.h"

#include <gtest/gtest.h>

namespace answers {
namespace {

TEST(AnswersDifferences, areToldInTheOrderAndTheWordsOfTheTable) {
  const auto before = base::Json::parse(R"({
    "name": "Hall", "folder": "/a", "room": {"kestrum": true},
    "display": {"device": "Bravonne P2200", "relay": {"on_delay": 5, "off_delay": 120}},
    "lift": {"device": "Hoistrel HL-30", "off_pulse": 3},
    "transmitters": [{"type": "Guest Transmitter", "label": "Desk"}]})");
  const auto after = base::Json::parse(R"({
    "name": "Lobby", "room": {"kestrum": false}, "lift": null, "power": {"second_off": {}},
    "display": {"device": "Bravonne P2200", "relay": {"on_delay": 8, "off_delay": 120}},
    "transmitters": [{"type": "Guest Transmitter", "label": "Stage"}, {"type": "Wall"}]})");
  EXPECT_EQ(
      readableText(differences(before, after)),
      "Answers\n"
      "    display.relay.on_delay (seconds from the relay to Power On): 5 became 8\n"
      "    power.second_off (a second Power Off command is sent) is new\n"
      "    lift (the lift is included) is gone\n"
      "    lift.device (the library device chosen for the lift) is gone: \"Hoistrel HL-30\"\n"
      "    lift.off_pulse (seconds for which the second command is held) is gone: 3\n"
      "    transmitters[1].type (the type's name in the library) is new: \"Wall\"\n"
      "    transmitters[0].label (the name on buttons and signals): \"Desk\" became \"Stage\"\n"
      "    room.kestrum (the monitoring interface): true became false\n");
  EXPECT_EQ(differences(base::Json::object(), after).size(),
            differences(after, base::Json::object()).size());
}

}  // namespace
}  // namespace answers
