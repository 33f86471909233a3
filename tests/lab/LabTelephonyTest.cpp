#include "adapters/lab/LabTelephony.h"

#include "lab/LabFixture.h"
#include "support/PostedWork.h"

namespace corvane::test {

using LabTelephonyTest = LabFixture;

TEST_F(LabTelephonyTest, CallsAreTakenAsTheFileSaysAndOfADroppedOneNothingIsTold) {
  const std::pair<const char*, std::uint32_t> answers[] = {{"connect", line::CallStateConnected},
                                                           {"busy", line::CallStateBusy},
                                                           {"no carrier", line::CallStateDisconnected},
                                                           {"no dial tone", line::CallStateDisconnected},
                                                           {"nothing", 0}};
  for (const auto& [answer, expected] : answers)
    for (const bool isDropped : {false, true}) {
      SCOPED_TRACE(answer);
      Folder.Write("lab.ini", Text + "[Modem 1]\nAfter = 20\nAnswer = " + answer + "\n");
      PostedWork posted;
      LabTelephony lines(Network, [&](auto action) { posted.Post(action); });
      std::uint32_t application = 0, devices = 0, line = 0, call = 0, second = 0, told = 0;
      const auto callback = [&](std::uint32_t message, std::uint32_t state) { told = message + state; };
      ASSERT_EQ(lines.InitializeEx(application, callback, "", devices), line::Ok);
      EXPECT_EQ(devices, 2u);
      EXPECT_LT(lines.Open(application, 0, line, 0, line::PrivilegeOwner, line::MediaModeDataModem), 0);
      ASSERT_EQ(lines.Open(application, 1, line, 0, line::PrivilegeOwner, line::MediaModeDataModem), line::Ok);
      ASSERT_EQ(lines.MakeCall(line, call, "1"), line::Ok);
      EXPECT_LT(lines.MakeCall(line, second, "1"), 0) << "the device is in use";
      EXPECT_EQ(posted.Await(1, std::chrono::milliseconds(expected ? 5000 : 50)), expected != 0);
      if (isDropped) lines.Drop(call);
      posted.Run();
      EXPECT_EQ(told, isDropped || !expected ? 0 : line::MessageCallState + expected);
      EXPECT_EQ(lines.Shutdown(application), line::Ok);
      EXPECT_LT(lines.MakeCall(line, call, "1"), 0) << "the line is closed too";
    }
}

}  // namespace corvane::test
