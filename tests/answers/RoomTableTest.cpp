#include "answers/RoomTable.h"

#include <gtest/gtest.h>

namespace answers {
namespace {

using base::Json;

const Json pattern = Json::parse(R"({
  "$schema": "s.json", "lockout": {"on": 30}, "display": {"relay": {"on_delay": 5}},
  "screen": {"device": "S", "on": "Down"}, "lift": null, "transmitters": [{"type": "T"}]})");

std::string faultsOf(const std::string& csv) {
  std::string all;
  for (const TableFault& fault : RoomTable(csv, pattern).faults) all += fault.text() + "\n";
  return all;
}

TEST(RoomTable, putsItsCellsInThePlaceOfTheTemplatesAnswers) {
  const RoomTable table(
      "\xEF\xBB\xBFname;transmitters[1].type;transmitters[0].label;lift.device; lockout.off ;"
      "room.kestrum;screen;display.relay;screen.on;transmitters;audio.volume_knob\r\n"
      "\"Saal \"\"Süd\"\"; 1\";;\"Tür\r\n\";;;;;;;;\r\n"
      ";;;;;;;;;;\r\n"
      "\r\n"
      " B ;U;;L; 5 ;TRUE;null;{};;; master\r\n"
      "C;;;;;;;;\"\"\"\"\"\";[];",
      pattern);
  ASSERT_TRUE(table.faults.empty()) << table.faults.front().text();
  ASSERT_EQ(table.rooms.size(), 3U);
  EXPECT_EQ(table.rooms[0].name, "Saal \"Süd\"; 1");
  EXPECT_EQ(table.rooms[1].row, 5U);
  EXPECT_EQ(table.rooms[1].name, "B");
  EXPECT_EQ(Json::parse(table.rooms[0].text).dump(),
            R"({"$schema":"s.json","name":"Saal \"Süd\"; 1","display":{"relay":{"on_delay":5}},)"
            R"("lockout":{"on":30},"screen":{"device":"S","on":"Down"},"lift":null,)"
            R"("transmitters":[{"type":"T","label":"Tür\r\n"}]})");
  EXPECT_EQ(Json::parse(table.rooms[1].text).dump(),
            R"({"$schema":"s.json","name":" B ","display":{"relay":{}},)"
            R"("audio":{"volume_knob":"master"},"lockout":{"on":30,"off":5},"screen":null,)"
            R"("lift":{"device":"L"},"transmitters":[{"type":"T"},{"type":"U"}],)"
            R"("room":{"kestrum":true}})");
}

TEST(RoomTable, tellsEachWrongCellByItsRowAndColumn) {
  struct Case {
    std::string csv;
    std::string faults;
  };
  const Case cases[] = {
      {"", "row 1, column A: there is no column \"name\", from which each room takes its own\n"},
      {"name,lockout.onn,,name\n",
       "row 1, column B: \"lockout.onn\" is no path of an answer; known are \"lockout.on\", "
       "\"lockout.off\", \"lockout\" and 50 more; did you mean \"lockout.on\"?\n"
       "row 1, column C: the column has no name; give it one, or take it away\n"
       "row 1, column D: \"name\" stands above column A already\n"},
      {"name,lockout.on,lockout.contact,transmitters[0].label\nA,1000,opend,\nB,5x,,Ninechars\n",
       "row 2, column B: lockout.on: must be a whole number from 0 to 999\n"
       "row 2, column C: lockout.contact: \"opend\" is none of \"unused\", \"power off\", "
       "\"continue\"\n"
       "row 3, column B: lockout.on: must be a whole number from 0 to 999\n"
       "row 3, column D: transmitters[0].label: must be a text of 1 to 8 characters without blanks "
       "at its ends\n"},
      {"name\tlift.on\ttransmitters[2].type\tscreen\tscreen.on\ttransmitters\nA\tUp\tX\tyes\n"
       "A\tUp\tX\tnull\tDown\t\nB\t\t\t\t\tnull\n",
       "row 2, column E: is missing; the row has 4 cells and the first row 6\n"
       "row 3, column B: lift.device: is missing; it must be a text\n"
       "row 3, column C: transmitters[1]: must be an object\n"
       "row 3, column E: screen.on: is not asked for, since screen is null in this row; leave the "
       "cell empty\n"
       "row 4, column F: transmitters: must be an array of at most 3 elements\n"},
      {"name\nSüd\n \nsÜD\n../up\nC,\n",
       "row 3, column A: name: is missing; of several rooms each must have one\n"
       "row 4, column A: name: \"sÜD\" stands in row 2 already\n"
       "row 5, column A: name: \"../up\" can't name a file: it holds a slash, a backslash or a "
       "control character, or begins with a point\n"
       "row 6, column B: is too many; the row has 2 cells and the first row 1\n"},
      {std::string("name\nA\0\nB\xFC\n\"C\"c\nD\"\n\"E\n", 22),
       "row 2, column A: holds a NUL character\n"
       "row 3, column A: is not written in UTF-8; save the table as CSV in UTF-8\n"
       "row 4, column A: something stands behind its closing quotation mark\n"
       "row 5, column A: a quotation mark stands in a cell that does not begin with one; put the "
       "cell in quotation marks, and write those inside twice\n"
       "row 6, column A: its quotation mark is not closed\n"},
  };
  for (const Case& bad : cases) EXPECT_EQ(faultsOf(bad.csv), bad.faults) << bad.csv;
  std::string wide = "name" + std::string(26, ',') + "\n";
  EXPECT_NE(faultsOf(wide).find("row 1, column AA: "), std::string::npos);
}

TEST(RoomTable, mayHaveManyRows) {
  std::string csv = "name,lockout.off,transmitters[0].label\r";
  constexpr int rows = 10'000;
  for (int i = 0; i < rows; ++i) csv += "Room " + std::to_string(i) + ",60,\"Wand\"\r";
  const RoomTable table(csv, pattern);
  EXPECT_EQ(table.rooms.size(), static_cast<std::size_t>(rows));
  EXPECT_TRUE(table.faults.empty());
}

}  // namespace
}  // namespace answers
