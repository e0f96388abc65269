// The names standard vehicles get, and the ones refused with a message.
#include <gtest/gtest.h>

#include "test_support.h"

namespace {

struct VehicleCase {
  const char* type;
  const char* scaleFactor;
  const char* name;  ///< the name written, or the one refused when refused
  bool written;
};

// A vehicle that always goes through stands before the one under test, so
// that *VEHICLE has rows and the message of a refused name can show.
TEST(StandardVehicles, NameFromTheTypeWordOrRefused) {
  const VehicleCase cases[] = {
      {"HSn-44", "20", "HS20-44", true},
      {"HSn-44", "20.9", "HS20-44", true},
      {"Hn-44L", "15", "H15-44L", true},
      {"HSn-25", "0", "HS0-25", false},
      {"HSn-44", "30", "HS30-44", false},
      {"UICn", "5", "UIC5", false},
      {"Tandem", "1", "Ta1dem", false},
      {"General", "2", "Ge2eral", false},
      {"HL-93K", "1", "HL-93TRK", true},
      {"HL-93M", "1", "HL-93TDM", true},
      {"Cooper E 80", "1", "L-25", true},
      {"RL", "1", "RL", false},
      {"HL-93S", "1", "HL-93S", false},
      {"nX", "3", "nX", true},
      {"XYZ", "1", "XYZ", true},
      {"", "1", "", true},
  };
  for (const VehicleCase& c : cases) {
    SCOPED_TRACE(std::string(c.type) + " " + c.scaleFactor);
    TempFolder folder;
    RecordingUserInterface ui;
    const std::string s2k = std::string("TABLE:  \"BRIDGE LOADS 2 - VEHICLES 1 - STANDARD\"\n") +
                            "   VehName=A   Type=AML   ScaleFactor=1\n" + "   VehName=V   Type=\"" + c.type +
                            "\"   ScaleFactor=" + c.scaleFactor + "\n\nEND TABLE DATA\n";
    ASSERT_EQ(0, ConvertText(folder, s2k, ui));
    const std::string tvt = ReadFile(folder / "model.tvt");
    const std::string head =
        "*VEHICLE    ; Vehicles\n; NAME=NAME, 1\n"
        "; NAME=NAME, 2, bTRAIN, W(W1), PL(D1), PLM(W2), PLV(D2)  ; line 1\n"
        ";      LOAD1, DIST1, LOAD2, DIST2, ...                   ; from line 2\n";
    const std::string lines =
        std::string("\tNAME=AML,  1\n\n") + (c.written ? "\tNAME=" + std::string(c.name) + ",  1\n\n" : "") + "\n";
    EXPECT_NE(std::string::npos, tvt.find(head + lines)) << tvt;
    if (c.written) {
      EXPECT_EQ(std::vector<std::string>{"message IDS_S2KV8_Export_must_be_executed"}, ui.messages);
    } else {
      ASSERT_EQ(2u, ui.messages.size());
      EXPECT_EQ("message IDS_S2KV8_NOCONVERT_VEHICLE", ui.messages[1]);
      EXPECT_NE(std::string::npos, ui.texts[1].find(std::string("Vehicle ") + c.name + " is not")) << ui.texts[1];
    }
  }
}

// Refused names gather in one message, in the order the table is walked.
TEST(StandardVehicles, RefusedNamesJoinedInOneMessage) {
  TempFolder folder;
  RecordingUserInterface ui;
  ASSERT_EQ(0, ConvertText(folder,
                           "TABLE:  \"BRIDGE LOADS 2 - VEHICLES 1 - STANDARD\"\n"
                           "   VehName=A   Type=RL\n"
                           "   VehName=B   Type=AML\n"
                           "   VehName=C   Type=UICn   ScaleFactor=7\n"
                           "\nEND TABLE DATA\n",
                           ui));
  ASSERT_EQ(2u, ui.messages.size());
  EXPECT_NE(std::string::npos, ui.texts[1].find("Vehicle UIC7, RL is not")) << ui.texts[1];
}

// Without a vehicle that goes through, *VEHICLE is empty and the refusal
// goes unsaid.
TEST(StandardVehicles, NoMessageWhenNoVehicleIsWritten) {
  TempFolder folder;
  RecordingUserInterface ui;
  ASSERT_EQ(0, ConvertText(folder,
                           "TABLE:  \"BRIDGE LOADS 2 - VEHICLES 1 - STANDARD\"\n"
                           "   VehName=A   Type=RL\n\nEND TABLE DATA\n",
                           ui));
  EXPECT_EQ(std::vector<std::string>{"message IDS_S2KV8_Export_must_be_executed"}, ui.messages);
  EXPECT_EQ(std::string::npos, ReadFile(folder / "model.tvt").find("*VEHICLE"));
}

}  // namespace
